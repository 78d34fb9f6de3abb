#include "platform/gdi/DeviceContext.h"

#include <unordered_set>

namespace gdi {

namespace {
std::unordered_set<const void*>& Contexts() {
    static std::unordered_set<const void*> contexts;
    return contexts;
}
} // namespace

bool IsContext(const void* handle) {
    return handle && Contexts().count(handle) != 0;
}

DeviceContext* LiveContext(HDC dc) {
    return IsContext(dc) ? dc : nullptr;
}

} // namespace gdi

DeviceContext::DeviceContext(Kind k, cairo_surface_t* surface, POINT origin, gdi::Region visible)
    : kind(k), origin_(origin), visible_(std::move(visible)) {
    gdi::Contexts().insert(this);
    if (surface && cairo_surface_get_type(surface) == CAIRO_SURFACE_TYPE_IMAGE)
        SetSurface(surface, SIZE{cairo_image_surface_get_width(surface),
                                 cairo_image_surface_get_height(surface)});
}

DeviceContext::~DeviceContext() {
    gdi::Contexts().erase(this);
    SetSurface(nullptr, SIZE{});
}

void DeviceContext::SetSurface(cairo_surface_t* surface, SIZE size) {
    if (surface == surface_) return;
    if (cr_) cairo_destroy(cr_);
    cr_ = nullptr;
    if (surface_) cairo_surface_destroy(surface_);
    surface_ = surface ? cairo_surface_reference(surface) : nullptr;
    size_ = surface ? size : SIZE{};
    clipValid_ = false;
}

void DeviceContext::FollowBitmap() {
    auto* bitmap = state.bitmap.As<gdi::Bitmap>();
    if (kind != Kind::Memory || !bitmap) return;
    SetSurface(bitmap->surface, SIZE{bitmap->Width(), bitmap->Height()});
}

bool DeviceContext::IsRaster() const {
    return surface_ && cairo_surface_get_type(surface_) == CAIRO_SURFACE_TYPE_IMAGE;
}

RECT DeviceContext::ToSurface(const RECT& r) const {
    return RECT{r.left + OffsetX(), r.top + OffsetY(), r.right + OffsetX(), r.bottom + OffsetY()};
}

gdi::Region DeviceContext::ContextArea() const {
    gdi::Region area(RECT{-origin_.x, -origin_.y, size_.cx - origin_.x, size_.cy - origin_.y});
    return area.Intersect(visible_);
}

const gdi::Region& DeviceContext::Clip() {
    if (!clipValid_) {
        gdi::Region clip(RECT{0, 0, size_.cx, size_.cy});
        clip = clip.Intersect(visible_.Translate(origin_.x, origin_.y));
        clip_ = clip.Intersect(state.clip.Translate(origin_.x, origin_.y));
        clipValid_ = true;
        canvasClipValid_ = false;
    }
    return clip_;
}

cairo_t* DeviceContext::Canvas() {
    if (!surface_) return nullptr;
    if (!cr_) {
        cr_ = cairo_create(surface_);
        // Shapes land on whole pixels; text sets its own antialiasing through its font.
        cairo_set_antialias(cr_, CAIRO_ANTIALIAS_NONE);
        canvasClipValid_ = false;
    }
    const gdi::Region& clip = Clip();
    if (!canvasClipValid_) {
        cairo_reset_clip(cr_);
        cairo_new_path(cr_);
        for (int i = 0; i < clip.RectCount(); ++i) {
            RECT r = clip.RectAt(i);
            cairo_rectangle(cr_, r.left, r.top, r.right - r.left, r.bottom - r.top);
        }
        cairo_clip(cr_);
        canvasClipValid_ = true;
    }
    return cr_;
}
