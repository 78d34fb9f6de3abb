#include "grid/windows/HeadingWindow.h"

#include "grid/core/GridCtrl.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CPaintDC.h"

BEGIN_MESSAGE_MAP(HeadingWindow, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL HeadingWindow::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    const char* windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW), nullptr);
    return CWnd::Create(windowClass, "", style, rect, parent, id);
}

void HeadingWindow::Refresh() {
    if (!m_hWnd) return;
    Invalidate(TRUE);
    UpdateWindow();
}

void HeadingWindow::UpdateView() {
    if (!m_hWnd) return;
    if (sheet->leftCol != sheet->previousLeftCol || sheet->topRow != sheet->previousTopRow)
        Invalidate(TRUE);
}

void HeadingWindow::OnPaint() {
    CPaintDC dc(this);
    RECT client;
    GetClientRect(&client);
    CBrush back(grid->GetBackColor(section));
    FillRect(dc, &client, static_cast<HBRUSH>(back.GetSafeHandle()));
}
