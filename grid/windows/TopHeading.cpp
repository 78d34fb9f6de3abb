#include "grid/windows/TopHeading.h"

#include "grid/core/GridCtrl.h"

void TopHeading::Refresh() {
    int rest = sheet->topHeadingHeight;
    for (int i = 0; i + 1 < sheet->topHeadingRows; ++i)
        rest -= sheet->topHeadingRowHeights[static_cast<size_t>(i)];
    // A height above the limit is refused, and the row keeps its value.
    grid->SetTopHeadingRowHeight(-sheet->topHeadingRows, rest < 0 ? 0 : rest);
    HeadingWindow::Refresh();
}
