// The drawing primitives on known pixels, as the reference probe of the real system drew them.

#include "tests/platform/gdi/TestCanvas.h"

#include <gtest/gtest.h>

namespace {

class PixelTest : public ::testing::Test {
protected:
    PixelTest() {
        pen = CreatePen(PS_SOLID, 1, Black);
        blue = CreateSolidBrush(Blue);
        SelectObject(canvas.Dc(), pen);
    }
    ~PixelTest() override {
        SelectObject(canvas.Dc(), GetStockObject(BLACK_PEN));
        SelectObject(canvas.Dc(), GetStockObject(WHITE_BRUSH));
        DeleteObject(pen);
        DeleteObject(blue);
    }
    void Line(int x1, int y1, int x2, int y2) {
        MoveToEx(canvas.Dc(), x1, y1, nullptr);
        LineTo(canvas.Dc(), x2, y2);
    }

    TestCanvas canvas;
    HPEN pen;
    HBRUSH blue;
};

TEST_F(PixelTest, LineToLeavesOutItsLastPixelInEveryDirection) {
    Line(2, 1, 8, 1);
    Line(1, 2, 1, 7);
    Line(3, 3, 7, 7);
    Line(14, 2, 10, 2);
    EXPECT_EQ(canvas.Rows(), Picture({
                                 "................",
                                 "..######........",
                                 ".#.........####.",
                                 ".#.#............",
                                 ".#..#...........",
                                 ".#...#..........",
                                 ".#....#.........",
                                 "................",
                                 "................",
                                 "................",
                                 "................",
                                 "................",
                             }));
}

TEST_F(PixelTest, LineToMovesTheCurrentPositionAndFollowsTheViewport) {
    SetViewportOrgEx(canvas.Dc(), 3, 2, nullptr);
    Line(0, 0, 3, 0);
    LineTo(canvas.Dc(), 3, 3);
    POINT at;
    MoveToEx(canvas.Dc(), 0, 0, &at);
    EXPECT_EQ(at, (POINT{3, 3}));
    EXPECT_EQ(canvas.Rows()[2], "...####.........");
    EXPECT_EQ(canvas.Rows()[3], "......#.........");
    EXPECT_EQ(canvas.Rows()[4], "......#.........");
    EXPECT_EQ(canvas.Rows()[5], "................");
}

TEST_F(PixelTest, RectangleDrawsOutlineAndFillsInside) {
    SelectObject(canvas.Dc(), blue);
    Rectangle(canvas.Dc(), 1, 1, 7, 5);
    SelectObject(canvas.Dc(), GetStockObject(NULL_BRUSH));
    Rectangle(canvas.Dc(), 9, 1, 10, 2);
    Rectangle(canvas.Dc(), 11, 1, 13, 3);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 6), Picture({
                                                               "................",
                                                               ".######....##...",
                                                               ".#bbbb#....##...",
                                                               ".#bbbb#.........",
                                                               ".######.........",
                                                               "................",
                                                           }));
}

TEST_F(PixelTest, RectangleWithoutPenFillsOnePixelLessRightAndBelow) {
    SelectObject(canvas.Dc(), GetStockObject(NULL_PEN));
    SelectObject(canvas.Dc(), blue);
    Rectangle(canvas.Dc(), 1, 1, 5, 4);
    EXPECT_EQ(canvas.Rows()[1], ".bbb............");
    EXPECT_EQ(canvas.Rows()[2], ".bbb............");
    EXPECT_EQ(canvas.Rows()[3], "................");
}

TEST_F(PixelTest, FillRectCoversLeftToRightMinusOneAndNothingWhenEmpty) {
    RECT r{2, 2, 6, 5}, empty{8, 2, 8, 5};
    EXPECT_TRUE(FillRect(canvas.Dc(), &r, blue));
    FillRect(canvas.Dc(), &empty, blue);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 6), Picture({
                                                               "................",
                                                               "................",
                                                               "..bbbb..........",
                                                               "..bbbb..........",
                                                               "..bbbb..........",
                                                               "................",
                                                           }));
}

TEST_F(PixelTest, PolylineLeavesOutOnlyTheLastPoint) {
    POINT p[4] = {{1, 1}, {5, 1}, {5, 4}, {1, 4}};
    Polyline(canvas.Dc(), p, 4);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 6), Picture({
                                                               "................",
                                                               ".#####..........",
                                                               ".....#..........",
                                                               ".....#..........",
                                                               "..####..........",
                                                               "................",
                                                           }));
}

