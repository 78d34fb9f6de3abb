// Widths fitted to the contents, and to the view.

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridView.h"
#include "platform/afx/CClientDC.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

// The width a cell needs: its text's extent in its font (or the sheet's), plus 6; 9 for a cell
// without text. Known debt: this is the measure of the plain text type, which moves to
// CellType::GetBestSize when the cell types draw, so that each type measures itself.
int BestWidth(CDC& dc, const GridCell& cell, CFont* defaultFont) {
    CFont* font = cell.HasProperty(PropFont) ? cell.GetFont() : defaultFont;
    HGDIOBJ old = font ? dc.SelectObject(font->GetSafeHandle()) : nullptr;
    SIZE size{3, 3};
    if (const char* text = cell.GetText())
        GetTextExtentPoint32(dc, text, cell.GetTextLength(), &size);
    if (old) dc.SelectObject(old);
    return size.cx + 6;
}

} // namespace

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
                int& width = widths[static_cast<size_t>(col - firstCol)];
                width = std::max(width, BestWidth(dc, scratchCell, s.defaultFont));
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
