// Region objects.

#include "platform/gdi/GdiObject.h"

#include <algorithm>

using gdi::Live;
using gdi::Region;

namespace {

RECT Normalized(int left, int top, int right, int bottom) {
    return RECT{std::min(left, right), std::min(top, bottom), std::max(left, right),
                std::max(top, bottom)};
}

} // namespace

HRGN CreateRectRgn(int left, int top, int right, int bottom) {
    return gdi::Publish(new gdi::Rgn(Region(Normalized(left, top, right, bottom))));
}

HRGN CreateRectRgnIndirect(const RECT* r) {
    return r ? CreateRectRgn(r->left, r->top, r->right, r->bottom) : nullptr;
}

int CombineRgn(HRGN dst, HRGN a, HRGN b, int mode) {
    auto* d = Live<gdi::Rgn>(dst);
    auto* ra = Live<gdi::Rgn>(a);
    auto* rb = Live<gdi::Rgn>(b);
    if (!d || !ra || (mode != RGN_COPY && !rb)) return ERROR;
    switch (mode) {
    case RGN_AND: d->region = ra->region.Intersect(rb->region); break;
    case RGN_OR: d->region = ra->region.Union(rb->region); break;
    case RGN_XOR: d->region = ra->region.Xor(rb->region); break;
    case RGN_DIFF: d->region = ra->region.Subtract(rb->region); break;
    case RGN_COPY: d->region = ra->region; break;
    default: return ERROR;
    }
    return d->region.Kind();
}

int GetRgnBox(HRGN rgn, RECT* box) {
    auto* r = Live<gdi::Rgn>(rgn);
    if (!r || !box) return ERROR;
    *box = r->region.IsEmpty() ? RECT{} : r->region.Bounds();
    return r->region.Kind();
}

BOOL PtInRegion(HRGN rgn, int x, int y) {
    auto* r = Live<gdi::Rgn>(rgn);
    return r && r->region.Contains(x, y);
}

int OffsetRgn(HRGN rgn, int dx, int dy) {
    auto* r = Live<gdi::Rgn>(rgn);
    if (!r) return ERROR;
    r->region = r->region.Translate(dx, dy);
    return r->region.Kind();
}

BOOL SetRectRgn(HRGN rgn, int left, int top, int right, int bottom) {
    auto* r = Live<gdi::Rgn>(rgn);
    if (!r) return FALSE;
    r->region = Region(Normalized(left, top, right, bottom));
    return TRUE;
}

BOOL EqualRgn(HRGN a, HRGN b) {
    auto* ra = Live<gdi::Rgn>(a);
    auto* rb = Live<gdi::Rgn>(b);
    return ra && rb && cairo_region_equal(ra->region.Get(), rb->region.Get());
}
