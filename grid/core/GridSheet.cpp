#include "grid/core/GridSheet.h"

#include "platform/user/User.h"

GridSheet::GridSheet()
    : vScrollWidth(GetSystemMetrics(SM_CXVSCROLL)), hScrollHeight(GetSystemMetrics(SM_CYHSCROLL)),
      dataSource(&memoryDataSource), selection(std::make_unique<MultiSelect>()),
      arrowCursor(LoadCursor(nullptr, IDC_ARROW)), colResizeCursor(LoadCursor(nullptr, IDC_SIZEWE)),
      rowResizeCursor(LoadCursor(nullptr, IDC_SIZENS)),
      gridLinePen(PS_SOLID, 1, RGB(220, 220, 220)) {
    headingDefaultCell.SetBackColor(GetSysColor(COLOR_BTNFACE));
    headingDefaultCell.SetAlignment(36);
    headingDefaultCell.SetBorder(0x2000);
}

GridSheet::~GridSheet() = default;
