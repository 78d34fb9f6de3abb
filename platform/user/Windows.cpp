// Creating and destroying windows, their tree, their properties and their geometry.

#include <algorithm>
#include <cstring>

#include "platform/backend/Backend.h"
#include "platform/user/Internal.h"
#include "platform/user/NonClient.h"

using namespace plat;

namespace {

void Unlink(Window* w) {
    if (!w->parent) return;
    auto& kids = w->parent->children;
    kids.erase(std::remove(kids.begin(), kids.end(), w), kids.end());
}

void NotifyBackend(Window* w) {
    if (!w->IsChild()) WM().GetBackend().TopLevelChanged(w->handle);
}

}  // namespace

ATOM RegisterClass(const WNDCLASS* wc) { return wc ? WM().AddClass(*wc) : 0; }

BOOL UnregisterClass(const char* name, HINSTANCE) { return name && WM().RemoveClass(name); }

BOOL GetClassInfo(HINSTANCE, const char* name, WNDCLASS* out) {
    const WindowClass* c = name ? WM().FindClass(name) : nullptr;
    if (!c || !out) return FALSE;
    *out = c->wc;
    return TRUE;
}

HWND CreateWindowEx(DWORD exStyle, const char* className, const char* text, DWORD style, int x,
                    int y, int width, int height, HWND parentHandle, HMENU menu,
                    HINSTANCE instance, void* param) {
    const WindowClass* cls = className ? WM().FindClass(className) : nullptr;
    if (!cls) return nullptr;
    Window* parent = W(parentHandle);
    if ((style & WS_CHILD) && !parent) return nullptr;

    auto record = std::make_unique<Window>();
    Window* w = record.get();
    w->cls = cls;
    w->proc = cls->wc.lpfnWndProc;
    w->style = style & ~WS_VISIBLE;
    w->exStyle = exStyle;
    w->instance = instance;
    w->text = text && !IS_INTRESOURCE(text) ? text : "";
    if (style & WS_CHILD) {
        w->parent = parent;
        w->id = static_cast<int>(reinterpret_cast<std::uintptr_t>(menu));
        parent->children.push_back(w);  // new children go to the bottom: tab order
    } else {
        w->parent = WM().Desktop();
        w->owner = parent ? parent->TopLevel() : nullptr;
        w->parent->children.insert(w->parent->children.begin(), w);
    }
    if (x == CW_USEDEFAULT) x = 40, y = 40;
    if (width == CW_USEDEFAULT) width = 400, height = 300;
    w->rect = RECT{x, y, x + std::max(width, 0), y + std::max(height, 0)};
    PlaceClientArea(w);
    HWND hwnd = WM().Adopt(std::move(record));
    if (!w->IsChild()) EnsureSurface(w);
    if (WM().onCreate) WM().onCreate(hwnd);

    CREATESTRUCT cs;
    cs.lpCreateParams = param;
    cs.hInstance = instance;
    cs.hMenu = menu;
    cs.hwndParent = parentHandle;
    cs.x = x, cs.y = y, cs.cx = width, cs.cy = height;
    cs.style = static_cast<LONG>(style);
    cs.lpszName = text;
    cs.lpszClass = className;
    cs.dwExStyle = exStyle;
    auto csParam = reinterpret_cast<LPARAM>(&cs);
    if (!SendMessage(hwnd, WM_NCCREATE, 0, csParam) || SendMessage(hwnd, WM_CREATE, 0, csParam) == -1) {
        DestroyWindow(hwnd);
        return nullptr;
    }
    if (!(w = W(hwnd))) return nullptr;
    w->created = true;
    RECT client = w->ClientRect();
    SendMessage(hwnd, WM_SIZE, 0, MAKELPARAM(static_cast<WORD>(client.right), static_cast<WORD>(client.bottom)));
    SendMessage(hwnd, WM_MOVE, 0, MAKELPARAM(static_cast<WORD>(w->rect.left), static_cast<WORD>(w->rect.top)));
    if (style & WS_VISIBLE) ShowWindow(hwnd, SW_SHOW);
    return hwnd;
}

