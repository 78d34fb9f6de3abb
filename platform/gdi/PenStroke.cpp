#include "platform/gdi/PenStroke.h"

#include "platform/gdi/LineWalk.h"
#include "platform/gdi/Paint.h"

#include <vector>

namespace gdi {

namespace {

bool StrokeWide(DeviceContext& dc, const Pen& pen, std::span<const POINT> points) {
    cairo_t* cr = dc.Canvas();
    if (!cr) return false;
    COLORREF c = pen.logPen.lopnColor;
    cairo_save(cr);
    cairo_new_path(cr);
    cairo_move_to(cr, points[0].x + 0.5, points[0].y + 0.5);
    for (size_t i = 1; i < points.size(); ++i)
        cairo_line_to(cr, points[i].x + 0.5, points[i].y + 0.5);
    cairo_set_line_width(cr, pen.Width());
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
    cairo_set_source_rgb(cr, GetRValue(c) / 255.0, GetGValue(c) / 255.0, GetBValue(c) / 255.0);
    cairo_stroke(cr);
    cairo_restore(cr);
    return true;
}

} // namespace

bool StrokePolyline(DeviceContext& dc, std::span<const POINT> points) {
    auto* pen = dc.state.pen.As<Pen>();
    if (!pen || points.size() < 2) return true;
    if (pen->logPen.lopnStyle == PS_NULL) return true;
    if (pen->Width() > 1) return StrokeWide(dc, *pen, points);

    std::vector<POINT> pixels;
    for (size_t i = 0; i + 1 < points.size(); ++i) WalkLine(points[i], points[i + 1], pixels);
    std::vector<POINT> on, gaps;
    SplitByStyle(pixels, static_cast<int>(pen->logPen.lopnStyle), on, gaps);
    bool ok = MixRects(dc, PixelsToRects(on), pen->logPen.lopnColor);
    if (!gaps.empty() && dc.state.bkMode == OPAQUE)
        ok = MixRects(dc, PixelsToRects(gaps), dc.state.bkColor) && ok;
    return ok;
}

} // namespace gdi
