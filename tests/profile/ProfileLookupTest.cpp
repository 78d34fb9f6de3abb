// Lookups: which section and key answer, comments, case, and the lists of names.

#include "tests/profile/ProfileProbe.h"
#include "tests/profile/TempFolder.h"

#include <gtest/gtest.h>

namespace {

struct LookupCase {
    const char* name;
    std::string text;
    int ignoreCase;
    std::string section;
    std::string key;
    std::string expected;
};

void PrintTo(const LookupCase& c, std::ostream* out) {
    *out << c.name;
}

class ProfileLookup : public testing::TestWithParam<LookupCase> {};

TEST_P(ProfileLookup, GetValue) {
    const LookupCase& c = GetParam();
    TempFolder folder;
    folder.Write("t.tab", c.text);
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, c.ignoreCase, 0));
    EXPECT_EQ(profile.GetValue(c.section, c.key, "<default>"), c.expected);
}

const LookupCase lookupCases[] = {
    {"Plain", "[a]\nk=v\n", 1, "a", "k", "v"},
    {"UnknownSection", "[a]\nk=v\n", 1, "b", "k", "<default>"},
    {"UnknownKey", "[a]\nk=v\n", 1, "a", "x", "<default>"},
    {"KeyOfAnotherSection", "[a]\nk=v\n[b]\n", 1, "b", "k", "<default>"},
    {"SectionZeroByItsBlankName", "first=1\n[a]\n", 1, " ", "first", "1"},
    {"CommentCutAtTheLastSemicolon", "[a]\nv=12 ; note ; more\n", 1, "a", "v", "12 ; note "},
    {"OnlyAComment", "[a]\nv=;x\n", 1, "a", "v", ""},
    {"EmptyValue", "[a]\nv\n", 1, "a", "v", ""},
    {"LastOfRepeatedKeys", "[a]\nx=1\nx=2\n", 1, "a", "x", "2"},
    {"FirstOfRepeatedSections", "[a]\nx=1\n[a]\nx=2\ny=3\n", 1, "a", "x", "1"},
    {"KeysOfALaterRepeatAreUnseen", "[a]\nx=1\n[a]\ny=3\n", 1, "a", "y", "<default>"},
    {"IgnoreCase", "[section]\nkey=v\n", 1, "SECTION", "KEY", "v"},
    {"CaseCounts", "[section]\nkey=v\n", 0, "SECTION", "key", "<default>"},
    {"CaseCountsForKeys", "[section]\nkey=v\n", 0, "section", "Key", "<default>"},
    {"ExactCaseWithoutIgnore", "[Sec]\nKey=v\n", 0, "Sec", "Key", "v"},
    {"CodePageLettersFold", "[\xC4rea]\n\xE9t\xE9=1\n\x9A=2\n", 1, "\xE4REA", "\xC9T\xC9", "1"},
    {"CaronLettersFold", "[a]\n\x9A\x9C\x9E\xFF=2\n", 1, "a", "\x8A\x8C\x8E\x9F", "2"},
    {"TimesAndDivideDiffer", "[a]\n\xD7=1\n", 1, "a", "\xF7", "<default>"},
    {"LeadingBlankIsPartOfTheKey", "[a]\n k=v\n", 1, "a", "k", "<default>"},
    {"EmptyKey", "[a]\n=v\n", 1, "a", "", "v"},
    {"IndentedHeaderIsAKeyOfSectionZero", " [a]\n", 1, " ", " [a]", ""},
};

INSTANTIATE_TEST_SUITE_P(Files, ProfileLookup, testing::ValuesIn(lookupCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ProfileLists, SectionNamesInFileOrderWithRepeatsAndSectionZero) {
    TempFolder folder;
    folder.Write("t.tab", "[b]\n[a]\n[B]\n");
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    std::vector<std::string> names{"kept"};
    profile.GetSectionNames(names);
    EXPECT_EQ(names, (std::vector<std::string>{"kept", " ", "b", "a", "B"}));
}

TEST(ProfileLists, KeysOfTheFirstSectionOfThatName) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nx=1\n;c\nx=2\n[A]\ny=1\n");
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    std::vector<std::string> keys;
    profile.GetSectionKeys("A", keys);
    EXPECT_EQ(keys, (std::vector<std::string>{"x", ";c", "x"}));
    profile.GetSectionKeys("none", keys);
    EXPECT_EQ(keys.size(), 3u);
}

TEST(ProfileLists, FindReportsIndexes) {
    TempFolder folder;
    folder.Write("t.tab", "k=0\n[a]\nx=1\ny=2\nx=3\n[a]\n");
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.FindSection(" "), 0);
    EXPECT_EQ(profile.FindSection("a"), 1);
    EXPECT_EQ(profile.FindSection("b"), -1);
    EXPECT_EQ(profile.FindKey(1, "x"), 2);
    EXPECT_EQ(profile.FindKey(1, "k"), -1);
    EXPECT_EQ(profile.FindKey(3, "x"), -1);
    EXPECT_EQ(profile.FindKey(-1, "x"), -1);
}

TEST(ProfileLists, CompareNamesFollowsTheCaseFlag) {
    TempFolder folder;
    folder.Write("t.tab", "");
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.CompareNames("Types", "TYPES"), 0);
    EXPECT_LT(profile.CompareNames("a", "B"), 0);
    EXPECT_GT(profile.CompareNames("ab", "A"), 0);
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 0, 0));
    EXPECT_NE(profile.CompareNames("Types", "TYPES"), 0);
    // Bytes compare unsigned: 0xE9 sorts after every ASCII byte.
    EXPECT_GT(profile.CompareNames("\xE9", "z"), 0);
}

} // namespace
