#pragma once
// Reading of uncompressed Windows BMP files into bitmaps for cells. The layout taken is the
// classic one: the 14-byte file header, the 40-byte info header, for depths below 16 bits the
// full colour table of that depth right behind it, and the pixels from the header's offset to
// the file size that the header states. Any file whose numbers don't fit that layout, or the
// bytes at hand, is refused with a message that names the fault; nothing past the end of the
// data is ever read.

#include "platform/afx/CBitmap.h"

#include <cstddef>
#include <memory>
#include <string>

struct BmpResult {
    // Null exactly when `error` says why.
    std::unique_ptr<CBitmap> bitmap;
    std::string error;
};

// Files larger than this are refused before they are read.
inline constexpr std::size_t MaxBmpFileSize = std::size_t{64} << 20;
// The widest and highest bitmap a file may describe.
inline constexpr long MaxBmpSide = 16384;

BmpResult ReadBmpFile(const std::string& path);
BmpResult ReadBmpBytes(const unsigned char* data, std::size_t size);
