// The defaults of the notifications: they report nothing, permit what is asked, and supply
// the plain answer. A client overrides the ones it needs.

#include "grid/core/GridCtrl.h"
#include "platform/afx/CDC.h"

#include <cstdio>

void GridCtrl::NotifyFocusGained(int) {}
void GridCtrl::NotifyGridCreated() {}
void GridCtrl::NotifySheetCreated(int) {}
int GridCtrl::CanMoveCurrentCell(int, int, int, int) {
    return 1;
}
int GridCtrl::CanScrollView(int, int, int, int) {
    return 1;
}
void GridCtrl::NotifyPastLastRow(int, int, int) {}
void GridCtrl::NotifyReservedA(int, int) {}
int GridCtrl::CanResizeColumn(int) {
    return 1;
}
void GridCtrl::NotifyColumnResizing(int, int*) {}
void GridCtrl::NotifyColumnResized(int, int*) {}
int GridCtrl::CanResizeRow(int) {
    return 1;
}
void GridCtrl::NotifyRowResizing(int, int*) {}
void GridCtrl::NotifyRowResized(int, int*) {}
int GridCtrl::CanResizeTopHeading() {
    return 1;
}
int GridCtrl::CanResizeSideHeading() {
    return 1;
}
int GridCtrl::NotifyTopHeadingResizing(int*) {
    return 1;
}
int GridCtrl::NotifySideHeadingResizing(int*) {
    return 1;
}
int GridCtrl::NotifyTopHeadingResized(int*) {
    return 1;
}
int GridCtrl::NotifySideHeadingResized(int*) {
    return 1;
}
void GridCtrl::NotifyColumnChanged(int, int) {}
void GridCtrl::NotifyRowChanged(int, int) {}
void GridCtrl::NotifyCellChanged(int, int, int, int) {}
void GridCtrl::NotifyLeftColumnChanged(int, int) {}
void GridCtrl::NotifyTopRowChanged(int, int) {}
void GridCtrl::NotifyCellLeftMouse(int, int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifyCellRightMouse(int, int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifyCellDoubleClick(int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifyCellMouseMove(int, int, POINT*, UINT, int) {}
void GridCtrl::NotifyTopHeadingLeftMouse(int, int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifyTopHeadingRightMouse(int, int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifyTopHeadingDoubleClick(int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifySideHeadingLeftMouse(int, int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifySideHeadingRightMouse(int, int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifySideHeadingDoubleClick(int, int, RECT*, POINT*, int) {}
void GridCtrl::NotifyCornerLeftMouse(int, RECT*, POINT*, int) {}
void GridCtrl::NotifyCornerRightMouse(int, RECT*, POINT*, int) {}
void GridCtrl::NotifyCornerDoubleClick(RECT*, POINT*, int) {}
void GridCtrl::NotifyKeyDown(UINT*, int) {}
void GridCtrl::NotifyCharacter(UINT*, int) {}
void GridCtrl::NotifyCellRead(int, int, GridCell*) {}
void GridCtrl::NotifyCellWrite(int, int, GridCell*) {}
void GridCtrl::NotifyReservedB(int, int, int) {}
int GridCtrl::NotifyCellTypeEvent(int, int, int, int, LPARAM) {
    return 1;
}
int GridCtrl::QueryEditStart(int, int, CWnd**) {
    return 1;
}
int GridCtrl::QueryEditKey(int, int, CWnd*, UINT*) {
    return 1;
}
int GridCtrl::QueryEditFinish(int, int, CWnd*, const std::string&, int) {
    return 1;
}
int GridCtrl::QueryEditContinue(int, int, int*, int*) {
    return 1;
}
void GridCtrl::NotifyMenuCommand(int, int, int, int) {}
int GridCtrl::QueryMenuStart(int, int, int) {
    return 1;
}

int GridCtrl::GetHintText(int col, int row, int, std::string* text) {
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "Col:%d Row:%ld", col, static_cast<long>(row));
    *text = buffer;
    return 1;
}

int GridCtrl::GetVScrollHintText(int, std::string*) {
    return 1;
}
int GridCtrl::GetHScrollHintText(int, std::string*) {
    return 1;
}

int GridCtrl::CompareCells(const GridCell* first, const GridCell* second, int flags) {
    return SourceGrid::CompareCells(first, second, flags);
}

void GridCtrl::PrepareDrawContext(CDC*, CDC*, int) {}
void GridCtrl::AdjustChildRects(RECT*, RECT*, RECT*, RECT*, RECT*, RECT*, RECT*) {}
void GridCtrl::NotifyTabSelected(int) {}

COLORREF GridCtrl::GetBackColor(int section) {
    return GetSysColor(section == 1 ? COLOR_WINDOW : COLOR_BTNFACE);
}

void GridCtrl::DrawCurrentCellFrame(CDC* dc, RECT* rect) {
    rect->right -= 1;
    rect->bottom -= 1;
    ::DrawFocusRect(*dc, rect);
}

void GridCtrl::NotifyFocusLost(int) {}
int GridCtrl::CanDragColumn(int) {
    return 1;
}
int GridCtrl::CanDropColumn(int, int) {
    return 1;
}
void GridCtrl::NotifyFloatingDialogMoved(RECT*, RECT*) {}

int GridCtrl::ClearPopupMenu() {
    while (popupMenu.DeleteMenu(0, MF_BYPOSITION)) {
    }
    return 0;
}

int GridCtrl::AddPopupItem(int id, const std::string& text) {
    UINT flags = text.empty() || id == -1 ? MF_SEPARATOR : MF_STRING;
    return popupMenu.AppendMenu(flags, static_cast<UINT_PTR>(id), text.c_str()) ? 0 : 1;
}

int GridCtrl::RemovePopupItem(int id) {
    return popupMenu.DeleteMenu(static_cast<UINT>(id), MF_BYCOMMAND) ? 0 : 1;
}

int GridCtrl::ShowContextMenu(int col, int row, POINT* point, int section) {
    if (!sheet->popupMenuEnabled) return 1;
    GetJoinedMain(&col, &row);
    if (!QueryMenuStart(col, row, section)) return 2;
    menuCol = col;
    menuRow = row;
    menuSection = section;
    // The chosen item comes back later as a WM_COMMAND to the control (OnCommand).
    return popupMenu.TrackPopupMenu(TPM_RIGHTBUTTON, point->x, point->y, this) ? 0 : 3;
}
