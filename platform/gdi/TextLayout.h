#pragma once
// The lines DrawText draws: the text taken apart at line breaks and, with DT_WORDBREAK, between
// words; '&' prefixes resolved; tabs expanded to stops every eight average characters; each
// character with its advance, so a line draws exactly as wide as it measured.

#include "platform/gdi/RealizedFont.h"

#include <string>
#include <vector>

namespace gdi {

class TextLayout {
public:
    struct Line {
        std::string text;
        std::vector<int> advances;
        int width = 0;
        int prefixUnderline = -1;
    };

    // `maxWidth` is the width to break lines at and to fit an ellipsis into.
    TextLayout(const RealizedFont& font, const char* text, int count, UINT format, int maxWidth);

    const std::vector<Line>& Lines() const { return lines_; }
    int Width() const;

private:
    struct Char {
        unsigned char c;
        bool underlined;
    };
    void AddParagraph(const std::vector<Char>& chars, size_t begin, size_t end);
    // Lays out one line from `begin`; answers where it ends and where the next one starts.
    std::pair<size_t, size_t> Fit(const std::vector<Char>& chars, size_t begin, size_t end) const;
    Line MakeLine(const std::vector<Char>& chars, size_t begin, size_t end) const;
    void AddEllipsis(Line& line) const;

    const RealizedFont& font_;
    UINT format_;
    int maxWidth_;
    int tabWidth_;
    std::vector<Line> lines_;
};

} // namespace gdi
