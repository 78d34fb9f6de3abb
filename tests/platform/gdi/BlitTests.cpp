// Copies between contexts, pattern brushes, and contexts on a window's surface.

#include "platform/gdi/SurfaceDC.h"
#include "tests/platform/gdi/TestCanvas.h"

#include <cairo.h>
#include <gtest/gtest.h>

namespace {

struct RopCase {
    DWORD rop;
    COLORREF source, dest, expected;
};

class RopTest : public ::testing::TestWithParam<RopCase> {};

TEST_P(RopTest, CombinesSourceAndDestination) {
    const RopCase& c = GetParam();
    TestCanvas src(2, 2), dst(2, 2);
    src.Clear(c.source);
    dst.Clear(c.dest);
    EXPECT_TRUE(BitBlt(dst.Dc(), 0, 0, 1, 1, src.Dc(), 0, 0, c.rop));
    EXPECT_EQ(dst.At(0, 0), c.expected);
    EXPECT_EQ(dst.At(1, 1), c.dest);
}

INSTANTIATE_TEST_SUITE_P(
    Blit, RopTest,
    ::testing::Values(
        RopCase{SRCCOPY, RGB(10, 20, 30), White, RGB(10, 20, 30)},
        RopCase{SRCAND, RGB(0xF0, 0x0F, 0xFF), RGB(0x3C, 0x3C, 0x00), RGB(0x30, 0x0C, 0x00)},
        RopCase{SRCPAINT, RGB(0xF0, 0x0F, 0x00), RGB(0x0C, 0x30, 0x00), RGB(0xFC, 0x3F, 0x00)},
        RopCase{SRCINVERT, RGB(0xFF, 0x00, 0x0F), RGB(0x0F, 0x0F, 0x0F), RGB(0xF0, 0x0F, 0x00)},
        RopCase{NOTSRCCOPY, RGB(0xFF, 0x00, 0x80), Black, RGB(0x00, 0xFF, 0x7F)}));

TEST(Blit, CopiesFromTheSourcePositionWithinTheDestinationClip) {
    TestCanvas src(8, 8), dst(8, 8);
    SetPixel(src.Dc(), 5, 6, Red);
    IntersectClipRect(dst.Dc(), 0, 0, 2, 8);
    BitBlt(dst.Dc(), 1, 2, 3, 3, src.Dc(), 4, 4, NOTSRCCOPY);
    EXPECT_EQ(dst.At(1, 2), Black); // white inverted
    EXPECT_EQ(dst.At(2, 4), White); // clipped: (5,6) would land here
    EXPECT_EQ(dst.At(1, 5), White); // below the copied block
    SelectClipRgn(dst.Dc(), nullptr);
    BitBlt(dst.Dc(), 1, 2, 3, 3, src.Dc(), 4, 4, SRCCOPY);
    EXPECT_EQ(dst.At(2, 4), Red);
}

TEST(Blit, PixelsFromOutsideTheSourceLeaveTheDestination) {
    TestCanvas src(4, 4), dst(8, 8);
    src.Clear(Blue);
    dst.Clear(Red);
    BitBlt(dst.Dc(), 0, 0, 8, 8, src.Dc(), 2, 2, SRCCOPY);
    EXPECT_EQ(dst.At(1, 1), Blue);
    EXPECT_EQ(dst.At(2, 1), Red);
    EXPECT_EQ(dst.At(1, 2), Red);
}

TEST(Blit, OverlappingCopyWithinOneContextReadsBeforeWriting) {
    TestCanvas c(8, 1);
    for (int x = 0; x < 4; ++x) SetPixel(c.Dc(), x, 0, RGB(static_cast<BYTE>(x * 10), 0, 0));
    BitBlt(c.Dc(), 1, 0, 4, 1, c.Dc(), 0, 0, SRCCOPY);
    for (int x = 0; x < 4; ++x) EXPECT_EQ(c.At(x + 1, 0), RGB(static_cast<BYTE>(x * 10), 0, 0));
}

TEST(Blit, StretchBltScalesAndMirrors) {
    TestCanvas src(2, 1), dst(8, 2);
    SetPixel(src.Dc(), 0, 0, Red);
    SetPixel(src.Dc(), 1, 0, Blue);
    StretchBlt(dst.Dc(), 0, 0, 4, 1, src.Dc(), 0, 0, 2, 1, SRCCOPY);
    // A negative width runs leftwards from x, x included: the platform's mirroring idiom.
    StretchBlt(dst.Dc(), 3, 1, -4, 1, src.Dc(), 0, 0, 2, 1, SRCCOPY);
    EXPECT_EQ(dst.Rows()[0], "rrbb....");
    EXPECT_EQ(dst.Rows()[1], "bbrr....");
    TestCanvas small(2, 1);
    StretchBlt(small.Dc(), 0, 0, 2, 1, dst.Dc(), 0, 0, 4, 1, SRCCOPY);
    EXPECT_EQ(small.Rows()[0], "rb");
}

TEST(Blit, PatternBrushTilesFromTheBrushOrigin) {
    TestCanvas tile(2, 1), c(6, 1);
    SetPixel(tile.Dc(), 0, 0, Red);
    SetPixel(tile.Dc(), 1, 0, Blue);
    HBRUSH brush = CreatePatternBrush(tile.Bitmap());
    ASSERT_NE(brush, nullptr);
    RECT r{0, 0, 6, 1};
    FillRect(c.Dc(), &r, brush);
    EXPECT_EQ(c.Rows()[0], "rbrbrb");
    SetBrushOrgEx(c.Dc(), 1, 0, nullptr);
    FillRect(c.Dc(), &r, brush);
    EXPECT_EQ(c.Rows()[0], "brbrbr");
    DeleteObject(brush);
}

// A window's context: an origin on the top-level's surface and a clip of its own.
class SurfaceContextTest : public ::testing::Test {
protected:
    SurfaceContextTest() : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 20, 10)) {
        cairo_t* cr = cairo_create(surface);
        cairo_set_source_rgb(cr, 1, 1, 1);
        cairo_paint(cr);
        cairo_destroy(cr);
    }
    ~SurfaceContextTest() override { cairo_surface_destroy(surface); }
    COLORREF At(int x, int y) {
        cairo_surface_flush(surface);
        auto* row = reinterpret_cast<const std::uint32_t*>(
            cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface));
        std::uint32_t p = row[x];
        return RGB(static_cast<BYTE>(p >> 16), static_cast<BYTE>(p >> 8), static_cast<BYTE>(p));
    }

    cairo_surface_t* surface;
};

