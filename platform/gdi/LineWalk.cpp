#include "platform/gdi/LineWalk.h"

#include "platform/gdi/Gdi.h"

#include <algorithm>
#include <cstdlib>

namespace gdi {

void WalkLine(POINT from, POINT to, std::vector<POINT>& pixels) {
    int dx = std::abs(to.x - from.x), dy = std::abs(to.y - from.y);
    int sx = to.x > from.x ? 1 : -1, sy = to.y > from.y ? 1 : -1;
    int steps = std::max(dx, dy);
    pixels.reserve(pixels.size() + steps);
    int x = from.x, y = from.y;
    if (dx >= dy) {
        int error = dx / 2;
        for (int i = 0; i < steps; ++i) {
            pixels.push_back(POINT{x, y});
            x += sx;
            error -= dy;
            if (error < 0) y += sy, error += dx;
        }
    } else {
        int error = dy / 2;
        for (int i = 0; i < steps; ++i) {
            pixels.push_back(POINT{x, y});
            y += sy;
            error -= dx;
            if (error < 0) x += sx, error += dy;
        }
    }
}

void SplitByStyle(std::span<const POINT> pixels, int style, std::vector<POINT>& on,
                  std::vector<POINT>& gaps) {
    // Dash and gap lengths of the cosmetic styles, in pixels.
    static const int Dash[] = {18, 6}, Dot[] = {3, 3}, DashDot[] = {9, 6, 3, 6};
    std::span<const int> pattern;
    switch (style) {
    case PS_DASH: pattern = Dash; break;
    case PS_DOT: pattern = Dot; break;
    case PS_DASHDOT: pattern = DashDot; break;
    default: on.insert(on.end(), pixels.begin(), pixels.end()); return;
    }
    size_t part = 0;
    int left = pattern[0];
    for (const POINT& p : pixels) {
        (part % 2 == 0 ? on : gaps).push_back(p);
        if (--left == 0) {
            part = (part + 1) % pattern.size();
            left = pattern[part];
        }
    }
}

std::vector<RECT> PixelsToRects(std::span<const POINT> pixels) {
    std::vector<POINT> sorted(pixels.begin(), pixels.end());
    std::sort(sorted.begin(), sorted.end(),
              [](const POINT& a, const POINT& b) { return a.y != b.y ? a.y < b.y : a.x < b.x; });
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());

    std::vector<RECT> spans;
    for (const POINT& p : sorted) {
        if (!spans.empty() && spans.back().top == p.y && spans.back().right == p.x)
            ++spans.back().right;
        else
            spans.push_back(RECT{p.x, p.y, p.x + 1, p.y + 1});
    }
    // A vertical line is one span per row; stack equal spans of consecutive rows.
    std::sort(spans.begin(), spans.end(), [](const RECT& a, const RECT& b) {
        return a.left != b.left     ? a.left < b.left
               : a.right != b.right ? a.right < b.right
                                    : a.top < b.top;
    });
    std::vector<RECT> rects;
    for (const RECT& s : spans) {
        RECT* last = rects.empty() ? nullptr : &rects.back();
        if (last && last->left == s.left && last->right == s.right && last->bottom == s.top)
            last->bottom = s.bottom;
        else
            rects.push_back(s);
    }
    return rects;
}

} // namespace gdi
