// Invalid regions and WM_PAINT. A window collects what must be repainted in its update region;
// the queue makes up WM_PAINT while it is not empty, and BeginPaint hands out a context clipped
// to it, erasing the background first when an invalidation asked for that.

#include <algorithm>

#include "platform/backend/Backend.h"
#include "platform/gdi/Gdi.h"
#include "platform/gdi/SurfaceDC.h"
#include "platform/user/Internal.h"
#include "platform/user/NonClient.h"

using namespace plat;

namespace {

cairo_rectangle_int_t Cairo(const RECT& r) {
    return cairo_rectangle_int_t{r.left, r.top, r.right - r.left, r.bottom - r.top};
}

RECT Box(const cairo_region_t* region) {
    if (!region || cairo_region_is_empty(region)) return RECT{};
    cairo_rectangle_int_t e;
    cairo_region_get_extents(region, &e);
    return RECT{e.x, e.y, e.x + e.width, e.y + e.height};
}

cairo_region_t* Update(Window* w) {
    if (!w->update) w->update = cairo_region_create();
    return w->update;
}

// The part of a window's client area that can show: within every ancestor's client area,
// without clipped children and siblings in front of it. In client coordinates.
cairo_region_t* VisibleRegion(Window* w) {
    RECT client = w->ClientRect();
    cairo_rectangle_int_t cr = Cairo(client);
    cairo_region_t* region = cairo_region_create_rectangle(&cr);
    POINT me = w->ClientOriginOnSurface();
    for (Window* a = w->parent; a && a->parent; a = a->parent) {
        POINT ao = a->ClientOriginOnSurface();
        RECT ac = a->ClientRect();
        OffsetRect(&ac, ao.x - me.x, ao.y - me.y);
        cairo_rectangle_int_t acr = Cairo(ac);
        cairo_region_intersect_rectangle(region, &acr);
    }
    auto cut = [&](Window* other) {
        POINT o = other->ClientOriginOnSurface();
        RECT r{0, 0, other->Width(), other->Height()};
        OffsetRect(&r, o.x - other->clientInWindow.left - me.x, o.y - other->clientInWindow.top - me.y);
        cairo_rectangle_int_t rr = Cairo(r);
        cairo_region_subtract_rectangle(region, &rr);
    };
    if (w->style & WS_CLIPCHILDREN)
        for (Window* c : w->children)
            if (c->Visible()) cut(c);
    if ((w->style & WS_CLIPSIBLINGS) && w->parent && w->parent->parent)
        for (Window* s : w->parent->children) {
            if (s == w) break;
            if (s->Visible()) cut(s);
        }
    return region;
}

HDC WindowContext(Window* w, const cairo_region_t* limit) {
    Window* top = w->TopLevel();
    EnsureSurface(top);
    cairo_region_t* clip = VisibleRegion(w);
    if (limit) cairo_region_intersect(clip, limit);
    HDC dc = CreateSurfaceDC(top->surface, w->ClientOriginOnSurface(), clip);
    cairo_region_destroy(clip);
    return dc;
}

void Painted(Window* w) { WM().GetBackend().TopLevelPainted(w->TopLevel()->handle); }

}  // namespace

