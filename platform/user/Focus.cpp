// Focus and activation. Both move synchronously: the window that loses hears of it first,
// already seeing the new state, and a handler may move the focus on; the outer call then sends
// nothing more (the window it aimed at may so get a kill-focus without ever having had a
// set-focus).

#include <algorithm>

#include "platform/backend/Backend.h"
#include "platform/user/Internal.h"
#include "platform/user/NonClient.h"

using namespace plat;

HWND SetFocus(HWND hwnd) {
    HWND old = WM().focus;
    if (!hwnd) {
        WM().focus = nullptr;
        if (old) SendMessage(old, WM_KILLFOCUS, 0, 0);
        return old;
    }
    Window* w = W(hwnd);
    if (!w || w == WM().Desktop()) return nullptr;
    for (Window* a = w; a && a->parent; a = a->parent)
        if (!a->Enabled()) return nullptr;
    if (hwnd == old) return old;

    Window* top = w->TopLevel();
    if (top->handle != WM().active) {
        SetActiveWindow(top->handle);
        // Activation may have given the focus elsewhere, even to this very window.
        old = WM().focus;
        if (old == hwnd || !W(hwnd)) return old;
    }
    WM().focus = hwnd;
    if (old) SendMessage(old, WM_KILLFOCUS, reinterpret_cast<WPARAM>(hwnd), 0);
    if (WM().focus != hwnd) return old;  // a kill-focus handler moved it on
    if (Window* t = W(hwnd)) t->TopLevel()->lastFocus = hwnd;
    SendMessage(hwnd, WM_SETFOCUS, reinterpret_cast<WPARAM>(old), 0);
    return old;
}

HWND GetFocus() { return WM().focus; }

HWND SetActiveWindow(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w || w->IsChild() || w == WM().Desktop()) return nullptr;
    HWND old = WM().active;
    if (old == hwnd) return old;
    // The active window comes to the front of the top-level windows.
    auto& tops = WM().Desktop()->children;
    tops.erase(std::remove(tops.begin(), tops.end(), w), tops.end());
    tops.insert(tops.begin(), w);
    WM().active = hwnd;
    if (Window* o = W(old)) {
        SendMessage(old, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(hwnd));
        if ((o = W(old))) DrawFrame(o);
    }
    if (WM().active != hwnd) return old;
    SendMessage(hwnd, WM_ACTIVATE, WA_ACTIVE, reinterpret_cast<LPARAM>(old));
    if ((w = W(hwnd))) {
        DrawFrame(w);
        WM().GetBackend().TopLevelChanged(hwnd);
    }
    return old;
}

HWND GetActiveWindow() { return WM().active; }

BOOL SetForegroundWindow(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    SetActiveWindow(w->TopLevel()->handle);
    return TRUE;
}

HWND GetForegroundWindow() { return WM().active; }

namespace plat {

void FocusLeaves(Window* w) {
    HWND f = WM().focus;
    HWND hwnd = w->handle;
    if (f != hwnd && !IsChild(hwnd, f)) return;
    if (w->IsChild()) {
        SetFocus(w->parent->handle);
        return;
    }
    if (WM().active == hwnd) ActivateAnother(w);
    f = WM().focus;
    if (f == hwnd || IsChild(hwnd, f)) SetFocus(nullptr);
}

void ActivateAnother(Window* leaving) {
    Window* next = nullptr;
    auto usable = [&](Window* t) { return t && t != leaving && !t->destroying && t->Visible() && t->Enabled(); };
    if (usable(leaving->owner)) next = leaving->owner;
    for (Window* t : WM().Desktop()->children)
        if (!next && usable(t)) next = t;
    if (next) {
        SetActiveWindow(next->handle);
        return;
    }
    HWND old = WM().active;
    WM().active = nullptr;
    if (old) SendMessage(old, WM_ACTIVATE, WA_INACTIVE, 0);
    if (WM().focus) SetFocus(nullptr);
}

}  // namespace plat
