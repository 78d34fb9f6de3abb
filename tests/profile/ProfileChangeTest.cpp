// SetValue: where a change lands, and when the model turns dirty.

#include "tests/profile/ProfileProbe.h"
#include "tests/profile/TempFolder.h"

#include <gtest/gtest.h>

namespace {

struct ChangeCase {
    const char* name;
    std::string text;
    std::string section;
    std::string key;
    std::string value;
    int ignoreCase;
    bool dirty;
    std::string model;
};

void PrintTo(const ChangeCase& c, std::ostream* out) {
    *out << c.name;
}

class ProfileChange : public testing::TestWithParam<ChangeCase> {};

TEST_P(ProfileChange, SetValue) {
    const ChangeCase& c = GetParam();
    TempFolder folder;
    folder.Write("t.tab", c.text);
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, c.ignoreCase, 0));
    profile.SetValue(c.section, c.key, c.value);
    EXPECT_EQ(profile.Dirty(), c.dirty);
    EXPECT_EQ(profile.Dump(), c.model);
}

const ChangeCase changeCases[] = {
    {"NewSectionGoesLast", "[a]\nk=v\n", "b", "k", "1", 1, true, "[ ]\n[a]\nk|v\n[b]\nk|1\n"},
    {"NewKeyGoesLast", "[a]\nk=v\n[b]\n", "a", "n", "1", 1, true, "[ ]\n[a]\nk|v\nn|1\n[b]\n"},
    {"SameValueStaysClean", "[a]\nk=v\n", "a", "k", "v", 1, false, "[ ]\n[a]\nk|v\n"},
    {"OtherValue", "[a]\nk=v\n", "a", "k", "w", 1, true, "[ ]\n[a]\nk|w\n"},
    {"CaseOnlyIsStoredButClean", "[a]\nk=v\n", "A", "K", "V", 1, false, "[ ]\n[a]\nk|V\n"},
    {"CaseOnlyCountsWithoutIgnore", "[a]\nk=v\n", "a", "k", "V", 0, true, "[ ]\n[a]\nk|V\n"},
    {"CaseOfSectionCountsWithoutIgnore", "[a]\nk=v\n", "A", "k", "v", 0, true,
     "[ ]\n[a]\nk|v\n[A]\nk|v\n"},
    {"CommentIsReplacedToo", "[a]\nk=1 ; c\n", "a", "k", "1", 1, true, "[ ]\n[a]\nk|1\n"},
    {"LastOfRepeatedKeys", "[a]\nx=1\nx=2\n", "a", "x", "3", 1, true, "[ ]\n[a]\nx|1\nx|3\n"},
    {"FirstOfRepeatedSections", "[a]\n[a]\nx=1\n", "a", "x", "2", 1, true,
     "[ ]\n[a]\nx|2\n[a]\nx|1\n"},
    {"SectionZero", "[a]\n", " ", "k", "v", 1, true, "[ ]\nk|v\n[a]\n"},
};

INSTANTIATE_TEST_SUITE_P(Files, ProfileChange, testing::ValuesIn(changeCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ProfileDirty, StaysUntilCloseProfile) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    profile.SetValue("a", "k", "w");
    profile.SetValue("a", "k", "v");
    EXPECT_TRUE(profile.Dirty());
    profile.Save(0);
    EXPECT_TRUE(profile.Dirty());
    profile.CloseProfile();
    EXPECT_FALSE(profile.Dirty());
}

TEST(ProfileDirty, AfterCloseProfileTheFirstSectionIsARealOne) {
    TempFolder folder;
    folder.Write("t.tab", "old=1\n");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    profile.CloseProfile();
    profile.SetValue("A", "Type", "T1");
    EXPECT_EQ(profile.Dump(), "[A]\nType|T1\n");
    EXPECT_EQ(profile.FindSection(" "), -1);
}

} // namespace
