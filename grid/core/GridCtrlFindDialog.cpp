// The modeless find and replace dialog over the cells. The dialog sends its requests as a
// registered message; the search itself is the data source's.

#include "grid/core/GridCtrl.h"
#include "platform/afx/CFindReplaceDialog.h"

#include <cstring>

namespace {

struct Relabel {
    const char* find;
    const char* replace;
};

// The platform's whole-word box means here that the whole cell text must match.
BOOL RelabelWholeWord(HWND child, LPARAM lParam) {
    const auto* relabel = reinterpret_cast<const Relabel*>(lParam);
    if (GetWindowString(child).find(relabel->find) == std::string::npos) return TRUE;
    SetWindowText(child, relabel->replace);
    return FALSE;
}

} // namespace

UINT GridCtrl::FindReplaceMessage() {
    static const UINT message = RegisterWindowMessage(FINDMSGSTRING);
    return message;
}

int GridCtrl::OpenFindDialog() {
    return OpenFindReplaceDialog(TRUE);
}

int GridCtrl::OpenReplaceDialog() {
    return OpenFindReplaceDialog(FALSE);
}

int GridCtrl::OpenFindReplaceDialog(BOOL findOnly) {
    if (findDialogOpen) return 1;
    findDialogOpen = 1;
    // The dialog deletes itself when its window goes.
    findDialog = new CFindReplaceDialog;
    findDialog->Create(findOnly, "", nullptr, FR_DOWN, this);
    Relabel relabel{"&whole word", "Match &entire cell text"};
    EnumChildWindows(findDialog->m_hWnd, RelabelWholeWord, reinterpret_cast<LPARAM>(&relabel));
    return 0;
}

LRESULT GridCtrl::OnFindReplaceMessage(WPARAM, LPARAM) {
    if (!findDialog || !IsWindow(findDialog->m_hWnd)) return 0;
    if (findDialog->IsTerminating()) {
        findDialogOpen = 0;
        findDialog = nullptr;
        return 1;
    }
    int col = sheet->currentCol, row = sheet->currentRow;
    const std::string findText = findDialog->GetFindString();
    const std::string replaceText = findDialog->GetReplaceString();
    const int flags = (findDialog->MatchWholeWord() ? 0 : 0x1) |
                      (findDialog->MatchCase() ? 0 : 0x2) | (findDialog->SearchDown() ? 0 : 0x4) |
                      (findAllColumns ? 0x8 : 0);
    // Replace writes the cell that the last search landed on, whatever it holds.
    if (findDialog->ReplaceCurrent()) {
        SetCellText(sheet->currentCol, row, replaceText);
        RedrawCell(sheet->currentCol, row);
    }
    if (findDialog->ReplaceAll()) {
        // Both would never end: the replacement is found again.
        if (replaceText == findText) return 0;
        if ((flags & 0x1) && replaceText.find(findText) != std::string::npos) return 0;
        bool replaced = false;
        while (FindNextInDataSource(findText, &col, &row, flags) == 0) {
            GotoCell(col, row);
            SetCellText(sheet->currentCol, row, replaceText);
            RedrawCell(col, row);
            replaced = true;
        }
        if (replaced) return 0;
    }
    if (FindNextInDataSource(findText, &col, &row, flags) == 0) {
        GotoCell(col, row);
        return 0;
    }
    MessageBox("Item not found", "Not Found", 0);
    findDialog->SetFocus();
    return 0;
}
