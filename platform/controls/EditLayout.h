#pragma once
// How the text of an edit control falls into lines: at its line breaks ("\r\n", or a lone
// "\n") when it has several lines, and, when a width is given, also between words so that no
// line is wider (a word wider than the line is cut between characters). Widths are measured on
// a context with the control's font selected.

#include "platform/gdi/Gdi.h"

#include <string>
#include <string_view>
#include <vector>

namespace plat {

class EditLayout {
public:
    struct Line {
        size_t start = 0;
        size_t length = 0; // without the line break
    };

    // `wrapWidth` 0 breaks only at line breaks.
    void Build(HDC dc, std::string_view text, bool multiLine, int wrapWidth);

    int Count() const { return static_cast<int>(lines.size()); }
    const Line& At(int line) const { return lines[static_cast<size_t>(line)]; }
    // The line that shows the place `pos`; at a wrap the place belongs to the line below.
    int LineOf(size_t pos) const;
    // Where the place `pos` lies from the start of its line, in pixels.
    int X(HDC dc, size_t pos) const;
    int Width(HDC dc, int line) const;
    // The place on `line` nearest to `x` pixels from the line's start.
    size_t PlaceAt(HDC dc, int line, int x) const;

private:
    int Measure(HDC dc, size_t from, size_t to) const;
    void Wrap(HDC dc, size_t start, size_t end, int width);

    std::string text;
    std::vector<Line> lines;
};

} // namespace plat
