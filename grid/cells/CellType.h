#pragma once
// How a cell looks and how it answers the mouse and the keyboard while no editor window is
// open on it. A cell names its type by number (the id under which the grid registered it);
// the grid looks the type up and calls it with the cell's address, the merged cell and, for
// events, the cell's rectangle and the point in the view's client coordinates. Types keep no
// state per cell.
//
// The event operations answer nonzero when the type took the event; the view passes that
// answer on to the grid's notification of the same event. The base class takes no event: it
// is by itself the type of plain text cells.
//
// Drawing goes into a context that the caller prepared and saves around the call: a type
// selects the cell's font and sets colours without putting them back. A cell's background and
// its single-line text are one opaque ExtTextOut, so a cell is never filled on its own. Text
// that doesn't fit is clipped at the cell, or runs on over empty cells to its right: each
// empty cell finds the text that reaches into it (FindOverflowSource) and draws its own slice
// of it. The shared steps (border, text, bitmap, overflow) are for derived types to call.

#include "platform/afx/CObject.h"
#include "platform/base/WinTypes.h"

class CBitmap;
class CDC;
class CellTypeGrid;
class GridCell;

class CellType : public CObject {
public:
    CellType() = default;
    CellType(const CellType&) = delete;
    CellType& operator=(const CellType&) = delete;

    virtual const char* GetName();
    // 16 bytes that identify the class.
    virtual const unsigned char* GetTypeTag();
    // May change the rectangle in which an editor opens on the cell; the answer isn't used.
    virtual int PrepareEditRect(RECT* rect);
    // The system colours changed.
    virtual int NotifySysColorChange();
    virtual int LeftClick(int col, int row, int isDown, RECT* rect, POINT* point);
    virtual int RightClick(int col, int row, int isDown, RECT* rect, POINT* point);
    virtual int DoubleClick(int col, int row, RECT* rect, POINT* point);
    virtual int KeyDown(int col, int row, UINT* key);
    virtual int CharInput(int col, int row, UINT* character);
    virtual int MouseMove(int col, int row, POINT* point, UINT flags);
    // The cell became, or stopped being, the current cell; `cell` is the merged cell.
    virtual void NotifyEnter(int col, int row, GridCell* cell);
    virtual void NotifyLeave(int col, int row, GridCell* cell);
    // Border, then text: the cell's own, or for an empty cell the slice of a neighbour's text
    // that runs on into it, in the neighbour's colours.
    virtual void Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
                      int current);
    // The room the cell needs to show itself whole: for plain text its extent in the cell's font
    // (or the grid's default font) plus a margin; 9 by 5 for an empty cell.
    virtual void GetBestSize(CDC* dc, SIZE* size, const GridCell& cell);

    // 0 makes the grid refuse to open an editor on cells of this type.
    int GetEditable() const { return editable; }
    void SetEditable(int flag) { editable = flag ? 1 : 0; }
    void SetShowLabel(int flag) { showLabel = flag ? 1 : 0; }
    int GetTypeId() const { return typeId; }
    void SetTypeId(int id) { typeId = id; }
    // Whether the cell's text may run on over empty cells to its right: an explicit alignment
    // allows it only when left-aligned; otherwise a cell with a type option or in a join
    // keeps its text to itself.
    int AllowsOverflow(const GridCell& cell) const;

    // For the printer: `rect` is in device pixels, and the font (the cell's or the grid's
    // default) is scaled by the rectangle's height against the row's height on screen before
    // Draw runs with it, unselected and uncurrent.
    void DrawScaled(CDC* dc, RECT* rect, int col, int row, GridCell& cell);

    // The shared drawing steps.
    // Grid lines and the cell's border lines and frames; `inner` is what is left inside them.
    void DrawCellBorder(CDC* dc, const RECT& rect, RECT* inner, const GridCell& cell);
    // Background, bitmap and text in `rect`, the inner rectangle, which is the same again on
    // return. A negative xOffset places a neighbour's text that far left of this cell.
    void DrawCellText(CDC* dc, RECT* rect, int xOffset, int col, int row, const GridCell& cell,
                      int selected, int current);
    // The bitmap at the left of `rect`, stretched with its proportions kept; answers the width
    // it took, margins included.
    int DrawCellBitmap(CDC* dc, CBitmap* bitmap, const RECT& rect, COLORREF backColor);
    // For the empty cell (col, row): the nearest text to its left that runs on into it. Answers
    // the x offset of that text against this cell (negative), with its column and merged cell,
    // or 0 when no text reaches here.
    int FindOverflowSource(CDC* dc, int col, int row, int* sourceCol, GridCell& sourceCell);

    // Set when the type is registered; not owned.
    CellTypeGrid* grid = nullptr;

protected:
    int editable = 1;
    // Cells of this type show their label instead of their text.
    int showLabel = 0;
    int overflowAllowed = 1;
    // From screen to device pixels while printing; DrawScaled sets it, and the overflow of
    // screen drawing resets it.
    double printScale = 1.0;

private:
    int typeId = 0;
};
