#include "profile/ProfileText.h"

#include <algorithm>

#include "platform/base/MbString.h"

bool ProfileText::IsSpace(char c) { return _ismbcspace(static_cast<unsigned char>(c)) != 0; }

std::string_view ProfileText::TrimRight(std::string_view text) {
    while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
    return text;
}

int ProfileText::Compare(std::string_view a, std::string_view b) {
    int order = a.compare(b);
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

unsigned char ProfileText::ToLower(unsigned char c) { return static_cast<unsigned char>(_mbctolower(c)); }

int ProfileText::CompareNoCase(std::string_view a, std::string_view b) {
    size_t common = std::min(a.size(), b.size());
    for (size_t i = 0; i < common; ++i) {
        int la = ToLower(static_cast<unsigned char>(a[i]));
        int lb = ToLower(static_cast<unsigned char>(b[i]));
        if (la != lb) return la < lb ? -1 : 1;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}
