#pragma once
// What a cell type may ask of the grid control that registered it: reading and writing cells,
// repainting one, the current cell, and the control's notification of cell type events. The
// control implements it with its own operations of the same names, so that the types live
// below the control.

#include "platform/base/WinTypes.h"

class CFont;
class GridCell;

class CellTypeGrid {
public:
    virtual int GetCell(int col, int row, GridCell& cell) = 0;
    virtual int GetEffectiveCell(int col, int row, GridCell& cell) = 0;
    // The control's write notification may change `cell` on its way to the source.
    virtual int SetCell(int col, int row, GridCell& cell) = 0;
    virtual int RedrawCell(int col, int row) = 0;
    virtual int GetCurrentCol() const = 0;
    virtual int GetCurrentRow() const = 0;
    // The font of cells that name none; may be none.
    virtual CFont* GetDefaultFont() const = 0;
    // `parameter` is an integer or a pointer, as the event says.
    virtual int NotifyCellTypeEvent(int typeId, int col, int row, int event, LPARAM parameter) = 0;

protected:
    ~CellTypeGrid() = default;
};
