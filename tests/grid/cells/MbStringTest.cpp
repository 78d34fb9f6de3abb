#include "platform/base/MbString.h"

#include <gtest/gtest.h>
#include <string>

namespace {

int Sign(int v) {
    return (v > 0) - (v < 0);
}

TEST(MbString, Comparisons) {
    const struct {
        const char *a, *b;
        int exact, ignoringCase;
    } cases[] = {
        {"abc", "abc", 0, 0},   {"abc", "ABC", 1, 0},
        {"ab", "abc", -1, -1},  {"\xE9t\xE9", "\xC9T\xC9", 1, 0}, // accented letters fold
        {"\xFF", "\x9F", 1, 0}, {"\x9A\x9C\x9E", "\x8A\x8C\x8E", 1, 0},
        {"\xDF", "SS", 1, 1},   {"_", "A", 1, -1}, // folding goes to lower case
        {"\xE0", "b", 1, 1},    {"", "", 0, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Sign(_mbscmp(c.a, c.b)), c.exact) << c.a << " " << c.b;
        EXPECT_EQ(Sign(_mbsicmp(c.a, c.b)), c.ignoringCase) << c.a << " " << c.b;
        EXPECT_EQ(Sign(_mbsicmp(c.b, c.a)), -c.ignoringCase) << c.a << " " << c.b;
    }
    EXPECT_EQ(_mbscmp(nullptr, "a"), _NLSCMPERROR);
    EXPECT_EQ(_mbsicmp("a", nullptr), _NLSCMPERROR);
}

TEST(MbString, CaseConversionCoversTheCodePage) {
    std::string lower = "abz \xE0\xE9\xFE\xFF\x9A\x9C\x9E \xDF\xB5\xF7";
    std::string upper = "ABZ \xC0\xC9\xDE\x9F\x8A\x8C\x8E \xDF\xB5\xF7";
    std::string s = lower;
    EXPECT_EQ(_mbsupr(s.data()), s.data());
    EXPECT_EQ(s, upper);
    _mbslwr(s.data());
    EXPECT_EQ(s, lower);
    EXPECT_EQ(_mbctoupper(0xD7), 0xD7u);
    EXPECT_EQ(_mbctolower(0x1234), 0x1234u);
}

TEST(MbString, Searches) {
    const char* s = "a.b=c.d";
    EXPECT_EQ(_mbsstr(s, "="), s + 3);
    EXPECT_EQ(_mbsstr(s, ""), s);
    EXPECT_EQ(_mbsstr(s, "x"), nullptr);
    EXPECT_EQ(_mbsrchr(s, '.'), s + 5);
    EXPECT_EQ(_mbsrchr(s, 0), s + 7);
    EXPECT_EQ(_mbsrchr(s, 0x12E), nullptr);
    EXPECT_EQ(_mbsstr(static_cast<const char*>(nullptr), "a"), nullptr);
}

TEST(MbString, SpacesAreTheAsciiOnes) {
    for (unsigned c = 0; c < 256; ++c)
        EXPECT_EQ(_ismbcspace(c) != 0, c == ' ' || (c >= 9 && c <= 13)) << c;
}

} // namespace
