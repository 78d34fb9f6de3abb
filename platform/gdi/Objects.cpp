// Creating, selecting, reading and deleting drawing objects.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/FontCache.h"
#include "platform/gdi/Gdi.h"
#include "platform/gdi/PixelAccess.h"
#include "platform/gdi/Stock.h"

#include <algorithm>
#include <cstring>

using gdi::Live;

namespace gdi {

namespace {

// Larger bitmaps are refused rather than risking the memory of the process.
constexpr int MaxBitmapSide = 16384;

template <typename T, typename... Args> T* MakeStock(Args&&... args) {
    T* object = new T(std::forward<Args>(args)...);
    object->stock = true;
    RegisterObject(object);
    return object;
}

GdiObject* StockFont(const char* face, BYTE pitch) {
    LOGFONT lf;
    // 8 points at 96 pixels per inch, the size of the platform's dialog and menu font.
    lf.lfHeight = -11;
    lf.lfWeight = FW_NORMAL;
    lf.lfPitchAndFamily = pitch;
    std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    auto font = FontCache::Get().Realize(lf);
    return font ? MakeStock<Font>(lf, font) : nullptr;
}

GdiObject* MakeStockObject(int which) {
    auto brush = [](UINT style, COLORREF c) { return MakeStock<Brush>(LOGBRUSH{style, c, 0}); };
    auto pen = [](UINT style, COLORREF c) { return MakeStock<Pen>(LOGPEN{style, POINT{1, 0}, c}); };
    switch (which) {
    case WHITE_BRUSH: return brush(BS_SOLID, RGB(255, 255, 255));
    case LTGRAY_BRUSH: return brush(BS_SOLID, RGB(192, 192, 192));
    case GRAY_BRUSH: return brush(BS_SOLID, RGB(128, 128, 128));
    case DKGRAY_BRUSH: return brush(BS_SOLID, RGB(64, 64, 64));
    case BLACK_BRUSH: return brush(BS_SOLID, RGB(0, 0, 0));
    case NULL_BRUSH: return brush(BS_NULL, 0);
    case WHITE_PEN: return pen(PS_SOLID, RGB(255, 255, 255));
    case BLACK_PEN: return pen(PS_SOLID, RGB(0, 0, 0));
    case NULL_PEN: return pen(PS_NULL, 0);
    case ANSI_FIXED_FONT: return StockFont("Courier New", FIXED_PITCH | FF_MODERN);
    case ANSI_VAR_FONT:
    case SYSTEM_FONT:
    case DEFAULT_GUI_FONT: return StockFont("MS Shell Dlg", VARIABLE_PITCH | FF_SWISS);
    default: return nullptr;
    }
}

} // namespace

GdiObject* StockObject(int which) {
    static GdiObject* table[DEFAULT_GUI_FONT + 1] = {};
    static bool made[DEFAULT_GUI_FONT + 1] = {};
    if (which < 0 || which > DEFAULT_GUI_FONT) return nullptr;
    if (!made[which]) {
        table[which] = MakeStockObject(which);
        made[which] = true;
    }
    return table[which];
}

Bitmap* DefaultBitmap() {
    static Bitmap* bitmap = [] {
        // Black, as a new monochrome bitmap is.
        return MakeStock<Bitmap>(NewBitmapSurface(1, 1), WORD{1});
    }();
    return bitmap;
}

cairo_surface_t* NewBitmapSurface(int width, int height) {
    if (width < 1 || height < 1 || width > MaxBitmapSide || height > MaxBitmapSide) return nullptr;
    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
    if (cairo_surface_status(s) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(s);
        return nullptr;
    }
    return s;
}

} // namespace gdi

namespace {

gdi::Bitmap* NewBitmap(int width, int height, WORD bitsPixel) {
    cairo_surface_t* s = gdi::NewBitmapSurface(width, height);
    return s ? gdi::Publish(new gdi::Bitmap(s, bitsPixel)) : nullptr;
}

bool KnownPenStyle(UINT style) {
    switch (style) {
    case PS_SOLID:
    case PS_DASH:
    case PS_DOT:
    case PS_DASHDOT:
    case PS_NULL:
    case PS_INSIDEFRAME: return true;
    default: return false;
    }
}

template <typename T> int CopyOut(const T& value, int size, void* out) {
    if (!out) return sizeof(T);
    if (size < static_cast<int>(sizeof(T))) return 0;
    std::memcpy(out, &value, sizeof(T));
    return sizeof(T);
}

} // namespace

