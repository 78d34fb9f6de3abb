// Pixels, pattern fills and copies between contexts, and scrolling of pixels.

#include "platform/base/Rect.h"
#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/Paint.h"
#include "platform/gdi/PixelAccess.h"
#include "platform/gdi/SurfaceDC.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

using gdi::LiveContext;
using gdi::PixelAccess;
using gdi::Region;

namespace {

RECT Normalized(int x, int y, int width, int height) {
    return RECT{std::min(x, x + width), std::min(y, y + height), std::max(x, x + width),
                std::max(y, y + height)};
}

// A negative extent of a stretched copy runs backwards from x, x included, so that
// StretchBlt(dc, w - 1, 0, -w, ...) mirrors onto 0..w-1 as programs of the platform expect.
RECT Extent(int x, int y, int width, int height) {
    RECT r = Normalized(x, y, width, height);
    if (width < 0) ++r.left, ++r.right;
    if (height < 0) ++r.top, ++r.bottom;
    return r;
}

bool NeedsSource(DWORD rop) {
    switch (rop) {
    case SRCCOPY:
    case SRCPAINT:
    case SRCAND:
    case SRCINVERT:
    case NOTSRCCOPY: return true;
    default: return false;
    }
}

std::uint32_t Combine(DWORD rop, std::uint32_t s, std::uint32_t d) {
    switch (rop) {
    case SRCPAINT: return s | d;
    case SRCAND: return s & d;
    case SRCINVERT: return s ^ d;
    case NOTSRCCOPY: return ~s;
    default: return s;
    }
}

// Where the destination pixels of one axis take their source pixels from: destination `dest`
// pixels long map onto `sourceLength` source pixels from `sourceStart` by the pixel centres,
// backwards when mirrored. Only the `count` pixels from `first` are mapped.
std::vector<int> SampleMap(int first, int count, int dest, int sourceStart, int sourceLength,
                           bool mirror) {
    std::vector<int> map(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        long long at = (2LL * (first + i) + 1) * sourceLength / (2LL * dest);
        map[i] = sourceStart + static_cast<int>(mirror ? sourceLength - 1 - at : at);
    }
    return map;
}

// The run [first, last) of map entries that fall inside 0..limit-1; maps are monotonic, so
// the entries inside are one run.
std::pair<int, int> InsideRun(const std::vector<int>& map, int limit) {
    int first = 0, last = static_cast<int>(map.size());
    while (first < last && (map[first] < 0 || map[first] >= limit)) ++first;
    while (last > first && (map[last - 1] < 0 || map[last - 1] >= limit)) --last;
    return {first, last};
}

// Copies the source rectangle `from` onto `dest` (surface coordinates of each), stretched and
// mirrored as asked and combined by `rop`, within the destination's clip. Source pixels
// outside the source surface leave the destination as it was.
bool RasterCopy(DeviceContext& dst, const RECT& dest, DeviceContext& src, const RECT& from,
                bool mirrorX, bool mirrorY, DWORD rop) {
    const Region& clip = dst.Clip();
    RECT area;
    RECT bounds = clip.Bounds();
    if (!IntersectRect(&area, &dest, &bounds)) return true;
    int width = area.right - area.left, height = area.bottom - area.top;
    std::vector<int> xs = SampleMap(area.left - dest.left, width, dest.right - dest.left, from.left,
                                    from.right - from.left, mirrorX);
    std::vector<int> ys = SampleMap(area.top - dest.top, height, dest.bottom - dest.top, from.top,
                                    from.bottom - from.top, mirrorY);
    SIZE size = src.SurfaceSize();
    auto [x0, x1] = InsideRun(xs, size.cx);
    auto [y0, y1] = InsideRun(ys, size.cy);
    if (x0 >= x1 || y0 >= y1) return true;
    // Only what lands on source pixels is copied.
    area = RECT{area.left + x0, area.top + y0, area.left + x1, area.top + y1};
    int n = x1 - x0;

    // Read the source first: source and destination may be the same surface.
    std::vector<std::uint32_t> block(static_cast<size_t>(n) * (y1 - y0));
    {
        PixelAccess in(src.Surface());
        if (!in.Ok()) return false;
        for (int j = y0; j < y1; ++j) {
            const std::uint32_t* row = in.Row(ys[j]);
            std::uint32_t* out = block.data() + static_cast<size_t>(j - y0) * n;
            for (int i = x0; i < x1; ++i) out[i - x0] = row[xs[i]];
        }
    }
    PixelAccess out(dst.Surface());
    if (!out.Ok()) return false;
    for (int c = 0; c < clip.RectCount(); ++c) {
        RECT part;
        RECT r = clip.RectAt(c);
        if (!IntersectRect(&part, &r, &area)) continue;
        for (int y = part.top; y < part.bottom; ++y) {
            std::uint32_t* row = out.Row(y);
            const std::uint32_t* in =
                block.data() + static_cast<size_t>(y - area.top) * n + (part.left - area.left);
            std::uint32_t* to = row + part.left;
            int count = part.right - part.left;
            if (rop == SRCCOPY) {
                for (int i = 0; i < count; ++i) to[i] = 0xFF000000u | in[i];
            } else {
                for (int i = 0; i < count; ++i) to[i] = 0xFF000000u | Combine(rop, in[i], to[i]);
            }
        }
    }
    return true;
}

// A printer's page takes copies through cairo, so they end up as images in the PDF.
bool VectorCopy(DeviceContext& dst, const RECT& dest, DeviceContext& src, double sx, double sy,
                double scaleX, double scaleY) {
    cairo_t* cr = dst.Canvas();
    if (!cr) return false;
    cairo_pattern_t* pattern = cairo_pattern_create_for_surface(src.Surface());
    cairo_pattern_set_filter(pattern, CAIRO_FILTER_NEAREST);
    cairo_matrix_t m;
    cairo_matrix_init_translate(&m, sx, sy);
    cairo_matrix_scale(&m, scaleX, scaleY);
    cairo_matrix_translate(&m, -dest.left, -dest.top);
    cairo_pattern_set_matrix(pattern, &m);
    cairo_new_path(cr);
    cairo_rectangle(cr, dest.left, dest.top, dest.right - dest.left, dest.bottom - dest.top);
    cairo_set_source(cr, pattern);
    cairo_fill(cr);
    cairo_pattern_destroy(pattern);
    return true;
}

} // namespace