TEST_F(PixelTest, DrawFocusRectInvertsOddPixelsAndTwiceRestores) {
    RECT a{1, 1, 9, 6}, b{10, 1, 15, 8};
    DrawFocusRect(canvas.Dc(), &a);
    DrawFocusRect(canvas.Dc(), &b);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 9), Picture({
                                                               "................",
                                                               "..#.#.#.#.#.#.#.",
                                                               ".#..............",
                                                               "........#.#...#.",
                                                               ".#..............",
                                                               "..#.#.#.#.#...#.",
                                                               "................",
                                                               "..........#.#.#.",
                                                               "................",
                                                           }));
    DrawFocusRect(canvas.Dc(), &a);
    DrawFocusRect(canvas.Dc(), &b);
    EXPECT_EQ(canvas.CountNot(White), 0);
}

TEST_F(PixelTest, DrawFocusRectInvertsWhatIsThere) {
    RECT block{1, 1, 9, 6}, frame{0, 0, 12, 8};
    FillRect(canvas.Dc(), &block, blue);
    DrawFocusRect(canvas.Dc(), &frame);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 9), Picture({
                                                               ".#.#.#.#.#.#....",
                                                               "#bbbbbbbb.......",
                                                               ".bbbbbbbb..#....",
                                                               "#bbbbbbbb.......",
                                                               ".bbbbbbbb..#....",
                                                               "#bbbbbbbb.......",
                                                               "...........#....",
                                                               "#.#.#.#.#.#.....",
                                                               "................",
                                                           }));
}

TEST_F(PixelTest, DrawFocusRectPatternStaysWithTheDeviceNotTheViewport) {
    RECT r{0, 0, 4, 1};
    SetViewportOrgEx(canvas.Dc(), 1, 0, nullptr);
    DrawFocusRect(canvas.Dc(), &r);
    // Device x 1..4 on row 0: the odd ones.
    EXPECT_EQ(canvas.Rows()[0], ".#.#............");
}

TEST_F(PixelTest, RestoreDCBringsBackTheClipAndClipsIntersect) {
    RECT all{0, 0, 16, 12};
    IntersectClipRect(canvas.Dc(), 2, 2, 6, 6);
    int saved = SaveDC(canvas.Dc());
    IntersectClipRect(canvas.Dc(), 4, 0, 16, 16);
    FillRect(canvas.Dc(), &all, blue);
    RestoreDC(canvas.Dc(), saved);
    HBRUSH red = CreateSolidBrush(Red);
    RECT corner{0, 0, 3, 3};
    FillRect(canvas.Dc(), &corner, red);
    DeleteObject(red);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 7), Picture({
                                                               "................",
                                                               "................",
                                                               "..r.bb..........",
                                                               "....bb..........",
                                                               "....bb..........",
                                                               "....bb..........",
                                                               "................",
                                                           }));
}

TEST_F(PixelTest, ClipQueriesAnswerInLogicalCoordinates) {
    HDC dc = canvas.Dc();
    RECT box;
    EXPECT_EQ(GetClipBox(dc, &box), SIMPLEREGION);
    EXPECT_EQ(box, (RECT{0, 0, 16, 12}));
    EXPECT_EQ(ExcludeClipRect(dc, 4, 0, 8, 12), COMPLEXREGION);
    SetViewportOrgEx(dc, 2, 1, nullptr);
    GetClipBox(dc, &box);
    EXPECT_EQ(box, (RECT{-2, -1, 14, 11}));
    RECT excluded{2, 0, 6, 5}, partly{5, 0, 7, 5};
    EXPECT_FALSE(RectVisible(dc, &excluded));
    EXPECT_TRUE(RectVisible(dc, &partly));
    EXPECT_FALSE(PtVisible(dc, 3, 3));
    EXPECT_TRUE(PtVisible(dc, 7, 3));
    EXPECT_EQ(IntersectClipRect(dc, 20, 20, 30, 30), NULLREGION);
    EXPECT_EQ(GetClipBox(dc, &box), NULLREGION);
    EXPECT_EQ(SelectClipRgn(dc, nullptr), SIMPLEREGION);
}

