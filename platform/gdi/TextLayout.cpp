#include "platform/gdi/TextLayout.h"

#include <algorithm>

namespace gdi {

namespace {

bool IsBreak(unsigned char c) {
    return c == ' ' || c == '\t';
}

} // namespace

TextLayout::TextLayout(const RealizedFont& font, const char* text, int count, UINT format,
                       int maxWidth)
    : font_(font), format_(format), maxWidth_(maxWidth),
      tabWidth_(std::max(1, 8 * font.Metrics().tmAveCharWidth)) {
    // Resolve prefixes first: "&x" underlines x, "&&" is a plain '&'. The first prefixed
    // character is the one underlined.
    std::vector<Char> chars;
    chars.reserve(static_cast<size_t>(count));
    bool underlineTaken = false;
    for (int i = 0; i < count; ++i) {
        auto c = static_cast<unsigned char>(text[i]);
        if (c == '&' && !(format & DT_NOPREFIX)) {
            if (++i == count) break;
            c = static_cast<unsigned char>(text[i]);
            bool underline = c != '&' && !underlineTaken;
            underlineTaken = underlineTaken || underline;
            chars.push_back(Char{c, underline});
            continue;
        }
        chars.push_back(Char{c, false});
    }
    if (format & DT_SINGLELINE) {
        AddParagraph(chars, 0, chars.size());
        return;
    }
    size_t begin = 0;
    for (size_t i = 0; i <= chars.size(); ++i) {
        if (i < chars.size() && chars[i].c != '\n' && chars[i].c != '\r') continue;
        AddParagraph(chars, begin, i);
        if (i + 1 < chars.size() && chars[i].c == '\r' && chars[i + 1].c == '\n') ++i;
        begin = i + 1;
    }
}

int TextLayout::Width() const {
    int width = 0;
    for (const Line& line : lines_) width = std::max(width, line.width);
    return width;
}

void TextLayout::AddParagraph(const std::vector<Char>& chars, size_t begin, size_t end) {
    bool wrap = (format_ & DT_WORDBREAK) && !(format_ & DT_SINGLELINE);
    if (!wrap) {
        lines_.push_back(MakeLine(chars, begin, end));
        if (format_ & DT_END_ELLIPSIS) AddEllipsis(lines_.back());
        return;
    }
    do {
        auto [lineEnd, next] = Fit(chars, begin, end);
        lines_.push_back(MakeLine(chars, begin, lineEnd));
        begin = next;
    } while (begin < end);
}

std::pair<size_t, size_t> TextLayout::Fit(const std::vector<Char>& chars, size_t begin,
                                          size_t end) const {
    int x = 0;
    size_t lastBreak = begin; // end of the last word that fitted
    for (size_t i = begin; i < end; ++i) {
        unsigned char c = chars[i].c;
        if (IsBreak(c)) {
            if (i > begin && !IsBreak(chars[i - 1].c)) lastBreak = i;
        }
        x += c == '\t' && (format_ & DT_EXPANDTABS) ? tabWidth_ - x % tabWidth_ : font_.Advance(c);
        if (x > maxWidth_ && !IsBreak(c) && lastBreak > begin) {
            size_t next = lastBreak;
            while (next < end && IsBreak(chars[next].c)) ++next;
            return {lastBreak, next};
        }
    }
    return {end, end};
}

TextLayout::Line TextLayout::MakeLine(const std::vector<Char>& chars, size_t begin,
                                      size_t end) const {
    Line line;
    for (size_t i = begin; i < end; ++i) {
        unsigned char c = chars[i].c;
        int advance = font_.Advance(c);
        if (c == '\t' && (format_ & DT_EXPANDTABS)) {
            advance = tabWidth_ - line.width % tabWidth_;
            c = ' ';
        }
        if (chars[i].underlined) line.prefixUnderline = static_cast<int>(line.text.size());
        line.text.push_back(static_cast<char>(c));
        line.advances.push_back(advance);
        line.width += advance;
    }
    return line;
}

void TextLayout::AddEllipsis(Line& line) const {
    if (line.width <= maxWidth_) return;
    int dots = 3 * font_.Advance('.');
    while (!line.text.empty() && line.width + dots > maxWidth_) {
        line.width -= line.advances.back();
        line.advances.pop_back();
        line.text.pop_back();
    }
    if (line.prefixUnderline >= static_cast<int>(line.text.size())) line.prefixUnderline = -1;
    line.text += "...";
    line.advances.insert(line.advances.end(), 3, font_.Advance('.'));
    line.width += dots;
}

} // namespace gdi
