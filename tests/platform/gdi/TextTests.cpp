// Fonts, text measurement and text drawing.

#include "tests/platform/gdi/TestCanvas.h"

#include <gtest/gtest.h>
#include <string>

namespace {

HFONT Font(const char* face, int height, int weight = FW_NORMAL, BYTE underline = 0) {
    return CreateFont(height, 0, 0, 0, weight, 0, underline, 0, 0, 0, 0, 0, 0, face);
}

int Width(HDC dc, const std::string& text) {
    SIZE size;
    GetTextExtentPoint32(dc, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

// A canvas with a font selected; black text, transparent background.
class TextTest : public ::testing::Test {
protected:
    explicit TextTest(const char* face = "MS Sans Serif", int height = -11)
        : canvas(200, 60), font(Font(face, height)) {
        old = SelectObject(canvas.Dc(), font);
        SetBkMode(canvas.Dc(), TRANSPARENT);
    }
    ~TextTest() override {
        SelectObject(canvas.Dc(), old);
        DeleteObject(font);
    }
    HDC Dc() const { return canvas.Dc(); }
    TEXTMETRIC Metrics() const {
        TEXTMETRIC tm;
        GetTextMetrics(Dc(), &tm);
        return tm;
    }

    TestCanvas canvas;
    HFONT font;
    HGDIOBJ old;
};

struct FaceCase {
    const char* asked;
    const char* drawn;
    bool fixedPitch;
};

class FaceMappingTest : public ::testing::TestWithParam<FaceCase> {};

TEST_P(FaceMappingTest, MapsToAnInstalledFace) {
    TestCanvas c(4, 4);
    HFONT font = Font(GetParam().asked, -12);
    ASSERT_NE(font, nullptr);
    SelectObject(c.Dc(), font);
    char face[LF_FACESIZE];
    GetTextFace(c.Dc(), sizeof face, face);
    EXPECT_STREQ(face, GetParam().drawn);
    EXPECT_EQ(Width(c.Dc(), "i") == Width(c.Dc(), "W"), GetParam().fixedPitch);
    TEXTMETRIC tm;
    GetTextMetrics(c.Dc(), &tm);
    // The platform's pitch bit is set for proportional faces.
    EXPECT_EQ((tm.tmPitchAndFamily & TMPF_FIXED_PITCH) == 0, GetParam().fixedPitch);
    SelectObject(c.Dc(), GetStockObject(SYSTEM_FONT));
    DeleteObject(font);
}

INSTANTIATE_TEST_SUITE_P(Fonts, FaceMappingTest,
                         ::testing::Values(FaceCase{"Courier", "DejaVu Sans Mono", true},
                                           FaceCase{"Courier New", "DejaVu Sans Mono", true},
                                           FaceCase{"MS Sans Serif", "DejaVu Sans", false},
                                           FaceCase{"MS Shell Dlg", "DejaVu Sans", false},
                                           FaceCase{"Arial", "DejaVu Sans", false},
                                           FaceCase{"No Such Face", "DejaVu Sans", false}));

TEST_F(TextTest, NegativeHeightIsTheCharacterHeightPositiveTheCell) {
    EXPECT_EQ(Metrics().tmHeight - Metrics().tmInternalLeading, 11);
    EXPECT_EQ(Metrics().tmAscent + Metrics().tmDescent, Metrics().tmHeight);
    HFONT cell = Font("Arial", 14);
    SelectObject(Dc(), cell);
    EXPECT_EQ(Metrics().tmHeight, 14);
    SIZE size;
    GetTextExtentPoint32(Dc(), "x", 1, &size);
    EXPECT_EQ(size.cy, 14);
    SelectObject(Dc(), font);
    DeleteObject(cell);
}

TEST_F(TextTest, StockGuiFontIsEightPointsAt96Dpi) {
    LOGFONT lf;
    GetObject(GetStockObject(DEFAULT_GUI_FONT), sizeof lf, &lf);
    EXPECT_EQ(lf.lfHeight, -11);
    SelectObject(Dc(), GetStockObject(DEFAULT_GUI_FONT));
    char face[LF_FACESIZE];
    GetTextFace(Dc(), sizeof face, face);
    EXPECT_STREQ(face, "DejaVu Sans");
    EXPECT_EQ(GetTextFace(Dc(), 0, nullptr), static_cast<int>(sizeof "DejaVu Sans"));
}

TEST_F(TextTest, ExtentsAreWholePixelsThatAddUp) {
    std::string text = "Parcel 12, Layer *";
    int sum = 0;
    for (char c : text) sum += Width(Dc(), std::string(1, c));
    EXPECT_EQ(Width(Dc(), text), sum);
    EXPECT_GT(Width(Dc(), "WWW"), Width(Dc(), "iii"));
    EXPECT_EQ(Width(Dc(), ""), 0);
}

TEST_F(TextTest, BoldIsWider) {
    HFONT bold = Font("Arial", -11, FW_BOLD);
    int regular = Width(Dc(), "Heading");
    SelectObject(Dc(), bold);
    EXPECT_GT(Width(Dc(), "Heading"), regular);
    SelectObject(Dc(), font);
    DeleteObject(bold);
}

TEST_F(TextTest, InkStaysInsideTheMeasuredExtent) {
    const std::string text = "Kerv Area 42";
    SIZE size;
    GetTextExtentPoint32(Dc(), text.data(), static_cast<int>(text.size()), &size);
    TextOut(Dc(), 20, 10, text.data(), static_cast<int>(text.size()));
    RECT ink = canvas.InkBounds();
    EXPECT_GE(ink.left, 20);
    EXPECT_LE(ink.right, 20 + size.cx);
    EXPECT_GE(ink.top, 10);
    EXPECT_LE(ink.bottom, 10 + size.cy);
    // And it fills most of it: the string is really there.
    EXPECT_GT(ink.right - ink.left, size.cx - 4);
}

TEST_F(TextTest, TextAlignmentMovesTheReferencePoint) {
    const char* text = "Cell";
    int width = Width(Dc(), text);
    SetTextAlign(Dc(), TA_RIGHT | TA_BASELINE);
    TextOut(Dc(), 100, 30, text, 4);
    RECT ink = canvas.InkBounds();
    EXPECT_LE(ink.right, 100);
    EXPECT_GE(ink.left, 100 - width);
    EXPECT_LE(ink.bottom, 30 + 1); // no descenders in "Cell"
    EXPECT_GE(ink.bottom, 29);
    canvas.Clear();
    SetTextAlign(Dc(), TA_CENTER | TA_TOP);
    TextOut(Dc(), 100, 0, text, 4);
    ink = canvas.InkBounds();
    EXPECT_NEAR((ink.left + ink.right) / 2.0, 100, 2);
}

TEST_F(TextTest, SpacingArrayPlacesEachCharacter) {
    const int dx[] = {30, 30, 30};
    ExtTextOut(Dc(), 0, 0, 0, nullptr, "iii", 3, dx);
    RECT ink = canvas.InkBounds();
    EXPECT_GE(ink.right - ink.left, 60);
    EXPECT_LT(ink.right, 90);
}

TEST_F(TextTest, OpaqueModeFillsTheTextCell) {
    SetBkMode(Dc(), OPAQUE);
    SetBkColor(Dc(), Blue);
    TextOut(Dc(), 5, 5, "ab", 2);
    SIZE size;
    GetTextExtentPoint32(Dc(), "ab", 2, &size);
    EXPECT_EQ(canvas.InkBounds(), (RECT{5, 5, 5 + size.cx, 5 + size.cy}));
    EXPECT_EQ(canvas.At(5, 5), Blue);
}

TEST_F(TextTest, CodePage1252BytesDrawTheirCharacters) {
    // 0x80 is the euro sign; 0x81 has no character and draws the missing-glyph box.
    TextOut(Dc(), 0, 0, "\x80", 1);
    TextOut(Dc(), 40, 0, "\x81", 1);
    TextOut(Dc(), 80, 0, "\x8D", 1);
    auto rows = canvas.Rows();
    auto slice = [&](int x) {
        std::string s;
        for (const auto& row : rows) s += row.substr(x, 30);
        return s;
    };
    EXPECT_NE(slice(0), slice(40));
    EXPECT_EQ(slice(40), slice(80));
}

TEST_F(TextTest, UnderlinedFontsDrawABarUnderTheText) {
    HFONT underlined = Font("Arial", -11, FW_NORMAL, 1);
    SelectObject(Dc(), underlined);
    TextOut(Dc(), 10, 10, "....", 4);
    int width = Width(Dc(), "....");
    int baseline = 10 + Metrics().tmAscent;
    bool found = false;
    for (int y = baseline; y < 10 + Metrics().tmHeight; ++y) {
        bool full = true;
        for (int x = 10; x < 10 + width; ++x) full = full && canvas.At(x, y) != White;
        found = found || full;
    }
    EXPECT_TRUE(found);
    SelectObject(Dc(), font);
    DeleteObject(underlined);
}

TEST_F(TextTest, DrawTextCalcRectBreaksBetweenWords) {
    int lineHeight = Metrics().tmHeight;
    int word = Width(Dc(), "parcel");
    RECT r{0, 0, word + Width(Dc(), " ") + 2, 0};
    const char* text = "parcel parcel parcel";
    EXPECT_EQ(DrawText(Dc(), text, -1, &r, DT_CALCRECT | DT_WORDBREAK), 3 * lineHeight);
    EXPECT_EQ(r.bottom, 3 * lineHeight);
    EXPECT_EQ(r.right, word);
    EXPECT_EQ(canvas.CountNot(White), 0); // measuring draws nothing

    // A word wider than the rectangle stays whole and widens it.
    RECT narrow{0, 0, 10, 0};
    DrawText(Dc(), "parcel", -1, &narrow, DT_CALCRECT | DT_WORDBREAK);
    EXPECT_EQ(narrow.right, word);
    EXPECT_EQ(narrow.bottom, lineHeight);

    RECT lines{0, 0, 500, 0};
    EXPECT_EQ(DrawText(Dc(), "a\nb\r\nc", -1, &lines, DT_CALCRECT), 3 * lineHeight);
    EXPECT_EQ(DrawText(Dc(), "a\nb", -1, &lines, DT_CALCRECT | DT_SINGLELINE), lineHeight);
}

TEST_F(TextTest, DrawTextWrapsInsideTheRectangle) {
    RECT r{10, 5, 10 + Width(Dc(), "parcel "), 55};
    DrawText(Dc(), "parcel parcel parcel", -1, &r, DT_WORDBREAK | DT_NOPREFIX);
    RECT ink = canvas.InkBounds();
    EXPECT_GE(ink.left, 10);
    EXPECT_LE(ink.right, r.right);
    EXPECT_GT(ink.bottom, 5 + 2 * Metrics().tmHeight);
}

TEST_F(TextTest, DrawTextAlignsSingleLines) {
    RECT r{0, 0, 200, 60};
    int height = Metrics().tmHeight;
    int answer = DrawText(Dc(), "Mid", -1, &r, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    RECT ink = canvas.InkBounds();
    EXPECT_NEAR((ink.left + ink.right) / 2.0, 100, 2);
    EXPECT_GE(ink.top, (60 - height) / 2);
    EXPECT_LE(ink.bottom, (60 - height) / 2 + height);
    EXPECT_EQ(answer, (60 - height) / 2 + height);
    canvas.Clear();
    DrawText(Dc(), "Right", -1, &r, DT_SINGLELINE | DT_RIGHT | DT_BOTTOM);
    ink = canvas.InkBounds();
    EXPECT_LE(ink.right, 200);
    EXPECT_GE(ink.right, 200 - 2);
    EXPECT_LE(ink.bottom, 60);
    EXPECT_GE(ink.top, 60 - height);
}

TEST_F(TextTest, DrawTextClipsToTheRectangleUnlessNoClip) {
    RECT r{10, 10, 20, 30};
    DrawText(Dc(), "WWWWWW", -1, &r, DT_SINGLELINE);
    RECT ink = canvas.InkBounds();
    EXPECT_LE(ink.right, 20);
    EXPECT_GE(ink.left, 10);
    canvas.Clear();
    DrawText(Dc(), "WWWWWW", -1, &r, DT_SINGLELINE | DT_NOCLIP);
    EXPECT_GT(canvas.InkBounds().right, 20);
}

TEST_F(TextTest, PrefixesAreTakenOutAndUnderlineTheirCharacter) {
    RECT a{0, 0, 500, 0}, b{0, 0, 500, 0}, c{0, 0, 500, 0};
    DrawText(Dc(), "&Save", -1, &a, DT_CALCRECT | DT_SINGLELINE);
    DrawText(Dc(), "&Save", -1, &b, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    DrawText(Dc(), "A&&B", -1, &c, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(a.right, Width(Dc(), "Save"));
    EXPECT_EQ(b.right, Width(Dc(), "&Save"));
    EXPECT_EQ(c.right, Width(Dc(), "A&B"));

    RECT r{0, 0, 200, 30};
    DrawText(Dc(), "&Save", -1, &r, DT_SINGLELINE);
    int plain = canvas.CountNot(White);
    canvas.Clear();
    DrawText(Dc(), "Save", -1, &r, DT_SINGLELINE);
    EXPECT_GT(plain, canvas.CountNot(White)); // the underline under 'S'
}

TEST_F(TextTest, ExpandTabsGoesToTheNextStop) {
    int stop = 8 * Metrics().tmAveCharWidth;
    RECT r{0, 0, 500, 0};
    DrawText(Dc(), "a\tb", -1, &r, DT_CALCRECT | DT_SINGLELINE | DT_EXPANDTABS);
    EXPECT_EQ(r.right, stop + Width(Dc(), "b"));
}

TEST_F(TextTest, EndEllipsisFitsTheLineIntoTheWidth) {
    RECT r{0, 0, Width(Dc(), "Layer...") + 1, 0};
    DrawText(Dc(), "Layer allocation", -1, &r, DT_CALCRECT | DT_SINGLELINE | DT_END_ELLIPSIS);
    EXPECT_EQ(r.right, Width(Dc(), "Layer..."));
}

TEST_F(TextTest, BadArgumentsAreRefused) {
    SIZE size;
    RECT r{};
    EXPECT_FALSE(GetTextExtentPoint32(Dc(), "abc", -1, &size));
    EXPECT_FALSE(TextOut(Dc(), 0, 0, nullptr, 3));
    EXPECT_EQ(DrawText(Dc(), "abc", -2, &r, 0), 0);
    EXPECT_EQ(DrawText(Dc(), "abc", 3, nullptr, 0), 0);
    EXPECT_EQ(CreateFontIndirect(nullptr), nullptr);
}

} // namespace
