#pragma once
// The comparison of a search with a cell's text. With flag 0x1 a part of the text is enough,
// else the whole text must match; with flag 0x2 case is ignored, in the code page's folding.
// Texts compare as the runtime library's string functions see them: up to a first zero byte.

#include <array>
#include <string>
#include <string_view>

class TextMatcher {
public:
    TextMatcher(const std::string& search, int flags);

    bool Matches(std::string_view text) const {
        return partial ? Contains(text) : MatchesWhole(text);
    }

private:
    char Fold(char c) const { return static_cast<char>(upper[static_cast<unsigned char>(c)]); }

    bool MatchesWhole(std::string_view text) const {
        const std::size_t n = search.size();
        if (text.size() < n || (text.size() > n && text[n] != '\0')) return false;
        for (std::size_t i = 0; i < n; ++i)
            if ((ignoreCase ? Fold(text[i]) : text[i]) != search[i]) return false;
        return true;
    }
    bool Contains(std::string_view text) const;

    std::string search;
    bool partial;
    bool ignoreCase;
    std::array<unsigned char, 256> upper;
};
