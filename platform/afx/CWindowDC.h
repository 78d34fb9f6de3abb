#pragma once
// The device context of a whole window, frame included, given back with ReleaseDC.

#include "platform/afx/CDC.h"
#include "platform/afx/CWnd.h"
#include "platform/user/User.h"

class CWindowDC : public CDC {
public:
    explicit CWindowDC(HWND hwnd) : m_hWnd(hwnd) { Attach(GetWindowDC(hwnd)); }
    explicit CWindowDC(CWnd* wnd) : CWindowDC(wnd->GetSafeHwnd()) {}
    ~CWindowDC() override { ReleaseDC(m_hWnd, Detach()); }

    HWND m_hWnd;
};
