#pragma once
// A region value over cairo_region_t. Copies share the region and no operation changes it in
// place, so saved context states hold clips cheaply. A null region stands for "no limit" as a
// clip; Intersect treats it so, the other combinations count it as empty.

#include "platform/base/WinTypes.h"

#include <cairo.h>

namespace gdi {

class Region {
public:
    Region() = default;
    explicit Region(const RECT& r);
    // Takes over the caller's reference.
    static Region Adopt(cairo_region_t* region);
    static Region Copy(const cairo_region_t* region);

    Region(const Region& other);
    Region& operator=(const Region& other);
    Region(Region&& other) noexcept;
    Region& operator=(Region&& other) noexcept;
    ~Region();

    bool IsNull() const { return region_ == nullptr; }
    bool IsEmpty() const;
    const cairo_region_t* Get() const { return region_; }
    RECT Bounds() const;
    int Kind() const; // NULLREGION, SIMPLEREGION or COMPLEXREGION
    int RectCount() const;
    RECT RectAt(int i) const;
    bool Contains(int x, int y) const;
    bool Overlaps(const RECT& r) const;

    Region Intersect(const Region& other) const;
    Region Intersect(const RECT& r) const;
    Region Subtract(const Region& other) const;
    Region Subtract(const RECT& r) const;
    Region Union(const Region& other) const;
    Region Xor(const Region& other) const;
    Region Translate(int dx, int dy) const;

private:
    explicit Region(cairo_region_t* region) : region_(region) {}
    cairo_region_t* region_ = nullptr;
};

cairo_rectangle_int_t ToCairo(const RECT& r);
RECT FromCairo(const cairo_rectangle_int_t& r);

} // namespace gdi
