// Drawing objects: selection, deletion, descriptions, saved states and regions.

#include "tests/platform/gdi/TestCanvas.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

TEST(Objects, NewContextsStartWithTheStockObjectsAndColours) {
    TestCanvas c;
    EXPECT_EQ(GetCurrentObject(c.Dc(), OBJ_PEN), GetStockObject(BLACK_PEN));
    EXPECT_EQ(GetCurrentObject(c.Dc(), OBJ_BRUSH), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(c.Dc(), OBJ_FONT), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(GetTextColor(c.Dc()), Black);
    EXPECT_EQ(GetBkColor(c.Dc()), White);
    EXPECT_EQ(GetBkMode(c.Dc()), OPAQUE);
}

TEST(Objects, SelectObjectAnswersThePreviousObjectOfTheKind) {
    TestCanvas c;
    HPEN a = CreatePen(PS_SOLID, 1, Red), b = CreatePen(PS_DASH, 1, Blue);
    EXPECT_EQ(SelectObject(c.Dc(), a), GetStockObject(BLACK_PEN));
    EXPECT_EQ(SelectObject(c.Dc(), b), a);
    EXPECT_EQ(SelectObject(c.Dc(), GetStockObject(NULL_BRUSH)), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(c.Dc(), OBJ_PEN), b);
    SelectObject(c.Dc(), GetStockObject(BLACK_PEN));
    DeleteObject(a);
    DeleteObject(b);
}

TEST(Objects, AnObjectDeletedWhileSelectedLivesUntilItIsDeselected) {
    TestCanvas c;
    HBRUSH brush = CreateSolidBrush(Red);
    SelectObject(c.Dc(), brush);
    EXPECT_TRUE(DeleteObject(brush));
    // Still drawing with it; but the handle no longer answers as an object.
    SelectObject(c.Dc(), GetStockObject(NULL_PEN));
    Rectangle(c.Dc(), 0, 0, 3, 3);
    EXPECT_EQ(c.At(1, 1), Red);
    EXPECT_EQ(GetObjectType(brush), 0u);
    EXPECT_EQ(SelectObject(c.Dc(), GetStockObject(WHITE_BRUSH)), brush);
}

TEST(Objects, SavedStatesHoldTheirObjectsToo) {
    TestCanvas c;
    HPEN pen = CreatePen(PS_SOLID, 1, Red);
    SelectObject(c.Dc(), pen);
    int saved = SaveDC(c.Dc());
    SelectObject(c.Dc(), GetStockObject(BLACK_PEN));
    DeleteObject(pen);
    RestoreDC(c.Dc(), saved);
    MoveToEx(c.Dc(), 0, 0, nullptr);
    LineTo(c.Dc(), 2, 0);
    EXPECT_EQ(c.At(1, 0), Red);
    SelectObject(c.Dc(), GetStockObject(BLACK_PEN));
}

TEST(Objects, StaleAndMadeUpHandlesAreRefused) {
    TestCanvas c;
    HPEN pen = CreatePen(PS_SOLID, 1, Red);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_EQ(SelectObject(c.Dc(), pen), nullptr);
    auto* bogus = reinterpret_cast<HGDIOBJ>(static_cast<std::uintptr_t>(0x1234));
    EXPECT_EQ(SelectObject(c.Dc(), bogus), nullptr);
    EXPECT_EQ(GetObjectType(bogus), 0u);
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_FALSE(DeleteDC(dc));
    EXPECT_EQ(SetTextColor(dc, Red), CLR_INVALID);
    EXPECT_FALSE(LineTo(dc, 1, 1));
    EXPECT_TRUE(DeleteObject(GetStockObject(WHITE_BRUSH))); // stock objects stay
    EXPECT_EQ(GetObjectType(GetStockObject(WHITE_BRUSH)), static_cast<DWORD>(OBJ_BRUSH));
}

TEST(Objects, GetObjectFillsTheDescriptionOfEachKind) {
    HPEN pen = CreatePen(PS_DOT, 3, Blue);
    LOGPEN lp;
    EXPECT_EQ(GetObject(pen, sizeof lp, &lp), static_cast<int>(sizeof lp));
    EXPECT_EQ(lp.lopnStyle, static_cast<UINT>(PS_DOT));
    EXPECT_EQ(lp.lopnWidth.x, 3);
    EXPECT_EQ(lp.lopnColor, Blue);
    DeleteObject(pen);

    HFONT font = CreateFont(-13, 0, 0, 0, FW_BOLD, 1, 0, 0, 0, 0, 0, 0, 0, "Arial");
    LOGFONT lf;
    // The platform's 60-byte form: 28 bytes of fields and the face name.
    EXPECT_EQ(GetObject(font, 60, &lf), 60);
    EXPECT_EQ(lf.lfHeight, -13);
    EXPECT_EQ(lf.lfWeight, FW_BOLD);
    EXPECT_EQ(lf.lfItalic, 1);
    EXPECT_STREQ(lf.lfFaceName, "Arial");
    EXPECT_EQ(GetObject(font, 59, &lf), 0);
    EXPECT_EQ(GetObject(font, 0, nullptr), 60);
    DeleteObject(font);

    TestCanvas c(7, 3);
    BITMAP bm;
    EXPECT_EQ(GetObject(c.Bitmap(), sizeof bm, &bm), static_cast<int>(sizeof bm));
    EXPECT_EQ(bm.bmWidth, 7);
    EXPECT_EQ(bm.bmHeight, 3);
    EXPECT_EQ(bm.bmBitsPixel, 32);
    EXPECT_EQ(bm.bmWidthBytes, 28);
}

TEST(Objects, MemoryContextsStartWithAOnePixelMonochromeBitmap) {
    HDC dc = CreateCompatibleDC(nullptr);
    BITMAP bm;
    GetObject(GetCurrentObject(dc, OBJ_BITMAP), sizeof bm, &bm);
    EXPECT_EQ(bm.bmWidth, 1);
    EXPECT_EQ(bm.bmHeight, 1);
    EXPECT_EQ(bm.bmBitsPixel, 1);
    HBITMAP empty = CreateCompatibleBitmap(dc, 0, 5);
    GetObject(empty, sizeof bm, &bm);
    EXPECT_EQ(bm.bmWidth, 1);
    EXPECT_EQ(bm.bmBitsPixel, 1);
    DeleteObject(empty);
    EXPECT_EQ(CreateCompatibleBitmap(dc, 100000, 10), nullptr);
    DeleteDC(dc);
}

TEST(Objects, CreateBitmapReadsPaddedRows) {
    // 3 pixels wide, monochrome: each row padded to 16 bits.
    const BYTE mono[] = {0xA0, 0x00, 0x40, 0x00};
    HBITMAP bitmap = CreateBitmap(3, 2, 1, 1, mono);
    ASSERT_NE(bitmap, nullptr);
    HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, bitmap);
    EXPECT_EQ(GetPixel(dc, 0, 0), White);
    EXPECT_EQ(GetPixel(dc, 1, 0), Black);
    EXPECT_EQ(GetPixel(dc, 2, 0), White);
    EXPECT_EQ(GetPixel(dc, 1, 1), White);
    DeleteDC(dc);
    DeleteObject(bitmap);
    EXPECT_EQ(CreateBitmap(3, 2, 1, 8, mono), nullptr);
}

