#include "grid/windows/GridEdit.h"

#include "grid/cells/GridDataSource.h"
#include "grid/core/GridCtrl.h"
#include "platform/afx/CClientDC.h"

BEGIN_MESSAGE_MAP(GridEdit, CellEditor)
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_SETCURSOR()
ON_CONTROL_REFLECT(EN_UPDATE, OnUpdate)
END_MESSAGE_MAP()

int GridEdit::SetGrowWithText(int flag) {
    const int old = growWithText;
    growWithText = flag ? 1 : 0;
    return old;
}

void GridEdit::OnSetFocus(CWnd* old) {
    RECT client;
    GetClientRect(&client);
    baseHeight = currentHeight = client.bottom + 4;
    GrowWithText();
    cancelled = continueEdit = 0;
    SelectAll();
    lastKey = 0;
    CEdit::OnSetFocus(old);
}

void GridEdit::OnKillFocus(CWnd* next) {
    CEdit::OnKillFocus(next);
    // Focus that stays with the grid or its children keeps the text.
    if (grid->GetCancelEditOnFocusLoss() && LeavesGrid(next)) cancelled = 1;
    Finish();
}

void GridEdit::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    lastKey = key;
    const bool grown = currentHeight != baseHeight;
    switch (key) {
    case VK_TAB:
        return Leave(1, grid->editCol + (GetKeyState(VK_SHIFT) < 0 ? -1 : 1), grid->editRow);
    case VK_RETURN: return Leave(1, grid->editCol, grid->editRow + 1);
    case VK_ESCAPE: cancelled = 1; return Leave(0, nextCol, nextRow);
    case VK_UP:
        if (!grown) return Leave(1, grid->editCol, grid->editRow - 1);
        break;
    case VK_DOWN:
        if (!grown) return Leave(1, grid->editCol, grid->editRow + 1);
        break;
    }
    CEdit::OnKeyDown(key, repeat, flags);
}

void GridEdit::OnChar(UINT character, UINT repeat, UINT flags) {
    const int col = grid->GetCurrentCol(), row = grid->GetCurrentRow();
    UINT key = character;
    if (grid->sheet->dataSource->QueryEditKey(col, row, this, &key) == 0) return;
    if (grid->QueryEditKey(col, row, this, &key) == 0) return;
    if (key == 9 || key == 13 || key == 27) return;
    // The handlers' change of the character decides the step above only.
    CEdit::OnChar(character, repeat, flags);
}

BOOL GridEdit::OnSetCursor(CWnd*, UINT, UINT) {
    ::SetCursor(LoadCursor(nullptr, IDC_IBEAM));
    return TRUE;
}

void GridEdit::OnUpdate() {
    GrowWithText();
}

// The window widens in whole cells up to its parent's right edge, then grows down in whole
// rows; it never shrinks within a session and never leaves its parent.
void GridEdit::GrowWithText() {
    if (!growWithText) return;
    const std::string text = GetWindowText() + " X X";
    CWnd* parent = grid->editParent;
    if (!parent) return;
    RECT window, area;
    GetWindowRect(&window);
    parent->ScreenToClient(&window);
    parent->GetClientRect(&area);

    RECT wanted = window;
    {
        CClientDC dc(this);
        HGDIOBJ old = nullptr;
        if (HFONT font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)))
            old = dc.SelectObject(font);
        wanted.right = area.right;
        wanted.left += 2;
        DrawText(dc, text.c_str(), static_cast<int>(text.size()), &wanted,
                 DT_CALCRECT | DT_WORDBREAK);
        wanted.left -= 2;
        if (old) dc.SelectObject(old);
    }
    if (wanted.bottom >= area.bottom) wanted.bottom = area.bottom - 1;
    int col, row;
    RECT cell;
    if (wanted.right > window.right) {
        if (grid->HitTestRect(wanted.right + 1, wanted.top + 1, &col, &row, &cell) == 0)
            wanted.right = cell.right - 1;
        if (wanted.right > area.right) wanted.right = area.right;
    }
    if (wanted.bottom > window.bottom) {
        wanted.right = area.right;
        if (grid->HitTestRect(wanted.left + 1, wanted.bottom + 1, &col, &row, &cell) == 0)
            wanted.bottom = cell.bottom - 1;
    }
    if (wanted.bottom >= area.bottom) wanted.bottom = area.bottom - 1;
    if (wanted.bottom < window.bottom) wanted.bottom = window.bottom;
    if (wanted.right < window.right) wanted.right = window.right;
    if (EqualRect(&wanted, &window)) return;
    MoveWindow(&wanted, TRUE);
    parent->ValidateRect(&wanted);
    currentHeight = wanted.bottom - wanted.top;
}
