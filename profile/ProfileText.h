#pragma once
// The byte-string rules of profile files: which bytes are white space and how names compare,
// by the code page's rules (platform/base/MbString.h) but over views that may hold NUL bytes,
// so that a file with them still reads and writes back whole.

#include <string_view>

class ProfileText {
public:
    // As _ismbcspace: blank, tab, line feed, vertical tab, form feed, carriage return.
    static bool IsSpace(char c);
    static std::string_view TrimRight(std::string_view text);
    // As _mbscmp: bytes compared unsigned; negative, 0 or positive.
    static int Compare(std::string_view a, std::string_view b);
    // As _mbsicmp: both sides folded to lower case first, letters of the code page included.
    static int CompareNoCase(std::string_view a, std::string_view b);
    static unsigned char ToLower(unsigned char c);
};
