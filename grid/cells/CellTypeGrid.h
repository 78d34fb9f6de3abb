#pragma once
// What a cell type may ask of the grid control that registered it: reading and writing cells,
// repainting one, the current cell, the control's notification of cell type events, and what
// drawing reads: the active sheet's drawing settings, sizes, joins, other types and the text
// that runs on into an empty cell. The control implements it with its own operations of the
// same names, so that the types live below the control.

#include "platform/base/WinTypes.h"

class CellType;
class CFont;
class CPen;
class CWnd;
class GridCell;

class CellTypeGrid {
public:
    // The active sheet's settings that drawing reads, with the control's two frame pens; the
    // pens stay owned by the control.
    struct DrawSettings {
        int cellMargin;
        int borderWidth;
        int textOverflowEnabled;
        int gridLinesEnabled;
        int highlightMode;
        CPen* gridLinePen;
        CPen* highlightPen;
        CPen* shadowPen;
    };

    virtual int GetCell(int col, int row, GridCell& cell) = 0;
    virtual int GetEffectiveCell(int col, int row, GridCell& cell) = 0;
    // The control's write notification may change `cell` on its way to the source.
    virtual int SetCell(int col, int row, GridCell& cell) = 0;
    virtual int RedrawCell(int col, int row) = 0;
    virtual int GetCurrentCol() const = 0;
    virtual int GetCurrentRow() const = 0;
    // The font of cells that name none; may be none.
    virtual CFont* GetDefaultFont() const = 0;
    virtual DrawSettings GetDrawSettings() = 0;
    virtual int GetColWidth(int col) const = 0;
    // A data row's height; 0 for a negative row.
    virtual int GetRowHeight(int row) const = 0;
    // The height of top heading row -1, -2, ...; 0 for a row outside the heading.
    virtual int GetHeadingRowHeight(int row) const = 0;
    // 0 with the block's first and last cells when (col, row) lies in a join, else nonzero.
    virtual int GetJoinedRange(int* col, int* row, int* endCol, int* endRow) = 0;
    // The cell's rectangle in the view's client coordinates; a joined cell's is its block's.
    virtual int GetJoinedCellRect(int col, int row, RECT* rect) = 0;
    // The window that shows the cells: the parent of a type's own windows, and where the focus
    // goes back to from them.
    virtual CWnd* GetCellView() = 0;
    // The registered type of that id; the normal type for an id that names none.
    virtual CellType* GetCellType(int id) = 0;
    // The sheet's data source's nearest cell with text left of col in the row; 0 with col
    // moved there, nonzero when there is none.
    virtual int FindTextToLeft(int* col, int row) = 0;
    // `parameter` is an integer or a pointer, as the event says.
    virtual int NotifyCellTypeEvent(int typeId, int col, int row, int event, LPARAM parameter) = 0;

protected:
    ~CellTypeGrid() = default;
};
