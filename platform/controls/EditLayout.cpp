#include "platform/controls/EditLayout.h"

#include <algorithm>
#include <cstdlib>

namespace plat {

void EditLayout::Build(HDC dc, std::string_view newText, bool multiLine, int wrapWidth) {
    text = newText;
    lines.clear();
    if (!multiLine) {
        lines.push_back(Line{0, text.size()});
        return;
    }
    size_t start = 0;
    for (;;) {
        size_t lf = text.find('\n', start);
        size_t end = lf == std::string::npos ? text.size() : lf;
        if (end > start && text[end - 1] == '\r' && lf != std::string::npos) --end;
        if (wrapWidth > 0)
            Wrap(dc, start, end, wrapWidth);
        else
            lines.push_back(Line{start, end - start});
        if (lf == std::string::npos) break;
        start = lf + 1;
    }
}

void EditLayout::Wrap(HDC dc, size_t start, size_t end, int width) {
    while (Measure(dc, start, end) > width) {
        // The first character that no longer fits.
        size_t lo = start + 1, hi = end;
        while (lo < hi) {
            size_t mid = (lo + hi + 1) / 2;
            if (Measure(dc, start, mid) <= width)
                lo = mid;
            else
                hi = mid - 1;
        }
        size_t fits = Measure(dc, start, lo) <= width ? lo : start;
        // Break after the last blank at or before that character; blanks may hang past the edge.
        size_t cut = fits;
        while (cut > start && text[cut] != ' ') --cut;
        if (text[cut] == ' ') {
            ++cut;
            while (cut < end && text[cut] == ' ') ++cut;
        } else {
            cut = std::max(fits, start + 1);
        }
        if (cut >= end) break;
        lines.push_back(Line{start, cut - start});
        start = cut;
    }
    lines.push_back(Line{start, end - start});
}

int EditLayout::Measure(HDC dc, size_t from, size_t to) const {
    if (to <= from) return 0;
    SIZE size;
    GetTextExtentPoint32(dc, text.data() + from, static_cast<int>(to - from), &size);
    return size.cx;
}

int EditLayout::LineOf(size_t pos) const {
    auto it = std::upper_bound(lines.begin(), lines.end(), pos,
                               [](size_t p, const Line& line) { return p < line.start; });
    return std::max(0, static_cast<int>(it - lines.begin()) - 1);
}

int EditLayout::X(HDC dc, size_t pos) const {
    const Line& line = At(LineOf(pos));
    return Measure(dc, line.start, std::min(pos, line.start + line.length));
}

int EditLayout::Width(HDC dc, int line) const {
    return Measure(dc, At(line).start, At(line).start + At(line).length);
}

size_t EditLayout::PlaceAt(HDC dc, int index, int x) const {
    const Line& line = At(std::clamp(index, 0, Count() - 1));
    size_t lo = line.start, hi = line.start + line.length;
    // The last place at or left of x, then whichever of it and the next is nearer.
    while (lo < hi) {
        size_t mid = (lo + hi + 1) / 2;
        if (Measure(dc, line.start, mid) <= x)
            lo = mid;
        else
            hi = mid - 1;
    }
    if (lo < line.start + line.length) {
        int left = Measure(dc, line.start, lo), right = Measure(dc, line.start, lo + 1);
        if (std::abs(right - x) < std::abs(x - left)) ++lo;
    }
    return lo;
}

} // namespace plat
