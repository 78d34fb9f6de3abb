// The framework's drawing classes.

#include "platform/afx/CDC.h"
#include "platform/afx/DCStateSaver.h"
#include "tests/platform/gdi/TestCanvas.h"

#include <gtest/gtest.h>

namespace {

TEST(AfxGdi, ObjectsDeleteTheirHandleUnlessDetached) {
    HGDIOBJ kept;
    HGDIOBJ dropped;
    {
        CPen pen(PS_SOLID, 1, Red);
        CBrush brush(Blue);
        dropped = pen.GetSafeHandle();
        kept = brush.Detach();
        EXPECT_EQ(GetObjectType(dropped), static_cast<DWORD>(OBJ_PEN));
    }
    EXPECT_EQ(GetObjectType(dropped), 0u);
    EXPECT_EQ(GetObjectType(kept), static_cast<DWORD>(OBJ_BRUSH));
    DeleteObject(kept);
}

TEST(AfxGdi, AttachRefusesASecondHandle) {
    CBrush brush(Red);
    HBRUSH other = CreateSolidBrush(Blue);
    EXPECT_FALSE(brush.Attach(other));
    DeleteObject(other);
    LOGBRUSH lb;
    brush.GetLogBrush(&lb);
    EXPECT_EQ(lb.lbColor, Red);
}

TEST(AfxGdi, SelectObjectAnswersThePreviousWrapper) {
    TestCanvas canvas;
    CDC* dc = CDC::FromHandle(canvas.Dc());
    CPen red(PS_SOLID, 1, Red), blue(PS_SOLID, 1, Blue);
    CPen* stock = dc->SelectObject(&red);
    ASSERT_NE(stock, nullptr);
    EXPECT_EQ(stock->GetSafeHandle(), GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc->SelectObject(&blue), &red); // the object that owns the handle
    EXPECT_EQ(dc->SelectObject(stock), &blue);
    EXPECT_EQ(GetCurrentObject(canvas.Dc(), OBJ_PEN), GetStockObject(BLACK_PEN));
    // A temporary wrapper never deletes what it wraps.
    EXPECT_EQ(CPen::FromHandle(GetStockObject(BLACK_PEN)), stock);
    EXPECT_EQ(CDC::FromHandle(canvas.Dc()), dc);
}

TEST(AfxGdi, CompatibleContextIsDeletedWithItsObject) {
    HDC made;
    {
        CDC screen, memory;
        EXPECT_TRUE(memory.CreateCompatibleDC(&screen));
        made = memory.GetSafeHdc();
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.CreateCompatibleBitmap(&memory, 4, 3));
        BITMAP bm;
        bitmap.GetBitmap(&bm);
        EXPECT_EQ(bm.bmWidth, 4);
        CBitmap* old = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, 4, 3, Blue);
        EXPECT_EQ(memory.GetPixel(3, 2), Blue);
        EXPECT_EQ(memory.GetBkColor(), Blue); // as the framework's FillSolidRect leaves it
        memory.SelectObject(old);
    }
    EXPECT_EQ(GetObjectType(made), 0u);
}

TEST(AfxGdi, Draw3dRectFramesWithTwoColours) {
    TestCanvas canvas(6, 5);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    RECT r{1, 1, 5, 4};
    dc->Draw3dRect(&r, Blue, Red);
    EXPECT_EQ(canvas.Rows(), Picture({
                                 "......",
                                 ".bbbr.",
                                 ".b..r.",
                                 ".rrrr.",
                                 "......",
                             }));
}

TEST(AfxGdi, PointFontsFollowTheContextResolution) {
    CFont screen, printer;
    EXPECT_TRUE(screen.CreatePointFont(80, "MS Sans Serif"));
    LOGFONT lf;
    screen.GetLogFont(&lf);
    EXPECT_EQ(lf.lfHeight, -11); // 8 points at 96 pixels per inch
    EXPECT_STREQ(lf.lfFaceName, "MS Sans Serif");
    CDC* fine = CDC::FromHandle(CreatePrinterDC("/dev/null", 600, 210, 297));
    EXPECT_TRUE(printer.CreatePointFont(100, "Arial", fine));
    printer.GetLogFont(&lf);
    EXPECT_EQ(lf.lfHeight, -83);
    EXPECT_TRUE(fine->IsPrinting());
    DeleteDC(fine->GetSafeHdc());
}

TEST(AfxGdi, StateSaverRestoresAtScopeEnd) {
    TestCanvas canvas;
    CDC* dc = CDC::FromHandle(canvas.Dc());
    CFont font;
    font.CreatePointFont(120, "Courier");
    {
        DCStateSaver saver(*dc);
        dc->SelectObject(&font);
        dc->SetTextColor(Red);
        dc->IntersectClipRect(0, 0, 1, 1);
    }
    EXPECT_EQ(dc->GetTextColor(), Black);
    EXPECT_EQ(GetCurrentObject(canvas.Dc(), OBJ_FONT), GetStockObject(SYSTEM_FONT));
    RECT box;
    dc->GetClipBox(&box);
    EXPECT_EQ(box, (RECT{0, 0, 16, 12}));
}

TEST(AfxGdi, RegionsCombineThroughTheirWrappers) {
    CRgn a, b, both;
    a.CreateRectRgn(0, 0, 4, 4);
    b.CreateRectRgn(2, 2, 6, 6);
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(both.CombineRgn(&a, &b, RGN_AND), SIMPLEREGION);
    RECT box;
    both.GetRgnBox(&box);
    EXPECT_EQ(box, (RECT{2, 2, 4, 4}));
    TestCanvas canvas(8, 1);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    dc->SelectClipRgn(&b);
    RECT all{0, 0, 8, 1};
    dc->InvertRect(&all);
    EXPECT_EQ(canvas.Rows()[0], "........"); // the region is below row 0
}

} // namespace
