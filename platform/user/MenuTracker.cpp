// The popup menu's modal loop.
//
// TrackPopupMenu runs a loop of its own over the one queue, as a modal dialog does, so timers,
// paints and posted messages of every window keep flowing while the menu is open. The menu
// window holds the capture, so all mouse input comes to it, and the loop takes every key
// whatever window has the focus; both are handled here and never dispatched. A press outside
// the menu closes it and goes no further. The loop ends when an item is chosen, the menu is
// dismissed (Escape, Alt, F10, EndMenu, a program ending all modal loops), something takes
// the capture or destroys the menu's window or its owner, or WM_QUIT arrives (posted again for
// the loops outside). The chosen item's WM_COMMAND is posted only after the window is gone
// and the owner has heard WM_EXITMENULOOP, so it arrives after TrackPopupMenu has returned.

#include "platform/user/MenuTracker.h"

#include <algorithm>
#include <cctype>

#include "platform/controls/MenuWindow.h"
#include "platform/user/User.h"

namespace plat {

namespace {

constexpr DWORD Style = WS_POPUP | WS_DLGFRAME;  // the raised three-pixel frame
constexpr DWORD ExStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;

MenuTracker* current = nullptr;

// Where a popup of `extent` starts along one axis: at `at`, ending there (`far`) or centred on
// it; flipped to the other side where it would leave the screen, and kept on it.
int Place(int at, int extent, int screen, bool far, bool centre) {
    int start = centre ? at - extent / 2 : far ? at - extent : at;
    if (!centre && !far && start + extent > screen) start = at - extent;
    if (!centre && far && start < 0) start = at;
    return std::clamp(start, 0, std::max(0, screen - extent));
}

// The character after the first single '&', lower case; 0 for none.
char Mnemonic(const std::string& text) {
    for (size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&')
            return static_cast<char>(std::tolower(static_cast<unsigned char>(text[i + 1])));
        ++i;
    }
    return 0;
}

bool IsButtonDown(UINT msg) {
    return msg == WM_LBUTTONDOWN || msg == WM_RBUTTONDOWN || msg == WM_MBUTTONDOWN ||
           msg == WM_LBUTTONDBLCLK || msg == WM_RBUTTONDBLCLK;
}

}  // namespace

MenuTracker::MenuTracker(HMENU menu, UINT flags, HWND owner) : menu(menu), flags(flags), owner(owner) {
    current = this;
}

MenuTracker::~MenuTracker() { current = nullptr; }

MenuTracker* MenuTracker::Current() { return current; }

BOOL MenuTracker::Run(int x, int y) {
    Notify(WM_ENTERMENULOOP, TRUE, 0);
    Notify(WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
    Notify(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, FALSE));
    // A handler may have ended the menu already, or destroyed it or its owner.
    bool opened = !done && Open(x, y);
    if (opened) Loop();
    Close();
    if (!opened && !done) return FALSE;
    if (flags & TPM_RETURNCMD) return chose ? static_cast<BOOL>(chosen) : 0;
    if (chose) PostMessage(owner, WM_COMMAND, MAKEWPARAM(LOWORD(chosen), 0), 0);
    return TRUE;
}

void MenuTracker::Dismiss() {
    done = true;
    // Wakes the loop should it be waiting.
    if (IsWindow(window)) PostMessage(window, WM_NULL, 0, 0);
}

bool MenuTracker::ItemRect(HMENU shown, UINT position, RECT* r) const {
    if (shown != menu || !view || !IsWindow(window) || position >= static_cast<UINT>(view->Count()) || !r)
        return false;
    *r = view->Row(static_cast<int>(position));
    POINT origin{};
    ClientToScreen(window, &origin);
    OffsetRect(r, origin.x, origin.y);
    return true;
}

bool MenuTracker::Open(int x, int y) {
    MenuRecord* record = FindMenu(menu);
    if (!record || !IsWindow(owner)) return false;
    view = std::make_unique<MenuView>(record->items);
    SIZE client = view->ClientSize();
    RECT frame{0, 0, client.cx, client.cy};
    AdjustWindowRectEx(&frame, Style, FALSE, ExStyle);
    int width = RectWidth(frame), height = RectHeight(frame);
    int left = Place(x, width, GetSystemMetrics(SM_CXSCREEN), (flags & TPM_RIGHTALIGN) != 0,
                     (flags & TPM_CENTERALIGN) != 0);
    int top = Place(y, height, GetSystemMetrics(SM_CYSCREEN), (flags & TPM_BOTTOMALIGN) != 0,
                    (flags & TPM_VCENTERALIGN) != 0);
    window = CreateWindowEx(ExStyle, MenuWindow::ClassName, "", Style, left, top, width, height, owner,
                            nullptr, nullptr, view.get());
    if (!window) return false;
    ShowWindow(window, SW_SHOWNA);
    SetCapture(window);
    return true;
}

void MenuTracker::Loop() {
    MSG msg;
    while (!done) {
        if (!GetMessage(&msg, nullptr, 0, 0)) {
            PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        if (!Take(msg)) {
            TranslateMessage(&msg);
            DispatchMessage(&msg);
        }
        if (!IsWindow(window) || !IsWindow(owner) || GetCapture() != window) done = true;
    }
}

void MenuTracker::Close() {
    if (IsWindow(window)) DestroyWindow(window);
    Notify(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    Notify(WM_EXITMENULOOP, TRUE, 0);
}

bool MenuTracker::Take(MSG& msg) {
    if (msg.message >= WM_KEYDOWN && msg.message <= WM_SYSCHAR) {
        OnKey(msg);
        return true;
    }
    if (msg.hwnd == window && msg.message >= WM_MOUSEMOVE && msg.message <= WM_MOUSEWHEEL) {
        OnMouse(msg);
        return true;
    }
    return false;
}

void MenuTracker::OnKey(MSG& msg) {
    if (msg.message == WM_CHAR || msg.message == WM_SYSCHAR) return OnMnemonic(static_cast<char>(msg.wParam));
    if (msg.message != WM_KEYDOWN && msg.message != WM_SYSKEYDOWN) return;
    int row = view->highlight;
    switch (static_cast<int>(msg.wParam)) {
    case VK_UP: return Highlight(Next(row < 0 ? 0 : row, -1), false);
    case VK_DOWN: return Highlight(Next(row, 1), false);
    case VK_HOME: return Highlight(Next(-1, 1), false);
    case VK_END: return Highlight(Next(0, -1), false);
    case VK_RETURN:
        if (row >= 0 && view->At(row).Choosable()) return Choose(row);
        done = true;
        return;
    case VK_ESCAPE:
    case VK_MENU:
    case VK_F10: done = true; return;
    default:
        // Characters come back as WM_CHAR for the mnemonics.
        TranslateMessage(&msg);
        return;
    }
}

void MenuTracker::OnMnemonic(char typed) {
    char key = static_cast<char>(std::tolower(static_cast<unsigned char>(typed)));
    std::vector<int> rows;
    for (int i = 0; i < view->Count(); ++i)
        if (key && Mnemonic(view->At(i).text) == key) rows.push_back(i);
    if (rows.empty()) return;
    if (rows.size() == 1 && view->At(rows.front()).Choosable()) return Choose(rows.front());
    // Items that share the character take the highlight in turn.
    auto next = std::upper_bound(rows.begin(), rows.end(), view->highlight);
    Highlight(next == rows.end() ? rows.front() : *next, false);
}

void MenuTracker::OnMouse(const MSG& msg) {
    RECT bounds;
    GetWindowRect(window, &bounds);
    POINT client = msg.pt;
    ScreenToClient(window, &client);
    int row = view->RowAt(client);
    if (row >= 0 && view->At(row).Separator()) row = -1;
    if (IsButtonDown(msg.message) && !PtInRect(&bounds, msg.pt)) {
        done = true;
        return;
    }
    switch (msg.message) {
    case WM_MOUSEMOVE: Highlight(row, true); return;
    case WM_RBUTTONUP:
        if (!(flags & TPM_RIGHTBUTTON)) return;
        [[fallthrough]];
    case WM_LBUTTONUP:
        if (row >= 0 && view->At(row).Choosable()) Choose(row);
        return;
    default:
        if (IsButtonDown(msg.message)) Highlight(row, true);
        return;
    }
}

int MenuTracker::Next(int from, int step) const {
    int count = view->Count();
    for (int k = 1; k <= count; ++k) {
        int row = ((from + k * step) % count + count) % count;
        if (view->At(row).Choosable()) return row;
    }
    return -1;
}

void MenuTracker::Highlight(int row, bool byMouse) {
    if (row == view->highlight) return;
    for (int changed : {view->highlight, row}) {
        if (changed < 0) continue;
        RECT r = view->Row(changed);
        InvalidateRect(window, &r, FALSE);
    }
    view->highlight = row;
    if (row < 0) return;
    const MenuItem& item = view->At(row);
    UINT state = item.flags | MF_HILITE | (byMouse ? MF_MOUSESELECT : 0);
    Notify(WM_MENUSELECT, MAKEWPARAM(LOWORD(item.id), LOWORD(state)), reinterpret_cast<LPARAM>(menu));
}

void MenuTracker::Choose(int row) {
    chosen = view->At(row).id;
    chose = true;
    done = true;
}

void MenuTracker::Notify(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (!(flags & TPM_NONOTIFY)) SendMessage(owner, msg, wParam, lParam);
}

}  // namespace plat

BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    if (!plat::FindMenu(menu) || !IsWindow(owner) || plat::MenuTracker::Current()) return FALSE;
    plat::MenuTracker tracker(menu, flags, owner);
    return tracker.Run(x, y);
}

BOOL EndMenu() {
    plat::MenuTracker* tracker = plat::MenuTracker::Current();
    if (!tracker) return FALSE;
    tracker->Dismiss();
    return TRUE;
}

BOOL GetMenuItemRect(HWND, HMENU menu, UINT position, RECT* r) {
    plat::MenuTracker* tracker = plat::MenuTracker::Current();
    return tracker && tracker->ItemRect(menu, position, r);
}
