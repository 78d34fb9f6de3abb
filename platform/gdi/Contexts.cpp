// Device contexts: making and deleting them, their attributes, SaveDC and RestoreDC, and what
// they report of their device.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/Printing.h"
#include "platform/gdi/Stock.h"
#include "platform/gdi/SurfaceDC.h"

#include <cmath>

using gdi::LiveContext;

namespace {

SIZE screenSize{1280, 1024};

int PixelsToMm(int pixels, int perInch) {
    return static_cast<int>(std::lround(pixels * 25.4 / perInch));
}

} // namespace

namespace gdi {

DeviceContext* NewContext(DeviceContext::Kind kind, cairo_surface_t* surface, POINT origin,
                          Region visible) {
    auto* dc = new DeviceContext(kind, surface, origin, std::move(visible));
    dc->state.pen = ObjectRef(StockObject(BLACK_PEN));
    dc->state.brush = ObjectRef(StockObject(WHITE_BRUSH));
    dc->state.font = ObjectRef(StockObject(SYSTEM_FONT));
    if (dc->kind == DeviceContext::Kind::Memory) {
        dc->state.bitmap = ObjectRef(DefaultBitmap());
        dc->FollowBitmap();
    }
    return dc;
}

} // namespace gdi

void SetScreenSize(int width, int height) {
    if (width > 0 && height > 0) screenSize = SIZE{width, height};
}

HDC CreateSurfaceDC(cairo_surface_t* surface, POINT origin, const cairo_region_t* clip) {
    if (!surface || cairo_surface_get_type(surface) != CAIRO_SURFACE_TYPE_IMAGE) return nullptr;
    return gdi::NewContext(DeviceContext::Kind::Window, surface, origin, gdi::Region::Copy(clip));
}

HDC CreateCompatibleDC(HDC dc) {
    if (dc && !LiveContext(dc)) return nullptr;
    return gdi::NewContext(DeviceContext::Kind::Memory, nullptr, POINT{}, gdi::Region());
}

BOOL DeleteDC(HDC dc) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    if (d->print && d->print->inDocument) AbortDoc(dc);
    delete d;
    return TRUE;
}

int SaveDC(HDC dc) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return 0;
    d->saved.push_back(d->state);
    return static_cast<int>(d->saved.size());
}

BOOL RestoreDC(HDC dc, int saved) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    int count = static_cast<int>(d->saved.size());
    // A negative number counts back from the latest save.
    int level = saved < 0 ? count + saved + 1 : saved;
    if (level < 1 || level > count) return FALSE;
    d->state = d->saved[level - 1];
    d->saved.resize(level - 1);
    d->FollowBitmap();
    d->ClipChanged();
    return TRUE;
}

int GetDeviceCaps(HDC dc, int index) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return 0;
    if (const gdi::PrintJob* p = d->print.get()) {
        switch (index) {
        case TECHNOLOGY: return DT_RASPRINTER;
        case HORZSIZE: return p->widthMm;
        case VERTSIZE: return p->heightMm;
        case HORZRES:
        case PHYSICALWIDTH: return p->pixels.cx;
        case VERTRES:
        case PHYSICALHEIGHT: return p->pixels.cy;
        case BITSPIXEL: return 24;
        case LOGPIXELSX:
        case LOGPIXELSY: return p->dotsPerInch;
        case PHYSICALOFFSETX:
        case PHYSICALOFFSETY: return 0;
        default: return 0;
        }
    }
    // Screen and memory contexts describe the screen.
    switch (index) {
    case TECHNOLOGY: return DT_RASDISPLAY;
    case HORZSIZE: return PixelsToMm(screenSize.cx, ScreenPixelsPerInch);
    case VERTSIZE: return PixelsToMm(screenSize.cy, ScreenPixelsPerInch);
    case HORZRES: return screenSize.cx;
    case VERTRES: return screenSize.cy;
    case BITSPIXEL: return 32;
    case LOGPIXELSX:
    case LOGPIXELSY: return ScreenPixelsPerInch;
    default: return 0;
    }
}

COLORREF SetTextColor(HDC dc, COLORREF color) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return CLR_INVALID;
    COLORREF old = d->state.textColor;
    d->state.textColor = color & 0xFFFFFF;
    return old;
}

COLORREF GetTextColor(HDC dc) {
    DeviceContext* d = LiveContext(dc);
    return d ? d->state.textColor : CLR_INVALID;
}

COLORREF SetBkColor(HDC dc, COLORREF color) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return CLR_INVALID;
    COLORREF old = d->state.bkColor;
    d->state.bkColor = color & 0xFFFFFF;
    return old;
}

COLORREF GetBkColor(HDC dc) {
    DeviceContext* d = LiveContext(dc);
    return d ? d->state.bkColor : CLR_INVALID;
}

int SetBkMode(HDC dc, int mode) {
    DeviceContext* d = LiveContext(dc);
    if (!d || (mode != TRANSPARENT && mode != OPAQUE)) return 0;
    int old = d->state.bkMode;
    d->state.bkMode = mode;
    return old;
}

int GetBkMode(HDC dc) {
    DeviceContext* d = LiveContext(dc);
    return d ? d->state.bkMode : 0;
}

UINT SetTextAlign(HDC dc, UINT align) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return 0xFFFFFFFF; // GDI_ERROR
    UINT old = d->state.textAlign;
    d->state.textAlign = align;
    return old;
}

int SetROP2(HDC dc, int mode) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return 0;
    switch (mode) {
    case R2_BLACK:
    case R2_NOT:
    case R2_XORPEN:
    case R2_COPYPEN:
    case R2_WHITE: break;
    default: return 0;
    }
    int old = d->state.rop2;
    d->state.rop2 = mode;
    return old;
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    if (old) *old = d->state.viewport;
    d->state.viewport = POINT{x, y};
    return TRUE;
}

BOOL GetViewportOrgEx(HDC dc, POINT* org) {
    DeviceContext* d = LiveContext(dc);
    if (!d || !org) return FALSE;
    *org = d->state.viewport;
    return TRUE;
}

BOOL OffsetViewportOrgEx(HDC dc, int dx, int dy, POINT* old) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    if (old) *old = d->state.viewport;
    d->state.viewport.x += dx;
    d->state.viewport.y += dy;
    return TRUE;
}

BOOL SetBrushOrgEx(HDC dc, int x, int y, POINT* old) {
    DeviceContext* d = LiveContext(dc);
    if (!d) return FALSE;
    if (old) *old = d->state.brushOrigin;
    d->state.brushOrigin = POINT{x, y};
    return TRUE;
}
