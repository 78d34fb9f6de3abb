#include "platform/gdi/Region.h"

#include "platform/gdi/Gdi.h"

#include <utility>

namespace gdi {

cairo_rectangle_int_t ToCairo(const RECT& r) {
    if (r.right <= r.left || r.bottom <= r.top) return {r.left, r.top, 0, 0};
    return {r.left, r.top, r.right - r.left, r.bottom - r.top};
}

RECT FromCairo(const cairo_rectangle_int_t& r) {
    return RECT{r.x, r.y, r.x + r.width, r.y + r.height};
}

Region::Region(const RECT& r) {
    cairo_rectangle_int_t c = ToCairo(r);
    region_ = cairo_region_create_rectangle(&c);
}

Region Region::Adopt(cairo_region_t* region) {
    return Region(region);
}

Region Region::Copy(const cairo_region_t* region) {
    return Region(region ? cairo_region_copy(region) : nullptr);
}

Region::Region(const Region& other)
    : region_(other.region_ ? cairo_region_reference(other.region_) : nullptr) {}

Region& Region::operator=(const Region& other) {
    Region copy(other);
    std::swap(region_, copy.region_);
    return *this;
}

Region::Region(Region&& other) noexcept : region_(std::exchange(other.region_, nullptr)) {}

Region& Region::operator=(Region&& other) noexcept {
    std::swap(region_, other.region_);
    return *this;
}

Region::~Region() {
    if (region_) cairo_region_destroy(region_);
}

bool Region::IsEmpty() const {
    return region_ && cairo_region_is_empty(region_);
}

RECT Region::Bounds() const {
    if (!region_) return RECT{};
    cairo_rectangle_int_t r;
    cairo_region_get_extents(region_, &r);
    return FromCairo(r);
}

int Region::Kind() const {
    int n = RectCount();
    return n == 0 ? NULLREGION : n == 1 ? SIMPLEREGION : COMPLEXREGION;
}

int Region::RectCount() const {
    return region_ ? cairo_region_num_rectangles(region_) : 0;
}

RECT Region::RectAt(int i) const {
    cairo_rectangle_int_t r;
    cairo_region_get_rectangle(region_, i, &r);
    return FromCairo(r);
}

bool Region::Contains(int x, int y) const {
    return !region_ || cairo_region_contains_point(region_, x, y);
}

bool Region::Overlaps(const RECT& r) const {
    if (r.right <= r.left || r.bottom <= r.top) return false;
    if (!region_) return true;
    cairo_rectangle_int_t c = ToCairo(r);
    return cairo_region_contains_rectangle(region_, &c) != CAIRO_REGION_OVERLAP_OUT;
}

namespace {

// Combines two regions into a new one; null operands count as empty.
template <typename Op> Region Combine(const cairo_region_t* a, const cairo_region_t* b, Op op) {
    cairo_region_t* r = a ? cairo_region_copy(a) : cairo_region_create();
    if (b)
        op(r, b);
    else {
        cairo_region_t* empty = cairo_region_create();
        op(r, empty);
        cairo_region_destroy(empty);
    }
    return Region::Adopt(r);
}

} // namespace

Region Region::Intersect(const Region& other) const {
    if (!region_) return other;
    if (!other.region_) return *this;
    return Combine(region_, other.region_, cairo_region_intersect);
}

Region Region::Intersect(const RECT& r) const {
    return Intersect(Region(r));
}

Region Region::Subtract(const Region& other) const {
    return Combine(region_, other.region_, cairo_region_subtract);
}

Region Region::Subtract(const RECT& r) const {
    return Subtract(Region(r));
}

Region Region::Union(const Region& other) const {
    return Combine(region_, other.region_, cairo_region_union);
}

Region Region::Xor(const Region& other) const {
    return Combine(region_, other.region_, cairo_region_xor);
}

Region Region::Translate(int dx, int dy) const {
    if (!region_ || (dx == 0 && dy == 0)) return *this;
    cairo_region_t* r = cairo_region_copy(region_);
    cairo_region_translate(r, dx, dy);
    return Adopt(r);
}

} // namespace gdi
