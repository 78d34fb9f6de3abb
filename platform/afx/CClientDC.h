#pragma once
// The device context of a window's client area, from GetDC, given back with ReleaseDC.

#include "platform/afx/CDC.h"
#include "platform/afx/CWnd.h"
#include "platform/user/User.h"

class CClientDC : public CDC {
public:
    explicit CClientDC(HWND hwnd) : m_hWnd(hwnd) { Attach(GetDC(hwnd)); }
    explicit CClientDC(CWnd* wnd) : CClientDC(wnd->GetSafeHwnd()) {}
    ~CClientDC() override { ReleaseDC(m_hWnd, Detach()); }

    HWND m_hWnd;
};
