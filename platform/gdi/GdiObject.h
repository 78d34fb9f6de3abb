#pragma once
// The records behind the drawing handles. Programs see only the handles; the drawing code
// reaches the records through Live(), which refuses handles that were never made or are gone.

#include "platform/gdi/Gdi.h"
#include "platform/gdi/Region.h"

#include <cairo.h>
#include <memory>

// The base of every drawing object; handles of all kinds are pointers to it.
struct GdiObject {
    virtual ~GdiObject() = default;
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;

    const DWORD type; // OBJ_PEN, OBJ_BRUSH, ...
    bool stock = false;
    // Context states (the current one and saved ones) that hold the object. DeleteObject of a
    // held object only marks it; the last holder to let go frees it.
    int holders = 0;
    bool deletePending = false;

protected:
    explicit GdiObject(DWORD objectType) : type(objectType) {}
};

namespace gdi {

class RealizedFont;

struct Pen final : GdiObject {
    static constexpr DWORD Type = OBJ_PEN;
    explicit Pen(const LOGPEN& lp) : GdiObject(Type), logPen(lp) {}
    LOGPEN logPen;
    int Width() const { return logPen.lopnWidth.x < 1 ? 1 : logPen.lopnWidth.x; }
};

struct Brush final : GdiObject {
    static constexpr DWORD Type = OBJ_BRUSH;
    explicit Brush(const LOGBRUSH& lb) : GdiObject(Type), logBrush(lb) {}
    ~Brush() override;
    LOGBRUSH logBrush;
    // BS_PATTERN: a copy of the bitmap, tiled from the context's brush origin.
    cairo_surface_t* pattern = nullptr;
};

struct Bitmap final : GdiObject {
    static constexpr DWORD Type = OBJ_BITMAP;
    // Takes over the caller's reference to `s`, an RGB24 image surface.
    Bitmap(cairo_surface_t* s, WORD bits) : GdiObject(Type), surface(s), bitsPixel(bits) {}
    ~Bitmap() override;
    cairo_surface_t* surface;
    WORD bitsPixel; // what GetObject reports; the pixels are always 32-bit
    int Width() const { return cairo_image_surface_get_width(surface); }
    int Height() const { return cairo_image_surface_get_height(surface); }
};

struct Rgn final : GdiObject {
    static constexpr DWORD Type = OBJ_REGION;
    explicit Rgn(Region r) : GdiObject(Type), region(std::move(r)) {}
    Region region; // never null
};

struct Font final : GdiObject {
    static constexpr DWORD Type = OBJ_FONT;
    Font(const LOGFONT& lf, std::shared_ptr<const RealizedFont> f)
        : GdiObject(Type), logFont(lf), font(std::move(f)) {}
    LOGFONT logFont;
    std::shared_ptr<const RealizedFont> font;
};

// Every object that exists, so that a stale or made-up handle is refused rather than followed.
void RegisterObject(const GdiObject* object);
void ForgetObject(const GdiObject* object);
bool IsObject(const void* handle);

// The live object behind a handle, of any kind or of the record type T; null otherwise.
GdiObject* LiveObject(const void* handle);
template <typename T> T* Live(const void* handle) {
    GdiObject* object = LiveObject(handle);
    return object && object->type == T::Type ? static_cast<T*>(object) : nullptr;
}

// Registers a new object and hands out its handle.
template <typename T> T* Publish(T* object) {
    RegisterObject(object);
    return object;
}
// Frees an object that no context holds.
void Destroy(GdiObject* object);

// A context state's hold on a selected object.
class ObjectRef {
public:
    ObjectRef() = default;
    explicit ObjectRef(GdiObject* object);
    ObjectRef(const ObjectRef& other) : ObjectRef(other.object_) {}
    ObjectRef& operator=(const ObjectRef& other);
    ~ObjectRef();

    GdiObject* Get() const { return object_; }
    template <typename T> T* As() const {
        return object_ && object_->type == T::Type ? static_cast<T*>(object_) : nullptr;
    }

private:
    GdiObject* object_ = nullptr;
};

} // namespace gdi
