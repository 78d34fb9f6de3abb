// Synchronous focus, replayed from the recorded probe.

#include "Transcript.h"
#include "platform/user/User.h"

namespace {

HWND top, a, b, c;
bool redirect;
Transcript out;

const char* Name(HWND h) {
    return h == nullptr ? "none" : h == top ? "top" : h == a ? "a" : h == b ? "b" : h == c ? "c" : "other";
}

LRESULT Proc(HWND h, UINT m, WPARAM w, LPARAM l) {
    if (m == WM_SETFOCUS)
        out.Print("  %s WM_SETFOCUS (from %s) GetFocus=%s\n", Name(h), Name(reinterpret_cast<HWND>(w)), Name(GetFocus()));
    if (m == WM_KILLFOCUS) {
        out.Print("  %s WM_KILLFOCUS (to %s) GetFocus=%s\n", Name(h), Name(reinterpret_cast<HWND>(w)), Name(GetFocus()));
        if (h == a && redirect) {
            redirect = false;
            out.Print("  a calls SetFocus(c)\n");
            HWND prev = SetFocus(c);
            out.Print("  a's SetFocus(c) returned %s\n", Name(prev));
        }
    }
    return DefWindowProc(h, m, w, l);
}

void Show(const char* what) { out.Print("%s -> focus %s\n", what, Name(GetFocus())); }

}  // namespace

TEST(FocusProbe, MatchesRecording) {
    WNDCLASS wc;
    wc.lpfnWndProc = Proc;
    wc.lpszClassName = "FocusProbe";
    RegisterClass(&wc);
    top = CreateWindow("FocusProbe", "top", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
    a = CreateWindow("FocusProbe", "a", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, top, MenuFromId(1), nullptr, nullptr);
    b = CreateWindow("FocusProbe", "b", WS_CHILD | WS_VISIBLE, 60, 0, 50, 50, top, MenuFromId(2), nullptr, nullptr);
    c = CreateWindow("FocusProbe", "c", WS_CHILD | WS_VISIBLE, 120, 0, 50, 50, top, MenuFromId(3), nullptr, nullptr);
    out.Print("show top\n");
    ShowWindow(top, SW_SHOW);
    SetForegroundWindow(top);
    Show("shown");
    out.Print("SetFocus(a)\n");
    SetFocus(a);
    Show("SetFocus(a)");
    out.Print("SetFocus(a) again\n");
    SetFocus(a);
    Show("again");
    out.Print("SetFocus(b) while a's kill-focus moves it to c\n");
    redirect = true;
    HWND r = SetFocus(b);
    out.Print("  SetFocus(b) returned %s\n", Name(r));
    Show("nested");
    out.Print("SetFocus(a); EnableWindow(a, FALSE)\n");
    SetFocus(a);
    EnableWindow(a, FALSE);
    Show("disabled a");
    EnableWindow(a, TRUE);
    out.Print("SetFocus(a) on a disabled window\n");
    EnableWindow(b, FALSE);
    HWND r2 = SetFocus(b);
    out.Print("  returned %s\n", Name(r2));
    Show("SetFocus(disabled b)");
    EnableWindow(b, TRUE);
    out.Print("SetFocus(a); ShowWindow(a, SW_HIDE)\n");
    SetFocus(a);
    ShowWindow(a, SW_HIDE);
    Show("hidden a");
    ShowWindow(a, SW_SHOW);
    out.Print("SetFocus(b); DestroyWindow(b)\n");
    SetFocus(b);
    DestroyWindow(b);
    b = nullptr;
    Show("destroyed b");
    out.Print("SetFocus(NULL)\n");
    SetFocus(c);
    SetFocus(nullptr);
    Show("SetFocus(NULL)");
    DestroyWindow(top);
    EXPECT_TRUE(MatchesTrace(out, "focus"));
}
