// The division of the client area among the children, the scroll limits, the locks and the
// heading sizes.

#include "grid/core/GridCtrl.h"
#include "grid/windows/CornerButton.h"
#include "grid/windows/GridHScroll.h"
#include "grid/windows/GridVScroll.h"
#include "grid/windows/GridView.h"
#include "grid/windows/SheetTabs.h"
#include "grid/windows/SideHeading.h"
#include "grid/windows/TopHeading.h"

#include <algorithm>

namespace {

// The sum of the sizes from item 0 on, stopped at the first that exceeds `room`: so a long
// table costs only what fits.
template <typename SizeOf> long long SumUntilExceeds(int count, long long room, SizeOf sizeOf) {
    long long sum = 0;
    for (int i = 0; i < count && sum <= room; ++i) sum += sizeOf(i);
    return sum;
}

void Move(CWnd& child, const RECT& r) {
    if (child.m_hWnd) child.MoveWindow(&r, TRUE);
}

} // namespace

void GridCtrl::RecalcLayout() {
    if (!m_hWnd) return;
    GridSheet& s = *sheet;
    // A layout ends the focus of an open editor.
    if (view->m_hWnd && CWnd::GetFocus() != view.get()) view->SetFocus();
    const int wantedVScroll = s.vScrollWidth;
    const int wantedHScroll = s.hScrollHeight;
    const int wantedTabs = s.tabStripWidth;

    RECT client;
    GetClientRect(&client);
    const int W = client.right, H = client.bottom;
    const int availableWidth = W - s.sideHeadingWidth;
    if (s.tabStripWidth > 0)
        s.tabStripWidth = std::max(std::min(s.tabStripWidth, availableWidth - 30), 4);
    const long long colsWidth =
        SumUntilExceeds(s.colCount, availableWidth, [&s](int c) { return s.ColWidth(c); });
    const int availableHeight = H - s.topHeadingHeight;
    long long rowsHeight;
    if (s.uniformRowHeight) {
        long long needed = availableHeight < 0 ? 0 : availableHeight / s.defaultRowHeight + 1;
        rowsHeight = std::min<long long>(s.rowCount, needed) * s.defaultRowHeight;
    } else {
        rowsHeight =
            SumUntilExceeds(s.rowCount, availableHeight, [&s](int r) { return s.RowHeight(r); });
    }

    const bool colsFit = colsWidth < availableWidth;
    const bool rowsFit = rowsHeight < availableHeight;
    if (rowsFit &&
        ((colsFit && s.tabStripWidth <= 0) || rowsHeight < availableHeight - s.hScrollHeight))
        s.vScrollWidth = 0;
    if (colsFit && s.tabStripWidth < 1 &&
        !(!rowsFit && colsWidth >= availableWidth - wantedVScroll))
        s.hScrollHeight = 0;

    const int S = s.sideHeadingWidth, T = s.topHeadingHeight;
    const int V = s.vScrollWidth, B = s.hScrollHeight, A = s.tabStripWidth;
    s.cornerRect = RECT{0, 0, S, T};
    s.topHeadingRect = RECT{S, 0, W - V, T};
    s.sideHeadingRect = RECT{0, T, S, H - B};
    s.viewRect = RECT{S, T, W - V, H - B};
    s.vScrollRect = RECT{W - V, 0, W, H - B};
    s.tabsRect = RECT{0, H - B, A, H};
    s.hScrollRect = RECT{A, H - B, W - V, H};
    AdjustChildRects(&s.viewRect, &s.topHeadingRect, &s.sideHeadingRect, &s.cornerRect,
                     &s.vScrollRect, &s.hScrollRect, &s.tabsRect);
    // The view's size follows what the client made of its rectangle.
    s.viewWidth = RectWidth(s.viewRect);
    s.viewHeight = RectHeight(s.viewRect);

    if (tabResizing) {
        Move(*hScroll, s.hScrollRect);
        Move(*tabs, s.tabsRect);
        hScroll->Refresh();
        tabs->Refresh();
        ValidateRect(nullptr);
    } else {
        Move(*view, s.viewRect);
        Move(*topHeading, s.topHeadingRect);
        Move(*sideHeading, s.sideHeadingRect);
        Move(*cornerButton, s.cornerRect);
        Move(*vScroll, s.vScrollRect);
        Move(*hScroll, s.hScrollRect);
        Move(*tabs, s.tabsRect);
    }
    // The wishes go back before anything below can lay out again, so that a nested layout
    // starts from them too.
    s.vScrollWidth = wantedVScroll;
    s.hScrollHeight = wantedHScroll;
    s.tabStripWidth = wantedTabs;
    if (!tabResizing) {
        UpdateMaxTopRow();
        UpdateMaxLeftCol();
        RefreshChildren();
    }
    // What the layout did to the view is no change to report.
    s.previousTopRow = s.topRow;
    s.previousLeftCol = s.leftCol;
}

