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

void HeadingWindow::HeadingSpan(const std::vector<int>& sizes, int count, int first, int last,
                                LONG* low, LONG* high) {
    LONG at = 0;
    for (int i = -count; i < 0; ++i) {
        if (i == first) *low = at;
        at += sizes[static_cast<size_t>(-i - 1)];
        if (i == last) {
            *high = at;
            return;
        }
    }
}
