// Printing: how a range falls into pages on A4 with the default margins, the options, and what
// a page draws, a join cut at the page's edge included.

#include "grid/windows/GridPrinter.h"
#include "platform/afx/CBitmap.h"
#include "platform/afx/CDC.h"
#include "platform/gdi/Printing.h"
#include "tests/grid/core/GridHost.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

struct Band {
    int startCol, endCol, startRow, endRow;
    bool operator==(const Band&) const = default;
};

class Print : public ::testing::Test {
protected:
    void SetUp() override {
        const auto pdf = std::filesystem::temp_directory_path() /
                         ("gridcore_print_" + std::to_string(::getpid()) + ".pdf");
        // 96 dots per inch: a printer pixel is about a screen pixel.
        printerDC.Attach(CreatePrinterDC(pdf.string().c_str(), 96, 210, 297));
        Fill(grid, 6, 10);
        // 606 by 933 screen pixels fill an A4 page inside margins of 25 mm.
        for (int col = 0; col < 6; ++col) grid.SetColWidth(col, 101);
        for (int row = 0; row < 9; ++row) grid.SetRowHeight(row, 100);
        grid.SetRowHeight(9, 33);
    }
    Band Page(int number) {
        Band b{};
        EXPECT_EQ(grid.printer->GetPage(number, &b.startCol, &b.endCol, &b.startRow, &b.endRow), 1);
        return b;
    }

    GridHost host;
    RecordingGrid& grid = host.grid;
    CDC printerDC;
};

} // namespace

TEST_F(Print, PagesBreakBetweenColumnsAndRowsAcrossFirst) {
    EXPECT_EQ(grid.PrintInit(&printerDC, nullptr, 0, 0, 5, 9), 1);
    EXPECT_EQ(Page(1), (Band{0, 5, 0, 9}));

    // One pixel more each way opens a band to the right and one below.
    grid.SetColWidth(5, 102);
    grid.SetRowHeight(9, 34);
    EXPECT_EQ(grid.PrintInit(&printerDC, nullptr, 0, 0, 5, 9), 4);
    EXPECT_EQ(Page(1), (Band{0, 4, 0, 8}));
    EXPECT_EQ(Page(2), (Band{5, 5, 0, 8}));
    EXPECT_EQ(Page(3), (Band{0, 4, 9, 9}));
    EXPECT_EQ(Page(4), (Band{5, 5, 9, 9}));

    // A column as wide as the page stays in the band it overflowed, cut at the edge.
    grid.SetColWidth(2, 700);
    EXPECT_EQ(grid.PrintInit(&printerDC, nullptr, 0, 0, 5, 0), 2);
    EXPECT_EQ(Page(1), (Band{0, 2, 0, 0}));
    EXPECT_EQ(Page(2), (Band{3, 5, 0, 0}));
    // An empty range has no pages, unless a heading opens a band all the same.
    EXPECT_EQ(grid.PrintInit(&printerDC, nullptr, 3, 0, 2, 0), 0);
    grid.SetPrintOption(2, 1);
    EXPECT_EQ(grid.PrintInit(&printerDC, nullptr, 3, 0, 2, 0), 1);

    int value = -1;
    EXPECT_EQ(grid.GetPrintOption(2, &value), 0);
    EXPECT_EQ(value, 1);
    grid.SetPrintOption(10, 7);
    grid.GetPrintOption(10, &value);
    EXPECT_EQ(value, 1);
    grid.SetPrintOption(8, 3);
    EXPECT_EQ(grid.GetPrintOption(8, &value), 1);
    EXPECT_EQ(value, 0);
}

TEST_F(Print, APageDrawsItsCellsFramedAndAJoinCutAtTheEdge) {
    grid.EnableJoins(1);
    grid.SetCellText(4, 0, "JOINED");
    grid.JoinCells(4, 0, 5, 1);
    grid.SetColWidth(5, 102);
    ASSERT_EQ(grid.PrintInit(&printerDC, nullptr, 0, 0, 5, 9), 2);

    CDC paper;
    paper.CreateCompatibleDC(&printerDC);
    CBitmap sheetOfPaper;
    sheetOfPaper.CreateCompatibleBitmap(&printerDC, 800, 1130);
    paper.SelectObject(&sheetOfPaper);
    paper.PatBlt(0, 0, 800, 1130, WHITENESS);
    EXPECT_EQ(grid.PrintPage(&paper, 2), 0);

    // Page 2 holds column 5 alone; the join enters here and shows the main cell's text.
    const int left = static_cast<int>(96 / 25.4 * 25), top = left;
    auto inkIn = [&paper](int x0, int y0, int x1, int y1) {
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x)
                if (paper.GetPixel(x, y) == RGB(0, 0, 0)) return true;
        return false;
    };
    EXPECT_EQ(paper.GetPixel(left + 50, top), RGB(0, 0, 0));
    EXPECT_TRUE(inkIn(left + 4, top + 2, left + 100, top + 20));
    GridCell copied;
    grid.GetCell(5, 0, copied);
    EXPECT_STREQ(copied.GetText(), "JOINED");
    // The join is as it was.
    int col = 5, row = 1, endCol = 0, endRow = 0;
    ASSERT_EQ(grid.GetJoinedRange(&col, &row, &endCol, &endRow), 0);
    EXPECT_EQ(col, 4);
    EXPECT_EQ(endCol, 5);
    EXPECT_EQ(endRow, 1);

    // Page 1 has the join's main cell, cut at the page's right edge.
    paper.PatBlt(0, 0, 800, 1130, WHITENESS);
    grid.PrintPage(&paper, 1);
    EXPECT_TRUE(inkIn(left + 404 + 4, top + 2, left + 505, top + 20));
    EXPECT_FALSE(inkIn(left + 510, top + 2, 800, top + 20));
    // An unknown page prints nothing.
    paper.PatBlt(0, 0, 800, 1130, WHITENESS);
    grid.PrintPage(&paper, 9);
    EXPECT_FALSE(inkIn(0, 0, 800, 200));
}
