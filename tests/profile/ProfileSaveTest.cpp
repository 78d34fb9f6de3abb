// Writing the model back: the file's form, when it is written at all, and failures that must
// leave the old file as it was.

#include "tests/profile/ProfileProbe.h"
#include "tests/profile/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <grp.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct FormatCase {
    const char* name;
    std::string text;
    std::string written;
};

void PrintTo(const FormatCase& c, std::ostream* out) {
    *out << c.name;
}

class ProfileFormat : public testing::TestWithParam<FormatCase> {};

// Each file gets one new section, so that the model is dirty and Save writes.
TEST_P(ProfileFormat, WritesTheModel) {
    TempFolder folder;
    folder.Write("t.tab", GetParam().text);
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 1, 0, 1, 0));
        profile.SetValue("z", "k", "1");
    }
    EXPECT_EQ(folder.Read("t.tab"), GetParam().written + "[z]\r\nk=1\r\n");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"t.tab"});
}

const FormatCase formatCases[] = {
    {"Empty", "", ""},
    {"SectionZeroHasNoHeader", "first=1\n[Types]\nT1=0 ; the usual one\nT2=1\n[Empty]\n",
     "first=1\r\n[Types]\r\nT1=0 ; the usual one\r\nT2=1\r\n[Empty]\r\n"},
    {"BlankLinesAndLineEndsNormalised", "\n[a]\r\n\r\n  k = v  \n\n", "[a]\r\n  k = v\r\n"},
    {"KeyWithoutValueGetsItsEquals", "key\n", "key=\r\n"},
    {"EmptyKeyWritesItsValueOnly", "=v\n", "v\r\n"},
    {"EmptySectionNameHasNoHeader", "a=1\n[]\nb=2\n", "a=1\r\nb=2\r\n"},
    {"BlankSectionNameHasNoHeader", "[a]\n[ ]\nb=2\n", "[a]\r\nb=2\r\n"},
    {"RepeatsKept", "[a]\nx=1\nx=1\n[a]\n", "[a]\r\nx=1\r\nx=1\r\n[a]\r\n"},
    {"NulBytesKept", std::string("k\0=\0\n", 5), std::string("k\0=\0\r\n", 6)},
};

INSTANTIATE_TEST_SUITE_P(Files, ProfileFormat, testing::ValuesIn(formatCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ProfileSave, ReplacesTheOldContentAfterCloseProfile) {
    TempFolder folder;
    folder.Write("plan.tab", "[Old]\nx=1\n");
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 1, 1, 1, 0));
        profile.CloseProfile();
        profile.SetValue("A", "Type", "T1");
        profile.SetValue("*", "Type", "T2");
        for (const char* layer : {"*", "A"}) profile.SetValue(layer, "SelectedLayer", "1");
        for (const char* layer : {"B", "C"}) profile.SetValue(layer, "SelectedLayer", "0");
        profile.SetValue("Types", "T1", "0");
        profile.SetValue("Types", "T2", "1");
    }
    EXPECT_EQ(folder.Read("plan.tab"), "[A]\r\nType=T1\r\nSelectedLayer=1\r\n"
                                       "[*]\r\nType=T2\r\nSelectedLayer=1\r\n"
                                       "[B]\r\nSelectedLayer=0\r\n"
                                       "[C]\r\nSelectedLayer=0\r\n"
                                       "[Types]\r\nT1=0\r\nT2=1\r\n");
}

TEST(ProfileSave, CleanModelWritesNothing) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 1, 0, 1, 1));
        profile.SetValue("A", "K", "V");
        EXPECT_EQ(profile.Save(1), "");
        folder.Write("t.tab", "changed meanwhile");
    }
    EXPECT_EQ(folder.Read("t.tab"), "changed meanwhile");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"t.tab"});
}

TEST(ProfileSave, WithoutSaveOnCloseTheEndWritesNothing) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
        profile.SetValue("a", "k", "w");
    }
    EXPECT_EQ(folder.Read("t.tab"), "[a]\nk=v\n");
}

TEST(ProfileSave, ASecondSaveWritesAgain) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    profile.SetValue("a", "k", "w");
    EXPECT_EQ(profile.Save(0), "");
    EXPECT_EQ(folder.Read("t.tab"), "[a]\r\nk=w\r\n");
    folder.Write("t.tab", "changed meanwhile");
    profile.Save(0);
    EXPECT_EQ(folder.Read("t.tab"), "[a]\r\nk=w\r\n");
}

TEST(ProfileSave, OpenSavesTheOpenFileWithoutBackup) {
    TempFolder folder;
    folder.Write("a.tab", "[a]\nk=v\n");
    folder.Write("b.tab", "[b]\n");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("a.tab"), 0, 0, 1, 1));
    profile.SetValue("a", "k", "w");
    ASSERT_TRUE(profile.Open(folder.Path("b.tab"), 0, 0, 1, 1));
    EXPECT_EQ(folder.Read("a.tab"), "[a]\r\nk=w\r\n");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.tab", "b.tab"}));
    EXPECT_EQ(profile.Dump(), "[ ]\n[b]\n");
    EXPECT_FALSE(profile.Dirty());
}