COLORREF SetPixel(HDC dc, int x, int y, COLORREF color) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return CLR_INVALID;
    POINT p = d->ToSurface(POINT{x, y});
    if (d->Clip().IsEmpty() || !d->Clip().Contains(p.x, p.y)) return CLR_INVALID;
    RECT r{p.x, p.y, p.x + 1, p.y + 1};
    gdi::FillRects(*d, std::span(&r, 1), color & 0xFFFFFF);
    return color & 0xFFFFFF;
}

COLORREF GetPixel(HDC dc, int x, int y) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !d->IsRaster()) return CLR_INVALID;
    POINT p = d->ToSurface(POINT{x, y});
    if (d->Clip().IsEmpty() || !d->Clip().Contains(p.x, p.y)) return CLR_INVALID;
    PixelAccess pixels(d->Surface());
    return pixels.Ok() ? gdi::FromPixel(pixels.Row(p.y)[p.x]) : CLR_INVALID;
}

BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD rop) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    RECT r = d->ToSurface(Normalized(x, y, width, height));
    std::span<const RECT> rects(&r, 1);
    auto* brush = d->state.brush.As<gdi::Brush>();
    switch (rop) {
    case PATCOPY:
        if (brush) gdi::FillRectsWithBrush(*d, rects, *brush);
        return TRUE;
    case PATINVERT:
        return !brush || brush->logBrush.lbStyle == BS_NULL ||
               gdi::XorRects(*d, rects, gdi::ToPixel(brush->logBrush.lbColor));
    case DSTINVERT: return gdi::XorRects(*d, rects, gdi::ColorBits);
    case BLACKNESS: gdi::FillRects(*d, rects, RGB(0, 0, 0)); return TRUE;
    case WHITENESS: gdi::FillRects(*d, rects, RGB(255, 255, 255)); return TRUE;
    default: return FALSE;
    }
}

