// Cells drawn by the normal type into an off-screen bitmap: borders and grid lines, text
// placement, highlight, the ellipsis, wrapping, labels, text running on over empty cells,
// pictures, and the scaled drawing of the printer.

#include "grid/core/GridCtrl.h"
#include "platform/afx/CDC.h"
#include "platform/afx/DCStateSaver.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr COLORREF Paper = RGB(255, 255, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF GridLine = RGB(220, 220, 220);
constexpr COLORREF Shadow = RGB(128, 128, 128);
constexpr COLORREF HiliteBack = RGB(10, 36, 106);
constexpr COLORREF Red = RGB(255, 0, 0);

class CellDraw : public ::testing::Test {
protected:
    CellDraw() {
        dc.CreateCompatibleDC(nullptr);
        surface.CreateCompatibleBitmap(&dc, 400, 160);
        dc.SelectObject(&surface);
        Clear();
        dc.SelectObject(font);
        grid.SetColCount(5, 0);
        grid.SetRowCount(3, 0);
    }
    void Clear() { dc.FillSolidRect(0, 0, 400, 160, Paper); }
    COLORREF At(int x, int y) const { return dc.GetPixel(x, y); }
    // The box of the pixels in `area` that aren't `back`; empty when there are none.
    RECT Ink(const RECT& area, COLORREF back = White) const {
        RECT box{area.right, area.bottom, area.left, area.top};
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (At(x, y) != back) {
                    box.left = std::min<LONG>(box.left, x);
                    box.top = std::min<LONG>(box.top, y);
                    box.right = std::max<LONG>(box.right, x + 1);
                    box.bottom = std::max<LONG>(box.bottom, y + 1);
                }
        return box.right <= box.left ? RECT{} : box;
    }
    // Draws `text` at (x, y) as a reference, black on white, in the band that the cells leave
    // free: BandOffset lower. Answers where its ink is, in the cells' coordinates.
    RECT TextInk(const char* text, int x, int y) {
        DCStateSaver saved(dc);
        RECT band{0, BandOffset, 400, 160};
        dc.SetBkColor(White);
        dc.ExtTextOut(x, y + BandOffset, ETO_OPAQUE, &band, text, static_cast<UINT>(strlen(text)),
                      nullptr);
        RECT ink = Ink(band);
        return {ink.left, ink.top - BandOffset, ink.right, ink.bottom - BandOffset};
    }
    int Width(const char* text) { return dc.GetTextExtent(text, int(strlen(text))).cx; }
    void Draw(RECT rect, GridCell& cell, int col = 0, int row = 0, int selected = 0,
              int current = 0) {
        DCStateSaver saved(dc);
        type().Draw(&dc, &rect, col, row, cell, selected, current);
    }
    CellType& type() { return grid.normalCellType; }

    static constexpr int BandOffset = 100;
    GridCtrl grid;
    CDC dc;
    CBitmap surface;
    CFont* font = grid.GetFont(grid.AddFontByFace("Arial", -12, 400));
};

