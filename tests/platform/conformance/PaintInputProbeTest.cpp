// Paint regions, mouse and keys through the real input path, replayed from the recorded probe.

#include "Transcript.h"
#include "platform/gdi/Gdi.h"
#include "platform/user/User.h"

namespace {

HWND top, w1, w2;
Transcript out;

const char* Name(HWND h) { return h == top ? "top" : h == w1 ? "dbl" : h == w2 ? "plain" : "other"; }

const char* MouseName(UINT m) {
    switch (m) {
    case WM_LBUTTONDOWN: return "LBUTTONDOWN";
    case WM_LBUTTONUP: return "LBUTTONUP";
    case WM_LBUTTONDBLCLK: return "LBUTTONDBLCLK";
    case WM_MOUSEMOVE: return "MOUSEMOVE";
    case WM_CAPTURECHANGED: return "CAPTURECHANGED";
    case WM_MOUSEWHEEL: return "MOUSEWHEEL";
    default: return nullptr;
    }
}

LRESULT Proc(HWND h, UINT m, WPARAM w, LPARAM l) {
    if (m == WM_PAINT) {
        RECT u;
        BOOL has = GetUpdateRect(h, &u, FALSE);
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(h, &ps);
        RECT cb;
        GetClipBox(dc, &cb);
        out.Print("  %s WM_PAINT update(%d) (%d,%d,%d,%d) rcPaint (%d,%d,%d,%d) clipbox (%d,%d,%d,%d) fErase %d\n", Name(h),
                  has, u.left, u.top, u.right, u.bottom, ps.rcPaint.left, ps.rcPaint.top, ps.rcPaint.right,
                  ps.rcPaint.bottom, cb.left, cb.top, cb.right, cb.bottom, ps.fErase);
        EndPaint(h, &ps);
        return 0;
    }
    if (m == WM_ERASEBKGND) {
        out.Print("  %s WM_ERASEBKGND\n", Name(h));
        return 1;
    }
    const char* n = MouseName(m);
    if (n && m != WM_MOUSEMOVE) out.Print("  %s %s (%d,%d)\n", Name(h), n, GET_X_LPARAM(l), GET_Y_LPARAM(l));
    if (m == WM_MOUSEWHEEL) out.Print("    delta %d keys 0x%x\n", GET_WHEEL_DELTA_WPARAM(w), LOWORD(w));
    if (m == WM_KEYDOWN)
        out.Print("  %s WM_KEYDOWN vk 0x%x shift %s ctrl %s\n", Name(h), static_cast<unsigned>(w),
                  GetKeyState(VK_SHIFT) < 0 ? "down" : "up", GetKeyState(VK_CONTROL) < 0 ? "down" : "up");
    if (m == WM_CHAR) out.Print("  %s WM_CHAR 0x%02x\n", Name(h), static_cast<unsigned>(w));
    return DefWindowProc(h, m, w, l);
}

void Pump() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

void Mouse(DWORD flags, int x, int y, DWORD data) {
    INPUT in;
    in.type = INPUT_MOUSE;
    in.mi.dx = x * 65535 / (GetSystemMetrics(SM_CXSCREEN) - 1);
    in.mi.dy = y * 65535 / (GetSystemMetrics(SM_CYSCREEN) - 1);
    in.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    in.mi.mouseData = data;
    SendInput(1, &in, sizeof in);
    Sleep(20);
    Pump();
}

void Keyboard(WORD vk, bool up) {
    INPUT in;
    in.type = INPUT_KEYBOARD;
    in.ki.wVk = vk;
    in.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    SendInput(1, &in, sizeof in);
    Sleep(20);
    Pump();
}

}  // namespace