TEST_F(PixelTest, ExtTextOutOpaqueClippedTouchesExactlyItsRectangle) {
    RECT r{2, 2, 12, 8};
    SetBkColor(canvas.Dc(), Blue);
    SetTextColor(canvas.Dc(), Black);
    EXPECT_TRUE(
        ExtTextOut(canvas.Dc(), 0, 0, ETO_OPAQUE | ETO_CLIPPED, &r, "WWWWWWWW", 8, nullptr));
    int glyphPixels = 0;
    for (int y = 0; y < canvas.Height(); ++y)
        for (int x = 0; x < canvas.Width(); ++x) {
            COLORREF c = canvas.At(x, y);
            if (x >= r.left && x < r.right && y >= r.top && y < r.bottom) {
                EXPECT_NE(c, White) << x << "," << y;
                glyphPixels += c != Blue;
            } else {
                EXPECT_EQ(c, White) << x << "," << y;
            }
        }
    EXPECT_GT(glyphPixels, 0);
}

TEST_F(PixelTest, ScrollDCCopiesPixelsAndReportsTheUncoveredBand) {
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 16; ++x) SetPixel(canvas.Dc(), x, y, (x + y) % 3 == 0 ? Black : White);
    // A marker that only the scroll can move.
    SetPixel(canvas.Dc(), 4, 0, Red);
    RECT all{0, 0, 16, 12}, update;
    HRGN region = CreateRectRgn(0, 0, 0, 0);
    EXPECT_TRUE(ScrollDC(canvas.Dc(), 0, 3, &all, &all, region, &update));
    EXPECT_EQ(update, (RECT{0, 0, 16, 3}));
    RECT box;
    EXPECT_EQ(GetRgnBox(region, &box), SIMPLEREGION);
    EXPECT_EQ(box, update);
    DeleteObject(region);
    EXPECT_EQ(canvas.At(4, 3), Red);
    EXPECT_EQ(canvas.At(4, 0), Red); // the uncovered band is left as it was
    for (int y = 3; y < 12; ++y) {
        for (int x = 0; x < 16; ++x) {
            if (x == 4 && y == 3) continue;
            EXPECT_EQ(canvas.At(x, y), (x + y - 3) % 3 == 0 ? Black : White) << x << "," << y;
        }
    }
}

TEST_F(PixelTest, ScrollDCStaysInsideTheClipRectangle) {
    RECT scroll{0, 0, 16, 12}, clip{0, 0, 8, 12}, update;
    SetPixel(canvas.Dc(), 2, 2, Red);
    SetPixel(canvas.Dc(), 6, 3, Red);
    ScrollDC(canvas.Dc(), 4, 0, &scroll, &clip, nullptr, &update);
    EXPECT_EQ(canvas.At(6, 2), Red);
    EXPECT_EQ(canvas.At(6, 3), White);
    EXPECT_EQ(canvas.At(10, 3), White); // would have landed outside the clip
    EXPECT_EQ(update, (RECT{0, 0, 4, 12}));
}

TEST_F(PixelTest, PatBltDstInvertInvertsTheArea) {
    HBRUSH red = CreateSolidBrush(Red);
    RECT r{0, 0, 8, 6};
    FillRect(canvas.Dc(), &r, red);
    DeleteObject(red);
    EXPECT_TRUE(PatBlt(canvas.Dc(), 4, 0, 8, 6, DSTINVERT));
    EXPECT_EQ(canvas.Rows()[0], "rrrr????####....");
    EXPECT_EQ(canvas.At(5, 5), RGB(0, 255, 255));
    EXPECT_EQ(canvas.Rows()[6], "................");
}

TEST_F(PixelTest, PatBltFillsWithTheBrushOrAFixedColour) {
    SelectObject(canvas.Dc(), blue);
    PatBlt(canvas.Dc(), 1, 0, 2, 1, PATCOPY);
    PatBlt(canvas.Dc(), 4, 0, -2, 1, BLACKNESS); // a negative width reaches left
    PatBlt(canvas.Dc(), 2, 0, 1, 1, WHITENESS);
    PatBlt(canvas.Dc(), 0, 1, 2, 1, PATINVERT);
    EXPECT_EQ(canvas.Rows()[0], ".b.#............");
    EXPECT_EQ(canvas.At(0, 1), RGB(255, 255, 0));
}

TEST_F(PixelTest, MemoryContextReports96PixelsPerInch) {
    EXPECT_EQ(GetDeviceCaps(canvas.Dc(), LOGPIXELSX), 96);
    EXPECT_EQ(GetDeviceCaps(canvas.Dc(), LOGPIXELSY), 96);
    EXPECT_EQ(GetDeviceCaps(canvas.Dc(), BITSPIXEL), 32);
    EXPECT_EQ(GetDeviceCaps(canvas.Dc(), TECHNOLOGY), DT_RASDISPLAY);
}

