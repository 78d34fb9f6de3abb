// Input that isn't a profile file at all: it must read, answer lookups and write back without
// losing bytes that a profile file can carry.

#include "tests/profile/ProfileProbe.h"
#include "tests/profile/TempFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// Opens the file, looks everything up, and changes a value and back, so that the file is
// written while the model stays as read. Answers the written bytes.
std::string RoundTrip(const TempFolder& folder, const std::string& name) {
    {
        ProfileFile profile;
        EXPECT_TRUE(profile.Open(folder.Path(name), 1, 0, 1, 0));
        std::vector<std::string> sections;
        profile.GetSectionNames(sections);
        for (const std::string& section : sections) {
            std::vector<std::string> keys;
            profile.GetSectionKeys(section, keys);
            for (const std::string& key : keys) profile.GetValue(section, key, "");
        }
        profile.SetValue("zz", "touched", "0");
        profile.SetValue("zz", "touched", "1");
    }
    return folder.Read(name);
}

std::string Junk(size_t size, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(size, '\0');
    for (char& c : bytes) c = static_cast<char>(random() % 256);
    // Some structure, so that headers, keys and blank lines occur.
    for (size_t i = 0; i + 4 < size; i += 1 + random() % 40) {
        static const char* pieces[] = {"\n", "\r\n", "=", ";", "\n[", "]\n", "\n\n"};
        const char* piece = pieces[random() % 7];
        bytes.replace(i, std::char_traits<char>::length(piece), piece);
    }
    // An entry with an empty key is written as its value alone, which reads back as another
    // line, one "=" less with every trip; such lines would keep a file from settling.
    for (size_t i = 0; i < size; ++i)
        if (bytes[i] == '=' && (i == 0 || bytes[i - 1] == '\n')) bytes[i] = 'x';
    return bytes;
}

// The first write may merge the keys of headerless sections into the section before and give
// lone keys their "="; the file it writes reads and writes back as it is.
TEST(ProfileRobustness, BinaryJunkSettlesAfterOneRoundTrip) {
    TempFolder folder;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        folder.Write("j.tab", Junk(20000, seed));
        std::string first = RoundTrip(folder, "j.tab");
        ASSERT_TRUE(first.ends_with("\r\n")) << "seed " << seed;
        EXPECT_EQ(RoundTrip(folder, "j.tab"), first) << "seed " << seed;
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"j.tab"});
}

TEST(ProfileRobustness, AMegabyteLine) {
    TempFolder folder;
    std::string value(1 << 20, 'v');
    folder.Write("big.tab", "[a]\nk=" + value);
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("big.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.GetValue("a", "k", ""), value);
    profile.SetValue("a", "k", value + "w");
    profile.Save(0);
    EXPECT_EQ(folder.Read("big.tab"), "[a]\r\nk=" + value + "w\r\n");
}

TEST(ProfileRobustness, NulBytesInNamesAndValues) {
    TempFolder folder;
    const std::string section("s\0x", 3), key("k\0", 2), value("v\0;c", 4);
    {
        ProfileFile profile;
        ASSERT_TRUE(profile.Open(folder.Path("n.tab"), 1, 1, 1, 0));
        profile.SetValue(section, key, value);
    }
    ProfileFile profile;
    ASSERT_TRUE(profile.Open(folder.Path("n.tab"), 0, 0, 1, 0));
    EXPECT_EQ(profile.GetValue(section, key, "<default>"), std::string("v\0", 2));
    EXPECT_EQ(profile.GetValue("s", key, "<default>"), "<default>");
    EXPECT_EQ(profile.GetValue(section, "k", "<default>"), "<default>");
}

} // namespace
