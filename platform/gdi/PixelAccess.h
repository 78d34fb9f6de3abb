#pragma once
// Direct access to the pixels of an image surface, for the operations that combine source and
// destination bits (inversion, exclusive or, copies within a surface) which cairo has no
// operator for. Flushes cairo's drawing first and tells cairo about the change afterwards.

#include "platform/base/WinTypes.h"

#include <cairo.h>
#include <cstdint>

namespace gdi {

// A pixel as the image surfaces hold it (0xAARRGGBB, always opaque here) and back.
constexpr std::uint32_t ToPixel(COLORREF c) {
    return 0xFF000000u | (static_cast<std::uint32_t>(GetRValue(c)) << 16) |
           (static_cast<std::uint32_t>(GetGValue(c)) << 8) | GetBValue(c);
}
constexpr COLORREF FromPixel(std::uint32_t p) {
    return RGB(static_cast<BYTE>(p >> 16), static_cast<BYTE>(p >> 8), static_cast<BYTE>(p));
}
constexpr std::uint32_t ColorBits = 0x00FFFFFF;

class PixelAccess {
public:
    explicit PixelAccess(cairo_surface_t* surface);
    ~PixelAccess();
    PixelAccess(const PixelAccess&) = delete;
    PixelAccess& operator=(const PixelAccess&) = delete;

    // False for surfaces that are not 32-bit image surfaces.
    bool Ok() const { return data_ != nullptr; }
    std::uint32_t* Row(int y) {
        return reinterpret_cast<std::uint32_t*>(data_ + static_cast<std::ptrdiff_t>(y) * stride_);
    }

private:
    cairo_surface_t* surface_;
    unsigned char* data_ = nullptr;
    int stride_ = 0;
};

} // namespace gdi
