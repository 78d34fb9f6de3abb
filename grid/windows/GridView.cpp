#include "grid/windows/GridView.h"

#include "grid/core/GridCtrl.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CPaintDC.h"

BEGIN_MESSAGE_MAP(GridView, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL GridView::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    const char* windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW), nullptr);
    return CWnd::Create(windowClass, "", style | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, rect, parent,
                        id);
}

void GridView::OnPaint() {
    CPaintDC dc(this);
    RECT client;
    GetClientRect(&client);
    CBrush back(grid->GetBackColor(1));
    FillRect(dc, &client, static_cast<HBRUSH>(back.GetSafeHandle()));
    WalkView();
}

void GridView::WalkView() {
    GridSheet& s = *sheet;
    s.rightCol = s.colCount;
    int x = 0;
    for (int c = s.lockedCols > 0 ? 0 : s.leftCol; c < s.colCount;
         c = c + 1 == s.lockedCols ? s.leftCol : c + 1) {
        x += s.ColWidth(c);
        if (x > s.viewWidth) {
            s.rightCol = c;
            break;
        }
    }
    s.bottomRow = s.rowCount;
    int y = 0;
    for (int r = s.lockedRows > 0 ? 0 : s.topRow; r < s.rowCount;
         r = r + 1 == s.lockedRows ? s.topRow : r + 1) {
        y += s.RowHeight(r);
        if (y > s.viewHeight) {
            s.bottomRow = r;
            break;
        }
        if (r + 1 >= s.rowCount) {
            // The rows end inside the view: the source may add more, and the walk goes on
            // into them.
            int next = r + 1;
            grid->ValidateRow(&next);
            s.bottomRow = s.rowCount;
        }
    }
}

void GridView::UpdateView() {
    if (!m_hWnd) return;
    // Until the cells are drawn, a scroll repaints the whole view, at the next paint message.
    if (sheet->leftCol != sheet->previousLeftCol || sheet->topRow != sheet->previousTopRow)
        Invalidate(TRUE);
    WalkView();
}

void GridView::MarkRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    if (!m_hWnd) return;
    RECT area;
    grid->GetRangeRect(leftCol, topRow, rightCol, bottomRow, &area);
    InvalidateRect(&area, TRUE);
}

void GridView::RedrawRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    MarkRange(leftCol, topRow, rightCol, bottomRow);
    UpdateView();
}

void GridView::RedrawCell(int col, int row) {
    RedrawRange(col, row, col, row);
}

void GridView::RedrawRow(int row) {
    RedrawRange(0, row, sheet->colCount - 1, row);
}

void GridView::RedrawCol(int col) {
    RedrawRange(col, 0, col, sheet->rowCount - 1);
}

void GridView::RedrawAll() {
    if (!m_hWnd) return;
    Invalidate(TRUE);
    UpdateWindow();
}
