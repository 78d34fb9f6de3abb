// Device-independent bitmaps from handcrafted BMP data, good and hostile. Buffers are exactly
// as large as stated, so that a sanitizer build catches any read past them.

#include "tests/platform/gdi/TestCanvas.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Gray = RGB(128, 128, 128);

// A bitmap's pieces as a file holds them: the info block (header and colour table) and the
// pixel rows.
struct Dib {
    std::vector<BYTE> info;
    std::vector<BYTE> bits;

    BITMAPINFOHEADER& Header() { return *reinterpret_cast<BITMAPINFOHEADER*>(info.data()); }
    const BITMAPINFO* Info() const { return reinterpret_cast<const BITMAPINFO*>(info.data()); }
    HBITMAP Create(DWORD init = CBM_INIT) {
        return CreateDIBitmapSized(&Header(), init, bits.data(), bits.size(), Info(), info.size(),
                                   DIB_RGB_COLORS);
    }
};

// `pixels` top row first; a palette image stores indexes into `palette`.
Dib MakeDib(int bitCount, bool bottomUp, const std::vector<std::vector<COLORREF>>& pixels,
            const std::vector<COLORREF>& palette = {}) {
    int width = static_cast<int>(pixels[0].size()), height = static_cast<int>(pixels.size());
    Dib dib;
    dib.info.resize(sizeof(BITMAPINFOHEADER) + 4 * palette.size());
    BITMAPINFOHEADER h;
    h.biSize = sizeof h;
    h.biWidth = width;
    h.biHeight = bottomUp ? height : -height;
    h.biPlanes = 1;
    h.biBitCount = static_cast<WORD>(bitCount);
    h.biClrUsed = static_cast<DWORD>(palette.size());
    std::memcpy(dib.info.data(), &h, sizeof h);
    for (size_t i = 0; i < palette.size(); ++i) {
        BYTE* q = dib.info.data() + sizeof h + 4 * i;
        q[0] = GetBValue(palette[i]), q[1] = GetGValue(palette[i]), q[2] = GetRValue(palette[i]);
    }
    size_t stride = (static_cast<size_t>(width) * bitCount + 31) / 32 * 4;
    dib.bits.assign(stride * height, 0);
    for (int y = 0; y < height; ++y) {
        BYTE* row = dib.bits.data() + stride * (bottomUp ? height - 1 - y : y);
        for (int x = 0; x < width; ++x) {
            COLORREF c = pixels[y][x];
            unsigned index = 0;
            for (size_t i = 0; i < palette.size(); ++i)
                if (palette[i] == c) index = static_cast<unsigned>(i);
            switch (bitCount) {
            case 1: row[x / 8] |= static_cast<BYTE>(index << (7 - x % 8)); break;
            case 4: row[x / 2] |= static_cast<BYTE>(index << (x % 2 ? 0 : 4)); break;
            case 8: row[x] = static_cast<BYTE>(index); break;
            default:
                BYTE* p = row + x * (bitCount / 8);
                p[0] = GetBValue(c), p[1] = GetGValue(c), p[2] = GetRValue(c);
            }
        }
    }
    return dib;
}

std::vector<std::vector<COLORREF>> ReadBack(HBITMAP bitmap) {
    BITMAPINFO info;
    EXPECT_GT(GetDIBits(nullptr, bitmap, 0, 0, nullptr, &info, DIB_RGB_COLORS), 0);
    int width = info.bmiHeader.biWidth, height = info.bmiHeader.biHeight;
    info.bmiHeader.biHeight = -height;
    std::vector<DWORD> raw(static_cast<size_t>(width) * height);
    EXPECT_EQ(GetDIBits(nullptr, bitmap, 0, height, raw.data(), &info, DIB_RGB_COLORS), height);
    std::vector<std::vector<COLORREF>> out(height, std::vector<COLORREF>(width));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            DWORD p = raw[static_cast<size_t>(y) * width + x];
            out[y][x] =
                RGB(static_cast<BYTE>(p >> 16), static_cast<BYTE>(p >> 8), static_cast<BYTE>(p));
        }
    return out;
}

const std::vector<std::vector<COLORREF>> Colours = {{Red, Green, Blue}, {White, Black, Gray}};
const std::vector<COLORREF> Palette = {Black, White, Red, Green, Blue, Gray};
const std::vector<std::vector<COLORREF>> Mono = {
    {White, Black, White, White, Black, Black, White, Black, White},
    {Black, White, Black, Black, White, White, Black, White, Black}};

struct FormatCase {
    int bitCount;
    bool bottomUp;
};

class DibFormatTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(DibFormatTest, PixelsComeOutAsTheyWentIn) {
    auto [bitCount, bottomUp] = GetParam();
    const auto& pixels = bitCount == 1 ? Mono : Colours;
    std::vector<COLORREF> palette;
    if (bitCount == 1)
        palette = {Black, White};
    else if (bitCount <= 8)
        palette = Palette;
    Dib dib = MakeDib(bitCount, bottomUp, pixels, palette);
    HBITMAP bitmap = dib.Create();
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(ReadBack(bitmap), pixels);
    DeleteObject(bitmap);

    // The platform's own call takes the sizes from the header.
    bitmap = CreateDIBitmap(nullptr, &dib.Header(), CBM_INIT, dib.bits.data(), dib.Info(),
                            DIB_RGB_COLORS);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(ReadBack(bitmap), pixels);
    DeleteObject(bitmap);
}

