// The window manager's access to region objects: update regions go out through them.

#include "platform/gdi/GdiObject.h"
#include "platform/gdi/SurfaceDC.h"

const cairo_region_t* RegionOf(HRGN rgn) {
    gdi::Rgn* r = gdi::Live<gdi::Rgn>(rgn);
    return r ? r->region.Get() : nullptr;
}

bool AssignRegion(HRGN rgn, const cairo_region_t* region) {
    gdi::Rgn* r = gdi::Live<gdi::Rgn>(rgn);
    if (!r) return false;
    // A region object always holds a region: none given is an empty one.
    r->region = region ? gdi::Region::Copy(region) : gdi::Region(RECT{});
    return true;
}
