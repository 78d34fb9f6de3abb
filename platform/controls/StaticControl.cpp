#include "platform/controls/StaticControl.h"

#include "platform/controls/ControlDraw.h"
#include "platform/controls/GdiScope.h"

#include <string>

namespace plat {

void StaticControl::Register() {
    WNDCLASS wc;
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = ControlBase::Proc<StaticControl>;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = "Static";
    RegisterClass(&wc);
}

LRESULT StaticControl::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1; // the paint fills every pixel
    case WM_SETTEXT: {
        LRESULT r = DefWindowProc(hwnd, msg, wParam, lParam);
        InvalidateRect(hwnd, nullptr, TRUE);
        return r;
    }
    case WM_ENABLE: InvalidateRect(hwnd, nullptr, TRUE); return 0;
    case WM_GETDLGCODE: return DLGC_STATIC;
    case WM_LBUTTONDOWN:
        if (Style() & SS_NOTIFY) Notify(STN_CLICKED);
        return 0;
    default: return Default(msg, wParam, lParam);
    }
}

void StaticControl::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    SavedDC saved(dc);
    RECT r;
    GetClientRect(hwnd, &r);
    FillRect(dc, &r, ControlColor(WM_CTLCOLORSTATIC, dc));
    DWORD style = Style();
    DWORD type = style & SS_TYPEMASK;
    if (type == SS_BLACKFRAME) {
        FrameRect(dc, &r, GetStockObject(BLACK_BRUSH));
        return;
    }
    if (style & SS_SUNKEN) DrawRing(dc, r, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
    UINT format = DT_LEFT | DT_WORDBREAK | DT_EXPANDTABS;
    if (type == SS_CENTER)
        format = DT_CENTER | DT_WORDBREAK | DT_EXPANDTABS;
    else if (type == SS_RIGHT)
        format = DT_RIGHT | DT_WORDBREAK | DT_EXPANDTABS;
    else if (type == SS_LEFTNOWORDWRAP)
        format = DT_LEFT | DT_EXPANDTABS;
    else if (type == SS_SIMPLE)
        format = DT_LEFT | DT_SINGLELINE;
    if (style & SS_NOPREFIX) format |= DT_NOPREFIX;
    SelectObject(dc, Font());
    SetBkMode(dc, TRANSPARENT);
    // A disabled label is grey whatever colour the parent asked for.
    if (style & WS_DISABLED) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    std::string text = GetWindowString(hwnd);
    DrawText(dc, text.c_str(), static_cast<int>(text.size()), &r, format);
}

} // namespace plat
