// Lines, rectangles and other shapes. Right and bottom edges are exclusive and lines leave out
// their last pixel, as on the real system.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/Paint.h"
#include "platform/gdi/PenStroke.h"
#include "platform/gdi/PixelAccess.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using gdi::LiveContext;

namespace {

RECT Normalized(int left, int top, int right, int bottom) {
    return RECT{std::min(left, right), std::min(top, bottom), std::max(left, right),
                std::max(top, bottom)};
}

std::vector<POINT> ToSurface(const DeviceContext& d, const POINT* points, int count) {
    std::vector<POINT> out(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) out[i] = d.ToSurface(points[i]);
    return out;
}

bool PenIsNull(const DeviceContext& d) {
    auto* pen = d.state.pen.As<gdi::Pen>();
    return !pen || pen->logPen.lopnStyle == PS_NULL;
}

} // namespace

BOOL MoveToEx(HDC dc, int x, int y, POINT* old) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    if (old) *old = d->state.position;
    d->state.position = POINT{x, y};
    return TRUE;
}

BOOL LineTo(HDC dc, int x, int y) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    std::array<POINT, 2> line{d->ToSurface(d->state.position), d->ToSurface(POINT{x, y})};
    d->state.position = POINT{x, y};
    return gdi::StrokePolyline(*d, line);
}

BOOL Polyline(HDC dc, const POINT* points, int count) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !points || count < 2) return FALSE;
    return gdi::StrokePolyline(*d, ToSurface(*d, points, count));
}

BOOL Polygon(HDC dc, const POINT* points, int count) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !points || count < 2) return FALSE;
    std::vector<POINT> outline = ToSurface(*d, points, count);
    auto* brush = d->state.brush.As<gdi::Brush>();
    if (cairo_t* cr = d->Canvas(); cr && brush) {
        // The platform's default fill mode: alternate, that is even-odd.
        cairo_new_path(cr);
        cairo_move_to(cr, outline[0].x, outline[0].y);
        for (const POINT& p : outline) cairo_line_to(cr, p.x, p.y);
        cairo_close_path(cr);
        cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
        if (gdi::UseBrush(*d, cr, *brush)) cairo_fill(cr);
        cairo_new_path(cr);
        cairo_set_fill_rule(cr, CAIRO_FILL_RULE_WINDING);
    }
    outline.push_back(outline.front());
    return gdi::StrokePolyline(*d, outline);
}

BOOL Rectangle(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    RECT r = d->ToSurface(Normalized(left, top, right, bottom));
    if (r.right - r.left < 2 || r.bottom - r.top < 2) return TRUE;
    auto* brush = d->state.brush.As<gdi::Brush>();
    if (PenIsNull(*d)) {
        // Without a pen the fill covers what the outline would have: one pixel less on the
        // right and at the bottom.
        RECT fill{r.left, r.top, r.right - 1, r.bottom - 1};
        return !brush || gdi::MixRectsWithBrush(*d, std::span(&fill, 1), *brush);
    }
    auto* pen = d->state.pen.As<gdi::Pen>();
    int inset = pen->logPen.lopnStyle == PS_INSIDEFRAME ? pen->Width() / 2 : 0;
    RECT fill{r.left + 1, r.top + 1, r.right - 1, r.bottom - 1};
    bool ok = !brush || gdi::MixRectsWithBrush(*d, std::span(&fill, 1), *brush);
    std::array<POINT, 5> outline{
        POINT{r.left + inset, r.top + inset}, POINT{r.right - 1 - inset, r.top + inset},
        POINT{r.right - 1 - inset, r.bottom - 1 - inset},
        POINT{r.left + inset, r.bottom - 1 - inset}, POINT{r.left + inset, r.top + inset}};
    return gdi::StrokePolyline(*d, outline) && ok;
}