HPEN CreatePen(int style, int width, COLORREF color) {
    LOGPEN lp{static_cast<UINT>(style), POINT{std::max(width, 0), 0}, color & 0xFFFFFF};
    return CreatePenIndirect(&lp);
}

HPEN CreatePenIndirect(const LOGPEN* lp) {
    if (!lp || !KnownPenStyle(lp->lopnStyle)) return nullptr;
    return gdi::Publish(new gdi::Pen(*lp));
}

HBRUSH CreateSolidBrush(COLORREF color) {
    return gdi::Publish(new gdi::Brush(LOGBRUSH{BS_SOLID, color & 0xFFFFFF, 0}));
}

HBRUSH CreateBrushIndirect(const LOGBRUSH* lb) {
    if (!lb) return nullptr;
    switch (lb->lbStyle) {
    case BS_SOLID: return CreateSolidBrush(lb->lbColor);
    case BS_NULL: return gdi::Publish(new gdi::Brush(LOGBRUSH{BS_NULL, 0, 0}));
    case BS_PATTERN: return CreatePatternBrush(reinterpret_cast<HBITMAP>(lb->lbHatch));
    // Hatched brushes are not offered: nothing of the platform's programs draws with them.
    default: return nullptr;
    }
}

HBRUSH CreatePatternBrush(HBITMAP bitmap) {
    auto* b = Live<gdi::Bitmap>(bitmap);
    if (!b) return nullptr;
    // The brush keeps a copy: later drawing on the bitmap does not change it.
    cairo_surface_t* copy = gdi::NewBitmapSurface(b->Width(), b->Height());
    if (!copy) return nullptr;
    cairo_t* cr = cairo_create(copy);
    cairo_set_source_surface(cr, b->surface, 0, 0);
    cairo_paint(cr);
    cairo_destroy(cr);
    cairo_surface_flush(copy);
    auto* first = reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(copy));
    COLORREF firstColor = RGB(static_cast<BYTE>(*first >> 16), static_cast<BYTE>(*first >> 8),
                              static_cast<BYTE>(*first));
    auto* brush =
        new gdi::Brush(LOGBRUSH{BS_PATTERN, firstColor, reinterpret_cast<UINT_PTR>(bitmap)});
    brush->pattern = copy;
    return gdi::Publish(brush);
}

HFONT CreateFontIndirect(const LOGFONT* lf) {
    if (!lf) return nullptr;
    LOGFONT copy = *lf;
    copy.lfFaceName[LF_FACESIZE - 1] = '\0';
    auto font = gdi::FontCache::Get().Realize(copy);
    return font ? gdi::Publish(new gdi::Font(copy, std::move(font))) : nullptr;
}

HFONT CreateFont(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                 DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                 DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, const char* face) {
    LOGFONT lf;
    lf.lfHeight = height;
    lf.lfWidth = width;
    lf.lfEscapement = escapement;
    lf.lfOrientation = orientation;
    lf.lfWeight = weight;
    lf.lfItalic = static_cast<BYTE>(italic);
    lf.lfUnderline = static_cast<BYTE>(underline);
    lf.lfStrikeOut = static_cast<BYTE>(strikeOut);
    lf.lfCharSet = static_cast<BYTE>(charSet);
    lf.lfOutPrecision = static_cast<BYTE>(outPrecision);
    lf.lfClipPrecision = static_cast<BYTE>(clipPrecision);
    lf.lfQuality = static_cast<BYTE>(quality);
    lf.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    if (face) std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    return CreateFontIndirect(&lf);
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
    if (!gdi::LiveContext(dc)) return nullptr;
    // As on the real system, an empty size gives a 1-by-1 monochrome bitmap.
    if (width == 0 || height == 0) return NewBitmap(1, 1, 1);
    return NewBitmap(width, height, 32);
}

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
    if (planes != 1 || (bitsPerPixel != 1 && bitsPerPixel != 32)) return nullptr;
    gdi::Bitmap* b = NewBitmap(width, height, static_cast<WORD>(bitsPerPixel));
    if (!b || !bits) return b;
    // Rows of device-dependent bitmaps are padded to 16 bits; a set bit of a monochrome bitmap
    // is white.
    auto* src = static_cast<const BYTE*>(bits);
    int srcStride = bitsPerPixel == 1 ? (width + 15) / 16 * 2 : width * 4;
    gdi::PixelAccess pixels(b->surface);
    for (int y = 0; y < height; ++y) {
        const BYTE* row = src + static_cast<std::ptrdiff_t>(y) * srcStride;
        std::uint32_t* out = pixels.Row(y);
        for (int x = 0; x < width; ++x) {
            if (bitsPerPixel == 1)
                out[x] = (row[x / 8] >> (7 - x % 8)) & 1 ? 0xFFFFFFFFu : 0xFF000000u;
            else
                out[x] = 0xFF000000u | row[x * 4] | (row[x * 4 + 1] << 8) | (row[x * 4 + 2] << 16);
        }
    }
    return b;
}

