#pragma once
// The record behind a device context. A context draws on a cairo surface: a top-level window's
// image surface, the bitmap selected into a memory context, or a printer's PDF pages.
//
// Coordinates: logical = what programs pass; context coordinates = logical + viewport origin
// (the platform's device units, where clip regions live); surface = context + origin.

#include "platform/gdi/GdiObject.h"
#include "platform/gdi/Region.h"

#include <cairo.h>
#include <memory>
#include <string>
#include <vector>

namespace gdi {

// What SaveDC saves and RestoreDC brings back.
struct DcState {
    ObjectRef pen, brush, font, bitmap;
    COLORREF textColor = RGB(0, 0, 0);
    COLORREF bkColor = RGB(255, 255, 255);
    int bkMode = OPAQUE;
    UINT textAlign = TA_LEFT | TA_TOP;
    int rop2 = R2_COPYPEN;
    POINT viewport;
    POINT brushOrigin;
    POINT position;
    Region clip; // context coordinates; null: no clip region
};

// A printer's document in progress.
struct PrintJob {
    std::string path;
    int dotsPerInch = 0;
    int widthMm = 0, heightMm = 0;
    SIZE pixels;
    bool inDocument = false;
    bool inPage = false;
    std::string output; // the file of the document in progress
};

bool IsContext(const void* handle);
DeviceContext* LiveContext(HDC dc);

} // namespace gdi

struct DeviceContext {
    enum class Kind { Window, Memory, Printer };

    // `visible`, in context coordinates (null: the whole surface), is what of the surface the
    // context may touch, whatever clip a program selects.
    DeviceContext(Kind kind, cairo_surface_t* surface, POINT origin, gdi::Region visible);
    ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;

    const Kind kind;
    gdi::DcState state;
    std::vector<gdi::DcState> saved;
    std::unique_ptr<gdi::PrintJob> print;

    cairo_surface_t* Surface() const { return surface_; }
    // A new target (null: none) of the given size in surface pixels.
    void SetSurface(cairo_surface_t* surface, SIZE size);
    // Memory contexts draw on their selected bitmap; called after it changed.
    void FollowBitmap();
    SIZE SurfaceSize() const { return size_; }
    // Whether the target's pixels can be read and combined (not a printer's page).
    bool IsRaster() const;

    int OffsetX() const { return origin_.x + state.viewport.x; }
    int OffsetY() const { return origin_.y + state.viewport.y; }
    POINT ToSurface(POINT p) const { return POINT{p.x + OffsetX(), p.y + OffsetY()}; }
    RECT ToSurface(const RECT& r) const;
    POINT Origin() const { return origin_; }

    // The area a program may clip within, in context coordinates.
    gdi::Region ContextArea() const;
    // Where drawing lands, in surface coordinates: the surface, the visible region and the
    // clip region together.
    const gdi::Region& Clip();
    void ClipChanged() { clipValid_ = false; }

    // The cairo context on the target with the clip set, or null when there is no target.
    cairo_t* Canvas();

private:
    cairo_surface_t* surface_ = nullptr;
    cairo_t* cr_ = nullptr;
    SIZE size_;
    POINT origin_;
    gdi::Region visible_;
    gdi::Region clip_;
    bool clipValid_ = false;
    bool canvasClipValid_ = false;
};

namespace gdi {
// A context with the default state: black pen, white brush, system font, black text on white.
DeviceContext* NewContext(DeviceContext::Kind kind, cairo_surface_t* surface, POINT origin,
                          Region visible);
} // namespace gdi
