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
// Known debt: the drawing operations (Draw, DrawScaled and the shared steps for borders, text,
// bitmaps and text overflow) are not written yet; printScale waits for them.

#include "platform/afx/CObject.h"
#include "platform/base/WinTypes.h"

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

    // Set when the type is registered; not owned.
    CellTypeGrid* grid = nullptr;

protected:
    int editable = 1;
    // Cells of this type show their label instead of their text.
    int showLabel = 0;
    int overflowAllowed = 1;
    // From screen to device pixels while printing.
    double printScale = 1.0;

private:
    int typeId = 0;
};