BOOL DestroyWindow(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w || w == WM().Desktop() || w->destroying) return FALSE;
    w->destroying = true;

    // Owned popups go first, as on the real system.
    std::vector<HWND> owned;
    for (Window* t : WM().Desktop()->children)
        if (t->owner == w) owned.push_back(t->handle);
    for (HWND h : owned) DestroyWindow(h);

    if (w->Visible()) ShowWindow(hwnd, SW_HIDE);
    else FocusLeaves(w);
    if (WM().active == hwnd) ActivateAnother(w);

    // WM_DESTROY goes to the window before its children, WM_NCDESTROY after them.
    std::function<void(HWND)> destroy = [&](HWND h) {
        SendMessage(h, WM_DESTROY, 0, 0);
        Window* x = W(h);
        if (!x) return;
        std::vector<HWND> kids;
        for (Window* c : x->children) kids.push_back(c->handle);
        for (HWND k : kids)
            if (Window* c = W(k)) {
                c->destroying = true;
                destroy(k);
            }
        CaptureLost(x);
        WM().timers.KillAll(h);
        ForgetInput(h);
        SendMessage(h, WM_NCDESTROY, 0, 0);
        if ((x = W(h))) {
            if (WM().focus == h) WM().focus = nullptr;
            for (Window* c : x->children) c->parent = nullptr;
            Unlink(x);
            bool top = !x->IsChild();
            WM().Release(h);
            if (top) WM().GetBackend().TopLevelChanged(h);
        }
    };
    destroy(hwnd);
    return TRUE;
}

BOOL IsWindow(HWND hwnd) { return W(hwnd) != nullptr; }

BOOL IsChild(HWND parent, HWND hwnd) {
    Window* p = W(parent);
    for (Window* w = W(hwnd); w && w->IsChild(); w = w->parent)
        if (w->parent == p) return TRUE;
    return FALSE;
}

HWND GetParent(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w) return nullptr;
    if (w->IsChild()) return w->parent ? w->parent->handle : nullptr;
    return (w->style & WS_POPUP) && w->owner ? w->owner->handle : nullptr;
}

HWND SetParent(HWND hwnd, HWND parentHandle) {
    Window* w = W(hwnd);
    Window* p = parentHandle ? W(parentHandle) : WM().Desktop();
    if (!w || !p) return nullptr;
    HWND old = GetParent(hwnd);
    InvalidateUnder(w);
    Unlink(w);
    w->parent = p;
    p->children.insert(p->children.begin(), w);
    if (w->Visible()) InvalidateWindow(w, nullptr, true, true);
    return old;
}

HWND GetWindow(HWND hwnd, UINT relation) {
    Window* w = W(hwnd);
    if (!w) return nullptr;
    if (relation == GW_CHILD) return w->children.empty() ? nullptr : w->children.front()->handle;
    if (relation == GW_OWNER) return w->owner ? w->owner->handle : nullptr;
    if (!w->parent) return nullptr;
    auto& sib = w->parent->children;
    auto it = std::find(sib.begin(), sib.end(), w);
    switch (relation) {
    case GW_HWNDFIRST: return sib.front()->handle;
    case GW_HWNDLAST: return sib.back()->handle;
    case GW_HWNDNEXT: return it + 1 != sib.end() ? (*(it + 1))->handle : nullptr;
    case GW_HWNDPREV: return it != sib.begin() ? (*(it - 1))->handle : nullptr;
    default: return nullptr;
    }
}

HWND GetTopWindow(HWND hwnd) { return GetWindow(hwnd ? hwnd : GetDesktopWindow(), GW_CHILD); }

HWND GetAncestorTopLevel(HWND hwnd) {
    Window* w = W(hwnd);
    return w && w->parent ? w->TopLevel()->handle : nullptr;
}

HWND GetDesktopWindow() { return WM().Desktop()->handle; }

HWND GetDlgItem(HWND dialog, int id) {
    Window* d = W(dialog);
    if (!d) return nullptr;
    for (Window* c : d->children)
        if (c->id == id) return c->handle;
    return nullptr;
}

int GetDlgCtrlID(HWND hwnd) {
    Window* w = W(hwnd);
    return w && w->IsChild() ? w->id : 0;
}

