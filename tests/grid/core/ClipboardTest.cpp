// Cell texts to and from the clipboard: the text form of a selection, what a cut leaves, and
// a paste's line ends, empty fields and the table's edge.

#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>

namespace {

class Clipboard : public ::testing::Test {
protected:
    void SetUp() override {
        Fill(grid, 3, 3);
        grid.SetSelectionMode(1);
    }
    std::string Clip() {
        std::string text;
        EXPECT_EQ(grid.ReadClipboardText(text), 0);
        return text;
    }

    GridHost host;
    RecordingGrid& grid = host.grid;
};

} // namespace

TEST_F(Clipboard, CopyTakesTheSelectedCellsRowByRow) {
    // Nothing selected: the current cell alone.
    grid.GotoCell(2, 2);
    grid.CopySelection();
    EXPECT_EQ(Clip(), "r2c2");

    grid.SelectRange(1, 1, 2, 1);
    grid.SelectCell(1, 2);
    GridCell columnDefault;
    columnDefault.SetText("default");
    grid.SetColumnDefault(1, columnDefault);
    grid.DeleteCell(1, 2);
    grid.CopySelection();
    EXPECT_EQ(Clip(), "r1c1\tr1c2\ndefault");
    EXPECT_FALSE(grid.IsCellSelected(1, 1, nullptr));
}

TEST_F(Clipboard, CutLeavesEmptyCells) {
    grid.SetCellBackColor(0, 0, RGB(1, 2, 3));
    grid.SelectRange(0, 0, 1, 0);
    grid.CutSelection();
    EXPECT_EQ(Clip(), "r0c0\tr0c1");
    GridCell cell;
    grid.GetCell(0, 0, cell);
    EXPECT_EQ(cell.GetProperties(), 0u);
    EXPECT_STREQ(grid.GetCellText(2, 0), "r0c2");
}

TEST_F(Clipboard, PasteFillsFromTheCurrentCellAndSelectsTheBlock) {
    grid.SetCellBackColor(0, 1, RGB(1, 2, 3));
    grid.GotoCell(0, 0);
    grid.PasteText("a\tb\r\nc\n\tx\ty\tz");
    EXPECT_STREQ(grid.GetCellText(0, 0), "a");
    EXPECT_STREQ(grid.GetCellText(1, 0), "b");
    EXPECT_STREQ(grid.GetCellText(0, 1), "c");
    GridCell cell;
    grid.GetCell(0, 1, cell);
    EXPECT_EQ(cell.GetBackColor(), RGB(1, 2, 3));
    // An empty field empties its cell; fields past the last column are dropped.
    EXPECT_STREQ(grid.GetCellText(0, 2), "");
    EXPECT_STREQ(grid.GetCellText(1, 2), "x");
    EXPECT_STREQ(grid.GetCellText(2, 2), "y");
    EXPECT_TRUE(grid.IsCellSelected(2, 2, nullptr));
    EXPECT_EQ(grid.GetCurrentCol(), 0);

    EXPECT_EQ(grid.WriteClipboardText("q\tr"), 0);
    grid.GotoCell(2, 1);
    EXPECT_EQ(grid.PasteClipboard(), 0);
    EXPECT_STREQ(grid.GetCellText(2, 1), "q");
    EXPECT_STREQ(grid.GetCellText(1, 1), "r1c1");

    OpenClipboard(nullptr);
    EmptyClipboard();
    CloseClipboard();
    EXPECT_EQ(grid.PasteClipboard(), 1);
    EXPECT_STREQ(grid.GetCellText(2, 1), "q");
}
