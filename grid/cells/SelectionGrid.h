#pragma once
// What the selection store asks of the grid control it belongs to: repaints. The control
// implements it, so that the store lives below the control.

class SelectionGrid {
public:
    virtual int RedrawAll() = 0;
    // Queues cells on the view's DrawHint for its next update; nothing is painted here.
    virtual void AddViewRange(int startCol, int startRow, int endCol, int endRow) = 0;

protected:
    ~SelectionGrid() = default;
};
