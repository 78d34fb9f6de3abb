#include "TestBmp.h"

#include <algorithm>

void PutWord(std::vector<unsigned char>& bytes, std::size_t at, std::uint16_t value) {
    bytes[at] = value & 0xFF;
    bytes[at + 1] = value >> 8;
}

void PutDword(std::vector<unsigned char>& bytes, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) bytes[at + i] = (value >> (8 * i)) & 0xFF;
}

std::vector<unsigned char> EncodeBmp(const TestPicture& picture, int bitCount, bool topDown) {
    std::vector<std::uint32_t> palette;
    if (bitCount < 16)
        for (std::uint32_t p : picture.pixels)
            if (std::find(palette.begin(), palette.end(), p) == palette.end()) palette.push_back(p);
    std::size_t table = bitCount < 16 ? std::size_t{4} << bitCount : 0;
    std::size_t stride = (static_cast<std::size_t>(picture.width) * bitCount + 31) / 32 * 4;
    std::size_t offset = 54 + table;
    std::vector<unsigned char> out(offset + stride * picture.height);

    out[0] = 'B';
    out[1] = 'M';
    PutDword(out, 2, static_cast<std::uint32_t>(out.size()));
    PutDword(out, 10, static_cast<std::uint32_t>(offset));
    PutDword(out, 14, 40);
    PutDword(out, 18, static_cast<std::uint32_t>(picture.width));
    PutDword(out, 22, static_cast<std::uint32_t>(topDown ? -picture.height : picture.height));
    PutWord(out, 26, 1);
    PutWord(out, 28, static_cast<std::uint16_t>(bitCount));
    for (std::size_t i = 0; i < palette.size(); ++i) PutDword(out, 54 + 4 * i, palette[i]);

    for (int y = 0; y < picture.height; ++y) {
        int fileRow = topDown ? y : picture.height - 1 - y;
        unsigned char* row = out.data() + offset + stride * fileRow;
        for (int x = 0; x < picture.width; ++x) {
            std::uint32_t p = picture.pixels[static_cast<std::size_t>(y) * picture.width + x];
            unsigned index = static_cast<unsigned>(std::find(palette.begin(), palette.end(), p) -
                                                   palette.begin());
            switch (bitCount) {
            case 1: row[x / 8] |= index << (7 - x % 8); break;
            case 4: row[x / 2] |= index << (x % 2 ? 0 : 4); break;
            case 8: row[x] = static_cast<unsigned char>(index); break;
            case 16: {
                unsigned v = ((p >> 19 & 31) << 10) | ((p >> 11 & 31) << 5) | (p >> 3 & 31);
                row[2 * x] = v & 0xFF;
                row[2 * x + 1] = static_cast<unsigned char>(v >> 8);
                break;
            }
            default:
                for (int c = 0; c < bitCount / 8 && c < 3; ++c)
                    row[x * bitCount / 8 + c] = (p >> (8 * c)) & 0xFF;
            }
        }
    }
    return out;
}

std::vector<std::uint32_t> ReadPixels(HBITMAP bitmap, int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
    GetDIBits(nullptr, bitmap, 0, height, pixels.data(), &info, DIB_RGB_COLORS);
    return pixels;
}