void GridCtrl::UpdateMaxTopRow() {
    GridSheet& s = *sheet;
    const int old = s.maxTopRow;
    const long long room = static_cast<long long>(s.viewHeight) - s.lockedHeight;
    s.maxTopRow = s.lockedRows;
    // Walking up from the end, row r is the first that doesn't fit below the last rows.
    int r = -1;
    if (s.uniformRowHeight) {
        long long rowsThatFit = room < 0 ? 0 : room / s.defaultRowHeight + 1;
        if (rowsThatFit <= s.rowCount) r = s.rowCount - static_cast<int>(rowsThatFit);
    } else {
        long long left = room;
        for (int i = s.rowCount; i >= 0; --i) {
            left -= s.RowHeight(i);
            if (left < 0) {
                r = i;
                break;
            }
        }
    }
    if (r >= 0) s.maxTopRow = std::min(r + 1, s.rowCount - 1);
    s.maxTopRow = std::max(s.maxTopRow, s.lockedRows);
    s.topRow = std::min(std::max(s.topRow, s.lockedRows), s.maxTopRow);
    // The need of the vertical bar has changed.
    if ((old == 0) != (s.maxTopRow == 0)) RecalcLayout();
}

void GridCtrl::UpdateMaxLeftCol() {
    GridSheet& s = *sheet;
    long long left = static_cast<long long>(s.viewWidth) - s.lockedWidth;
    s.maxLeftCol = s.lockedCols;
    for (int c = s.colCount; c >= 0; --c) {
        left -= s.ColWidth(c);
        if (left < 0) {
            s.maxLeftCol = std::min(c + 1, s.colCount - 1);
            break;
        }
    }
    s.maxLeftCol = std::max(s.maxLeftCol, s.lockedCols);
    s.leftCol = std::min(std::max(s.leftCol, s.lockedCols), s.maxLeftCol);
}

int GridCtrl::LockCols(int count) {
    GridSheet& s = *sheet;
    if (count < 0 || count > s.colCount) return 1;
    if (count == s.lockedCols) return 0;
    s.lockedCols = count;
    RecalcLockedWidth();
    s.leftCol = s.previousLeftCol = count;
    UpdateMaxLeftCol();
    return 0;
}

int GridCtrl::LockRows(int count) {
    GridSheet& s = *sheet;
    if (count < 0 || count > s.rowCount) return 1;
    if (count == s.lockedRows) return 0;
    s.lockedRows = count;
    RecalcLockedHeight();
    s.topRow = s.previousTopRow = count;
    UpdateMaxTopRow();
    return 0;
}

void GridCtrl::RecalcLockedWidth() {
    GridSheet& s = *sheet;
    if (s.lockedCols == 0 && s.lockedWidth == 0) return;
    int width = 0;
    for (int c = 0; c < s.lockedCols; ++c) width += s.ColWidth(c);
    s.lockedWidth = width;
}

void GridCtrl::RecalcLockedHeight() {
    GridSheet& s = *sheet;
    if (s.lockedRows == 0 && s.lockedHeight == 0) return;
    long long height =
        s.uniformRowHeight
            ? static_cast<long long>(std::min(s.lockedRows, s.rowCount)) * s.defaultRowHeight
            : 0;
    if (!s.uniformRowHeight)
        for (int r = 0; r < s.lockedRows; ++r) height += s.RowHeight(r);
    s.lockedHeight = static_cast<int>(height);
}

namespace {

// Scales the parts to a new total, keeping their shares; parts that are all 0 stay so.
void ScaleParts(std::vector<int>& parts, int total) {
    long long sum = 0;
    for (int p : parts) sum += p;
    if (sum == 0) return;
    const double factor = static_cast<double>(total) / static_cast<double>(sum);
    for (int& p : parts) p = static_cast<int>(p * factor + 0.5);
}

} // namespace

int GridCtrl::SetTopHeadingHeight(int height) {
    if (height < 0 || height > 1024) return 1;
    sheet->topHeadingHeight = height;
    ScaleParts(sheet->topHeadingRowHeights, height);
    RecalcLayout();
    return 0;
}

int GridCtrl::SetSideHeadingWidth(int width) {
    if (width < 0 || width > 1024) return 1;
    sheet->sideHeadingWidth = width;
    ScaleParts(sheet->sideHeadingColWidths, width);
    RecalcLayout();
    return 0;
}

int GridCtrl::SetTopHeadingRows(int count) {
    if (count < 1 || count > 64) return 1;
    sheet->topHeadingRows = count;
    sheet->topHeadingRowHeights.resize(static_cast<size_t>(count), sheet->defaultRowHeight);
    return 0;
}

int GridCtrl::SetSideHeadingCols(int count) {
    if (count < 1 || count > 64) return 1;
    sheet->sideHeadingCols = count;
    sheet->sideHeadingColWidths.resize(static_cast<size_t>(count), sheet->defaultColWidth);
    return 0;
}

int GridCtrl::SetTopHeadingRowHeight(int row, int height) {
    if (row > -1 || row < -sheet->topHeadingRows) return 1;
    if (height < 0 || height > 1024) return 2;
    sheet->topHeadingRowHeights[static_cast<size_t>(-row - 1)] = height;
    return 0;
}

int GridCtrl::SetSideHeadingColWidth(int col, int width) {
    if (col > -1 || col < -sheet->sideHeadingCols) return 1;
    if (width < 0 || width > 1024) return 2;
    int& part = sheet->sideHeadingColWidths[static_cast<size_t>(-col - 1)];
    const bool changed = part != width;
    part = width;
    if (sheet->sideHeadingCols == 1 && changed) SetSideHeadingWidth(width);
    return 0;
}
