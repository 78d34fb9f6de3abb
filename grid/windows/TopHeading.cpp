#include "grid/windows/TopHeading.h"

#include "grid/core/GridCtrl.h"
#include "grid/core/ViewAxis.h"

void TopHeading::Refresh() {
    int rest = sheet->topHeadingHeight;
    for (int i = 0; i + 1 < sheet->topHeadingRows; ++i)
        rest -= sheet->topHeadingRowHeights[static_cast<size_t>(i)];
    // A height above the limit is refused, and the row keeps its value.
    grid->SetTopHeadingRowHeight(-sheet->topHeadingRows, rest < 0 ? 0 : rest);
    HeadingWindow::Refresh();
}

void TopHeading::GetHeadingCellRect(int col, int row, RECT* rect) {
    *rect = RECT{0, 0, 0, sheet->topHeadingHeight};
    int endCol = col, endRow = row;
    if (sheet->joinsEnabled) grid->GetJoinedRange(&col, &row, &endCol, &endRow);
    ViewAxis{*sheet, true}.Span(col, endCol, &rect->left, &rect->right);
    HeadingSpan(sheet->topHeadingRowHeights, sheet->topHeadingRows, row, endRow, &rect->top,
                &rect->bottom);
}
