// Clip regions of contexts. A program's clip region lives in the context's device units, so a
// later change of the viewport origin does not move it.

#include "platform/gdi/DeviceContext.h"

#include <algorithm>

using gdi::LiveContext;
using gdi::Region;

namespace {

RECT ToContext(const DeviceContext& d, int left, int top, int right, int bottom) {
    int dx = d.state.viewport.x, dy = d.state.viewport.y;
    return RECT{std::min(left, right) + dx, std::min(top, bottom) + dy, std::max(left, right) + dx,
                std::max(top, bottom) + dy};
}

// The kind of what the context now draws in.
int ClipKind(DeviceContext& d) {
    return d.Clip().Kind();
}

} // namespace

int SelectClipRgn(HDC dc, HRGN rgn) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return ERROR;
    if (!rgn) {
        d->state.clip = Region();
    } else {
        auto* r = gdi::Live<gdi::Rgn>(rgn);
        if (!r) return ERROR;
        d->state.clip = r->region;
    }
    d->ClipChanged();
    return ClipKind(*d);
}

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return ERROR;
    RECT r = ToContext(*d, left, top, right, bottom);
    d->state.clip = d->state.clip.IsNull() ? Region(r) : d->state.clip.Intersect(r);
    d->ClipChanged();
    return ClipKind(*d);
}

int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return ERROR;
    RECT r = ToContext(*d, left, top, right, bottom);
    Region base = d->state.clip.IsNull() ? d->ContextArea() : d->state.clip;
    d->state.clip = base.Subtract(r);
    d->ClipChanged();
    return ClipKind(*d);
}

int GetClipBox(HDC dc, RECT* box) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !box) return ERROR;
    const Region& clip = d->Clip();
    if (clip.IsEmpty()) {
        *box = RECT{};
        return NULLREGION;
    }
    RECT b = clip.Bounds();
    *box = RECT{b.left - d->OffsetX(), b.top - d->OffsetY(), b.right - d->OffsetX(),
                b.bottom - d->OffsetY()};
    return clip.Kind();
}

BOOL RectVisible(HDC dc, const RECT* r) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !r) return FALSE;
    RECT n = ToContext(*d, r->left, r->top, r->right, r->bottom);
    RECT s{n.left + d->Origin().x, n.top + d->Origin().y, n.right + d->Origin().x,
           n.bottom + d->Origin().y};
    return d->Clip().Overlaps(s);
}

BOOL PtVisible(HDC dc, int x, int y) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    POINT p = d->ToSurface(POINT{x, y});
    const Region& clip = d->Clip();
    return !clip.IsEmpty() && clip.Contains(p.x, p.y);
}
