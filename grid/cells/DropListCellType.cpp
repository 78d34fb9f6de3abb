#include "grid/cells/DropListCellType.h"

#include "grid/cells/CellTypeGrid.h"
#include "platform/base/Messages.h"
#include "platform/user/User.h"

DropListCellType::DropListCellType() : arrowWidth(GetSystemMetrics(SM_CXVSCROLL)) {
    overflowAllowed = 0;
}

const char* DropListCellType::GetName() {
    return "Standard DropList";
}

const unsigned char* DropListCellType::GetTypeTag() {
    static constexpr unsigned char tag[16] = {'K', 'G', 'C', 'T', 'd', 'r', 'o', 'p',
                                              'l', 'i', 's', 't', 0,   0,   0,   1};
    return tag;
}

int DropListCellType::PrepareEditRect(RECT* rect) {
    rect->right -= arrowWidth + 1;
    return 1;
}

int DropListCellType::DoubleClick(int col, int row, RECT* rect, POINT* point) {
    if (point->x <= rect->right - arrowWidth) return 0;
    return LeftClick(col, row, 1, rect, point);
}

int DropListCellType::CharInput(int, int, UINT* character) {
    return *character == 13 || *character == 40 ? 1 : 0;
}

int DropListCellType::MouseMove(int, int, POINT* point, UINT flags) {
    if (!(flags & MK_LBUTTON)) return 1;
    bool inButton = point->x >= buttonRect.left && point->x <= buttonRect.right &&
                    point->y >= buttonRect.top && point->y <= buttonRect.bottom;
    if (inButton != static_cast<bool>(buttonDown)) {
        buttonDown = inButton;
        grid->RedrawCell(dropCol, dropRow);
    }
    return 0;
}

void DropListCellType::NotifyLeave(int, int, GridCell*) {
    dropCol = -1;
    dropRow = -1;
}
