#include "platform/gdi/PixelAccess.h"

namespace gdi {

PixelAccess::PixelAccess(cairo_surface_t* surface) : surface_(surface) {
    if (!surface || cairo_surface_get_type(surface) != CAIRO_SURFACE_TYPE_IMAGE) return;
    cairo_format_t format = cairo_image_surface_get_format(surface);
    if (format != CAIRO_FORMAT_RGB24 && format != CAIRO_FORMAT_ARGB32) return;
    cairo_surface_flush(surface);
    data_ = cairo_image_surface_get_data(surface);
    stride_ = cairo_image_surface_get_stride(surface);
}

PixelAccess::~PixelAccess() {
    if (data_) cairo_surface_mark_dirty(surface_);
}

} // namespace gdi
