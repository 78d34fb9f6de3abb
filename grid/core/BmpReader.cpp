#include "grid/core/BmpReader.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

constexpr std::size_t FileHeaderSize = 14;
constexpr std::size_t InfoHeaderSize = 40;
constexpr std::size_t HeadersSize = FileHeaderSize + InfoHeaderSize;

// Little-endian fields at a byte offset; the caller has checked that they lie in the data.
std::uint16_t Word(const unsigned char* p) {
    return static_cast<std::uint16_t>(p[0] | p[1] << 8);
}
std::uint32_t Dword(const unsigned char* p) {
    return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
           static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}
LONG Long(const unsigned char* p) {
    return static_cast<LONG>(Dword(p));
}

BmpResult Refuse(std::string message) {
    return {nullptr, std::move(message)};
}

std::string Num(std::int64_t value) {
    return std::to_string(value);
}

BITMAPINFOHEADER ReadInfoHeader(const unsigned char* p) {
    BITMAPINFOHEADER h;
    h.biSize = Dword(p);
    h.biWidth = Long(p + 4);
    h.biHeight = Long(p + 8);
    h.biPlanes = Word(p + 12);
    h.biBitCount = Word(p + 14);
    h.biCompression = Dword(p + 16);
    h.biSizeImage = Dword(p + 20);
    h.biXPelsPerMeter = Long(p + 24);
    h.biYPelsPerMeter = Long(p + 28);
    h.biClrUsed = Dword(p + 32);
    h.biClrImportant = Dword(p + 36);
    return h;
}

// The header's own numbers, before any of them is used to reach into the data.
std::string CheckInfoHeader(const BITMAPINFOHEADER& h) {
    if (h.biSize != InfoHeaderSize)
        return "unsupported info header of " + Num(h.biSize) +
               " bytes; only the 40-byte header is read";
    if (h.biPlanes != 1) return "the plane count is " + Num(h.biPlanes) + ", not 1";
    switch (h.biBitCount) {
    case 1:
    case 4:
    case 8:
    case 16:
    case 24:
    case 32: break;
    default:
        return "unsupported bit count " + Num(h.biBitCount) + "; 1, 4, 8, 16, 24 or 32 are read";
    }
    if (h.biCompression != BI_RGB)
        return "compressed bitmaps are not supported (compression " + Num(h.biCompression) + ")";
    std::int64_t height = h.biHeight < 0 ? -std::int64_t{h.biHeight} : h.biHeight;
    if (h.biWidth < 1 || h.biWidth > MaxBmpSide)
        return "the width " + Num(h.biWidth) + " lies outside 1 to " + Num(MaxBmpSide);
    if (height < 1 || height > MaxBmpSide)
        return "the height " + Num(h.biHeight) + " lies outside 1 to " + Num(MaxBmpSide) +
               " (negative for top-down rows)";
    if (h.biBitCount < 16 && h.biClrUsed > (1u << h.biBitCount))
        return Num(h.biClrUsed) + " colours used exceed the " + Num(1 << h.biBitCount) +
               " of the depth";
    return {};
}

} // namespace

BmpResult ReadBmpBytes(const unsigned char* data, std::size_t size) {
    if (size < FileHeaderSize)
        return Refuse("the file header is cut short: " + Num(size) + " of 14 bytes");
    if (data[0] != 'B' || data[1] != 'M')
        return Refuse("not a BMP file: it doesn't begin with \"BM\"");
    std::uint32_t fileSize = Dword(data + 2);
    std::uint32_t bitsOffset = Dword(data + 10);
    if (size < HeadersSize)
        return Refuse("the info header is cut short: " + Num(size - FileHeaderSize) +
                      " of 40 bytes");

    BITMAPINFOHEADER header = ReadInfoHeader(data + FileHeaderSize);
    std::string fault = CheckInfoHeader(header);
    if (!fault.empty()) return Refuse(fault);

    // The full table of the depth, whatever the header says is used: that is where the
    // pixels are expected.
    std::size_t tableSize = header.biBitCount < 16 ? std::size_t{4} << header.biBitCount : 0;
    std::size_t pixelsAt = HeadersSize + tableSize;
    if (size < pixelsAt)
        return Refuse("the colour table runs past the end: it ends at byte " + Num(pixelsAt) +
                      " of " + Num(size));
    if (bitsOffset > size)
        return Refuse("the pixel offset " + Num(bitsOffset) + " lies past the end at " + Num(size));
    if (bitsOffset < pixelsAt)
        return Refuse("the pixel offset " + Num(bitsOffset) +
                      " lies inside the headers and colour table, which end at " + Num(pixelsAt));
    if (bitsOffset > pixelsAt)
        return Refuse("a gap of " + Num(bitsOffset - pixelsAt) +
                      " bytes between the colour table and the pixels is not supported");
    if (fileSize < bitsOffset)
        return Refuse("the stated file size " + Num(fileSize) + " is below the pixel offset " +
                      Num(bitsOffset));
    if (fileSize > size)
        return Refuse("the file holds " + Num(size) + " bytes, fewer than the " + Num(fileSize) +
                      " it states");

    // Width and height are bounded by MaxBmpSide: none of these products overflows.
    std::uint64_t rows = header.biHeight < 0 ? -std::int64_t{header.biHeight} : header.biHeight;
    std::uint64_t rowBits =
        std::uint64_t{static_cast<std::uint32_t>(header.biWidth)} * header.biBitCount;
    std::uint64_t needed = (rowBits + 31) / 32 * 4 * rows;
    std::size_t pixelSize = fileSize - bitsOffset;
    if (pixelSize < needed)
        return Refuse("the pixels are cut short: " + Num(header.biWidth) + " x " +
                      Num(header.biHeight) + " at " + Num(header.biBitCount) + " bits needs " +
                      Num(static_cast<std::int64_t>(needed)) + " bytes, the file has " +
                      Num(pixelSize));

    // The info block (header and colour table) in aligned memory, as the platform reads it
    // by fields.
    std::size_t infoSize = InfoHeaderSize + tableSize;
    std::vector<std::uint32_t> info(infoSize / 4);
    std::memcpy(info.data(), &header, InfoHeaderSize);
    if (tableSize) std::memcpy(info.data() + InfoHeaderSize / 4, data + HeadersSize, tableSize);
    auto* bitmapInfo = reinterpret_cast<const BITMAPINFO*>(info.data());

    HBITMAP handle = CreateDIBitmapSized(&header, CBM_INIT, data + bitsOffset, pixelSize,
                                         bitmapInfo, infoSize, DIB_RGB_COLORS);
    if (!handle)
        return Refuse("the bitmap could not be made (" + Num(header.biWidth) + " x " +
                      Num(header.biHeight) + " at " + Num(header.biBitCount) + " bits)");
    BmpResult result;
    result.bitmap = std::make_unique<CBitmap>();
    result.bitmap->Attach(handle);
    return result;
}

BmpResult ReadBmpFile(const std::string& path) {
    std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file) return Refuse("cannot open " + path + ": " + std::strerror(errno));

    std::vector<unsigned char> data;
    unsigned char chunk[65536];
    while (std::size_t got = std::fread(chunk, 1, sizeof chunk, file.get())) {
        if (data.size() + got > MaxBmpFileSize)
            return Refuse(path + " is larger than " + Num(MaxBmpFileSize >> 20) + " MB");
        data.insert(data.end(), chunk, chunk + got);
    }
    if (std::ferror(file.get())) return Refuse("cannot read " + path);

    BmpResult result = ReadBmpBytes(data.data(), data.size());
    if (!result.bitmap) result.error = path + ": " + result.error;
    return result;
}