namespace plat {

void InvalidateWindow(Window* w, const RECT* r, bool erase, bool children) {
    if (!w || !w->parent) return;
    RECT area = w->ClientRect();
    if (r) IntersectRect(&area, &area, r);
    if (!IsRectEmpty(&area)) {
        cairo_rectangle_int_t cr = Cairo(area);
        cairo_region_union_rectangle(Update(w), &cr);
        w->erasePending = w->erasePending || erase;
    }
    RECT whole{-w->clientInWindow.left, -w->clientInWindow.top, w->Width() - w->clientInWindow.left,
               w->Height() - w->clientInWindow.top};
    RECT client = w->ClientRect();
    // A frame is painted over by the parent's paint that runs first; it is drawn again at the
    // window's own BeginPaint.
    if (!EqualRect(&whole, &client) && (!r || !(r->left >= 0 && r->top >= 0 && r->right <= client.right && r->bottom <= client.bottom)))
        w->framePending = true;
    if (!children || (w->style & WS_CLIPCHILDREN)) return;
    for (Window* c : w->children) {
        if (!c->Visible()) continue;
        RECT inChild = area;
        OffsetRect(&inChild, -c->rect.left - c->clientInWindow.left, -c->rect.top - c->clientInWindow.top);
        RECT whole{-c->clientInWindow.left, -c->clientInWindow.top, c->Width() - c->clientInWindow.left,
                   c->Height() - c->clientInWindow.top};
        RECT hit;
        if (!IntersectRect(&hit, &inChild, &whole)) continue;
        bool all = EqualRect(&hit, &whole);
        InvalidateWindow(c, all ? nullptr : &hit, erase, true);
    }
}

void InvalidateUnder(Window* w) {
    if (!w->IsChild() || !w->parent) return;
    InvalidateWindow(w->parent, &w->rect, true, true);
}

void EraseNow(Window* w) {
    if (!w->erasePending) return;
    w->erasePending = false;
    HDC dc = WindowContext(w, w->update);
    SendMessage(w->handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    DeleteDC(dc);
    Painted(w);
}

void EnsureSurface(Window* top) {
    int width = std::max(top->Width(), 1), height = std::max(top->Height(), 1);
    if (top->surface && cairo_image_surface_get_width(top->surface) == width &&
        cairo_image_surface_get_height(top->surface) == height)
        return;
    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
    cairo_t* cr = cairo_create(s);
    COLORREF face = GetSysColor(COLOR_BTNFACE);
    cairo_set_source_rgb(cr, GetRValue(face) / 255.0, GetGValue(face) / 255.0, GetBValue(face) / 255.0);
    cairo_paint(cr);
    if (top->surface) {
        cairo_set_source_surface(cr, top->surface, 0, 0);
        cairo_paint(cr);
        cairo_surface_destroy(top->surface);
    }
    cairo_destroy(cr);
    top->surface = s;
}

}  // namespace plat

BOOL InvalidateRect(HWND hwnd, const RECT* r, BOOL erase) {
    Window* w = hwnd ? W(hwnd) : nullptr;
    if (!w) return FALSE;
    InvalidateWindow(w, r, erase, true);
    return TRUE;
}

BOOL InvalidateRgn(HWND hwnd, HRGN rgn, BOOL erase) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    const cairo_region_t* region = RegionOf(rgn);
    if (!region) return InvalidateRect(hwnd, nullptr, erase);
    int n = cairo_region_num_rectangles(region);
    for (int i = 0; i < n; ++i) {
        cairo_rectangle_int_t cr;
        cairo_region_get_rectangle(region, i, &cr);
        RECT r{cr.x, cr.y, cr.x + cr.width, cr.y + cr.height};
        InvalidateWindow(w, &r, erase, true);
    }
    return TRUE;
}

BOOL ValidateRect(HWND hwnd, const RECT* r) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    if (!r) {
        // All of it, also what was left outside a client area that has since shrunk.
        cairo_region_destroy(Update(w));
        w->update = nullptr;
        w->erasePending = false;
        w->internalPaint = false;
        return TRUE;
    }
    cairo_rectangle_int_t cr = Cairo(*r);
    cairo_region_subtract_rectangle(Update(w), &cr);
    if (cairo_region_is_empty(w->update)) w->erasePending = false;
    return TRUE;
}

BOOL UpdateWindow(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    std::vector<HWND> order{hwnd};
    std::function<void(Window*)> collect = [&](Window* x) {
        for (Window* c : x->children) {
            order.push_back(c->handle);
            collect(c);
        }
    };
    collect(w);
    for (HWND h : order) {
        Window* x = W(h);
        if (x && x->ReallyVisible() && x->NeedsPaint()) {
            x->internalPaint = false;
            SendMessage(h, WM_PAINT, 0, 0);
        }
    }
    return TRUE;
}

