// The tuning options of the active sheet: each answers 0, or 1 and changes nothing when the
// value is out of range.

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridHScroll.h"
#include "grid/windows/GridView.h"
#include "grid/windows/GridVScroll.h"

namespace {

int StoreIn(int& field, int value, int low, int high) {
    if (value < low || value > high) return 1;
    field = value;
    return 0;
}

int StoreFlag(int& field, int flag) {
    field = flag ? 1 : 0;
    return 0;
}

constexpr int Unlimited = 0x7FFFFFFF;

} // namespace

int GridCtrl::EnableJoins(int flag) {
    return StoreFlag(sheet->joinsEnabled, flag);
}
int GridCtrl::EnableTextOverflow(int flag) {
    return StoreFlag(sheet->textOverflowEnabled, flag);
}
int GridCtrl::EnableColumnSwap(int flag) {
    return StoreFlag(sheet->columnSwapEnabled, flag);
}
int GridCtrl::EnableGridLines(int flag) {
    return StoreFlag(sheet->gridLinesEnabled, flag);
}
int GridCtrl::EnablePopupMenu(int flag) {
    return StoreFlag(sheet->popupMenuEnabled, flag);
}
int GridCtrl::SetHighlightMode(int mode) {
    return StoreIn(sheet->highlightMode, mode, 0, 3);
}
int GridCtrl::SetAutoScrollMode(int mode) {
    return StoreIn(sheet->autoScrollMode, mode, 0, 3);
}
int GridCtrl::SetBorderWidth(int width) {
    return StoreIn(sheet->borderWidth, width, 1, 16);
}
int GridCtrl::SetDefaultColWidth(int width) {
    return StoreIn(sheet->defaultColWidth, width, 0, Unlimited);
}
int GridCtrl::SetDefaultRowHeight(int height) {
    return StoreIn(sheet->defaultRowHeight, height, 1, 1024);
}

int GridCtrl::SetVScrollWidth(int width) {
    if (StoreIn(sheet->vScrollWidth, width, 0, 1024)) return 1;
    RecalcLayout();
    return 0;
}

int GridCtrl::SetHScrollHeight(int height) {
    if (StoreIn(sheet->hScrollHeight, height, 0, 1024)) return 1;
    RecalcLayout();
    return 0;
}

int GridCtrl::SetAutoScrollDelay(int ms) {
    return StoreIn(sheet->autoScrollDelay, ms, 0, 32000);
}
int GridCtrl::SetKeyRepeatRamp(int repeats) {
    return StoreIn(sheet->keyRepeatRamp, repeats, 0, 1000);
}
int GridCtrl::SetKeyRepeatDelay(int ms) {
    return StoreIn(sheet->keyRepeatDelay, ms, 0, Unlimited);
}
int GridCtrl::SetCellMargin(int margin) {
    return StoreIn(sheet->cellMargin, margin, 0, Unlimited);
}

int GridCtrl::SetArrowCursor(HCURSOR cursor) {
    if (!cursor) return 1;
    sheet->arrowCursor = cursor;
    return 0;
}

int GridCtrl::SetColResizeCursor(HCURSOR cursor) {
    if (!cursor) return 1;
    sheet->colResizeCursor = cursor;
    return 0;
}

int GridCtrl::SetRowResizeCursor(HCURSOR cursor) {
    if (!cursor) return 1;
    sheet->rowResizeCursor = cursor;
    return 0;
}

int GridCtrl::SetDefaultFont(CFont* font) {
    if (!font) return 1;
    sheet->defaultFont = font;
    return 0;
}

int GridCtrl::SetVScrollMode(int mode) {
    sheet->vScrollMode = mode;
    vScroll->Refresh();
    return 0;
}

int GridCtrl::SetHScrollMode(int mode) {
    sheet->hScrollMode = mode;
    hScroll->Refresh();
    return 0;
}

int GridCtrl::SetUserResizeMode(int mode) {
    sheet->userResizeMode = mode;
    return 0;
}
int GridCtrl::SetFloatingDialogPlacement(int placement) {
    sheet->floatingDialogPlacement = placement;
    return 0;
}
int GridCtrl::SetCancelEditOnFocusLoss(int flag) {
    return StoreFlag(sheet->cancelEditOnFocusLoss, flag);
}

// The tool tips that these flags switch come with the view's input; the flags are what they
// will read.
int GridCtrl::EnableHints(int flag) {
    return StoreFlag(sheet->hintsEnabled, flag);
}
int GridCtrl::EnableVScrollHints(int flag) {
    return StoreFlag(sheet->vScrollHintsEnabled, flag);
}
int GridCtrl::EnableHScrollHints(int flag) {
    return StoreFlag(sheet->hScrollHintsEnabled, flag);
}

// A bitmap that could not be made leaves the view in direct mode, which is no error here.
int GridCtrl::SetDoubleBufferMode(int mode) {
    sheet->doubleBufferMode = mode;
    view->SetDoubleBuffer(mode);
    return 0;
}

int GridCtrl::SetFindInAllCols(int flag) {
    findAllColumns = flag;
    return 0;
}