TEST_F(SurfaceContextTest, DrawsShiftedByTheOriginAndInsideTheClip) {
    cairo_rectangle_int_t visible{0, 0, 5, 3};
    cairo_region_t* clip = cairo_region_create_rectangle(&visible);
    HDC dc = CreateSurfaceDC(surface, POINT{10, 4}, clip);
    cairo_region_destroy(clip);
    ASSERT_NE(dc, nullptr);
    HBRUSH red = CreateSolidBrush(Red);
    RECT all{-10, -10, 30, 30};
    FillRect(dc, &all, red);
    EXPECT_EQ(At(10, 4), Red);
    EXPECT_EQ(At(14, 6), Red);
    EXPECT_EQ(At(15, 6), White);
    EXPECT_EQ(At(14, 7), White);
    EXPECT_EQ(At(9, 4), White);
    RECT box;
    GetClipBox(dc, &box);
    EXPECT_EQ(box, (RECT{0, 0, 5, 3}));
    // A program's clip cannot reach beyond what the window may paint.
    SelectClipRgn(dc, nullptr);
    ExcludeClipRect(dc, 0, 0, 1, 1);
    GetClipBox(dc, &box);
    EXPECT_EQ(box, (RECT{0, 0, 5, 3}));
    EXPECT_EQ(GetPixel(dc, 0, 0), CLR_INVALID);
    EXPECT_EQ(GetPixel(dc, 1, 0), Red);
    DeleteObject(red);
    DeleteDC(dc);
}

TEST_F(SurfaceContextTest, FocusPatternFollowsTheWindowNotTheSurface) {
    HDC dc = CreateSurfaceDC(surface, POINT{1, 0}, nullptr);
    RECT r{0, 0, 4, 1};
    DrawFocusRect(dc, &r);
    // Client x 1 and 3 (odd) are surface x 2 and 4.
    EXPECT_EQ(At(1, 0), White);
    EXPECT_EQ(At(2, 0), Black);
    EXPECT_EQ(At(3, 0), White);
    EXPECT_EQ(At(4, 0), Black);
    DeleteDC(dc);
}

TEST_F(SurfaceContextTest, ScrollDCReportsPixelsItCouldNotFetch) {
    cairo_rectangle_int_t visible{0, 0, 10, 5};
    cairo_region_t* clip = cairo_region_create_rectangle(&visible);
    HDC dc = CreateSurfaceDC(surface, POINT{0, 0}, clip);
    cairo_region_destroy(clip);
    IntersectClipRect(dc, 0, 0, 10, 3);
    RECT scroll{0, 0, 10, 5}, update;
    ScrollDC(dc, 0, 1, &scroll, &scroll, nullptr, &update);
    // Rows 3 and 4 are outside the clip: nothing is fetched from or put into them.
    EXPECT_EQ(update, (RECT{0, 0, 10, 1}));
    DeleteDC(dc);
}

TEST(SurfaceContext, ScreenSizeIsWhatTheBackendSet) {
    TestCanvas c(1, 1);
    EXPECT_EQ(GetDeviceCaps(c.Dc(), HORZRES), 1280);
    EXPECT_EQ(GetDeviceCaps(c.Dc(), VERTRES), 1024);
    SetScreenSize(800, 600);
    EXPECT_EQ(GetDeviceCaps(c.Dc(), HORZRES), 800);
    EXPECT_EQ(GetDeviceCaps(c.Dc(), VERTSIZE), 159); // 600 pixels at 96 per inch in mm
    SetScreenSize(1280, 1024);
}

} // namespace
