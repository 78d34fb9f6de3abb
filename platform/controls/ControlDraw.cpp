#include "platform/controls/ControlDraw.h"

#include <algorithm>

namespace plat {

void FillSysColor(HDC dc, const RECT& r, int sysColor) {
    FillRect(dc, &r, GetSysColorBrush(sysColor));
}

void FillChecked(HDC dc, const RECT& r, int sysColorA, int sysColorB) {
    BYTE bits[8 * 8 * 4];
    for (int i = 0; i < 64; ++i) {
        COLORREF c = GetSysColor((i / 8 + i % 8) % 2 ? sysColorB : sysColorA);
        bits[i * 4] = GetBValue(c);
        bits[i * 4 + 1] = GetGValue(c);
        bits[i * 4 + 2] = GetRValue(c);
        bits[i * 4 + 3] = 0;
    }
    HBITMAP pattern = CreateBitmap(8, 8, 1, 32, bits);
    HBRUSH brush = CreatePatternBrush(pattern);
    FillRect(dc, &r, brush);
    DeleteObject(brush);
    DeleteObject(pattern);
}

void DrawRing(HDC dc, RECT& r, int topLeft, int bottomRight) {
    if (r.right - r.left < 1 || r.bottom - r.top < 1) return;
    FillSysColor(dc, RECT{r.left, r.top, r.right - 1, r.top + 1}, topLeft);
    FillSysColor(dc, RECT{r.left, r.top + 1, r.left + 1, r.bottom - 1}, topLeft);
    FillSysColor(dc, RECT{r.right - 1, r.top, r.right, r.bottom}, bottomRight);
    FillSysColor(dc, RECT{r.left, r.bottom - 1, r.right - 1, r.bottom}, bottomRight);
    InflateRect(&r, -1, -1);
}

void DrawRaisedEdge(HDC dc, RECT& r) {
    DrawRing(dc, r, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW);
    DrawRing(dc, r, COLOR_3DLIGHT, COLOR_BTNSHADOW);
}

void DrawSunkenEdge(HDC dc, RECT& r) {
    DrawRing(dc, r, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
    DrawRing(dc, r, COLOR_3DDKSHADOW, COLOR_3DLIGHT);
}

void DrawArrow(HDC dc, const RECT& r, ArrowDirection direction, int sysColor) {
    bool vertical = direction == ArrowDirection::Up || direction == ArrowDirection::Down;
    int across = vertical ? r.right - r.left : r.bottom - r.top;
    int along = vertical ? r.bottom - r.top : r.right - r.left;
    // Rows of 1, 3, 5, ... pixels: four rows in a box of 16 pixels.
    int depth = std::max(1, std::min(across / 4, along / 2));
    int cx = (r.left + r.right - 1) / 2, cy = (r.top + r.bottom - 1) / 2;
    bool tipFirst = direction == ArrowDirection::Up || direction == ArrowDirection::Left;
    int start = (vertical ? cy : cx) - depth / 2;
    // Row k from the tip holds 2k + 1 pixels.
    for (int k = 0; k < depth; ++k) {
        int at = start + (tipFirst ? k : depth - 1 - k);
        RECT row =
            vertical ? RECT{cx - k, at, cx + k + 1, at + 1} : RECT{at, cy - k, at + 1, cy + k + 1};
        FillSysColor(dc, row, sysColor);
    }
}

void DrawEmbossedText(HDC dc, std::string_view text, RECT r, UINT format) {
    int mode = SetBkMode(dc, TRANSPARENT);
    COLORREF old = SetTextColor(dc, GetSysColor(COLOR_BTNHIGHLIGHT));
    RECT shadow = r;
    OffsetRect(&shadow, 1, 1);
    DrawText(dc, text.data(), static_cast<int>(text.size()), &shadow, format);
    SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    DrawText(dc, text.data(), static_cast<int>(text.size()), &r, format);
    SetTextColor(dc, old);
    SetBkMode(dc, mode);
}

} // namespace plat
