#include "platform/afx/CFindReplaceDialog.h"

#include <cstring>

CFindReplaceDialog::CFindReplaceDialog() {
    m_fr.lpstrFindWhat = findWhat;
    m_fr.wFindWhatLen = sizeof findWhat;
    m_fr.lpstrReplaceWith = replaceWith;
    m_fr.wReplaceWithLen = sizeof replaceWith;
    m_fr.lCustData = reinterpret_cast<LPARAM>(this);
}

BOOL CFindReplaceDialog::Create(BOOL findDialogOnly, const char* find, const char* replace,
                                DWORD flags, CWnd* parent) {
    std::strncpy(findWhat, find ? find : "", sizeof findWhat - 1);
    std::strncpy(replaceWith, replace ? replace : "", sizeof replaceWith - 1);
    m_fr.Flags = flags;
    m_fr.hwndOwner = parent ? parent->m_hWnd : nullptr;
    HWND dialog = findDialogOnly ? ::FindText(&m_fr) : ::ReplaceText(&m_fr);
    return dialog && SubclassWindow(dialog);
}

CFindReplaceDialog* CFindReplaceDialog::GetNotifier(LPARAM lParam) {
    const auto* fr = reinterpret_cast<const FINDREPLACE*>(lParam);
    return fr ? reinterpret_cast<CFindReplaceDialog*>(fr->lCustData) : nullptr;
}

void CFindReplaceDialog::PostNcDestroy() {
    delete this;
}
