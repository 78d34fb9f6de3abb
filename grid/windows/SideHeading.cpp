#include "grid/windows/SideHeading.h"

#include "grid/core/GridCtrl.h"

void SideHeading::Refresh() {
    int rest = sheet->sideHeadingWidth;
    for (int i = 0; i + 1 < sheet->sideHeadingCols; ++i)
        rest -= sheet->sideHeadingColWidths[static_cast<size_t>(i)];
    grid->SetSideHeadingColWidth(-sheet->sideHeadingCols, rest < 0 ? 0 : rest);
    HeadingWindow::Refresh();
}
