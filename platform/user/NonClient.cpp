#include "platform/user/NonClient.h"

#include <cairo.h>

#include <algorithm>

#include "platform/gdi/Gdi.h"
#include "platform/gdi/SurfaceDC.h"
#include "platform/user/WindowManager.h"

namespace plat {

namespace {
bool HasCaption(DWORD style) { return (style & WS_CAPTION) == WS_CAPTION; }
}  // namespace

RECT FrameInsets(DWORD style, DWORD exStyle) {
    int edge = 0;
    if ((style & WS_THICKFRAME) != 0) edge = GetSystemMetrics(SM_CXDLGFRAME) + 1;
    else if ((style & WS_DLGFRAME) != 0 || (exStyle & WS_EX_DLGMODALFRAME) != 0)
        edge = GetSystemMetrics(SM_CXDLGFRAME);
    else if ((style & WS_BORDER) != 0) edge = GetSystemMetrics(SM_CXBORDER);
    if ((exStyle & WS_EX_CLIENTEDGE) != 0) edge += GetSystemMetrics(SM_CXEDGE);
    if ((exStyle & WS_EX_STATICEDGE) != 0) edge += GetSystemMetrics(SM_CXBORDER);
    RECT insets{edge, edge, edge, edge};
    if (HasCaption(style)) insets.top += GetSystemMetrics(SM_CYCAPTION);
    return insets;
}

void PlaceClientArea(Window* w) {
    RECT in = FrameInsets(w->style, w->exStyle);
    int width = w->Width(), height = w->Height();
    w->clientInWindow = RECT{std::min(in.left, width), std::min(in.top, height),
                             std::max(in.left, width - in.right),
                             std::max(in.top, height - in.bottom)};
}

int FrameHitTest(const Window* w, POINT p) {
    if (p.x < 0 || p.y < 0 || p.x >= w->Width() || p.y >= w->Height()) return HTNOWHERE;
    if (PtInRect(&w->clientInWindow, p)) return HTCLIENT;
    if (HasCaption(w->style) && p.y < w->clientInWindow.top &&
        p.y >= w->clientInWindow.top - GetSystemMetrics(SM_CYCAPTION))
        return HTCAPTION;
    return HTBORDER;
}

namespace {

void Line(HDC dc, int x1, int y1, int x2, int y2, COLORREF c) {
    HPEN pen = CreatePen(PS_SOLID, 1, c);
    HGDIOBJ old = SelectObject(dc, pen);
    MoveToEx(dc, x1, y1, nullptr);
    LineTo(dc, x2, y2);
    SelectObject(dc, old);
    DeleteObject(pen);
}

// A 3-D rectangle: `tl` on the left and top, `br` on the right and bottom.
void Edge(HDC dc, RECT& r, COLORREF tl, COLORREF br) {
    Line(dc, r.left, r.bottom - 1, r.left, r.top, tl);
    Line(dc, r.left, r.top, r.right - 1, r.top, tl);
    Line(dc, r.right - 1, r.top, r.right - 1, r.bottom - 1, br);
    Line(dc, r.right - 1, r.bottom - 1, r.left - 1, r.bottom - 1, br);
    InflateRect(&r, -1, -1);
}

void Fill(HDC dc, const RECT& r, COLORREF c) {
    HBRUSH b = CreateSolidBrush(c);
    FillRect(dc, &r, b);
    DeleteObject(b);
}

}  // namespace

void DrawFrame(Window* w) {
    if (w->clientInWindow == RECT{0, 0, w->Width(), w->Height()}) return;
    Window* top = w->TopLevel();
    if (!top->surface) return;
    POINT origin = w->ClientOriginOnSurface();
    origin.x -= w->clientInWindow.left;
    origin.y -= w->clientInWindow.top;
    // Clip to the window, then to every ancestor's client area.
    RECT clip{0, 0, w->Width(), w->Height()};
    for (Window* a = w->parent; a && a->parent; a = a->parent) {
        POINT ao = a->ClientOriginOnSurface();
        RECT ac = a->ClientRect();
        OffsetRect(&ac, ao.x - origin.x, ao.y - origin.y);
        IntersectRect(&clip, &clip, &ac);
    }
    cairo_rectangle_int_t cr{clip.left, clip.top, clip.right - clip.left, clip.bottom - clip.top};
    cairo_region_t* region = cairo_region_create_rectangle(&cr);
    HDC dc = CreateSurfaceDC(top->surface, origin, region);
    cairo_region_destroy(region);

    RECT r{0, 0, w->Width(), w->Height()};
    DWORD s = w->style, x = w->exStyle;
    COLORREF face = GetSysColor(COLOR_BTNFACE), light = GetSysColor(COLOR_BTNHIGHLIGHT),
             shadow = GetSysColor(COLOR_BTNSHADOW), dark = GetSysColor(COLOR_3DDKSHADOW);
    if ((s & (WS_DLGFRAME | WS_THICKFRAME)) != 0 || (x & WS_EX_DLGMODALFRAME) != 0) {
        Edge(dc, r, GetSysColor(COLOR_3DLIGHT), dark);
        Edge(dc, r, light, shadow);
        int rest = FrameInsets(s & ~WS_CAPTION, 0).left - 2;
        for (int i = 0; i < rest; ++i) Edge(dc, r, face, face);
    } else if ((s & WS_BORDER) != 0) {
        Edge(dc, r, GetSysColor(COLOR_WINDOWFRAME), GetSysColor(COLOR_WINDOWFRAME));
    }
    if ((x & WS_EX_CLIENTEDGE) != 0) {
        Edge(dc, r, shadow, light);
        Edge(dc, r, dark, face);
    }
    if ((x & WS_EX_STATICEDGE) != 0) Edge(dc, r, shadow, light);
    if (HasCaption(s)) {
        RECT cap{r.left, r.top, r.right, r.top + GetSystemMetrics(SM_CYCAPTION) - 1};
        bool active = WindowManager::Get().active == w->handle;
        Fill(dc, cap, GetSysColor(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
        Line(dc, cap.left, cap.bottom, cap.right, cap.bottom, face);
        HFONT font = CreateFont(-12, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, "MS Sans Serif");
        HGDIOBJ old = SelectObject(dc, font);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
        RECT text = cap;
        text.left += 4;
        DrawText(dc, w->text.c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        SelectObject(dc, old);
        DeleteObject(font);
    }
    DeleteDC(dc);
}

}  // namespace plat
