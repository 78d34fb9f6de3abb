// Numbered backups: the number comes from the files on disk, and the copy holds the old file.

#include "tests/profile/ProfileProbe.h"
#include "tests/profile/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct BackupCase {
    const char* name;
    std::string file;
    std::vector<std::string> others;
    std::string backup;
};

void PrintTo(const BackupCase& c, std::ostream* out) {
    *out << c.name;
}

class ProfileBackupName : public testing::TestWithParam<BackupCase> {};

TEST_P(ProfileBackupName, NumberedFromTheFilesOnDisk) {
    const BackupCase& c = GetParam();
    TempFolder folder;
    folder.Write(c.file, "[a]\n");
    for (const std::string& other : c.others) folder.Write(other, "");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path(c.file), 0, 0, 1, 0));
    profile.MakeBackupName();
    EXPECT_EQ(profile.BackupName(), folder.Path(c.backup));
}

const BackupCase backupCases[] = {
    {"First", "plan.tab", {}, "plan.tab.001"},
    {"GapsAreNotFilled", "plan.tab", {"plan.tab.001", "plan.tab.007"}, "plan.tab.008"},
    {"OtherNamesWithTheSameBeginningCount",
     "plan.tab",
     {"planning.012", "plan2.x"},
     "plan.tab.013"},
    {"OtherBeginningsDoNot", "plan.tab", {"other.tab.005", "pla.050"}, "plan.tab.001"},
    {"NoPointInTheName", "plan", {"plan.003"}, "plan.004"},
    {"LastThreeCharactersOnly", "plan.tab", {"plan.tab.1005", "plan.tab.x04"}, "plan.tab.006"},
    {"AfterNineHundredNinetyNine", "plan.tab", {"plan.tab.999"}, "plan.tab.1000"},
    {"ThousandCountsNothing", "plan.tab", {"plan.tab.999", "plan.tab.1000"}, "plan.tab.1000"},
};

INSTANTIATE_TEST_SUITE_P(Folders, ProfileBackupName, testing::ValuesIn(backupCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ProfileBackupName, APointInTheFolderNameCutsThere) {
    TempFolder folder;
    std::filesystem::create_directory(folder.Path("my.dir"));
    folder.Write("my.dir/plan", "[a]\n");
    folder.Write("my.042", "");
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("my.dir/plan"), 0, 0, 1, 0));
    profile.MakeBackupName();
    EXPECT_EQ(profile.BackupName(), folder.Path("my.dir/plan.043"));
}

class ProfileBackup : public testing::Test {
protected:
    void SetUp() override {
        ProfileFile::SetMessageHook([this](const std::string& text) { messages.push_back(text); });
        folder.Write("plan.tab", "[a]\nk=1\n");
    }
    void TearDown() override { ProfileFile::SetMessageHook(nullptr); }

    TempFolder folder;
    std::vector<std::string> messages;
};

TEST_F(ProfileBackup, CopiesTheOldFileFirst) {
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 0, 0, 1, 0));
    profile.SetValue("a", "k", "2");
    EXPECT_EQ(profile.Save(1), folder.Path("plan.tab.001"));
    EXPECT_EQ(folder.Read("plan.tab.001"), "[a]\nk=1\n");
    EXPECT_EQ(folder.Read("plan.tab"), "[a]\r\nk=2\r\n");
    EXPECT_EQ(messages, std::vector<std::string>{});
}

TEST_F(ProfileBackup, AccumulateOverRuns) {
    for (const char* value : {"2", "3"}) {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 1, 0, 1, 1));
        profile.SetValue("a", "k", value);
    }
    EXPECT_EQ(folder.Names(),
              (std::vector<std::string>{"plan.tab", "plan.tab.001", "plan.tab.002"}));
    EXPECT_EQ(folder.Read("plan.tab.001"), "[a]\nk=1\n");
    EXPECT_EQ(folder.Read("plan.tab.002"), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileBackup, ASecondSaveOverwritesItsOwnBackup) {
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 0, 0, 1, 0));
    profile.SetValue("a", "k", "2");
    profile.Save(1);
    folder.Write("plan.tab.005", "");
    profile.SetValue("a", "k", "3");
    EXPECT_EQ(profile.Save(1), folder.Path("plan.tab.001"));
    EXPECT_EQ(folder.Read("plan.tab.001"), "[a]\r\nk=2\r\n");
    EXPECT_EQ(folder.Read("plan.tab"), "[a]\r\nk=3\r\n");
}

TEST_F(ProfileBackup, ASaveWithoutBackupStillAnswersTheKnownName) {
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 0, 0, 1, 0));
    profile.SetValue("a", "k", "2");
    EXPECT_EQ(profile.Save(0), "");
    profile.Save(1);
    profile.SetValue("a", "k", "3");
    EXPECT_EQ(profile.Save(0), folder.Path("plan.tab.001"));
    EXPECT_EQ(folder.Read("plan.tab.001"), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileBackup, FailedCopyIsToldAndTheFileStillWritten) {
    ProfileProbe profile;
    ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 0, 0, 1, 0));
    std::filesystem::remove(folder.Path("plan.tab"));
    profile.SetValue("a", "k", "2");
    EXPECT_EQ(profile.Save(1), folder.Path("plan.tab.001"));
    EXPECT_EQ(messages, std::vector<std::string>{"Can't create backup copy!"});
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"plan.tab"});
    EXPECT_EQ(folder.Read("plan.tab"), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileBackup, CleanModelMakesNoBackup) {
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("plan.tab"), 1, 0, 1, 1));
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"plan.tab"});
}

} // namespace
