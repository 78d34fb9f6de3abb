#include "tests/platform/gdi/TestCanvas.h"

#include <algorithm>

TestCanvas::TestCanvas(int width, int height)
    : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)),
      bitmap_(CreateCompatibleBitmap(dc_, width, height)), oldBitmap_(SelectObject(dc_, bitmap_)) {
    Clear();
}

TestCanvas::~TestCanvas() {
    SelectObject(dc_, oldBitmap_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
}

void TestCanvas::Clear(COLORREF color) {
    HBRUSH brush = CreateSolidBrush(color);
    int saved = SaveDC(dc_);
    SelectClipRgn(dc_, nullptr);
    SetViewportOrgEx(dc_, 0, 0, nullptr);
    RECT all{0, 0, width_, height_};
    FillRect(dc_, &all, brush);
    RestoreDC(dc_, saved);
    DeleteObject(brush);
}

std::vector<DWORD> TestCanvas::Pixels() const {
    BITMAPINFO info;
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<DWORD> pixels(static_cast<size_t>(width_) * height_);
    GetDIBits(dc_, bitmap_, 0, height_, pixels.data(), &info, DIB_RGB_COLORS);
    return pixels;
}

COLORREF TestCanvas::At(int x, int y) const {
    DWORD p = Pixels()[static_cast<size_t>(y) * width_ + x];
    return RGB(static_cast<BYTE>(p >> 16), static_cast<BYTE>(p >> 8), static_cast<BYTE>(p));
}

std::vector<std::string> TestCanvas::Rows() const {
    std::vector<DWORD> pixels = Pixels();
    std::vector<std::string> rows;
    for (int y = 0; y < height_; ++y) {
        std::string row;
        for (int x = 0; x < width_; ++x) {
            DWORD p = pixels[static_cast<size_t>(y) * width_ + x];
            row += p == 0xFFFFFF   ? '.'
                   : p == 0        ? '#'
                   : p == 0x0000FF ? 'b'
                   : p == 0xFF0000 ? 'r'
                   : p == 0x00FF00 ? 'g'
                                   : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

RECT TestCanvas::InkBounds(COLORREF background) const {
    std::vector<DWORD> pixels = Pixels();
    DWORD bg = (GetRValue(background) << 16) | (GetGValue(background) << 8) | GetBValue(background);
    RECT box{width_, height_, 0, 0};
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x)
            if (pixels[static_cast<size_t>(y) * width_ + x] != bg) {
                box.left = std::min<LONG>(box.left, x);
                box.top = std::min<LONG>(box.top, y);
                box.right = std::max<LONG>(box.right, x + 1);
                box.bottom = std::max<LONG>(box.bottom, y + 1);
            }
    return box.right == 0 ? RECT{} : box;
}

int TestCanvas::CountNot(COLORREF color) const {
    DWORD c = (GetRValue(color) << 16) | (GetGValue(color) << 8) | GetBValue(color);
    int n = 0;
    for (DWORD p : Pixels()) n += p != c;
    return n;
}

std::vector<std::string> Picture(std::initializer_list<const char*> rows) {
    return std::vector<std::string>(rows.begin(), rows.end());
}