int GetClassName(HWND hwnd, char* out, int size) {
    Window* w = W(hwnd);
    if (!w || !out || size <= 0) return 0;
    std::string name = w->cls ? w->cls->name : "#32769";
    int n = std::min<int>(static_cast<int>(name.size()), size - 1);
    std::memcpy(out, name.data(), static_cast<size_t>(n));
    out[n] = 0;
    return n;
}

LONG_PTR GetWindowLongPtr(HWND hwnd, int index) {
    Window* w = W(hwnd);
    if (!w) return 0;
    switch (index) {
    case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(w->proc);
    case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(w->instance);
    case GWLP_ID: return w->id;
    case GWL_STYLE: return static_cast<LONG>(w->style);
    case GWL_EXSTYLE: return static_cast<LONG>(w->exStyle);
    case GWLP_USERDATA: return w->userData;
    default: return index >= 0 ? GetWindowExtra(hwnd, index) : 0;
    }
}

LONG_PTR SetWindowLongPtr(HWND hwnd, int index, LONG_PTR value) {
    Window* w = W(hwnd);
    if (!w) return 0;
    LONG_PTR old = GetWindowLongPtr(hwnd, index);
    switch (index) {
    case GWLP_WNDPROC: w->proc = reinterpret_cast<WNDPROC>(value); break;
    case GWLP_HINSTANCE: w->instance = reinterpret_cast<HINSTANCE>(value); break;
    case GWLP_ID: w->id = static_cast<int>(value); break;
    case GWL_STYLE: {
        // Visibility and enabling change only through their functions, as on the real system.
        DWORD keep = w->style & (WS_VISIBLE | WS_DISABLED);
        w->style = (static_cast<DWORD>(value) & ~(WS_VISIBLE | WS_DISABLED)) | keep;
        break;
    }
    case GWL_EXSTYLE: w->exStyle = static_cast<DWORD>(value); break;
    case GWLP_USERDATA: w->userData = value; break;
    default: SetWindowExtra(hwnd, index, value);
    }
    return old;
}

LONG_PTR GetWindowExtra(HWND hwnd, int index) {
    Window* w = W(hwnd);
    if (!w) return 0;
    auto it = w->extra.find(index);
    return it == w->extra.end() ? 0 : it->second;
}

void SetWindowExtra(HWND hwnd, int index, LONG_PTR value) {
    if (Window* w = W(hwnd)) w->extra[index] = value;
}

int GetWindowText(HWND hwnd, char* out, int size) {
    if (!out || size <= 0) return 0;
    out[0] = 0;
    return static_cast<int>(SendMessage(hwnd, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(out)));
}

int GetWindowTextLength(HWND hwnd) { return static_cast<int>(SendMessage(hwnd, WM_GETTEXTLENGTH, 0, 0)); }

BOOL SetWindowText(HWND hwnd, const char* text) {
    return SendMessage(hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text ? text : "")) != 0;
}

std::string GetWindowString(HWND hwnd) {
    std::string s(static_cast<size_t>(std::max(GetWindowTextLength(hwnd), 0)) + 1, '\0');
    s.resize(static_cast<size_t>(GetWindowText(hwnd, s.data(), static_cast<int>(s.size()))));
    return s;
}

BOOL GetWindowRect(HWND hwnd, RECT* r) {
    Window* w = W(hwnd);
    if (!w || !r) return FALSE;
    POINT o = w->ClientOriginOnScreen();
    *r = RECT{o.x - w->clientInWindow.left, o.y - w->clientInWindow.top, 0, 0};
    r->right = r->left + w->Width();
    r->bottom = r->top + w->Height();
    return TRUE;
}

BOOL GetClientRect(HWND hwnd, RECT* r) {
    Window* w = W(hwnd);
    if (!w || !r) return FALSE;
    *r = w == WM().Desktop() ? RECT{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}
                             : w->ClientRect();
    return TRUE;
}

BOOL MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint) {
    return SetWindowPos(hwnd, nullptr, x, y, width, height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0u : static_cast<UINT>(SWP_NOREDRAW)));
}

