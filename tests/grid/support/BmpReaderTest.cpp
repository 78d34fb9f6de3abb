#include "grid/core/BmpReader.h"

#include "TestBmp.h"

#include <climits>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// 5 x 3: wide enough that rows of every depth need padding, with two colours only so that a
// 1-bit palette holds them.
const TestPicture TwoColours{5,
                             3,
                             {0xFF0000, 0x00FF00, 0xFF0000, 0x00FF00, 0xFF0000, //
                              0x00FF00, 0x00FF00, 0xFF0000, 0xFF0000, 0x00FF00, //
                              0xFF0000, 0xFF0000, 0xFF0000, 0x00FF00, 0x00FF00}};
const TestPicture ManyColours{3, 2, {0x102030, 0x405060, 0x708090, 0xA0B0C0, 0xD0E0F0, 0x000001}};

struct Depth {
    int bitCount;
    const TestPicture* picture;
};

class BmpDepth : public ::testing::TestWithParam<std::tuple<Depth, bool>> {};

TEST_P(BmpDepth, PixelsReadBackInPlace) {
    auto [depth, topDown] = GetParam();
    const TestPicture& picture = *depth.picture;
    std::vector<unsigned char> file = EncodeBmp(picture, depth.bitCount, topDown);
    BmpResult result = ReadBmpBytes(file.data(), file.size());
    ASSERT_TRUE(result.bitmap) << result.error;
    EXPECT_EQ(result.error, "");

    BITMAP bm{};
    result.bitmap->GetBitmap(&bm);
    EXPECT_EQ(bm.bmWidth, picture.width);
    EXPECT_EQ(bm.bmHeight, picture.height);
    auto handle = static_cast<HBITMAP>(result.bitmap->GetSafeHandle());
    EXPECT_EQ(ReadPixels(handle, picture.width, picture.height), picture.pixels);
}

INSTANTIATE_TEST_SUITE_P(
    EveryDepth, BmpDepth,
    ::testing::Combine(::testing::Values(Depth{1, &TwoColours}, Depth{4, &ManyColours},
                                         Depth{8, &ManyColours}, Depth{16, &TwoColours},
                                         Depth{24, &ManyColours},
                                         Depth{32, &ManyColours}),
                       ::testing::Bool()));

// A valid 8-bit file and what is done to it.
struct Hostile {
    const char* name;
    std::function<void(std::vector<unsigned char>&)> spoil;
    const char* error;
};

const Hostile HostileFiles[] = {
    {"empty", [](auto& f) { f.clear(); }, "file header is cut short: 0 of 14"},
    {"half a file header", [](auto& f) { f.resize(9); }, "file header is cut short: 9 of 14"},
    {"wrong signature", [](auto& f) { f[1] = 'A'; }, "doesn't begin with \"BM\""},
    {"cut in the info header", [](auto& f) { f.resize(30); }, "info header is cut short: 16 of 40"},
    {"version 5 header", [](auto& f) { PutDword(f, 14, 124); }, "info header of 124 bytes"},
    {"two planes", [](auto& f) { PutWord(f, 26, 2); }, "plane count is 2"},
    {"bit count 3", [](auto& f) { PutWord(f, 28, 3); }, "unsupported bit count 3"},
    {"run-length compressed", [](auto& f) { PutDword(f, 30, 1); }, "compressed bitmaps"},
    {"zero width", [](auto& f) { PutDword(f, 18, 0); }, "width 0 lies outside"},
    {"negative width", [](auto& f) { PutDword(f, 18, static_cast<std::uint32_t>(-5)); },
     "width -5"},
    {"huge width", [](auto& f) { PutDword(f, 18, 0x7FFFFFFF); }, "width 2147483647"},
    {"zero height", [](auto& f) { PutDword(f, 22, 0); }, "height 0 lies outside"},
    {"most negative height", [](auto& f) { PutDword(f, 22, 0x80000000u); }, "height -2147483648"},
    {"too many colours used", [](auto& f) { PutDword(f, 46, 257); }, "257 colours used"},
    {"colour table past the end", [](auto& f) { f.resize(54 + 100); },
     "colour table runs past the end"},
    {"offset past the end", [](auto& f) { PutDword(f, 10, 100000); }, "lies past the end"},
    {"offset into the headers", [](auto& f) { PutDword(f, 10, 54); }, "inside the headers"},
    {"gap before the pixels", [](auto& f) { PutDword(f, 10, 54 + 1024 + 4); }, "gap of 4 bytes"},
    {"size below the offset", [](auto& f) { PutDword(f, 2, 60); }, "below the pixel offset"},
    {"file shorter than stated", [](auto& f) { f.pop_back(); }, "fewer than the"},
    {"more rows than pixels", [](auto& f) { PutDword(f, 22, 3); }, "pixels are cut short"},
    {"largest picture, few pixels",
     [](auto& f) {
         PutDword(f, 18, 16384);
         PutDword(f, 22, static_cast<std::uint32_t>(-16384));
     },
     "needs 268435456 bytes"},
};

TEST(BmpReader, HostileFilesAreRefusedWithTheirFault) {
    const TestPicture picture{3, 2, {1, 2, 3, 4, 5, 6}};
    for (const Hostile& h : HostileFiles) {
        std::vector<unsigned char> file = EncodeBmp(picture, 8, false);
        h.spoil(file);
        BmpResult result = ReadBmpBytes(file.data(), file.size());
        EXPECT_FALSE(result.bitmap) << h.name;
        EXPECT_NE(result.error.find(h.error), std::string::npos) << h.name << ": " << result.error;
    }
}

TEST(BmpReader, EveryCutOfAValidFileIsRefused) {
    std::vector<unsigned char> file = EncodeBmp(ManyColours, 4, false);
    for (std::size_t size = 0; size < file.size(); ++size) {
        // A copy of exactly that size, so that a read past it is caught by the sanitizer.
        std::vector<unsigned char> cut(file.begin(), file.begin() + size);
        EXPECT_FALSE(ReadBmpBytes(cut.data(), cut.size()).bitmap) << size;
    }
}

class BmpFile : public ::testing::Test {
protected:
    void TearDown() override { std::filesystem::remove(path); }

    std::string path = (std::filesystem::temp_directory_path() /
                        ("gridsupport-" + std::to_string(::getpid()) + ".bmp"))
                           .string();
};

TEST_F(BmpFile, ReadsAFileAndNamesItInErrors) {
    std::vector<unsigned char> bytes = EncodeBmp(ManyColours, 24, false);
    std::FILE* f = std::fopen(path.c_str(), "wb");
    ASSERT_TRUE(f);
    std::fwrite(bytes.data(), 1, bytes.size(), f);
    std::fclose(f);
    EXPECT_TRUE(ReadBmpFile(path).bitmap);

    std::filesystem::resize_file(path, 20);
    EXPECT_EQ(ReadBmpFile(path).error, path + ": the info header is cut short: 6 of 40 bytes");
    std::filesystem::resize_file(path, MaxBmpFileSize + 1);
    EXPECT_EQ(ReadBmpFile(path).error, path + " is larger than 64 MB");
}

TEST_F(BmpFile, MissingFileCannotBeOpened) {
    BmpResult result = ReadBmpFile(path + ".missing");
    EXPECT_FALSE(result.bitmap);
    EXPECT_EQ(result.error.rfind("cannot open " + path + ".missing: ", 0), 0u) << result.error;
}

} // namespace
