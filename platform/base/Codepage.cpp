#include "platform/base/Codepage.h"

#include <array>

namespace {

// 0x80..0x9F of code page 1252; zero where the code page has no character.
constexpr char32_t high[32] = {
    0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
    0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

}  // namespace

char32_t Cp1252ToCodePoint(unsigned char c) {
    if (c >= 0x80 && c < 0xA0) return high[c - 0x80] ? high[c - 0x80] : c;
    return c;
}

std::string_view Cp1252ByteToUtf8(unsigned char c) {
    static const auto table = [] {
        std::array<std::string, 256> t;
        for (int b = 0; b < 256; ++b) AppendUtf8(t[static_cast<size_t>(b)], Cp1252ToCodePoint(static_cast<unsigned char>(b)));
        return t;
    }();
    return table[c];
}

std::string Cp1252ToUtf8(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (unsigned char c : text) out += Cp1252ByteToUtf8(c);
    return out;
}

std::string Utf8ToCp1252(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size();) {
        auto c = static_cast<unsigned char>(text[i]);
        char32_t cp = c;
        size_t len = c < 0x80 ? 1 : (c >> 5) == 6 ? 2 : (c >> 4) == 14 ? 3 : (c >> 3) == 30 ? 4 : 1;
        if (len > 1 && i + len <= text.size()) {
            cp = c & (0xFF >> (len + 1));
            for (size_t k = 1; k < len; ++k) cp = (cp << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        }
        i += len;
        char mapped = '?';
        if (cp < 0x80 || (cp >= 0xA0 && cp < 0x100)) mapped = static_cast<char>(cp);
        for (int k = 0; k < 32; ++k)
            if (high[k] && high[k] == cp) mapped = static_cast<char>(0x80 + k);
        out += mapped;
    }
    return out;
}