BOOL SetWindowPos(HWND hwnd, HWND after, int x, int y, int width, int height, UINT flags) {
    Window* w = W(hwnd);
    if (!w || !w->parent) return FALSE;
    RECT old = w->rect;
    RECT now = old;
    if (!(flags & SWP_NOMOVE)) OffsetRect(&now, x - old.left, y - old.top);
    if (!(flags & SWP_NOSIZE)) {
        now.right = now.left + std::max(width, 0);
        now.bottom = now.top + std::max(height, 0);
    }
    bool moved = now.left != old.left || now.top != old.top;
    bool sized = RectWidth(now) != RectWidth(old) || RectHeight(now) != RectHeight(old);
    bool redraw = !(flags & SWP_NOREDRAW);
    if ((moved || sized) && redraw && w->Visible()) InvalidateUnder(w);
    if (!(flags & SWP_NOZORDER)) {
        auto& sib = w->parent->children;
        sib.erase(std::remove(sib.begin(), sib.end(), w), sib.end());
        Window* a = after == HWND_BOTTOM || after == HWND_TOP || after == HWND_TOPMOST ||
                            after == HWND_NOTOPMOST
                        ? nullptr
                        : W(after);
        if (after == HWND_BOTTOM) sib.push_back(w);
        else if (a && a->parent == w->parent)
            sib.insert(std::find(sib.begin(), sib.end(), a) + 1, w);
        else sib.insert(sib.begin(), w);
    }
    w->rect = now;
    PlaceClientArea(w);
    if (!w->IsChild() && sized) EnsureSurface(w);
    if (sized && w->update) {
        // Nothing outside the new client area can be painted any more.
        RECT client = w->ClientRect();
        cairo_rectangle_int_t cr{0, 0, client.right, client.bottom};
        cairo_region_intersect_rectangle(w->update, &cr);
    }
    if (moved || sized) {
        WINDOWPOS pos{hwnd, after, now.left, now.top, RectWidth(now), RectHeight(now), flags};
        SendMessage(hwnd, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
        if (!(w = W(hwnd))) return TRUE;
        if (moved) SendMessage(hwnd, WM_MOVE, 0, MAKELPARAM(static_cast<WORD>(now.left), static_cast<WORD>(now.top)));
        RECT c = w->ClientRect();
        if (sized) SendMessage(hwnd, WM_SIZE, 0, MAKELPARAM(static_cast<WORD>(c.right), static_cast<WORD>(c.bottom)));
        if (!(w = W(hwnd))) return TRUE;
        if (redraw && w->Visible()) InvalidateWindow(w, nullptr, true, true);
        NotifyBackend(w);
    } else if (!(flags & SWP_NOZORDER) && redraw && w->Visible()) {
        InvalidateWindow(w, nullptr, true, true);
        NotifyBackend(w);
    }
    if (flags & SWP_SHOWWINDOW) ShowWindow(hwnd, (flags & SWP_NOACTIVATE) ? SW_SHOWNA : SW_SHOW);
    if (flags & SWP_HIDEWINDOW) ShowWindow(hwnd, SW_HIDE);
    return TRUE;
}

BOOL ClientToScreen(HWND hwnd, POINT* p) {
    Window* w = W(hwnd);
    if (!w || !p) return FALSE;
    POINT o = w == WM().Desktop() ? POINT{} : w->ClientOriginOnScreen();
    p->x += o.x, p->y += o.y;
    return TRUE;
}

BOOL ScreenToClient(HWND hwnd, POINT* p) {
    Window* w = W(hwnd);
    if (!w || !p) return FALSE;
    POINT o = w == WM().Desktop() ? POINT{} : w->ClientOriginOnScreen();
    p->x -= o.x, p->y -= o.y;
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count) {
    POINT a{}, b{};
    ClientToScreen(from ? from : GetDesktopWindow(), &a);
    ClientToScreen(to ? to : GetDesktopWindow(), &b);
    for (UINT i = 0; i < count; ++i) points[i].x += a.x - b.x, points[i].y += a.y - b.y;
    return MAKELONG(static_cast<WORD>(a.x - b.x), static_cast<WORD>(a.y - b.y));
}

BOOL AdjustWindowRectEx(RECT* r, DWORD style, BOOL, DWORD exStyle) {
    if (!r) return FALSE;
    RECT in = FrameInsets(style, exStyle);
    r->left -= in.left, r->top -= in.top, r->right += in.right, r->bottom += in.bottom;
    return TRUE;
}

namespace {

// Static text and group boxes let the mouse through to what lies under them, as windows that
// answer HTTRANSPARENT do.
bool Transparent(const Window* w) {
    if (!w->cls) return false;
    if (w->cls->name == "Static") return !(w->style & SS_NOTIFY);
    return w->cls->name == "Button" && (w->style & BS_TYPEMASK) == BS_GROUPBOX;
}

// The deepest visible child of `w` under a point in `w`'s client coordinates. A disabled child
// takes the point itself, so that its parent does not get clicks meant for it.
Window* DeepestAt(Window* w, POINT p) {
    for (Window* c : w->children) {
        if (!c->Visible() || !PtInRect(&c->rect, p) || Transparent(c)) continue;
        if (!c->Enabled()) return c;
        POINT inWindow{p.x - c->rect.left, p.y - c->rect.top};
        if (!PtInRect(&c->clientInWindow, inWindow)) return c;
        return DeepestAt(c, POINT{inWindow.x - c->clientInWindow.left, inWindow.y - c->clientInWindow.top});
    }
    return w;
}

}  // namespace

HWND WindowFromPoint(POINT screen) {
    for (Window* top : WM().Desktop()->children) {
        if (!top->Visible() || !PtInRect(&top->rect, screen)) continue;
        POINT local{screen.x - top->rect.left, screen.y - top->rect.top};
        if (!PtInRect(&top->clientInWindow, local)) return top->handle;
        local.x -= top->clientInWindow.left, local.y -= top->clientInWindow.top;
        return DeepestAt(top, local)->handle;
    }
    return nullptr;
}

HWND ChildWindowFromPoint(HWND parent, POINT client) {
    Window* p = W(parent);
    if (!p) return nullptr;
    RECT area = p->ClientRect();
    if (!PtInRect(&area, client) && p != WM().Desktop()) return nullptr;
    for (Window* c : p->children)
        if (PtInRect(&c->rect, client)) return c->handle;
    return parent;
}

BOOL ShowWindow(HWND hwnd, int cmd) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    bool was = w->Visible();
    bool show = cmd != SW_HIDE;
    if (was == show) {
        if (show && !w->IsChild() && (cmd == SW_SHOW || cmd == SW_SHOWNORMAL)) SetActiveWindow(hwnd);
        return was;
    }
    SendMessage(hwnd, WM_SHOWWINDOW, show, 0);
    if (!(w = W(hwnd))) return was;
    if (show) {
        w->style |= WS_VISIBLE;
        InvalidateWindow(w, nullptr, true, true);
        if (!w->IsChild()) {
            EraseNow(w);
            NotifyBackend(w);
            if (cmd == SW_SHOW || cmd == SW_SHOWNORMAL) SetActiveWindow(hwnd);
        }
    } else {
        FocusLeaves(w);
        CaptureLost(w);
        if (!(w = W(hwnd))) return was;
        w->style &= ~WS_VISIBLE;
        InvalidateUnder(w);
        if (!w->IsChild()) {
            if (WM().active == hwnd) ActivateAnother(w);
            NotifyBackend(w);
        }
    }
    return was;
}

BOOL IsWindowVisible(HWND hwnd) {
    Window* w = W(hwnd);
    return w && w->ReallyVisible();
}

BOOL EnableWindow(HWND hwnd, BOOL enable) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    bool wasDisabled = !w->Enabled();
    if (wasDisabled == !enable) return wasDisabled;
    if (enable) w->style &= ~WS_DISABLED;
    else {
        w->style |= WS_DISABLED;
        // A disabled window keeps nothing: the focus leaves for no window at all.
        HWND f = WM().focus;
        if (f == hwnd || IsChild(hwnd, f)) SetFocus(nullptr);
        CaptureLost(w);
    }
    SendMessage(hwnd, WM_ENABLE, enable, 0);
    return wasDisabled;
}

BOOL IsWindowEnabled(HWND hwnd) {
    Window* w = W(hwnd);
    return w && w->Enabled();
}

BOOL BringWindowToTop(HWND hwnd) { return SetWindowPos(hwnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); }
