#include "grid/windows/SideHeading.h"

#include "grid/core/GridCtrl.h"
#include "grid/core/ViewAxis.h"

void SideHeading::Refresh() {
    int rest = sheet->sideHeadingWidth;
    for (int i = 0; i + 1 < sheet->sideHeadingCols; ++i)
        rest -= sheet->sideHeadingColWidths[static_cast<size_t>(i)];
    grid->SetSideHeadingColWidth(-sheet->sideHeadingCols, rest < 0 ? 0 : rest);
    HeadingWindow::Refresh();
}

void SideHeading::GetHeadingCellRect(int col, int row, RECT* rect) {
    *rect = RECT{0, 0, sheet->sideHeadingWidth, 0};
    int endCol = col, endRow = row;
    if (sheet->joinsEnabled) grid->GetJoinedRange(&col, &row, &endCol, &endRow);
    ViewAxis{*sheet, false}.Span(row, endRow, &rect->top, &rect->bottom);
    HeadingSpan(sheet->sideHeadingColWidths, sheet->sideHeadingCols, col, endCol, &rect->left,
                &rect->right);
}