bool Same(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

TEST_F(CellDraw, GridLinesBorderLinesAndFramesShrinkTheInnerRectangle) {
    CPen red(PS_SOLID, 1, Red);
    grid.SetBorderWidth(2);
    const RECT rect{10, 10, 110, 30};
    struct Pixel {
        int x, y;
        COLORREF colour;
    };
    struct Case {
        WORD border;
        RECT inner;
        std::vector<Pixel> pixels;
    } cases[] = {
        {0, {10, 10, 109, 29}, {{109, 10, GridLine}, {10, 29, GridLine}, {108, 28, White}}},
        // The cell's pen draws its own lines; the grid lines keep the grid's pen.
        {0x1 | 0x10, {12, 10, 109, 29}, {{11, 20, Red}, {12, 20, White}, {109, 20, GridLine}}},
        {0x4 | 0x800, {10, 10, 109, 27}, {{109, 20, Red}, {50, 27, Red}, {50, 26, White}}},
        // Frames take the grid lines' place; each corner goes to the line drawn first.
        {0x1000, {12, 12, 108, 28}, {{11, 20, Shadow}, {109, 20, White}, {10, 29, Shadow}}},
        {0x2000, {12, 12, 108, 28}, {{11, 20, White}, {108, 20, Shadow}, {50, 28, Shadow}}},
    };
    for (const Case& c : cases) {
        GridCell cell;
        cell.SetBorder(c.border);
        cell.SetBorderPen(&red);
        Clear();
        Draw(rect, cell);
        for (const Pixel& p : c.pixels)
            EXPECT_EQ(At(p.x, p.y), p.colour) << c.border << " at " << p.x << "," << p.y;
        RECT inner;
        type().DrawCellBorder(&dc, rect, &inner, cell);
        EXPECT_TRUE(Same(inner, c.inner)) << c.border;
    }
    grid.EnableGridLines(0);
    GridCell plain;
    Draw(rect, plain);
    EXPECT_EQ(At(109, 20), White);
}

TEST_F(CellDraw, TextSitsAtTheMarginOrWhereItsAlignmentSays) {
    const char* text = "Hello";
    const int tw = Width(text), th = dc.GetTextExtent(text, 5).cy;
    struct Case {
        WORD align;
        int margin, x, y;
    } cases[] = {
        {0, 4, 14, 11},
        {0, 9, 19, 11},
        {0x1, 4, 14, 11},
        {0x2, 4, 109 - tw - 4, 11},
        {0x6, 4, (99 - tw) / 2 + 10, 11},
        {0x10, 4, 14, 39 - th - 1},
        {0x30, 4, 14, (29 - th) / 2 + 10},
    };
    for (const Case& c : cases) {
        grid.SetCellMargin(c.margin);
        GridCell cell;
        cell.SetText(text);
        if (c.align) cell.SetAlignment(c.align);
        Clear();
        Draw(RECT{10, 10, 110, 40}, cell);
        RECT ink = Ink(RECT{10, 10, 109, 39});
        EXPECT_GT(ink.right, 0);
        EXPECT_TRUE(Same(ink, TextInk(text, c.x, c.y))) << c.align << " margin " << c.margin;
    }
}

TEST_F(CellDraw, SelectedCellsAndTheCurrentOneInHighlightModeTakeTheHighlightColours) {
    GridCell cell;
    const RECT rect{10, 10, 110, 30};
    Draw(rect, cell, 0, 0, 1, 0);
    EXPECT_EQ(At(100, 20), HiliteBack);
    Draw(rect, cell, 0, 0, 0, 1);
    EXPECT_EQ(At(100, 20), White);
    grid.SetHighlightMode(2);
    cell.SetHiliteBackColor(Red);
    Draw(rect, cell, 0, 0, 0, 1);
    EXPECT_EQ(At(100, 20), Red);
}

TEST_F(CellDraw, EllipsisCutsTextThatLacksSixPixelsWhateverItsAlignment) {
    const char* text = "Hello world";
    const int tw = Width(text);
    GridCell cell;
    cell.SetText(text);
    cell.SetCellTypeOption(4);
    cell.SetAlignment(0x2);
    // An inner width of tw + 6 holds the text, right-aligned at the margin.
    const int fits = 10 + tw + 6;
    Draw(RECT{10, 10, fits + 1, 30}, cell);
    EXPECT_TRUE(Same(Ink(RECT{10, 10, fits, 29}), TextInk(text, fits - tw - 4, 11)));
    // One pixel less: the text from 3 pixels in, and "..." in the last dots + 3 pixels.
    const int cut = fits - 1, dots = cut - Width("...") - 3;
    Draw(RECT{10, 40, cut + 1, 60}, cell);
    EXPECT_EQ(Ink(RECT{10, 40, dots, 59}).left, TextInk(text, 13, 41).left);
    EXPECT_TRUE(Same(Ink(RECT{dots, 40, cut, 59}), TextInk("...", dots + 1, 41)));
}

TEST_F(CellDraw, WrapWinsOverEllipsisAndOnlyOptionEightShowsTheLabel) {
    const int lineHeight = dc.GetTextExtent("x", 1).cy;
    struct Case {
        int option;
        bool wraps, showsText;
    } cases[] = {
        {2, true, true}, {6, true, true}, {10, true, true}, {8, false, false}, {0, false, true}};
    for (const Case& c : cases) {
        GridCell cell;
        cell.SetText("wide words here");
        cell.SetLabel("l");
        cell.SetCellTypeOption(c.option);
        Clear();
        Draw(RECT{10, 10, 70, 60}, cell);
        RECT ink = Ink(RECT{10, 10, 69, 59});
        EXPECT_EQ(ink.bottom - ink.top > lineHeight, c.wraps) << c.option;
        EXPECT_EQ(ink.right - ink.left > 10, c.showsText) << c.option;
    }
}

// Five columns of 40 with a text in column 1, drawn cell by cell as the view does.
class Overflow : public CellDraw {
protected:
    Overflow() {
        for (int c = 0; c < 5; ++c) grid.SetColWidth(c, 40);
        grid.SetCellFont(1, 0, font);
    }
    void DrawRow() {
        for (int c = 0; c < 5; ++c) {
            GridCell cell;
            grid.GetEffectiveCell(c, 0, cell);
            Draw(RECT{c * 40, 10, c * 40 + 40, 30}, cell, c, 0);
        }
    }
    // Answers the room that the text needs, margin included.
    int SetText(const char* text) {
        grid.SetCellText(1, 0, text);
        return Width(text) + 4;
    }
    int Offset(int col) {
        int sourceCol = -1;
        GridCell source;
        int offset = type().FindOverflowSource(&dc, col, 0, &sourceCol, source);
        EXPECT_EQ(sourceCol, offset ? 1 : -1);
        return offset;
    }
};

TEST_F(Overflow, EmptyCellsShowTheirSliceOfTheTextAsIfUnclipped) {
    const char* text = "Overflows";
    const int needed = SetText(text);
    ASSERT_TRUE(needed > 40 && needed < 80);
    EXPECT_EQ(Offset(2), -40);
    EXPECT_EQ(Offset(3), 0);
    DrawRow();
    // From the grid line between them to the end of column 2.
    TextInk(text, 44, 11);
    for (int x = 79; x < 119; ++x)
        for (int y = 10; y < 29; ++y) ASSERT_EQ(At(x, y), At(x, y + BandOffset)) << x << "," << y;
    EXPECT_EQ(At(39, 20), GridLine);
    EXPECT_EQ(Ink(RECT{120, 10, 159, 29}).right, 0);
}

TEST_F(Overflow, TextStopsAtACellWithTextAndWhenNotLeftAligned) {
    const int needed = SetText("Overflows further");
    ASSERT_TRUE(needed > 80 && needed < 120);
    EXPECT_EQ(Offset(3), -80);
    grid.SetCellText(3, 0, ".");
    DrawRow();
    EXPECT_TRUE(Same(Ink(RECT{120, 10, 159, 29}), TextInk(".", 124, 11)));

    grid.SetCellAlignment(1, 0, 0x4);
    EXPECT_EQ(Offset(2), 0);
    grid.SetCellAlignment(1, 0, 0x1);
    grid.EnableTextOverflow(0);
    EXPECT_EQ(Offset(2), 0);
}

TEST_F(CellDraw, PictureKeepsItsProportionsInWholePercentsAndPushesTheText) {
    CBitmap picture;
    picture.CreateCompatibleBitmap(&dc, 8, 8);
    {
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        memory.SelectObject(&picture);
        memory.FillSolidRect(0, 0, 8, 8, Red);
    }
    // 8 by 8 into 99 by 39: the height limits, 35 high, and 8 * (3500 / 8) / 100 = 34 wide,
    // not 35, in the middle of a strip of 98 that the background fills.
    EXPECT_EQ(type().DrawCellBitmap(&dc, &picture, RECT{10, 10, 109, 49}, White), 34 + 2 * 32);
    EXPECT_TRUE(Same(Ink(RECT{10, 10, 108, 49}), RECT{42, 12, 42 + 34, 12 + 35}));
    EXPECT_EQ(At(108, 20), Paper);
    EXPECT_EQ(type().DrawCellBitmap(&dc, &picture, RECT{10, 60, 14, 70}, White), 0);

    // The text's background starts right of the picture and leaves it alone.
    GridCell cell;
    cell.SetText("x");
    cell.SetBitmap(&picture);
    Clear();
    Draw(RECT{10, 10, 110, 50}, cell);
    EXPECT_EQ(At(50, 25), Red);
}

TEST_F(CellDraw, ScaledDrawingGrowsTheFontWithTheRowAndGivesTheCellItsFontBack) {
    GridCell cell;
    cell.SetText("H");
    cell.SetFont(font);
    Draw(RECT{10, 10, 110, 30}, cell);
    const RECT normal = Ink(RECT{10, 10, 109, 29});
    RECT doubled{10, 10, 110, 50};
    Clear();
    type().DrawScaled(&dc, &doubled, 0, 0, cell);
    const RECT scaled = Ink(RECT{10, 10, 109, 49});
    EXPECT_NEAR(scaled.bottom - scaled.top, 2 * (normal.bottom - normal.top), 1);
    EXPECT_EQ(cell.GetFont(), font);

    // A block of two rows shares the rectangle's height between them.
    grid.JoinCells(0, 0, 0, 1);
    cell.SetJoin(1, 0, 1);
    Clear();
    type().DrawScaled(&dc, &doubled, 0, 0, cell);
    const RECT shared = Ink(RECT{10, 10, 109, 49});
    EXPECT_EQ(shared.bottom - shared.top, normal.bottom - normal.top);
}

} // namespace
