// Device-independent bitmaps: making bitmaps from BMP pixels and reading pixels back.

#include "platform/gdi/GdiObject.h"
#include "platform/gdi/PixelAccess.h"
#include "platform/gdi/Stock.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::int64_t MaxSide = 16384;
// The largest info header of the format (version 5); the colour table follows the header.
constexpr DWORD MaxHeaderSize = 124;

// The pixel layout a header describes, checked.
struct DibFormat {
    int width = 0, height = 0;
    bool bottomUp = true;
    int bitCount = 0;
    std::size_t stride = 0;
    std::size_t colors = 0; // entries of the colour table
};

bool ReadFormat(const BITMAPINFOHEADER& h, DibFormat& f) {
    if (h.biSize < sizeof(BITMAPINFOHEADER) || h.biSize > MaxHeaderSize) return false;
    std::int64_t height = std::llabs(static_cast<std::int64_t>(h.biHeight));
    if (h.biWidth < 1 || h.biWidth > MaxSide || height < 1 || height > MaxSide) return false;
    if (h.biPlanes != 1 || h.biCompression != BI_RGB) return false;
    switch (h.biBitCount) {
    case 1:
    case 4:
    case 8:
    case 16:
    case 24:
    case 32: break;
    default: return false;
    }
    f.width = h.biWidth;
    f.height = static_cast<int>(height);
    f.bottomUp = h.biHeight > 0;
    f.bitCount = h.biBitCount;
    f.stride = (static_cast<std::size_t>(f.width) * f.bitCount + 31) / 32 * 4;
    if (f.bitCount <= 8) {
        std::size_t full = std::size_t{1} << f.bitCount;
        if (h.biClrUsed > full) return false;
        f.colors = h.biClrUsed != 0 ? h.biClrUsed : full;
    }
    return true;
}

gdi::Bitmap* NewBitmap(int width, int height) {
    cairo_surface_t* s = gdi::NewBitmapSurface(width, height);
    return s ? gdi::Publish(new gdi::Bitmap(s, 32)) : nullptr;
}

std::uint32_t PaletteEntry(const BYTE* table, std::size_t colors, unsigned index) {
    if (index >= colors) return 0xFF000000u; // outside a short table: black
    const BYTE* q = table + std::size_t{4} * index;
    return 0xFF000000u | (q[2] << 16) | (q[1] << 8) | q[0];
}

std::uint32_t SourcePixel(const DibFormat& f, const BYTE* row, const BYTE* table, int x) {
    switch (f.bitCount) {
    case 1: return PaletteEntry(table, f.colors, (row[x / 8] >> (7 - x % 8)) & 1);
    case 4: return PaletteEntry(table, f.colors, (row[x / 2] >> (x % 2 ? 0 : 4)) & 0xF);
    case 8: return PaletteEntry(table, f.colors, row[x]);
    case 16: {
        // Five bits each of red, green and blue, widened by repeating their top bits.
        unsigned v = row[2 * x] | (row[2 * x + 1] << 8);
        auto widen = [](unsigned c) { return (c << 3) | (c >> 2); };
        return 0xFF000000u | (widen((v >> 10) & 31) << 16) | (widen((v >> 5) & 31) << 8) | widen(v & 31);
    }
    case 24: return 0xFF000000u | (row[3 * x + 2] << 16) | (row[3 * x + 1] << 8) | row[3 * x];
    default: return 0xFF000000u | (row[4 * x + 2] << 16) | (row[4 * x + 1] << 8) | row[4 * x];
    }
}

} // namespace

