#include "grid/cells/TextMatcher.h"

#include "platform/base/MbString.h"

TextMatcher::TextMatcher(const std::string& text, int flags)
    : search(text.substr(0, text.find('\0'))), partial(flags & 0x1), ignoreCase(flags & 0x2) {
    if (ignoreCase) _mbsupr(search.data());
    for (unsigned c = 0; c < upper.size(); ++c)
        upper[c] = static_cast<unsigned char>(_mbctoupper(c));
}

bool TextMatcher::Contains(std::string_view text) const {
    const std::size_t n = search.size();
    for (std::size_t start = 0; start + n <= text.size(); ++start) {
        std::size_t i = 0;
        if (ignoreCase)
            while (i < n && Fold(text[start + i]) == search[i]) ++i;
        else
            while (i < n && text[start + i] == search[i]) ++i;
        // The search holds no zero byte, so the first match counts unless the text ends before
        // it.
        if (i == n) return text.substr(0, start).find('\0') == std::string_view::npos;
    }
    return false;
}
