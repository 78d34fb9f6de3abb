// How lines of a file become sections, keys and values.

#include "tests/profile/ProfileProbe.h"
#include "tests/profile/TempFolder.h"

#include <gtest/gtest.h>

namespace {

struct ParseCase {
    const char* name;
    std::string text;
    std::string model;
};

void PrintTo(const ParseCase& c, std::ostream* out) {
    *out << c.name;
}

class ProfileParse : public testing::TestWithParam<ParseCase> {};

TEST_P(ProfileParse, ReadsLinesIntoTheModel) {
    TempFolder folder;
    folder.Write("t.tab", GetParam().text);
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.Dump(), GetParam().model);
    EXPECT_FALSE(profile.Dirty());
}

const ParseCase parseCases[] = {
    {"Empty", "", "[ ]\n"},
    {"KeysBeforeTheFirstHeaderGoToSectionZero", "a=1\n[s]\nb=2\n", "[ ]\na|1\n[s]\nb|2\n"},
    {"CrLfReadsLikeLf", "a=1\r\n[s]\r\nb=2\r\n", "[ ]\na|1\n[s]\nb|2\n"},
    {"MixedLineEnds", "a=1\r\nb=2\n[s]\r\n", "[ ]\na|1\nb|2\n[s]\n"},
    {"NoFinalLineEnd", "[s]\nb=2", "[ ]\n[s]\nb|2\n"},
    {"BlankLinesAreDropped", "\n\n \t \r\n[s]\n\nb=2\n\n", "[ ]\n[s]\nb|2\n"},
    {"TrailingSpaceCutLeadingKept", "  key = v \t\n", "[ ]\n  key | v\n"},
    {"HeaderAfterTrimming", "[a] \t\r\n", "[ ]\n[a]\n"},
    {"IndentedHeaderIsAKey", " [a]\n", "[ ]\n [a]|\n"},
    {"BlanksInsideBracketsStay", "[ a ]\n", "[ ]\n[ a ]\n"},
    {"InnerBracketStays", "[a]b]\n", "[ ]\n[a]b]\n"},
    {"EmptySectionName", "[]\nk=v\n", "[ ]\n[]\nk|v\n"},
    {"LoneBracketIsAKey", "[\n]\n", "[ ]\n[|\n]|\n"},
    {"SplitAtTheFirstEquals", "k=a=b\n", "[ ]\nk|a=b\n"},
    {"EmptyKey", "=v\n", "[ ]\n|v\n"},
    {"NoEqualsIsAKeyWithoutValue", "key\n", "[ ]\nkey|\n"},
    {"SemicolonLineIsAKey", "; note=x\n", "[ ]\n; note|x\n"},
    {"CommentStaysInTheValue", "v=12 ; note ; more\n", "[ ]\nv|12 ; note ; more\n"},
    {"RepeatedSectionsAndKeysKept", "[a]\nx=1\nx=2\n[a]\nx=3\n", "[ ]\n[a]\nx|1\nx|2\n[a]\nx|3\n"},
    {"LoneCarriageReturnInsideALineStays", "a\rb=c\n", "[ ]\na\rb|c\n"},
    {"NulBytesAreOrdinaryBytes", std::string("k\0=v\0w\n", 7), std::string("[ ]\nk\0|v\0w\n", 11)},
};

INSTANTIATE_TEST_SUITE_P(Lines, ProfileParse, testing::ValuesIn(parseCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ProfileOpen, MissingFileFailsWithoutCreate) {
    TempFolder folder;
    ProfileProbe profile;
    EXPECT_FALSE(profile.Open(folder.Path("none.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.FileName(), "");
    EXPECT_EQ(profile.Dump(), "[ ]\n");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST(ProfileOpen, CreateMakesTheFileOnDisk) {
    TempFolder folder;
    ProfileProbe profile;
    EXPECT_TRUE(profile.Open(folder.Path("new.tab"), 0, 1, 1, 0));
    EXPECT_EQ(profile.Dump(), "[ ]\n");
    EXPECT_EQ(profile.FileName(), folder.Path("new.tab"));
    EXPECT_EQ(folder.Read("new.tab"), "");
}

TEST(ProfileOpen, CreateKeepsAnExistingFile) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    ProfileProbe profile;
    EXPECT_TRUE(profile.Open(folder.Path("t.tab"), 0, 1, 1, 0));
    EXPECT_EQ(profile.Dump(), "[ ]\n[a]\nk|v\n");
    EXPECT_EQ(folder.Read("t.tab"), "[a]\nk=v\n");
}

TEST(ProfileOpen, AFolderIsNoFile) {
    TempFolder folder;
    ProfileProbe profile;
    EXPECT_FALSE(profile.Open(folder.Path(""), 0, 0, 1, 0));
    EXPECT_FALSE(profile.Open(folder.Path(""), 0, 1, 1, 0));
}

TEST(ProfileOpen, FailureKeepsTheOldNameAndDropsTheModel) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    EXPECT_FALSE(profile.Open(folder.Path("none.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.FileName(), folder.Path("t.tab"));
    EXPECT_EQ(profile.Dump(), "[ ]\n");
}

TEST(ProfileOpen, CloseProfileDropsEverythingButTheName) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    profile.SetValue("a", "k", "w");
    profile.CloseProfile();
    EXPECT_EQ(profile.Dump(), "");
    EXPECT_FALSE(profile.Dirty());
    EXPECT_EQ(profile.FileName(), folder.Path("t.tab"));
    EXPECT_EQ(profile.FindSection(" "), -1);
}

} // namespace
