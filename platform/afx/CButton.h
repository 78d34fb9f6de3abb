#pragma once

#include "platform/afx/CWnd.h"

class CButton : public CWnd {
public:
    BOOL Create(const char* text, DWORD style, const RECT& r, CWnd* parent, UINT id) {
        return CWnd::Create("Button", text, style, r, parent, id);
    }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { SendMessage(BM_SETSTYLE, style, redraw); }
};
