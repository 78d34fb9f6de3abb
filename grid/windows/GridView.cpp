#include "grid/windows/GridView.h"

#include "grid/cells/CellType.h"
#include "grid/core/GridCtrl.h"
#include "grid/core/ViewAxis.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CClientDC.h"
#include "platform/afx/CPaintDC.h"
#include "platform/afx/DCStateSaver.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(GridView, CWnd)
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_SETCURSOR()
END_MESSAGE_MAP()

BOOL GridView::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    // No class brush: the cells paint their own background, so nothing is erased first.
    const char* windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW), nullptr);
    return CWnd::Create(windowClass, "", style | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, rect, parent,
                        id);
}

void GridView::OnPaint() {
    CPaintDC dc(this);
    // Every cell on view; the paint's clip keeps the output to the invalid area.
    hint.AddRange(0, 0, sheet->colCount, sheet->rowCount);
    std::unique_ptr<CDC> memory = OpenBuffer();
    DrawCells(&dc, memory.get());
}

void GridView::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    GetClientRect(&clientRect);
    if (doubleBuffer > 0) SetDoubleBuffer(doubleBuffer);
}

BOOL GridView::OnSetCursor(CWnd*, UINT, UINT) {
    ::SetCursor(sheet->arrowCursor);
    return TRUE;
}

std::unique_ptr<CDC> GridView::OpenBuffer() {
    if (!doubleBuffer || !buffer) return nullptr;
    auto memory = std::make_unique<CDC>();
    memory->CreateCompatibleDC(nullptr);
    memory->SelectObject(buffer.get());
    return memory;
}

void GridView::DrawCells(CDC* screenDC, CDC* bufferDC) {
    GridSheet& s = *sheet;
    CDC& target = bufferDC ? *bufferDC : *screenDC;
    if (s.defaultFont) {
        screenDC->SelectObject(s.defaultFont);
        if (bufferDC) bufferDC->SelectObject(s.defaultFont);
    }
    grid->PrepareDrawContext(screenDC, bufferDC, 1);

    // A count left in place means that the columns or rows ended inside the view.
    s.rightCol = s.colCount;
    s.bottomRow = s.rowCount;
    // The current cell out of sight leaves the frame out of sight too.
    RECT focus{-1, -1, -1, -1};
    LONG emptyRight = -1;
    LONG top = 0;
    const ViewAxis rows{s, false};
    for (int row = rows.Start(); row < s.rowCount; row = rows.Next(row)) {
        const int height = s.RowHeight(row);
        if (height == 0) continue;
        const LONG bottom = top + height;
        const LONG right = DrawRow(target, row, top, bottom, &focus);
        if (right < s.viewWidth && s.rightCol == s.colCount) emptyRight = right;
        top = bottom;
        if (bottom > s.viewHeight) {
            s.bottomRow = row;
            break;
        }
        if (row + 1 >= s.rowCount) {
            // The rows end inside the view: the source may add some, and the walk goes on
            // into them in this pass.
            const int count = s.rowCount;
            int next = row + 1;
            grid->ValidateRow(&next);
            if (s.rowCount > count) {
                hint.AddRange(0, row + 1, s.colCount - 1, s.rowCount - 1);
                s.bottomRow = s.rowCount;
            }
        }
    }
    hint.Clear();
    const LONG emptyBottom = top < s.viewHeight && s.bottomRow == s.rowCount ? top : -1;
    FillEmptyParts(target, emptyRight, emptyBottom);

    if (bufferDC) screenDC->BitBlt(0, 0, s.viewWidth, s.viewHeight, bufferDC, 0, 0, SRCCOPY);
    if (::GetFocus() == m_hWnd || grid->findDialogOpen) {
        if (s.wholeRowMode) {
            focus.left = 0;
            focus.right = s.viewWidth;
        }
        grid->DrawCurrentCellFrame(screenDC, &focus);
    }
}