BOOL BitBlt(HDC dst, int x, int y, int width, int height, HDC src, int sx, int sy, DWORD rop) {
    return StretchBlt(dst, x, y, width, height, src, sx, sy, width, height, rop);
}

BOOL StretchBlt(HDC dst, int x, int y, int width, int height, HDC src, int sx, int sy, int sw,
                int sh, DWORD rop) {
    DeviceContext* d = LiveContext(dst);
    if (!d) return FALSE;
    if (!NeedsSource(rop)) return PatBlt(dst, x, y, width, height, rop);
    DeviceContext* s = LiveContext(src);
    if (!s || !s->IsRaster()) return FALSE;
    if (width == 0 || height == 0 || sw == 0 || sh == 0) return TRUE;

    RECT dest = d->ToSurface(Extent(x, y, width, height));
    RECT from = s->ToSurface(Extent(sx, sy, sw, sh));
    bool mirrorX = (width < 0) != (sw < 0), mirrorY = (height < 0) != (sh < 0);
    if (d->IsRaster()) return RasterCopy(*d, dest, *s, from, mirrorX, mirrorY, rop);
    if (rop != SRCCOPY || mirrorX || mirrorY) return FALSE;
    double scaleX = static_cast<double>(from.right - from.left) / (dest.right - dest.left);
    double scaleY = static_cast<double>(from.bottom - from.top) / (dest.bottom - dest.top);
    return VectorCopy(*d, dest, *s, from.left, from.top, scaleX, scaleY);
}

BOOL ScrollDC(HDC dc, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN update,
              RECT* updateRect) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !d->IsRaster()) return FALSE;
    RECT whole = d->ContextArea().Bounds();
    int toLogicalX = d->state.viewport.x, toLogicalY = d->state.viewport.y;
    OffsetRect(&whole, -toLogicalX, -toLogicalY);
    RECT s = d->ToSurface(scroll ? *scroll : whole);
    RECT c = d->ToSurface(clip ? *clip : whole);
    const Region& visible = d->Clip();

    Region source = visible.Intersect(s);
    Region dest = source.Translate(dx, dy).Intersect(c).Intersect(visible);
    if (!dest.IsEmpty()) {
        // Read every source pixel before writing any: the areas overlap.
        RECT b = dest.Bounds();
        size_t width = static_cast<size_t>(b.right - b.left);
        std::vector<std::uint32_t> block(width * static_cast<size_t>(b.bottom - b.top));
        PixelAccess pixels(d->Surface());
        if (!pixels.Ok()) return FALSE;
        auto at = [&](int x, int y) {
            return block.data() + static_cast<size_t>(y - b.top) * width + (x - b.left);
        };
        for (int i = 0; i < dest.RectCount(); ++i) {
            RECT r = dest.RectAt(i);
            size_t bytes = static_cast<size_t>(r.right - r.left) * sizeof(std::uint32_t);
            for (int y = r.top; y < r.bottom; ++y)
                std::memcpy(at(r.left, y), pixels.Row(y - dy) + (r.left - dx), bytes);
        }
        for (int i = 0; i < dest.RectCount(); ++i) {
            RECT r = dest.RectAt(i);
            size_t bytes = static_cast<size_t>(r.right - r.left) * sizeof(std::uint32_t);
            for (int y = r.top; y < r.bottom; ++y)
                std::memcpy(pixels.Row(y) + r.left, at(r.left, y), bytes);
        }
    }

    // What the scroll uncovered, in logical coordinates, for the caller to paint.
    Region uncovered =
        visible.Intersect(s).Intersect(c).Subtract(dest).Translate(-d->OffsetX(), -d->OffsetY());
    if (update) AssignRegion(update, uncovered.Get());
    if (updateRect) *updateRect = uncovered.IsEmpty() ? RECT{} : uncovered.Bounds();
    return TRUE;
}
