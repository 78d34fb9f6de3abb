#pragma once

#include "platform/afx/CWnd.h"

class CEdit : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& r, CWnd* parent, UINT id) { return CWnd::Create("Edit", "", style, r, parent, id); }
    void SetSel(int start, int end, BOOL noScroll = FALSE) {
        SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
        if (!noScroll) SendMessage(EM_SCROLLCARET);
    }
    void GetSel(int& start, int& end) const {
        DWORD s = 0, e = 0;
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&s), reinterpret_cast<LPARAM>(&e));
        start = static_cast<int>(s), end = static_cast<int>(e);
    }
    void ReplaceSel(const char* text, BOOL canUndo = FALSE) { SendMessage(EM_REPLACESEL, canUndo, reinterpret_cast<LPARAM>(text)); }
    void SetLimitText(UINT max) { SendMessage(EM_LIMITTEXT, max); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    void SetReadOnly(BOOL on = TRUE) { SendMessage(EM_SETREADONLY, on); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};