LONG GridView::DrawRow(CDC& target, int row, LONG top, LONG bottom, RECT* focus) {
    GridSheet& s = *sheet;
    const ViewAxis cols{s, true};
    LONG left = 0;
    for (int col = cols.Start(); col < s.colCount; col = cols.Next(col)) {
        const int width = s.ColWidth(col);
        if (width == 0) continue;
        const RECT walk{left, top, left + width, bottom};
        left = walk.right;
        int edgeCol = col;
        if (hint.Contains(col, row) && !DrawCell(target, walk, &edgeCol, row, focus)) continue;
        // A column that ends exactly at the edge doesn't end the walk.
        if (walk.right > s.viewWidth) {
            s.rightCol = edgeCol;
            break;
        }
    }
    return left;
}

bool GridView::DrawCell(CDC& target, const RECT& walk, int* col, int row, RECT* focus) {
    const GridSheet& s = *sheet;
    RECT rect = walk;
    GridCell cell;
    grid->GetEffectiveCell(*col, row, cell);
    if (cell.HasProperty(PropJoin)) {
        grid->GetJoinedCellRect(*col, row, &rect);
        grid->GetJoinedMainCell(col, &row, cell);
        if (hint.IsDone(*col, row)) return false;
        hint.MarkDone(*col, row);
    }
    CellType* type = grid->GetCellType(cell.HasProperty(PropCellType) ? cell.GetCellType() : -1);

    // The current cell is never drawn as selected.
    const bool current = row == s.currentRow && (*col == s.currentCol || s.wholeRowMode);
    int selected = 0;
    int block = 0;
    if (!current && s.selection->IsSelected(*col, row, &block)) selected = block + 1;
    {
        DCStateSaver saved(target);
        RECT drawn = rect;
        type->Draw(&target, &drawn, *col, row, cell, selected, current ? 1 : 0);
        DrawLockLines(target, *col, row, rect);
    }
    if (current) *focus = rect;
    return true;
}

void GridView::DrawLockLines(CDC& target, int col, int row, const RECT& rect) {
    const GridSheet& s = *sheet;
    target.SelectStockObject(BLACK_PEN);
    // Both cells beside a lock draw its line, so that it survives a repaint of either.
    if (s.lockedCols > 0 && (col == s.leftCol || col == s.lockedCols - 1)) {
        const LONG x = col == s.leftCol ? rect.left - 1 : rect.right - 1;
        target.MoveTo(x, rect.top);
        target.LineTo(x, rect.bottom + 1);
    }
    if (s.lockedRows > 0 && (row == s.topRow || row == s.lockedRows - 1)) {
        const LONG y = row == s.topRow ? rect.top - 1 : rect.bottom - 1;
        target.MoveTo(rect.left, y);
        target.LineTo(rect.right + 1, y);
    }
}

void GridView::FillEmptyParts(CDC& target, LONG emptyRight, LONG emptyBottom) {
    if (emptyRight < 0 && emptyBottom < 0) return;
    CBrush back(grid->GetBackColor(1));
    RECT client;
    GetClientRect(&client);
    if (emptyRight >= 0) {
        const RECT right{emptyRight, 0, client.right, client.bottom};
        target.FillRect(&right, &back);
    }
    if (emptyBottom >= 0) {
        const RECT below{0, emptyBottom, client.right, client.bottom};
        target.FillRect(&below, &back);
    }
}

