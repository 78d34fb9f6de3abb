#include "grid/cells/DropListBox.h"

#include "grid/cells/CellTypeGrid.h"
#include "grid/cells/DropListCellType.h"
#include "grid/cells/GridCell.h"

#include <string>

BEGIN_MESSAGE_MAP(DropListBox, CListBox)
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_MOUSEACTIVATE()
ON_WM_LBUTTONUP()
ON_WM_KEYDOWN()
ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

void DropListBox::OnSetFocus(CWnd* old) {
    CListBox::OnSetFocus(old);
    // Whoever held the mouse for the press that dropped the list hands it over here.
    ReleaseCapture();
    SetCapture();
    showing = 1;
    picked = 0;
}

void DropListBox::OnKillFocus(CWnd* next) {
    // Only our own capture: the press that takes the focus away may have taken the mouse
    // before it took the focus.
    if (::GetCapture() == m_hWnd) ReleaseCapture();
    CListBox::OnKillFocus(next);
    DestroyWindow();
    showing = 0;
    if (!picked) *colPtr = *rowPtr = -2;
    picked = 0;
    // The area of the list shows the cells again before the press that ended it goes on.
    grid->GetCellView()->UpdateWindow();
}

int DropListBox::OnMouseActivate(CWnd*, UINT, UINT) {
    return MA_ACTIVATE;
}

void DropListBox::OnLButtonUp(UINT, CPoint) {
    ReleaseCapture();
    if (GetCurSel() != LB_ERR) TakeChoice();
}

void DropListBox::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    switch (key) {
    case VK_ESCAPE: DestroyWindow(); return;
    case VK_RETURN:
        if (GetCurSel() != LB_ERR) return TakeChoice();
        showing = 0;
        DestroyWindow();
        return;
    default: CListBox::OnKeyDown(key, repeat, flags);
    }
}

UINT DropListBox::OnGetDlgCode() {
    return CListBox::OnGetDlgCode() | DLGC_WANTALLKEYS | DLGC_WANTARROWS;
}

void DropListBox::TakeChoice() {
    const int col = *colPtr, row = *rowPtr;
    picked = 1;
    std::string choice = GetText(GetCurSel());
    if (grid->NotifyCellTypeEvent(typeId, col, row, DropListCellType::EventChosen,
                                  reinterpret_cast<LPARAM>(&choice)) != 0) {
        GridCell cell;
        grid->GetCell(col, row, cell);
        cell.SetText(choice);
        grid->SetCell(col, row, cell);
        grid->RedrawCell(col, row);
    }
    showing = 0;
    *colPtr = *rowPtr = -1;
    // The loss of the focus ends the window.
    grid->GetCellView()->SetFocus();
}
