#include "grid/windows/MaskedEdit.h"

#include "grid/core/GridCtrl.h"

#include <cctype>
#include <cstring>

namespace {

bool Accepts(char letter, unsigned char c) {
    switch (letter) {
    case '0': return std::isdigit(c);
    case '9': return std::isdigit(c) || c == ' ';
    case '#': return std::isdigit(c) || c == ' ' || c == '+' || c == '-';
    case 'L': return std::isalpha(c);
    case '?': return std::isalpha(c) || c == ' ';
    case 'A': return std::isalnum(c);
    case 'a': return std::isalnum(c) || c == ' ';
    default: return std::isprint(c);
    }
}

} // namespace

BEGIN_MESSAGE_MAP(MaskedEdit, CellEditor)
ON_WM_CREATE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_KEYDOWN()
ON_WM_CHAR()
END_MESSAGE_MAP()

int MaskedEdit::SetMask(const char* newMask) {
    if (!newMask || !*newMask) {
        maskActive = 0;
        return 0;
    }
    mask = newMask;
    maskActive = 1;
    SendMessage(EM_LIMITTEXT, mask.size());
    maskTemplate.clear();
    maskLiterals.clear();
    for (size_t i = 0; i < mask.size(); ++i) {
        if (std::strchr(maskLetters, mask[i])) {
            maskTemplate += mask[i];
            maskLiterals += LiteralMark;
        } else {
            if (mask[i] == '\\' && i + 1 < mask.size()) ++i;
            maskTemplate += LiteralMark;
            maskLiterals += mask[i];
        }
    }
    if (inMaskWork) return 0;
    DWORD start = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    std::string text = GetWindowText();
    if (text.empty()) return 0;
    inMaskWork = 1;
    ApplyMask(text);
    SetWindowText(text.c_str());
    SendMessage(EM_SETSEL, start, end);
    SendMessage(EM_SCROLLCARET);
    inMaskWork = 0;
    return 0;
}

int MaskedEdit::ApplyMask(std::string& text) const {
    if (!maskActive) return 1;
    std::string result;
    size_t j = 0;
    // The walk ends with the string, so literals behind the last character are not kept.
    for (size_t i = 0; i < maskTemplate.size() && j < text.size(); ++i) {
        if (maskTemplate[i] == LiteralMark) {
            result += maskLiterals[i];
            continue;
        }
        // A character the position refuses is dropped; the position waits for the next one.
        while (j < text.size() && !Accepts(maskTemplate[i], static_cast<unsigned char>(text[j])))
            ++j;
        if (j == text.size()) break;
        result += text[j++];
    }
    text = result;
    return 0;
}

int MaskedEdit::CheckChar(UINT* character) {
    const unsigned char c = static_cast<unsigned char>(*character);
    // Backspace, Tab, Enter and the like are no business of the mask.
    if (!maskActive || !std::isprint(c)) return 1;
    // Before any decision: a refused key still removes a selection.
    SendMessage(WM_CLEAR);
    DWORD p = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&p), 0);
    if (p >= maskTemplate.size()) return 0;
    if (maskTemplate[p] == LiteralMark) {
        // Typed once: of two literals in a row the character lands on the second unchecked.
        inMaskWork = 1;
        SendMessage(WM_CHAR, static_cast<unsigned char>(maskLiterals[p]));
        inMaskWork = 0;
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&p), 0);
        if (p >= maskTemplate.size()) return 0;
    }
    return Accepts(maskTemplate[p], c) ? 1 : 0;
}

int MaskedEdit::OnCreate(CREATESTRUCT* create) {
    if (CEdit::OnCreate(create) == -1) return -1;
    grid = dynamic_cast<GridCtrl*>(GetParent());
    return 0;
}

void MaskedEdit::OnSetFocus(CWnd* old) {
    // A reused editor loses the mask of its last cell.
    const GridCell& cell = grid->editCell;
    SetMask(cell.HasProperty(PropMask) ? cell.GetMask() : nullptr);
    cancelled = continueEdit = 0;
    SelectAll();
    CEdit::OnSetFocus(old);
}

void MaskedEdit::OnKillFocus(CWnd* next) {
    CEdit::OnKillFocus(next);
    // Focus that goes to another window writes the text; only a focus that goes nowhere
    // cancels. Within the grid the keys decided.
    if (!next || !next->m_hWnd)
        cancelled = 1;
    else if (LeavesGrid(next))
        cancelled = 0;
    Finish();
}

void MaskedEdit::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    switch (key) {
    case VK_RETURN:
    case VK_DOWN: return Leave(1, grid->editCol, grid->editRow + 1);
    case VK_UP: return Leave(1, grid->editCol, grid->editRow - 1);
    case VK_ESCAPE: cancelled = 1; return Leave(0, nextCol, nextRow);
    case VK_TAB: return;
    }
    CEdit::OnKeyDown(key, repeat, flags);
}

void MaskedEdit::OnChar(UINT character, UINT repeat, UINT flags) {
    UINT key = character;
    if (!inMaskWork) {
        if (!CheckChar(&key)) return;
        // Unlike the built-in editor's, the data source isn't asked here.
        if (grid->QueryEditKey(grid->GetCurrentCol(), grid->GetCurrentRow(), this, &key) == 0)
            return;
    }
    if (key == 9 || key == 13 || key == 27) return;
    CEdit::OnChar(character, repeat, flags);
}