HGDIOBJ GetStockObject(int which) {
    return gdi::StockObject(which);
}

BOOL DeleteObject(HGDIOBJ object) {
    GdiObject* o = gdi::LiveObject(object);
    if (!o) return FALSE;
    if (o->stock) return TRUE;
    if (o->holders > 0)
        o->deletePending = true;
    else
        gdi::Destroy(o);
    return TRUE;
}

int GetObject(HGDIOBJ object, int size, void* out) {
    GdiObject* o = gdi::LiveObject(object);
    if (!o) return 0;
    switch (o->type) {
    case OBJ_PEN: return CopyOut(static_cast<gdi::Pen*>(o)->logPen, size, out);
    case OBJ_BRUSH: return CopyOut(static_cast<gdi::Brush*>(o)->logBrush, size, out);
    case OBJ_FONT: return CopyOut(static_cast<gdi::Font*>(o)->logFont, size, out);
    case OBJ_BITMAP: {
        auto* b = static_cast<gdi::Bitmap*>(o);
        BITMAP bm;
        bm.bmWidth = b->Width();
        bm.bmHeight = b->Height();
        bm.bmBitsPixel = b->bitsPixel;
        bm.bmWidthBytes = (b->Width() * b->bitsPixel + 15) / 16 * 2;
        return CopyOut(bm, size, out);
    }
    default: return 0;
    }
}

DWORD GetObjectType(HGDIOBJ object) {
    GdiObject* o = gdi::LiveObject(object);
    return o ? o->type : 0;
}

DWORD GetObjectType(HDC dc) {
    DeviceContext* d = gdi::LiveContext(dc);
    if (!d) return 0;
    return d->kind == DeviceContext::Kind::Memory ? OBJ_MEMDC : OBJ_DC;
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) {
    DeviceContext* d = gdi::LiveContext(dc);
    GdiObject* o = gdi::LiveObject(object);
    if (!d || !o) return nullptr;
    gdi::ObjectRef* slot = nullptr;
    switch (o->type) {
    case OBJ_PEN: slot = &d->state.pen; break;
    case OBJ_BRUSH: slot = &d->state.brush; break;
    case OBJ_FONT: slot = &d->state.font; break;
    case OBJ_BITMAP:
        if (d->kind != DeviceContext::Kind::Memory) return nullptr;
        slot = &d->state.bitmap;
        break;
    case OBJ_REGION: {
        // As on the real system, a region is the clip and the answer is its kind.
        int kind = SelectClipRgn(dc, o);
        return reinterpret_cast<HGDIOBJ>(static_cast<std::intptr_t>(kind));
    }
    default: return nullptr;
    }
    GdiObject* previous = slot->Get();
    // When the previous object was deleted while selected, this frees it and the handle
    // answered is dead, as on the real system.
    *slot = gdi::ObjectRef(o);
    if (o->type == OBJ_BITMAP) d->FollowBitmap();
    return previous;
}

HGDIOBJ GetCurrentObject(HDC dc, UINT kind) {
    DeviceContext* d = gdi::LiveContext(dc);
    if (!d) return nullptr;
    switch (kind) {
    case OBJ_PEN: return d->state.pen.Get();
    case OBJ_BRUSH: return d->state.brush.Get();
    case OBJ_FONT: return d->state.font.Get();
    case OBJ_BITMAP: return d->state.bitmap.Get();
    default: return nullptr;
    }
}