BOOL Ellipse(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    RECT r = d->ToSurface(Normalized(left, top, right, bottom));
    cairo_t* cr = d->Canvas();
    if (!cr || r.right - r.left < 2 || r.bottom - r.top < 2) return cr != nullptr;
    // Ellipses are drawn by cairo on whole pixels, copying their colours whatever the mix mode.
    auto ellipse = [&](double inset) {
        double rx = (r.right - r.left - 1) / 2.0 - inset, ry = (r.bottom - r.top - 1) / 2.0 - inset;
        cairo_new_path(cr);
        cairo_save(cr);
        cairo_translate(cr, r.left + 0.5 + (r.right - r.left - 1) / 2.0,
                        r.top + 0.5 + (r.bottom - r.top - 1) / 2.0);
        cairo_scale(cr, std::max(rx, 0.5), std::max(ry, 0.5));
        cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
        cairo_restore(cr);
    };
    if (auto* brush = d->state.brush.As<gdi::Brush>()) {
        ellipse(0);
        if (gdi::UseBrush(*d, cr, *brush)) cairo_fill(cr);
    }
    if (!PenIsNull(*d)) {
        auto* pen = d->state.pen.As<gdi::Pen>();
        ellipse(pen->logPen.lopnStyle == PS_INSIDEFRAME ? (pen->Width() - 1) / 2.0 : 0);
        cairo_set_line_width(cr, pen->Width());
        gdi::SetSourceColor(cr, pen->logPen.lopnColor);
        cairo_stroke(cr);
    }
    cairo_new_path(cr);
    return TRUE;
}

// FillRect and InvertRect are pattern blits of the rectangle, which take its corners in any
// order, as on the real system.
int FillRect(HDC dc, const RECT* r, HBRUSH brush) {
    DeviceContext* d = LiveContext(dc);
    auto* b = gdi::Live<gdi::Brush>(brush);
    if (!d || !r || !b) return 0;
    RECT s = d->ToSurface(Normalized(r->left, r->top, r->right, r->bottom));
    gdi::FillRectsWithBrush(*d, std::span(&s, 1), *b);
    return 1;
}

int FrameRect(HDC dc, const RECT* r, HBRUSH brush) {
    DeviceContext* d = LiveContext(dc);
    auto* b = gdi::Live<gdi::Brush>(brush);
    if (!d || !r || !b) return 0;
    RECT s = d->ToSurface(*r);
    if (s.right <= s.left || s.bottom <= s.top) return 1;
    std::array<RECT, 4> sides{RECT{s.left, s.top, s.right, s.top + 1},
                              RECT{s.left, s.bottom - 1, s.right, s.bottom},
                              RECT{s.left, s.top + 1, s.left + 1, s.bottom - 1},
                              RECT{s.right - 1, s.top + 1, s.right, s.bottom - 1}};
    gdi::FillRectsWithBrush(*d, sides, *b);
    return 1;
}

BOOL InvertRect(HDC dc, const RECT* r) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !r) return FALSE;
    RECT s = d->ToSurface(Normalized(r->left, r->top, r->right, r->bottom));
    return gdi::XorRects(*d, std::span(&s, 1), gdi::ColorBits);
}

BOOL DrawFocusRect(HDC dc, const RECT* r) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !r) return FALSE;
    RECT s = d->ToSurface(*r);
    if (s.right <= s.left || s.bottom <= s.top) return TRUE;
    // Every other pixel of the outline, on a checkerboard fixed to the device: the pixels whose
    // device x + y is odd. Each pixel is inverted once, so drawing twice restores them.
    int parity = (d->Origin().x + d->Origin().y + 1) & 1;
    std::vector<POINT> pixels;
    auto add = [&](int x, int y) {
        if (((x + y) & 1) == parity) pixels.push_back(POINT{x, y});
    };
    for (int x = s.left; x < s.right; ++x) add(x, s.top);
    if (s.bottom - 1 > s.top)
        for (int x = s.left; x < s.right; ++x) add(x, s.bottom - 1);
    for (int y = s.top + 1; y < s.bottom - 1; ++y) {
        add(s.left, y);
        if (s.right - 1 > s.left) add(s.right - 1, y);
    }
    return gdi::InvertPixels(*d, pixels);
}