INSTANTIATE_TEST_SUITE_P(Dib, DibFormatTest,
                         ::testing::Values(FormatCase{1, true}, FormatCase{1, false},
                                           FormatCase{4, true}, FormatCase{4, false},
                                           FormatCase{8, true}, FormatCase{8, false},
                                           FormatCase{24, true}, FormatCase{24, false},
                                           FormatCase{32, true}, FormatCase{32, false}));

TEST(Dib, IndexesPastAShortColourTableAreBlack) {
    Dib dib = MakeDib(8, true, {{Red, Blue}}, {Black, White, Red, Green, Blue});
    dib.Header().biClrUsed = 3;
    dib.info.resize(sizeof(BITMAPINFOHEADER) + 3 * 4);
    HBITMAP bitmap = dib.Create();
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(ReadBack(bitmap), (std::vector<std::vector<COLORREF>>{{Red, Black}}));
    DeleteObject(bitmap);
}

TEST(Dib, WithoutInitTheBitmapIsBlackOfTheHeadersSize) {
    Dib dib = MakeDib(24, true, Colours);
    HBITMAP bitmap = dib.Create(0);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(ReadBack(bitmap), (std::vector<std::vector<COLORREF>>(2, {Black, Black, Black})));
    DeleteObject(bitmap);
}

struct HostileCase {
    const char* what;
    std::function<void(Dib&)> spoil;
};

class HostileDibTest : public ::testing::TestWithParam<HostileCase> {};

TEST_P(HostileDibTest, IsRefused) {
    Dib dib = MakeDib(8, true, Colours, Palette);
    GetParam().spoil(dib);
    EXPECT_EQ(dib.Create(), nullptr) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Dib, HostileDibTest,
    ::testing::Values(
        HostileCase{"pixels one byte short", [](Dib& d) { d.bits.pop_back(); }},
        HostileCase{"no pixels", [](Dib& d) { d.bits.clear(); }},
        HostileCase{"colour table cut", [](Dib& d) { d.info.resize(d.info.size() - 1); }},
        HostileCase{"old-style header", [](Dib& d) { d.Header().biSize = 12; }},
        HostileCase{"header larger than the block", [](Dib& d) { d.Header().biSize = 100; }},
        HostileCase{"zero width", [](Dib& d) { d.Header().biWidth = 0; }},
        HostileCase{"negative width", [](Dib& d) { d.Header().biWidth = -3; }},
        HostileCase{"zero height", [](Dib& d) { d.Header().biHeight = 0; }},
        HostileCase{"huge width", [](Dib& d) { d.Header().biWidth = 0x7FFFFFFF; }},
        HostileCase{"huge upside-down height",
                    [](Dib& d) { d.Header().biHeight = static_cast<LONG>(0x80000000u); }},
        HostileCase{"16 bits per pixel", [](Dib& d) { d.Header().biBitCount = 16; }},
        HostileCase{"2 bits per pixel", [](Dib& d) { d.Header().biBitCount = 2; }},
        HostileCase{"run-length compressed", [](Dib& d) { d.Header().biCompression = 1; }},
        HostileCase{"more colours than the depth has", [](Dib& d) { d.Header().biClrUsed = 257; }},
        HostileCase{"two planes", [](Dib& d) { d.Header().biPlanes = 2; }}));

TEST(Dib, PlatformCallTrustsOnlyTheHeadersNumbers) {
    Dib dib = MakeDib(24, true, Colours);
    dib.Header().biSizeImage = static_cast<DWORD>(dib.bits.size() - 1);
    EXPECT_EQ(CreateDIBitmap(nullptr, &dib.Header(), CBM_INIT, dib.bits.data(), dib.Info(),
                             DIB_RGB_COLORS),
              nullptr);
    EXPECT_EQ(CreateDIBitmap(nullptr, &dib.Header(), CBM_INIT, nullptr, dib.Info(), DIB_RGB_COLORS),
              nullptr);
    EXPECT_EQ(CreateDIBitmap(nullptr, &dib.Header(), CBM_INIT, dib.bits.data(), dib.Info(), 1),
              nullptr);
}

TEST(Dib, ReadingBackTakesRowsFromTheStartLine) {
    Dib dib = MakeDib(24, false, Colours);
    HBITMAP bitmap = dib.Create();
    BITMAPINFO info;
    GetDIBits(nullptr, bitmap, 0, 0, nullptr, &info, DIB_RGB_COLORS);
    EXPECT_EQ(info.bmiHeader.biHeight, 2);
    std::vector<DWORD> both(6);
    // More lines than there are: only the two rows come. Bottom-up: line 0 is the bottom row.
    EXPECT_EQ(GetDIBits(nullptr, bitmap, 0, 5, both.data(), &info, DIB_RGB_COLORS), 2);
    EXPECT_EQ(both[0], 0xFFFFFFu); // white, bottom left
    std::vector<DWORD> row(3);
    EXPECT_EQ(GetDIBits(nullptr, bitmap, 1, 1, row.data(), &info, DIB_RGB_COLORS), 1);
    EXPECT_EQ(row[0], 0xFF0000u); // red, top left
    EXPECT_EQ(GetDIBits(nullptr, bitmap, 2, 1, row.data(), &info, DIB_RGB_COLORS), 0);
    info.bmiHeader.biBitCount = 24;
    EXPECT_EQ(GetDIBits(nullptr, bitmap, 0, 1, row.data(), &info, DIB_RGB_COLORS), 0);
    DeleteObject(bitmap);
}

} // namespace
