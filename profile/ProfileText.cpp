#include "profile/ProfileText.h"

#include <algorithm>

bool ProfileText::IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view ProfileText::TrimRight(std::string_view text) {
    while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
    return text;
}

int ProfileText::Compare(std::string_view a, std::string_view b) {
    int order = a.compare(b);
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

unsigned char ProfileText::ToLower(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 0x20);
    // Latin capitals with their small letters 0x20 above, except the multiplication sign.
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 0x20);
    switch (c) {
    case 0x8A: return 0x9A; // S with caron
    case 0x8C: return 0x9C; // OE ligature
    case 0x8E: return 0x9E; // Z with caron
    case 0x9F: return 0xFF; // Y with diaeresis
    default: return c;
    }
}

int ProfileText::CompareNoCase(std::string_view a, std::string_view b) {
    size_t common = std::min(a.size(), b.size());
    for (size_t i = 0; i < common; ++i) {
        int la = ToLower(static_cast<unsigned char>(a[i]));
        int lb = ToLower(static_cast<unsigned char>(b[i]));
        if (la != lb) return la < lb ? -1 : 1;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}
