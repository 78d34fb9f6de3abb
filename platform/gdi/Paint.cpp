#include "platform/gdi/Paint.h"

#include "platform/gdi/PixelAccess.h"

#include <algorithm>

namespace gdi {

namespace {

void AddRects(cairo_t* cr, std::span<const RECT> rects) {
    cairo_new_path(cr);
    for (const RECT& r : rects)
        if (r.right > r.left && r.bottom > r.top)
            cairo_rectangle(cr, r.left, r.top, r.right - r.left, r.bottom - r.top);
}

} // namespace

void SetSourceColor(cairo_t* cr, COLORREF c) {
    cairo_set_source_rgb(cr, GetRValue(c) / 255.0, GetGValue(c) / 255.0, GetBValue(c) / 255.0);
}

bool UseBrush(DeviceContext& dc, cairo_t* cr, const Brush& brush) {
    if (brush.logBrush.lbStyle == BS_SOLID) {
        SetSourceColor(cr, brush.logBrush.lbColor);
        return true;
    }
    if (!brush.pattern) return false;
    // The pattern's tiles start at the brush origin, in the context's device units.
    cairo_pattern_t* pattern = cairo_pattern_create_for_surface(brush.pattern);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_REPEAT);
    cairo_pattern_set_filter(pattern, CAIRO_FILTER_NEAREST);
    cairo_matrix_t m;
    cairo_matrix_init_translate(&m, -(dc.Origin().x + dc.state.brushOrigin.x),
                                -(dc.Origin().y + dc.state.brushOrigin.y));
    cairo_pattern_set_matrix(pattern, &m);
    cairo_set_source(cr, pattern);
    cairo_pattern_destroy(pattern);
    return true;
}

void FillRects(DeviceContext& dc, std::span<const RECT> rects, COLORREF color) {
    cairo_t* cr = dc.Canvas();
    if (!cr || rects.empty()) return;
    AddRects(cr, rects);
    SetSourceColor(cr, color);
    cairo_fill(cr);
}

void FillRectsWithBrush(DeviceContext& dc, std::span<const RECT> rects, const Brush& brush) {
    cairo_t* cr = dc.Canvas();
    if (!cr || rects.empty()) return;
    AddRects(cr, rects);
    if (UseBrush(dc, cr, brush))
        cairo_fill(cr);
    else
        cairo_new_path(cr);
}

bool InvertPixels(DeviceContext& dc, std::span<const POINT> pixels) {
    if (!dc.IsRaster()) return false;
    const Region& clip = dc.Clip();
    PixelAccess access(dc.Surface());
    if (!access.Ok()) return false;
    for (const POINT& p : pixels)
        if (clip.Contains(p.x, p.y)) access.Row(p.y)[p.x] ^= ColorBits;
    return true;
}

bool XorRects(DeviceContext& dc, std::span<const RECT> rects, std::uint32_t mask) {
    if (!dc.IsRaster()) return false;
    const Region& clip = dc.Clip();
    PixelAccess pixels(dc.Surface());
    if (!pixels.Ok()) return false;
    mask &= ColorBits;
    for (int i = 0; i < clip.RectCount(); ++i) {
        RECT c = clip.RectAt(i);
        for (const RECT& r : rects) {
            int left = std::max(r.left, c.left), right = std::min(r.right, c.right);
            int top = std::max(r.top, c.top), bottom = std::min(r.bottom, c.bottom);
            for (int y = top; y < bottom; ++y) {
                std::uint32_t* row = pixels.Row(y);
                for (int x = left; x < right; ++x) row[x] ^= mask;
            }
        }
    }
    return true;
}

bool MixRects(DeviceContext& dc, std::span<const RECT> rects, COLORREF color) {
    switch (dc.state.rop2) {
    case R2_BLACK: FillRects(dc, rects, RGB(0, 0, 0)); return true;
    case R2_WHITE: FillRects(dc, rects, RGB(255, 255, 255)); return true;
    case R2_NOT: return XorRects(dc, rects, ColorBits);
    case R2_XORPEN: return XorRects(dc, rects, ToPixel(color));
    default: FillRects(dc, rects, color); return true;
    }
}

bool MixRectsWithBrush(DeviceContext& dc, std::span<const RECT> rects, const Brush& brush) {
    if (brush.logBrush.lbStyle == BS_NULL) return true;
    if (dc.state.rop2 == R2_COPYPEN) {
        FillRectsWithBrush(dc, rects, brush);
        return true;
    }
    // Pattern brushes mix as their first pixel's colour; mixing modes are used with solid
    // brushes only.
    return MixRects(dc, rects, brush.logBrush.lbColor);
}

} // namespace gdi