BOOL RedrawWindow(HWND hwnd, const RECT* r, HRGN rgn, UINT flags) {
    Window* w = W(hwnd ? hwnd : GetDesktopWindow());
    if (!w) return FALSE;
    bool children = (flags & RDW_ALLCHILDREN) || (!(flags & RDW_NOCHILDREN) && !(w->style & WS_CLIPCHILDREN));
    if (flags & RDW_INVALIDATE) {
        bool erase = (flags & RDW_ERASE) != 0;
        if (rgn) {
            InvalidateRgn(hwnd, rgn, erase);
        } else {
            InvalidateWindow(w, r, erase, children);
        }
        if (flags & RDW_FRAME) w->framePending = true;
    }
    if (flags & RDW_INTERNALPAINT) w->internalPaint = true;
    if (flags & RDW_VALIDATE) {
        ValidateRect(hwnd, r);
        if (flags & RDW_NOERASE) w->erasePending = false;
    }
    if (flags & RDW_NOINTERNALPAINT) w->internalPaint = false;
    if (flags & RDW_UPDATENOW) UpdateWindow(hwnd);
    else if (flags & RDW_ERASENOW) EraseNow(w);
    return TRUE;
}

BOOL GetUpdateRect(HWND hwnd, RECT* r, BOOL erase) {
    Window* w = W(hwnd);
    if (!w) return FALSE;
    RECT box = Box(w->update);
    if (r) *r = box;
    if (erase && !IsRectEmpty(&box)) EraseNow(w);
    return !IsRectEmpty(&box);
}

int GetUpdateRgn(HWND hwnd, HRGN rgn, BOOL erase) {
    Window* w = W(hwnd);
    if (!w || !RegionOf(rgn)) return ERROR;
    cairo_region_t* empty = cairo_region_create();
    AssignRegion(rgn, w->update ? w->update : empty);
    cairo_region_destroy(empty);
    if (erase) EraseNow(w);
    const cairo_region_t* now = RegionOf(rgn);
    return cairo_region_is_empty(now) ? NULLREGION : cairo_region_num_rectangles(now) == 1 ? SIMPLEREGION : COMPLEXREGION;
}

HDC BeginPaint(HWND hwnd, PAINTSTRUCT* ps) {
    Window* w = W(hwnd);
    if (!w || !ps) return nullptr;
    if (w->framePending) {
        w->framePending = false;
        DrawFrame(w);
    }
    cairo_region_t* region = w->update ? w->update : cairo_region_create();
    w->update = nullptr;
    w->internalPaint = false;
    ps->rcPaint = Box(region);
    HDC dc = WindowContext(w, region);
    cairo_region_destroy(region);
    ps->hdc = dc;
    ps->fErase = FALSE;
    if (w->erasePending) {
        w->erasePending = false;
        ps->fErase = SendMessage(hwnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) ? FALSE : TRUE;
    }
    return dc;
}

BOOL EndPaint(HWND hwnd, const PAINTSTRUCT* ps) {
    if (ps && ps->hdc) DeleteDC(ps->hdc);
    if (Window* w = W(hwnd)) Painted(w);
    return TRUE;
}

HDC GetDC(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w || w == WM().Desktop()) {
        // The screen itself: a scratch surface of its size, for measuring. Made once per screen
        // size rather than per call, since every dialog measures its font through it.
        static cairo_surface_t* screen = nullptr;
        SIZE s = WM().GetBackend().ScreenSize();
        if (!screen || cairo_image_surface_get_width(screen) != s.cx || cairo_image_surface_get_height(screen) != s.cy) {
            if (screen) cairo_surface_destroy(screen);
            screen = cairo_image_surface_create(CAIRO_FORMAT_RGB24, s.cx, s.cy);
        }
        return CreateSurfaceDC(screen, POINT{}, nullptr);
    }
    return WindowContext(w, nullptr);
}

