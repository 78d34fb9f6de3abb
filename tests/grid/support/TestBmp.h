#pragma once
// BMP files made for the tests: a picture of 0xRRGGBB pixels, rows from the top, encoded at
// any depth the reader takes, and read back from a bitmap the same way.

#include "platform/gdi/Gdi.h"

#include <cstddef>
#include <cstdint>
#include <vector>

struct TestPicture {
    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};

// Depths below 16 get a palette of the picture's colours and the full table of the depth.
std::vector<unsigned char> EncodeBmp(const TestPicture& picture, int bitCount, bool topDown);
std::vector<std::uint32_t> ReadPixels(HBITMAP bitmap, int width, int height);

void PutWord(std::vector<unsigned char>& bytes, std::size_t at, std::uint16_t value);
void PutDword(std::vector<unsigned char>& bytes, std::size_t at, std::uint32_t value);
