#pragma once

#include <string>

#include "platform/afx/CWnd.h"

class CListBox : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& r, CWnd* parent, UINT id) { return CWnd::Create("ListBox", "", style, r, parent, id); }
    int AddString(const char* s) { return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(s))); }
    int InsertString(int index, const char* s) {
        return static_cast<int>(SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(s)));
    }
    int DeleteString(int index) { return static_cast<int>(SendMessage(LB_DELETESTRING, static_cast<WPARAM>(index))); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int index) { return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(index))); }
    int GetTopIndex() const { return static_cast<int>(SendMessage(LB_GETTOPINDEX)); }
    int SetTopIndex(int index) { return static_cast<int>(SendMessage(LB_SETTOPINDEX, static_cast<WPARAM>(index))); }
    int GetItemHeight(int index) const { return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, static_cast<WPARAM>(index))); }
    int SetItemHeight(int index, UINT height) {
        return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, static_cast<WPARAM>(index), static_cast<LPARAM>(height)));
    }
    int FindStringExact(int start, const char* s) const {
        return static_cast<int>(SendMessage(LB_FINDSTRINGEXACT, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(s)));
    }
    std::string GetText(int index) const {
        auto n = SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(index));
        if (n < 0) return {};
        std::string s(static_cast<size_t>(n) + 1, '\0');
        SendMessage(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(s.data()));
        s.resize(static_cast<size_t>(n));
        return s;
    }
};
