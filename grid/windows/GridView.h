#pragma once
// The child window that shows the cells. It owns no cell data: for each cell it paints it asks
// the grid for the merged cell and its cell type, and lets the type draw into the cell's
// rectangle, with the selection and current-cell state.
//
// One routine, DrawCells, paints. It walks the view row by row, locked rows first, then from
// topRow on, and in each row the locked columns first, then from leftCol on, until the view's
// edge. Only cells that `hint` holds are drawn; a joined block is drawn once a pass, in its
// whole rectangle. The walk records the last column and row on view (`rightCol`, `bottomRow`,
// equal to the counts when the table ends inside the view), which the moves and hit tests
// read until the next pass, and offers the data source more rows when the rows end inside the
// view. The area right of and below the table gets the grid's back colour.
//
// Two ways in. A paint message repaints every cell, within the paint's clip. UpdateView, the
// fast path for changes the grid makes, paints what `hint` holds plus the previous and the
// current cell; when leftCol or topRow changed it first moves the pixels already there with
// ScrollDC and queues only the stripe uncovered. The current-cell frame is an inverting
// figure drawn on the screen last; since every pass repaints the cell it was drawn on, an old
// frame is always painted over before a new one is drawn.
//
// With double buffering the cells go into `buffer`, which keeps the whole picture between
// passes (a scroll moves its pixels too), and each pass copies the full view to the screen.

#include "grid/windows/DrawHint.h"
#include "grid/windows/GridChild.h"
#include "platform/afx/CBitmap.h"
#include "platform/afx/CWnd.h"

#include <memory>

class CDC;
class GridCell;

class GridView : public CWnd, public GridChild {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Paints what `hint` holds and follows a change of the current cell or the scroll
    // position. While a paint message is pending, or the find dialog is open, it leaves the
    // work to a paint message.
    void UpdateView();
    void RedrawCell(int col, int row);
    void RedrawRow(int row);
    void RedrawCol(int col);
    void RedrawRange(int leftCol, int topRow, int rightCol, int bottomRow);
    void RedrawAll();
    // Queues cells for the next pass without painting them now.
    void MarkRange(int leftCol, int topRow, int rightCol, int bottomRow);
    // bufferDC is null in direct mode; the cells go to it otherwise.
    void DrawCells(CDC* screenDC, CDC* bufferDC);
    // Mode 0 draws directly, 1 through an off-screen bitmap of the client's size. Answers 1
    // when the bitmap could not be made; the view then stays in direct mode.
    int SetDoubleBuffer(int mode);

    // --- Fields ---
    DrawHint hint;
    // Null unless double buffering is on.
    std::unique_ptr<CBitmap> buffer;
    // As of the last WM_SIZE.
    RECT clientRect{};
    int doubleBuffer = 0;

protected:
    void OnPaint();
    void OnSize(UINT type, int cx, int cy);
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    // A memory context with `buffer` in it for one pass; null in direct mode.
    std::unique_ptr<CDC> OpenBuffer();
    // Walks the columns of one row; answers the right edge the walk reached.
    LONG DrawRow(CDC& target, int row, LONG top, LONG bottom, RECT* focus);
    // Draws the cell the walk met at *col. A cell of a joined block stands for the block's
    // main cell, and *col becomes its column; false when the block was drawn already.
    bool DrawCell(CDC& target, const RECT& walk, int* col, int row, RECT* focus);
    void DrawLockLines(CDC& target, int col, int row, const RECT& rect);
    void FillEmptyParts(CDC& target, LONG emptyRight, LONG emptyBottom);
    // The pixels the view moved along one direction since the last pass, negative back;
    // sets `far` and answers 0 when that is more than a view, or when `far` was set already.
    int ScrollDistance(bool cols, bool* far) const;
};