HBITMAP CreateDIBitmapSized(const BITMAPINFOHEADER* header, DWORD init, const void* bits,
                            std::size_t bitsSize, const BITMAPINFO* info, std::size_t infoSize,
                            UINT usage) {
    DibFormat size;
    if (!header || !ReadFormat(*header, size) || usage != DIB_RGB_COLORS) return nullptr;
    if (!(init & CBM_INIT)) return NewBitmap(size.width, size.height);

    // The pixels are laid out as `info` says; the bitmap takes the size `header` says.
    DibFormat f;
    if (!bits || !info || infoSize < sizeof(BITMAPINFOHEADER)) return nullptr;
    if (!ReadFormat(info->bmiHeader, f)) return nullptr;
    std::size_t tableBytes = 4 * f.colors;
    if (info->bmiHeader.biSize > infoSize || tableBytes > infoSize - info->bmiHeader.biSize)
        return nullptr;
    if (f.stride > bitsSize / static_cast<std::size_t>(f.height)) return nullptr;

    gdi::Bitmap* bitmap = NewBitmap(size.width, size.height);
    if (!bitmap) return nullptr;
    const BYTE* table = reinterpret_cast<const BYTE*>(info) + info->bmiHeader.biSize;
    const BYTE* pixels = static_cast<const BYTE*>(bits);
    gdi::PixelAccess out(bitmap->surface);
    int width = std::min(size.width, f.width), height = std::min(size.height, f.height);
    for (int y = 0; y < height; ++y) {
        int sourceRow = f.bottomUp ? f.height - 1 - y : y;
        const BYTE* row = pixels + static_cast<std::size_t>(sourceRow) * f.stride;
        std::uint32_t* target = out.Row(y);
        for (int x = 0; x < width; ++x) target[x] = SourcePixel(f, row, table, x);
    }
    return bitmap;
}

HBITMAP CreateDIBitmap(HDC, const BITMAPINFOHEADER* header, DWORD init, const void* bits,
                       const BITMAPINFO* info, UINT usage) {
    if (!(init & CBM_INIT)) return CreateDIBitmapSized(header, init, nullptr, 0, nullptr, 0, usage);
    DibFormat f;
    if (!info || !ReadFormat(info->bmiHeader, f)) return nullptr;
    // The buffers are as large as the header says they are: its image size when it gives one,
    // else the rows it describes.
    std::size_t bitsSize = info->bmiHeader.biSizeImage != 0
                               ? info->bmiHeader.biSizeImage
                               : f.stride * static_cast<std::size_t>(f.height);
    std::size_t infoSize = info->bmiHeader.biSize + 4 * f.colors;
    return CreateDIBitmapSized(header, init, bits, bitsSize, info, infoSize, usage);
}

int GetDIBits(HDC, HBITMAP bitmap, UINT start, UINT lines, void* bits, BITMAPINFO* info,
              UINT usage) {
    auto* b = gdi::Live<gdi::Bitmap>(bitmap);
    if (!b || !info || usage != DIB_RGB_COLORS) return 0;
    BITMAPINFOHEADER& h = info->bmiHeader;
    int width = b->Width(), height = b->Height();
    if (!bits) {
        h.biSize = sizeof(BITMAPINFOHEADER);
        h.biWidth = width;
        h.biHeight = height;
        h.biPlanes = 1;
        h.biBitCount = 32;
        h.biCompression = BI_RGB;
        h.biSizeImage = static_cast<DWORD>(width) * 4 * static_cast<DWORD>(height);
        return height;
    }
    if (h.biBitCount != 32 || h.biCompression != BI_RGB || h.biWidth != width) return 0;
    if (start >= static_cast<UINT>(height)) return 0;
    int count = static_cast<int>(std::min<UINT>(lines, static_cast<UINT>(height) - start));
    bool bottomUp = h.biHeight > 0;
    gdi::PixelAccess in(b->surface);
    auto* out = static_cast<std::uint32_t*>(bits);
    for (int i = 0; i < count; ++i) {
        int line = static_cast<int>(start) + i;
        const std::uint32_t* row = in.Row(bottomUp ? height - 1 - line : line);
        for (int x = 0; x < width; ++x)
            out[static_cast<std::size_t>(i) * width + x] = row[x] & gdi::ColorBits;
    }
    return count;
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT, void** bits, void* section, DWORD) {
    if (bits) *bits = nullptr;
    if (!info || !bits || section) return nullptr;
    const BITMAPINFOHEADER& h = info->bmiHeader;
    if (h.biBitCount != 32 || h.biCompression != BI_RGB || h.biHeight >= 0 || h.biWidth <= 0 ||
        h.biWidth > 32767 || h.biHeight < -32767)
        return nullptr;
    cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_RGB24, h.biWidth, -h.biHeight);
    if (cairo_surface_status(s) != CAIRO_STATUS_SUCCESS || cairo_image_surface_get_stride(s) != h.biWidth * 4) {
        cairo_surface_destroy(s);
        return nullptr;
    }
    *bits = cairo_image_surface_get_data(s);
    return gdi::Publish(new gdi::Bitmap(s, 32));
}

// Drawing goes straight to the pixels; there is no batch to flush.
BOOL GdiFlush() { return TRUE; }
