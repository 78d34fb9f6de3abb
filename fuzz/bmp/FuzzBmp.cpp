// Feeds bytes to the BMP reader as a file. Each input must give a bitmap or an error, never
// both; a bitmap must have the size that the header states, and its pixels must read back.
// The platform's conversion of the pixels is built in here too, so that the sanitizers watch
// it read the buffers that the reader hands over.

#include "grid/core/BmpReader.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // An exact copy, so that a read past the end lands outside the allocation.
    std::vector<unsigned char> bytes(data, data + size);
    BmpResult result = ReadBmpBytes(bytes.data(), bytes.size());
    if (!result.bitmap == result.error.empty()) std::abort();
    if (!result.bitmap) return 0;

    BITMAP bm{};
    result.bitmap->GetBitmap(&bm);
    LONG width, height;
    std::memcpy(&width, bytes.data() + 18, sizeof width);
    std::memcpy(&height, bytes.data() + 22, sizeof height);
    if (bm.bmWidth != width || bm.bmHeight != (height < 0 ? -height : height)) std::abort();

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = bm.bmWidth;
    info.bmiHeader.biHeight = 1;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<std::uint32_t> row(static_cast<std::size_t>(bm.bmWidth));
    auto handle = static_cast<HBITMAP>(result.bitmap->GetSafeHandle());
    if (GetDIBits(nullptr, handle, 0, 1, row.data(), &info, DIB_RGB_COLORS) != 1) std::abort();
    return 0;
}
