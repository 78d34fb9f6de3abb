#pragma once
// A memory context with a bitmap of known size, as the reference probes draw on, and ways to
// read back what was drawn.

#include "platform/gdi/Gdi.h"

#include <string>
#include <vector>

constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);
constexpr COLORREF Red = RGB(255, 0, 0);

class TestCanvas {
public:
    explicit TestCanvas(int width = 16, int height = 12);
    ~TestCanvas();
    TestCanvas(const TestCanvas&) = delete;
    TestCanvas& operator=(const TestCanvas&) = delete;

    HDC Dc() const { return dc_; }
    HBITMAP Bitmap() const { return bitmap_; }
    int Width() const { return width_; }
    int Height() const { return height_; }

    void Clear(COLORREF color = White);
    // Read from the bitmap, not through the context: clip and origin play no part.
    COLORREF At(int x, int y) const;
    // One string per row: '.' white, '#' black, 'b' blue, 'r' red, 'g' green, '?' other.
    std::vector<std::string> Rows() const;
    // The bounding box of the pixels that are not `background`; empty when there are none.
    RECT InkBounds(COLORREF background = White) const;
    int CountNot(COLORREF color) const;

private:
    std::vector<DWORD> Pixels() const;

    int width_, height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ oldBitmap_;
};

// Turns a picture in the legend above into rows, for comparing with Rows().
std::vector<std::string> Picture(std::initializer_list<const char*> rows);
