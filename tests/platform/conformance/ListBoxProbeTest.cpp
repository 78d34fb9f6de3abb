// List box keys, mouse and notifications, replayed from the recorded probe.

#include <cstdio>

#include "Transcript.h"
#include "platform/user/User.h"

namespace {

HWND top, lb;
Transcript out;

const char* Code(int n) {
    switch (n) {
    case LBN_SELCHANGE: return "LBN_SELCHANGE";
    case LBN_DBLCLK: return "LBN_DBLCLK";
    case LBN_SETFOCUS: return "LBN_SETFOCUS";
    case LBN_KILLFOCUS: return "LBN_KILLFOCUS";
    case LBN_SELCANCEL: return "LBN_SELCANCEL";
    }
    static char b[32];
    std::snprintf(b, sizeof b, "code %d", n);
    return b;
}

LRESULT Proc(HWND h, UINT m, WPARAM w, LPARAM l) {
    if (m == WM_COMMAND && reinterpret_cast<HWND>(l) == lb) out.Print("  notify %s\n", Code(HIWORD(w)));
    return DefWindowProc(h, m, w, l);
}

void State(const char* what) {
    out.Print("%s: cursel %d caret %d top %d\n", what, static_cast<int>(SendMessage(lb, LB_GETCURSEL, 0, 0)),
              static_cast<int>(SendMessage(lb, LB_GETCARETINDEX, 0, 0)),
              static_cast<int>(SendMessage(lb, LB_GETTOPINDEX, 0, 0)));
}

void Key(UINT vk) {
    SendMessage(lb, WM_KEYDOWN, vk, 1);
    SendMessage(lb, WM_KEYUP, vk, static_cast<LPARAM>(0xC0000001u));
}

void Reset() { SendMessage(lb, LB_SETCURSEL, static_cast<WPARAM>(-1), 0); }

}  // namespace

TEST(ListBoxProbe, MatchesRecording) {
    WNDCLASS wc;
    wc.lpfnWndProc = Proc;
    wc.lpszClassName = "ListTop";
    RegisterClass(&wc);
    top = CreateWindow("ListTop", "top", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 300, nullptr, nullptr, nullptr,
                       nullptr);
    lb = CreateWindow("ListBox", "", WS_CHILD | WS_VISIBLE | WS_BORDER | LBS_NOTIFY | WS_VSCROLL, 10, 10, 120, 100, top,
                      MenuFromId(100), nullptr, nullptr);
    SetForegroundWindow(top);
    for (const char* item : {"*", "B", "C", ""}) SendMessage(lb, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    out.Print("items 4 (last is empty); focus to list\n");
    SetFocus(lb);
    State("fresh");
    Key(VK_DOWN);
    State("fresh, Down");
    Reset();
    State("after LB_SETCURSEL -1");
    Key(VK_DOWN);
    State("no selection, Down");
    Reset();
    Key(VK_HOME);
    State("no selection, Home");
    Key(VK_DOWN);
    State("Home, Down");
    Key(VK_UP);
    Key(VK_UP);
    State("Up, Up (at top)");
    Key(VK_END);
    State("End");
    Key(VK_DOWN);
    State("Down at bottom");
    Reset();
    Key(VK_UP);
    State("no selection, Up");
    Reset();
    Key(VK_END);
    State("no selection, End");
    out.Print("LB_SETCURSEL 2:\n");
    SendMessage(lb, LB_SETCURSEL, 2, 0);
    State("after LB_SETCURSEL 2");
    Reset();
    int ih = static_cast<int>(SendMessage(lb, LB_GETITEMHEIGHT, 0, 0));
    out.Print("item height %d\n", ih);
    LPARAM p = MakePointLParam(20, ih * 1 + ih / 2);
    SendMessage(lb, WM_LBUTTONDOWN, MK_LBUTTON, p);
    State("press on item 1");
    SendMessage(lb, WM_LBUTTONUP, 0, p);
    State("release on item 1");
    SendMessage(lb, WM_LBUTTONDBLCLK, MK_LBUTTON, p);
    SendMessage(lb, WM_LBUTTONUP, 0, p);
    State("double click item 1");
    Reset();
    out.Print("typing 'c' with no selection:\n");
    SendMessage(lb, WM_CHAR, 'c', 1);
    State("char c");
    DestroyWindow(top);
    TraceRules rules;
    // The item height follows the font.
    rules.shapeOnly = {"item height"};
    EXPECT_TRUE(MatchesTrace(out, "listbox", rules));
}