HDC GetWindowDC(HWND hwnd) {
    Window* w = W(hwnd);
    if (!w) return nullptr;
    Window* top = w->TopLevel();
    EnsureSurface(top);
    POINT o = w->ClientOriginOnSurface();
    o.x -= w->clientInWindow.left, o.y -= w->clientInWindow.top;
    cairo_rectangle_int_t cr{0, 0, w->Width(), w->Height()};
    cairo_region_t* clip = cairo_region_create_rectangle(&cr);
    HDC dc = CreateSurfaceDC(top->surface, o, clip);
    cairo_region_destroy(clip);
    return dc;
}

int ReleaseDC(HWND hwnd, HDC dc) {
    if (!dc) return 0;
    DeleteDC(dc);
    if (Window* w = W(hwnd); w && w != WM().Desktop()) Painted(w);
    return 1;
}

int ScrollWindowEx(HWND hwnd, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN update,
                   RECT* updateRect, UINT flags) {
    Window* w = W(hwnd);
    if (!w) return ERROR;
    RECT client = w->ClientRect();
    RECT src = scroll ? *scroll : client;
    IntersectRect(&src, &src, &client);
    if (clip) IntersectRect(&src, &src, clip);
    if (w->ReallyVisible()) {
        HDC dc = GetDC(hwnd);
        ScrollDC(dc, dx, dy, &src, &src, nullptr, nullptr);
        ReleaseDC(hwnd, dc);
    }
    // What is left uncovered, and the old invalid area carried along with the pixels.
    cairo_rectangle_int_t sc = Cairo(src);
    cairo_region_t* band = cairo_region_create_rectangle(&sc);
    cairo_region_t* moved = cairo_region_create_rectangle(&sc);
    cairo_region_translate(moved, dx, dy);
    cairo_region_intersect_rectangle(moved, &sc);
    cairo_region_subtract(band, moved);
    cairo_region_destroy(moved);
    if (w->update) {
        cairo_region_t* inside = cairo_region_copy(w->update);
        cairo_region_intersect_rectangle(inside, &sc);
        cairo_region_subtract_rectangle(w->update, &sc);
        cairo_region_translate(inside, dx, dy);
        cairo_region_intersect_rectangle(inside, &sc);
        cairo_region_union(w->update, inside);
        cairo_region_destroy(inside);
    }
    if (flags & SW_SCROLLCHILDREN)
        for (Window* c : std::vector<Window*>(w->children))
            if (!scroll || PtInRect(&src, POINT{c->rect.left, c->rect.top}))
                SetWindowPos(c->handle, nullptr, c->rect.left + dx, c->rect.top + dy, 0, 0,
                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    RECT box = Box(band);
    if (updateRect) *updateRect = box;
    AssignRegion(update, band);
    if (flags & SW_INVALIDATE) {
        int n = cairo_region_num_rectangles(band);
        for (int i = 0; i < n; ++i) {
            cairo_rectangle_int_t r;
            cairo_region_get_rectangle(band, i, &r);
            RECT rr{r.x, r.y, r.x + r.width, r.y + r.height};
            InvalidateWindow(w, &rr, (flags & SW_ERASE) != 0, true);
        }
    }
    int kind = cairo_region_is_empty(band) ? NULLREGION
               : cairo_region_num_rectangles(band) == 1 ? SIMPLEREGION
                                                         : COMPLEXREGION;
    cairo_region_destroy(band);
    return kind;
}

BOOL ScrollWindow(HWND hwnd, int dx, int dy, const RECT* scroll, const RECT* clip) {
    return ScrollWindowEx(hwnd, dx, dy, scroll, clip, nullptr, nullptr,
                          SW_INVALIDATE | SW_ERASE | (scroll ? 0u : static_cast<UINT>(SW_SCROLLCHILDREN))) != ERROR;
}