TEST(Objects, RestoreDCBringsBackObjectsColoursAndOrigin) {
    TestCanvas c;
    HDC dc = c.Dc();
    HPEN pen = CreatePen(PS_SOLID, 1, Red);
    int first = SaveDC(dc);
    SelectObject(dc, pen);
    SetTextColor(dc, Blue);
    SetBkMode(dc, TRANSPARENT);
    SetViewportOrgEx(dc, 5, 5, nullptr);
    int second = SaveDC(dc);
    EXPECT_EQ(second, first + 1);
    SetTextColor(dc, Red);
    EXPECT_TRUE(RestoreDC(dc, -1));
    EXPECT_EQ(GetTextColor(dc), Blue);
    EXPECT_TRUE(RestoreDC(dc, first));
    EXPECT_EQ(GetTextColor(dc), Black);
    EXPECT_EQ(GetBkMode(dc), OPAQUE);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), GetStockObject(BLACK_PEN));
    POINT org;
    GetViewportOrgEx(dc, &org);
    EXPECT_EQ(org, (POINT{0, 0}));
    EXPECT_FALSE(RestoreDC(dc, first)); // that level is gone
    EXPECT_FALSE(RestoreDC(dc, 0));
    DeleteObject(pen);
}

struct CombineCase {
    int mode;
    int kind;
    RECT box;
};

class CombineTest : public ::testing::TestWithParam<CombineCase> {};

TEST_P(CombineTest, CombinesTwoOverlappingRectangles) {
    HRGN a = CreateRectRgn(0, 0, 10, 10), b = CreateRectRgn(5, 5, 15, 15);
    HRGN out = CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(CombineRgn(out, a, b, GetParam().mode), GetParam().kind);
    RECT box;
    GetRgnBox(out, &box);
    EXPECT_EQ(box, GetParam().box);
    DeleteObject(a);
    DeleteObject(b);
    DeleteObject(out);
}

INSTANTIATE_TEST_SUITE_P(Regions, CombineTest,
                         ::testing::Values(CombineCase{RGN_AND, SIMPLEREGION, RECT{5, 5, 10, 10}},
                                           CombineCase{RGN_OR, COMPLEXREGION, RECT{0, 0, 15, 15}},
                                           CombineCase{RGN_XOR, COMPLEXREGION, RECT{0, 0, 15, 15}},
                                           CombineCase{RGN_DIFF, COMPLEXREGION, RECT{0, 0, 10, 10}},
                                           CombineCase{RGN_COPY, SIMPLEREGION,
                                                       RECT{0, 0, 10, 10}}));

TEST(Regions, QueriesAndChanges) {
    HRGN r = CreateRectRgn(10, 10, 0, 0); // corners in any order
    RECT box;
    EXPECT_EQ(GetRgnBox(r, &box), SIMPLEREGION);
    EXPECT_EQ(box, (RECT{0, 0, 10, 10}));
    EXPECT_TRUE(PtInRegion(r, 9, 9));
    EXPECT_FALSE(PtInRegion(r, 10, 9));
    EXPECT_EQ(OffsetRgn(r, 5, 0), SIMPLEREGION);
    EXPECT_TRUE(PtInRegion(r, 14, 0));
    HRGN same = CreateRectRgn(5, 0, 15, 10);
    EXPECT_TRUE(EqualRgn(r, same));
    SetRectRgn(same, 0, 0, 0, 0);
    EXPECT_EQ(GetRgnBox(same, &box), NULLREGION);
    EXPECT_EQ(box, (RECT{}));
    EXPECT_EQ(CombineRgn(same, r, nullptr, RGN_AND), ERROR);
    DeleteObject(r);
    DeleteObject(same);
}

TEST(Regions, SelectingARegionClipsToItAndAnswersItsKind) {
    TestCanvas c(8, 1);
    HRGN r = CreateRectRgn(2, 0, 4, 1);
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(SelectObject(c.Dc(), r)), SIMPLEREGION);
    DeleteObject(r); // the context keeps its own copy
    RECT all{0, 0, 8, 1};
    InvertRect(c.Dc(), &all);
    EXPECT_EQ(c.Rows()[0], "..##....");
}

} // namespace
