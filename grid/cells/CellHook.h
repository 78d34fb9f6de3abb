#pragma once
// An object that a cell can name to have itself rewritten each time the grid reads it for
// display, after the stored value and the client's read notification and before the style.
// The cell holds the hook by pointer and doesn't own it.

class GridCell;

class CellHook {
public:
    virtual ~CellHook() = default;
    virtual void HookCell(GridCell* cell) = 0;
};
