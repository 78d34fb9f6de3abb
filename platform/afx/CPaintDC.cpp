#include "platform/afx/CPaintDC.h"

CPaintDC::CPaintDC(HWND hwnd) : m_hWnd(hwnd) {
    Attach(BeginPaint(hwnd, &m_ps));
}

CPaintDC::~CPaintDC() {
    EndPaint(m_hWnd, &m_ps);
    Detach();
}