TEST_F(PixelTest, XorPenTwiceRestoresAndNotPenInverts) {
    SetROP2(canvas.Dc(), R2_XORPEN);
    HPEN red = CreatePen(PS_SOLID, 1, Red);
    SelectObject(canvas.Dc(), red);
    Line(0, 0, 5, 0);
    EXPECT_EQ(canvas.At(2, 0), RGB(0, 255, 255));
    Line(0, 0, 5, 0);
    EXPECT_EQ(canvas.CountNot(White), 0);
    SetROP2(canvas.Dc(), R2_NOT);
    Line(0, 1, 3, 1);
    EXPECT_EQ(canvas.Rows()[1], "###.............");
    SelectObject(canvas.Dc(), pen);
    DeleteObject(red);
}

TEST_F(PixelTest, StyledPensLeaveGapsInTheBackgroundMode) {
    TestCanvas wide(40, 2);
    HPEN dot = CreatePen(PS_DOT, 1, Black);
    SelectObject(wide.Dc(), dot);
    SetBkMode(wide.Dc(), TRANSPARENT);
    MoveToEx(wide.Dc(), 0, 0, nullptr);
    LineTo(wide.Dc(), 12, 0);
    EXPECT_EQ(wide.Rows()[0].substr(0, 13), "###...###....");
    SetBkMode(wide.Dc(), OPAQUE);
    SetBkColor(wide.Dc(), Blue);
    MoveToEx(wide.Dc(), 0, 1, nullptr);
    LineTo(wide.Dc(), 12, 1);
    EXPECT_EQ(wide.Rows()[1].substr(0, 13), "###bbb###bbb.");
    SelectObject(wide.Dc(), GetStockObject(BLACK_PEN));
    DeleteObject(dot);
}

TEST_F(PixelTest, WidePensCoverTheirWidth) {
    HPEN thick = CreatePen(PS_SOLID, 3, Black);
    SelectObject(canvas.Dc(), thick);
    Line(2, 5, 12, 5);
    for (int x = 3; x < 12; ++x) {
        EXPECT_EQ(canvas.At(x, 4), Black);
        EXPECT_EQ(canvas.At(x, 6), Black);
        EXPECT_EQ(canvas.At(x, 3), White);
        EXPECT_EQ(canvas.At(x, 7), White);
    }
    SelectObject(canvas.Dc(), pen);
    DeleteObject(thick);
}

TEST_F(PixelTest, FrameRectAndInvertRect) {
    RECT r{1, 1, 5, 4};
    FrameRect(canvas.Dc(), &r, blue);
    RECT inv{0, 5, 3, 6};
    InvertRect(canvas.Dc(), &inv);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 6), Picture({
                                                               "................",
                                                               ".bbbb...........",
                                                               ".b..b...........",
                                                               ".bbbb...........",
                                                               "................",
                                                               "###.............",
                                                           }));
}

TEST_F(PixelTest, PolygonFillsInsideAndOutlinesWithThePen) {
    SelectObject(canvas.Dc(), blue);
    POINT p[4] = {{1, 1}, {6, 1}, {6, 5}, {1, 5}};
    Polygon(canvas.Dc(), p, 4);
    auto rows = canvas.Rows();
    EXPECT_EQ(std::vector(rows.begin(), rows.begin() + 7), Picture({
                                                               "................",
                                                               ".######.........",
                                                               ".#bbbb#.........",
                                                               ".#bbbb#.........",
                                                               ".#bbbb#.........",
                                                               ".######.........",
                                                               "................",
                                                           }));
}

TEST_F(PixelTest, SetPixelAndGetPixelRespectTheClip) {
    EXPECT_EQ(SetPixel(canvas.Dc(), 3, 3, Red), Red);
    EXPECT_EQ(GetPixel(canvas.Dc(), 3, 3), Red);
    EXPECT_EQ(GetPixel(canvas.Dc(), 16, 0), CLR_INVALID);
    IntersectClipRect(canvas.Dc(), 0, 0, 2, 2);
    EXPECT_EQ(GetPixel(canvas.Dc(), 3, 3), CLR_INVALID);
    EXPECT_EQ(SetPixel(canvas.Dc(), 4, 4, Red), CLR_INVALID);
    EXPECT_EQ(canvas.At(4, 4), White);
}

} // namespace
