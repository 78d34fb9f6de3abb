#pragma once
// The child window that shows the cells. Its paint walks the cells on view as the cell drawing
// will: locked rows and columns first, then from the scroll position on, until the view's
// edge. The walk records the last column and row on view (`rightCol`, `bottomRow`), which the
// moves read, and offers the data source more rows when the rows end inside the view. Cells
// themselves are not drawn yet; the view shows its background.

#include "grid/windows/GridChild.h"
#include "platform/afx/CWnd.h"

class GridView : public CWnd, public GridChild {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Follows a change of the current cell or the scroll position.
    void UpdateView();
    void RedrawCell(int col, int row);
    void RedrawRow(int row);
    void RedrawCol(int col);
    void RedrawRange(int leftCol, int topRow, int rightCol, int bottomRow);
    void RedrawAll();
    // Marks cells for the next update without painting them now.
    void MarkRange(int leftCol, int topRow, int rightCol, int bottomRow);

protected:
    void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void WalkView();
};