void GridView::UpdateView() {
    if (!m_hWnd) return;
    if (::GetUpdateRect(m_hWnd, nullptr, FALSE)) {
        // The paint message repaints everything, `hint` included.
        UpdateWindow();
        return;
    }
    if (grid->findDialogOpen) {
        Invalidate(TRUE);
        UpdateWindow();
        return;
    }
    GridSheet& s = *sheet;
    // Beyond a view nothing on the screen is of use: everything is repainted.
    bool far = false;
    const int dx = ScrollDistance(true, &far);
    const int dy = ScrollDistance(false, &far);
    if (far) hint.AddRange(0, 0, s.colCount, s.rowCount);

    CClientDC windowDC(this);
    std::unique_ptr<CDC> memory = OpenBuffer();
    CDC& target = memory ? *memory : windowDC;
    if (dx != 0 || dy != 0) {
        // Along one direction the locked part stays in place; along both the whole view moves.
        RECT area;
        GetClientRect(&area);
        if (dx == 0) area.top += s.lockedHeight;
        if (dy == 0) area.left += s.lockedWidth;
        target.ScrollDC(-dx, -dy, &area, &area, nullptr, nullptr);
    }
    // What the scroll uncovered, by the edges of the last pass.
    if (dx > 0) hint.AddRange(s.rightCol, 0, s.colCount, s.rowCount);
    if (dx < 0) hint.AddRange(0, 0, s.previousLeftCol, s.rowCount);
    if (dy > 0) hint.AddRange(0, s.bottomRow, s.colCount, s.rowCount);
    if (dy < 0) hint.AddRange(0, 0, s.colCount, s.previousTopRow);
    if (dx != 0 && dy != 0) {
        // The locked part moved with the rest and must come back.
        if (s.lockedCols > 0) hint.AddRange(0, 0, s.lockedCols - 1, s.rowCount);
        if (s.lockedRows > 0) hint.AddRange(0, 0, s.colCount, s.lockedRows - 1);
    }
    if (s.wholeRowMode) {
        hint.AddRange(0, s.previousRow, s.colCount, s.previousRow);
        hint.AddRange(0, s.currentRow, s.colCount, s.currentRow);
    } else {
        hint.AddCell(s.previousCol, s.previousRow);
        hint.AddCell(s.currentCol, s.currentRow);
    }
    DrawCells(&windowDC, memory.get());
}

int GridView::ScrollDistance(bool cols, bool* far) const {
    if (*far) return 0;
    const GridSheet& s = *sheet;
    const ViewAxis axis{s, cols};
    const int now = axis.ScrollPos();
    const int before = cols ? s.previousLeftCol : s.previousTopRow;
    const int sign = now > before ? 1 : -1;
    long long sum = 0;
    for (int i = std::min(now, before); i < std::max(now, before); ++i) {
        sum += axis.Size(i);
        if (sum > axis.ViewSize()) {
            *far = true;
            break;
        }
    }
    return *far ? 0 : sign * static_cast<int>(sum);
}

int GridView::SetDoubleBuffer(int mode) {
    buffer.reset();
    doubleBuffer = mode;
    // Before the window exists the bitmap waits for its first WM_SIZE.
    if (mode != 1 || !m_hWnd) return 0;
    auto bitmap = std::make_unique<CBitmap>();
    CClientDC dc(this);
    RECT client;
    GetClientRect(&client);
    if (!bitmap->CreateCompatibleBitmap(&dc, std::max<LONG>(client.right, 1),
                                        std::max<LONG>(client.bottom, 1))) {
        doubleBuffer = 0;
        return 1;
    }
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* previous = memory.SelectObject(bitmap.get());
    CBrush back(grid->GetBackColor(1));
    memory.FillRect(&client, &back);
    memory.SelectObject(previous);
    buffer = std::move(bitmap);
    return 0;
}

void GridView::MarkRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    hint.AddRange(leftCol, topRow, rightCol, bottomRow);
}

void GridView::RedrawCell(int col, int row) {
    hint.AddCell(col, row);
    UpdateView();
}

void GridView::RedrawRow(int row) {
    hint.AddRange(0, row, sheet->colCount - 1, row);
    UpdateView();
}

void GridView::RedrawCol(int col) {
    hint.AddRange(col, 0, col, sheet->rowCount - 1);
    UpdateView();
}

void GridView::RedrawRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    hint.AddRange(leftCol, topRow, rightCol, bottomRow);
    UpdateView();
}

void GridView::RedrawAll() {
    if (!m_hWnd) return;
    Invalidate(TRUE);
    UpdateWindow();
}
