#include "grid/windows/CellEditor.h"

#include "grid/core/GridCtrl.h"

BEGIN_MESSAGE_MAP(CellEditor, CEdit)
ON_WM_MOUSEACTIVATE()
ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

void CellEditor::Leave(int goOn, int col, int row) {
    continueEdit = goOn;
    nextCol = col;
    nextRow = row;
    grid->SetFocus();
}

void CellEditor::Finish() {
    if (grid->EditFinished(GetWindowText(), cancelled, continueEdit, nextCol, nextRow) != 0) return;
    grid->GotoCell(grid->editCol, grid->editRow);
    SetCapture();
    ReleaseCapture();
    SetFocus();
}

void CellEditor::SelectAll() {
    SendMessage(EM_SETSEL, 0, -1);
    SendMessage(EM_SCROLLCARET);
}

bool CellEditor::LeavesGrid(CWnd* next) const {
    return !next || !next->m_hWnd || (next != grid && next->GetParent() != grid);
}

int CellEditor::OnMouseActivate(CWnd*, UINT, UINT) {
    return MA_ACTIVATE;
}

// Tab, Enter and Escape stay here while they are down, so that the editor's own keys see them.
UINT CellEditor::OnGetDlgCode() {
    if (GetKeyState(VK_TAB) < 0) return DLGC_WANTTAB;
    if (GetKeyState(VK_RETURN) < 0 || GetKeyState(VK_ESCAPE) < 0) return DLGC_WANTALLKEYS;
    return CEdit::OnGetDlgCode();
}