TEST(PaintInputProbe, MatchesRecording) {
    WNDCLASS wc;
    wc.lpfnWndProc = Proc;
    wc.lpszClassName = "PaintTop";
    wc.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(COLOR_WINDOW + 1));
    RegisterClass(&wc);
    WNDCLASS wd = wc;
    wd.lpszClassName = "PaintDbl";
    wd.style = CS_DBLCLKS;
    RegisterClass(&wd);
    top = CreateWindow("PaintTop", "top", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
    w1 = CreateWindow("PaintDbl", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 100, top, nullptr, nullptr, nullptr);
    w2 = CreateWindow("PaintTop", "", WS_CHILD | WS_VISIBLE, 200, 0, 100, 100, top, nullptr, nullptr, nullptr);
    SetForegroundWindow(top);
    UpdateWindow(top);
    Pump();
    out.Print("== paint\n");
    RECT a{10, 10, 20, 20}, b{50, 60, 70, 80};
    out.Print("InvalidateRect a (erase FALSE), b (erase FALSE), UpdateWindow\n");
    InvalidateRect(w1, &a, FALSE);
    InvalidateRect(w1, &b, FALSE);
    UpdateWindow(w1);
    out.Print("InvalidateRect a (erase TRUE), UpdateWindow\n");
    InvalidateRect(w1, &a, TRUE);
    UpdateWindow(w1);
    out.Print("InvalidateRect (0,0,100,100); ValidateRect (0,0,100,50); UpdateWindow\n");
    RECT f{0, 0, 100, 100}, v{0, 0, 100, 50};
    InvalidateRect(w1, &f, FALSE);
    ValidateRect(w1, &v);
    UpdateWindow(w1);
    out.Print("UpdateWindow with nothing invalid\n");
    UpdateWindow(w1);
    out.Print("InvalidateRect a; RedrawWindow RDW_INVALIDATE|RDW_UPDATENOW on b\n");
    InvalidateRect(w1, &a, FALSE);
    RedrawWindow(w1, &b, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    out.Print("ScrollWindowEx dy=-20 SW_INVALIDATE\n");
    RECT u;
    ScrollWindowEx(w1, 0, -20, nullptr, nullptr, nullptr, &u, SW_INVALIDATE);
    out.Print("  returned update (%d,%d,%d,%d)\n", u.left, u.top, u.right, u.bottom);
    UpdateWindow(w1);

    out.Print("== mouse (SendInput)\n");
    out.Print("double click in CS_DBLCLKS window\n");
    for (int i = 0; i < 2; ++i) {
        Mouse(MOUSEEVENTF_LEFTDOWN, 50, 50, 0);
        Mouse(MOUSEEVENTF_LEFTUP, 50, 50, 0);
    }
    Sleep(700);
    Pump();
    out.Print("double click in a window without CS_DBLCLKS\n");
    for (int i = 0; i < 2; ++i) {
        Mouse(MOUSEEVENTF_LEFTDOWN, 250, 50, 0);
        Mouse(MOUSEEVENTF_LEFTUP, 250, 50, 0);
    }
    Sleep(700);
    Pump();
    out.Print("press in dbl, SetCapture, release over plain, ReleaseCapture\n");
    Mouse(MOUSEEVENTF_LEFTDOWN, 50, 50, 0);
    SetCapture(w1);
    Mouse(MOUSEEVENTF_LEFTUP, 250, 50, 0);
    ReleaseCapture();
    Pump();
    Sleep(700);
    Pump();
    out.Print("wheel over plain while dbl has focus\n");
    SetFocus(w1);
    Mouse(MOUSEEVENTF_WHEEL, 250, 50, static_cast<DWORD>(-120));
    Pump();

    out.Print("== keys (SendInput)\n");
    SetFocus(w1);
    Keyboard('A', false);
    Keyboard('A', true);
    Keyboard(VK_SHIFT, false);
    Keyboard('A', false);
    Keyboard('A', true);
    Keyboard(VK_SHIFT, true);
    Keyboard(VK_CONTROL, false);
    Keyboard('C', false);
    Keyboard('C', true);
    Keyboard(VK_CONTROL, true);
    for (WORD k : {VK_RETURN, VK_ESCAPE, VK_TAB, VK_BACK, VK_DELETE, VK_F2, VK_SPACE}) {
        Keyboard(k, false);
        Keyboard(k, true);
    }
    out.Print("GetDoubleClickTime %u SM_CXDOUBLECLK %d SM_CYDOUBLECLK %d SM_CXDRAG %d SM_CXVSCROLL %d SM_CYHSCROLL %d "
              "SM_CXEDGE %d SM_CXBORDER %d\n",
              GetDoubleClickTime(), GetSystemMetrics(SM_CXDOUBLECLK), GetSystemMetrics(SM_CYDOUBLECLK),
              GetSystemMetrics(SM_CXDRAG), GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL),
              GetSystemMetrics(SM_CXEDGE), GetSystemMetrics(SM_CXBORDER));
    const int colors[] = {COLOR_BTNFACE, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_WINDOW,
                          COLOR_WINDOWTEXT, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT, COLOR_GRAYTEXT, COLOR_BTNTEXT,
                          COLOR_INFOBK, COLOR_INFOTEXT, COLOR_WINDOWFRAME};
    const char* names[] = {"BTNFACE", "BTNSHADOW", "BTNHIGHLIGHT", "3DDKSHADOW", "WINDOW", "WINDOWTEXT", "HIGHLIGHT",
                           "HIGHLIGHTTEXT", "GRAYTEXT", "BTNTEXT", "INFOBK", "INFOTEXT", "WINDOWFRAME"};
    for (size_t i = 0; i < std::size(colors); ++i) {
        COLORREF c = GetSysColor(colors[i]);
        out.Print("COLOR_%s %d %d %d\n", names[i], GetRValue(c), GetGValue(c), GetBValue(c));
    }
    DestroyWindow(top);
    TraceRules rules;
    // The metrics and the colour scheme are the recording platform's own.
    rules.shapeOnly = {"GetDoubleClickTime", "COLOR_"};
    EXPECT_TRUE(MatchesTrace(out, "paint_input", rules));
}
