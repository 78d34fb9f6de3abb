// What a window that does not handle a message gets: the real system's default handling of
// the messages the module's windows leave to it.

#include <algorithm>
#include <cstring>

#include "platform/backend/Backend.h"
#include "platform/gdi/Gdi.h"
#include "platform/user/Internal.h"
#include "platform/user/NonClient.h"

using namespace plat;

namespace {

// A class brush may be a system colour number plus one, as programs of the platform write it.
HBRUSH ClassBrush(const Window* w) {
    if (!w->cls) return nullptr;
    HBRUSH b = w->cls->wc.hbrBackground;
    auto n = reinterpret_cast<std::uintptr_t>(b);
    if (n > 0 && n <= 32) return GetSysColorBrush(static_cast<int>(n) - 1);
    return b;
}

LRESULT CtlColor(UINT msg, HDC dc) {
    bool field = msg == WM_CTLCOLOREDIT || msg == WM_CTLCOLORLISTBOX;
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(field ? COLOR_WINDOW : COLOR_BTNFACE));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(field ? COLOR_WINDOW : COLOR_BTNFACE));
}

}  // namespace

LRESULT DefWindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    Window* w = W(hwnd);
    if (!w) return 0;
    switch (msg) {
    case WM_NCCREATE: {
        auto* cs = reinterpret_cast<const CREATESTRUCT*>(lParam);
        if (cs && cs->lpszName && !IS_INTRESOURCE(cs->lpszName)) w->text = cs->lpszName;
        return TRUE;
    }
    case WM_SETTEXT: {
        const char* text = reinterpret_cast<const char*>(lParam);
        w->text = text ? text : "";
        if ((w->style & WS_CAPTION) == WS_CAPTION) DrawFrame(w);
        if (!w->IsChild()) WM().GetBackend().TopLevelChanged(hwnd);
        return TRUE;
    }
    case WM_GETTEXT: {
        if (wParam == 0 || !lParam) return 0;
        size_t n = std::min(w->text.size(), static_cast<size_t>(wParam) - 1);
        std::memcpy(reinterpret_cast<char*>(lParam), w->text.data(), n);
        reinterpret_cast<char*>(lParam)[n] = 0;
        return static_cast<LRESULT>(n);
    }
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(w->text.size());
    case WM_PAINT: {
        PAINTSTRUCT ps;
        BeginPaint(hwnd, &ps);
        EndPaint(hwnd, &ps);
        return 0;
    }
    case WM_ERASEBKGND: {
        HBRUSH b = ClassBrush(w);
        if (!b) return 0;
        RECT r;
        GetClipBox(reinterpret_cast<HDC>(wParam), &r);
        FillRect(reinterpret_cast<HDC>(wParam), &r, b);
        return 1;
    }
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE) SetFocus(hwnd);
        return 0;
    case WM_MOUSEWHEEL:
        // Unhandled wheel turns go up to the parent.
        if (w->IsChild() && w->parent) return SendMessage(w->parent->handle, msg, wParam, lParam);
        return 0;
    case WM_SETCURSOR:
        if (w->IsChild() && w->parent && SendMessage(w->parent->handle, msg, wParam, lParam)) return TRUE;
        if (LOWORD(lParam) == HTCLIENT) SetCursor(w->cls && w->cls->wc.hCursor ? w->cls->wc.hCursor : LoadCursor(nullptr, IDC_ARROW));
        return FALSE;
    case WM_NCHITTEST: {
        RECT r;
        GetWindowRect(hwnd, &r);
        return FrameHitTest(w, POINT{GET_X_LPARAM(lParam) - r.left, GET_Y_LPARAM(lParam) - r.top});
    }
    case WM_MOUSEACTIVATE: return MA_ACTIVATE;
    case WM_CLOSE: DestroyWindow(hwnd); return 0;
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC: return CtlColor(msg, reinterpret_cast<HDC>(wParam));
    default: return 0;
    }
}