TEST(ProfileSave, NoFileAfterAFailedOpen) {
    TempFolder folder;
    {
        ProfileFile profile;
        EXPECT_FALSE(profile.Open(folder.Path("none.tab"), 1, 0, 1, 0));
        profile.SetValue("a", "k", "v");
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST(ProfileSave, KeepsTheFilesPermissions) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\n");
    fs::perms mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(folder.Path("t.tab"), mode);
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 1, 0, 1, 0));
        profile.SetValue("a", "k", "v");
    }
    EXPECT_EQ(folder.Read("t.tab"), "[a]\r\nk=v\r\n");
    EXPECT_EQ(fs::status(folder.Path("t.tab")).permissions(), mode);
}

TEST(ProfileSave, WritesThroughALink) {
    TempFolder folder;
    folder.Write("real.tab", "[a]\n");
    fs::create_symlink("real.tab", folder.Path("link.tab"));
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("link.tab"), 1, 0, 1, 0));
        profile.SetValue("a", "k", "v");
    }
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.tab")));
    EXPECT_EQ(folder.Read("real.tab"), "[a]\r\nk=v\r\n");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"link.tab", "real.tab"}));
}

TEST(ProfileSave, OnlyAFileIsReplaced) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\n");
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("t.tab"), 0, 0, 1, 0));
    fs::remove(folder.Path("t.tab"));
    fs::create_directory(folder.Path("t.tab"));
    profile.SetValue("a", "k", "v");
    EXPECT_EQ(profile.Save(0), "");
    EXPECT_TRUE(fs::is_directory(folder.Path("t.tab")));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"t.tab"});
}

// Runs `body` in a child process of a death test, as the user nobody when the tests run as
// root, so that permissions bind it; the child's exit code is the body's answer.
[[noreturn]] void ExitUnprivileged(const std::function<int()>& body) {
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(65534) != 0 || setuid(65534) != 0))
        std::exit(99);
    std::exit(body());
}

TEST(ProfileSaveDeathTest, UnwritableFolderKeepsTheOldFile) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    fs::permissions(folder.Path("t.tab"), fs::perms::all & ~fs::perms::owner_exec &
                                              ~fs::perms::group_exec & ~fs::perms::others_exec);
    fs::permissions(folder.Path(""),
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    EXPECT_EXIT(ExitUnprivileged([&] {
                    ProfileProbe profile;
                    if (!profile.Open(folder.Path("t.tab"), 1, 0, 1, 0)) return 1;
                    profile.SetValue("a", "k", "new");
                    // With a backup asked for, only a failed write answers empty.
                    if (!profile.Save(1).empty()) return 2;
                    return profile.Dirty() ? 0 : 3;
                }),
                testing::ExitedWithCode(0), "");
    fs::permissions(folder.Path(""), fs::perms::all);
    EXPECT_EQ(folder.Read("t.tab"), "[a]\nk=v\n");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"t.tab"});
}

TEST(ProfileSaveDeathTest, ReadOnlyFileFailsToOpen) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    fs::permissions(folder.Path("t.tab"),
                    fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EXIT(ExitUnprivileged([&] {
                    ProfileFile profile;
                    return profile.Open(folder.Path("t.tab"), 1, 0, 1, 0) ||
                           profile.Open(folder.Path("t.tab"), 1, 1, 1, 0);
                }),
                testing::ExitedWithCode(0), "");
    EXPECT_EQ(folder.Read("t.tab"), "[a]\nk=v\n");
}

TEST(ProfileSaveDeathTest, FileMadeReadOnlyAfterOpenIsNotReplaced) {
    TempFolder folder;
    folder.Write("t.tab", "[a]\nk=v\n");
    // Its owner, so that the unprivileged child may take the right to write away.
    if (geteuid() == 0) {
        ASSERT_EQ(chown(folder.Path("t.tab").c_str(), 65534, 65534), 0);
    }
    EXPECT_EXIT(ExitUnprivileged([&] {
                    ProfileFile profile;
                    if (!profile.Open(folder.Path("t.tab"), 0, 0, 1, 0)) return 1;
                    fs::permissions(folder.Path("t.tab"), fs::perms::owner_read);
                    profile.SetValue("a", "k", "new");
                    return profile.Save(1).empty() ? 0 : 2;
                }),
                testing::ExitedWithCode(0), "");
    fs::permissions(folder.Path("t.tab"), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(folder.Read("t.tab"), "[a]\nk=v\n");
}

} // namespace
