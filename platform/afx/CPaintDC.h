#pragma once
// The device context of a paint pass: BeginPaint when made, EndPaint when it goes.

#include "platform/afx/CDC.h"
#include "platform/afx/CWnd.h"
#include "platform/user/User.h"

class CPaintDC : public CDC {
public:
    explicit CPaintDC(HWND hwnd);
    explicit CPaintDC(CWnd* wnd) : CPaintDC(wnd->GetSafeHwnd()) {}
    ~CPaintDC() override;

    HWND m_hWnd;
    PAINTSTRUCT m_ps;
};
