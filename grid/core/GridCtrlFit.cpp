// Widths fitted to the contents, and to the view.

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridView.h"
#include "platform/afx/CClientDC.h"

#include <algorithm>
#include <vector>

int GridCtrl::BestFitCols(int firstCol, int lastCol, int rowsToScan, int flags) {
    GridSheet& s = *sheet;
    if (firstCol < -s.sideHeadingCols) return 1;
    if (lastCol >= s.colCount) return 2;
    if (firstCol > lastCol) return 3;
    std::vector<int> widths(static_cast<size_t>(lastCol - firstCol + 1), 3);
    {
        CClientDC dc(view.get());
        int scanned = 0;
        // The headings, the locked rows, then the rows from the top of the view.
        auto onView = [&s](int row) { return row == s.lockedRows ? std::max(row, s.topRow) : row; };
        for (int row = onView((flags & 0x1) ? -s.topHeadingRows : 0); row < s.rowCount;
             row = onView(row + 1)) {
            for (int col = firstCol; col <= lastCol; ++col) {
                GetEffectiveCell(col, row, scratchCell);
                if (scratchCell.HasProperty(PropJoin)) continue;
                SIZE size{};
                TypeOf(scratchCell)->GetBestSize(&dc, &size, scratchCell);
                int& width = widths[static_cast<size_t>(col - firstCol)];
                width = std::max(width, static_cast<int>(size.cx));
            }
            if (++scanned == rowsToScan) break;
        }
    }
    RECT client{};
    if (view->m_hWnd) view->GetClientRect(&client);
    const int limit = client.right == 0 ? 300 : client.right - s.vScrollWidth;
    for (int col = firstCol; col <= lastCol; ++col) {
        const int width = widths[static_cast<size_t>(col - firstCol)];
        SetColWidth(col, width > limit ? limit : width + 2);
    }
    RecalcLayout();
    return 0;
}

int GridCtrl::FitColsToView(int firstCol, int lastCol) {
    GridSheet& s = *sheet;
    if (firstCol < 0 || firstCol > lastCol || lastCol >= s.colCount) return 1;
    RECT client{};
    if (view->m_hWnd) view->GetClientRect(&client);
    int room = client.right;
    long long sum = 0;
    for (int col = firstCol; col <= lastCol; ++col) sum += s.ColWidth(col);
    // Columns of no width at all get none of the room but the last one's.
    const float factor = sum > 0 ? static_cast<float>(room) / static_cast<float>(sum) : 0.0f;
    for (int col = firstCol; col < lastCol; ++col) {
        const int width = static_cast<int>(static_cast<float>(s.ColWidth(col)) * factor);
        SetColWidth(col, width);
        room -= width;
    }
    SetColWidth(lastCol, room);
    RefreshChildren();
    return 0;
}
