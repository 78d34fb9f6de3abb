// Dialog keys, tab order and timers inside modal loops, replayed from the recorded probe.

#include <cstdio>

#include "Transcript.h"
#include "platform/user/Dialog.h"

namespace {

HWND top;
int ticks, phase, dticks;
bool endInInit;
Transcript out;

const char* Name(HWND h) {
    static char b[80];
    if (!h) return "none";
    if (h == top) return "top";
    char cls[32] = "", t[32] = "";
    GetClassName(h, cls, sizeof cls);
    GetWindowText(h, t, sizeof t);
    std::snprintf(b, sizeof b, "%s#%d\"%s\"", cls, GetDlgCtrlID(h), t);
    return b;
}

LRESULT TopProc(HWND h, UINT m, WPARAM w, LPARAM l) {
    if (m == WM_TIMER && w == 7) ++ticks;
    return DefWindowProc(h, m, w, l);
}

// Edit 100, list box 101, default button IDOK, button 102 (disabled), button 103. No IDCANCEL.
DialogTemplate Build() {
    DialogTemplate t;
    t.style = DS_MODALFRAME | DS_SETFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU;
    t.x = 10, t.y = 10, t.cx = 200, t.cy = 100;
    t.caption = "dlg";
    auto item = [&](DWORD style, short x, short y, short cx, short cy, int id, const char* cls, const char* text) {
        t.items.push_back(DialogItemTemplate{style | WS_CHILD | WS_VISIBLE, 0, x, y, cx, cy, id, cls, text});
    };
    item(ES_LEFT | WS_BORDER | WS_TABSTOP, 10, 10, 80, 12, 100, "Edit", "");
    item(LBS_NOTIFY | WS_BORDER | WS_TABSTOP, 10, 30, 80, 40, 101, "ListBox", "");
    item(BS_DEFPUSHBUTTON | WS_TABSTOP, 100, 10, 50, 14, IDOK, "Button", "OK");
    item(BS_PUSHBUTTON | WS_TABSTOP | WS_DISABLED, 100, 30, 50, 14, 102, "Button", "Off");
    item(BS_PUSHBUTTON | WS_TABSTOP, 100, 50, 50, 14, 103, "Button", "Other");
    return t;
}

void Key(HWND to, UINT vk) {
    PostMessage(to, WM_KEYDOWN, vk, 1);
    PostMessage(to, WM_KEYUP, vk, static_cast<LPARAM>(0xC0000001u));
}

INT_PTR DlgProc(HWND d, UINT m, WPARAM w, LPARAM) {
    switch (m) {
    case WM_INITDIALOG: {
        out.Print("  WM_INITDIALOG focus before return: %s\n", Name(GetFocus()));
        RECT r{0, 0, 4, 8};
        MapDialogRect(d, &r);
        out.Print("  MapDialogRect(0,0,4,8) -> (%d,%d,%d,%d)\n", r.right - r.left == 0 ? 0 : r.left, r.top, r.right,
                  r.bottom);
        out.Print("  DM_GETDEFID 0x%lx\n", static_cast<unsigned long>(SendMessage(d, DM_GETDEFID, 0, 0)));
        if (endInInit) {
            out.Print("  EndDialog(42) inside WM_INITDIALOG\n");
            EndDialog(d, 42);
        }
        SetTimer(d, 1, 100, nullptr);
        dticks = 0;
        return TRUE;
    }
    case WM_COMMAND:
        out.Print("  WM_COMMAND id %d code %d focus %s\n", LOWORD(w), HIWORD(w), Name(GetFocus()));
        if (phase == 0 && (LOWORD(w) == IDOK || LOWORD(w) == IDCANCEL)) return TRUE;
        if (LOWORD(w) == IDOK || LOWORD(w) == IDCANCEL) EndDialog(d, LOWORD(w));
        return TRUE;
    case WM_TIMER:
        if (w != 1) return FALSE;
        ++dticks;
        if (phase == 0) {
            HWND f = GetFocus();
            switch (dticks) {
            case 1:
                out.Print("  tick: focus after init %s\n", Name(f));
                out.Print("  Enter in the edit\n");
                Key(f, VK_RETURN);
                break;
            case 2:
                out.Print("  Escape in the edit\n");
                Key(GetFocus(), VK_ESCAPE);
                break;
            case 3:
                out.Print("  Tab x4 from %s\n", Name(GetFocus()));
                for (int i = 0; i < 4; ++i) Key(GetFocus(), VK_TAB);
                break;
            case 4:
                out.Print("  focus after Tabs: %s\n", Name(GetFocus()));
                out.Print("  Space on it\n");
                Key(GetFocus(), VK_SPACE);
                break;
            case 5:
                SetFocus(GetDlgItem(d, 101));
                out.Print("  Enter in the list box (focus %s)\n", Name(GetFocus()));
                Key(GetFocus(), VK_RETURN);
                break;
            case 6:
                phase = 1;
                out.Print("  EndDialog(7) from a timer\n");
                EndDialog(d, 7);
                break;
            }
        }
        return TRUE;
    }
    return FALSE;
}

}  // namespace

TEST(ModalProbe, MatchesRecording) {
    WNDCLASS wc;
    wc.lpfnWndProc = TopProc;
    wc.lpszClassName = "ModalTop";
    RegisterClass(&wc);
    top = CreateWindow("ModalTop", "top", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr, nullptr,
                       nullptr);
    SetForegroundWindow(top);
    DialogTemplate tpl = Build();
    out.Print("GetDialogBaseUnits 0x%lx\n", static_cast<unsigned long>(GetDialogBaseUnits()));
    SetTimer(top, 7, 50, nullptr);
    ticks = 0;
    out.Print("modal dialog:\n");
    INT_PTR r = DialogBoxIndirectParam(nullptr, &tpl, top, DlgProc, 0);
    out.Print("DialogBox returned %d; owner's 50 ms timer ticked during it: %s\n", static_cast<int>(r),
              ticks > 5 ? "yes" : "no");
    endInInit = true;
    phase = 1;
    out.Print("dialog ended inside WM_INITDIALOG:\n");
    r = DialogBoxIndirectParam(nullptr, &tpl, top, DlgProc, 0);
    out.Print("DialogBox returned %d\n", static_cast<int>(r));
    KillTimer(top, 7);
    DestroyWindow(top);
    TraceRules rules;
    // The dialog's base units follow its font.
    rules.shapeOnly = {"GetDialogBaseUnits", "MapDialogRect"};
    EXPECT_TRUE(MatchesTrace(out, "modal", rules));
}
