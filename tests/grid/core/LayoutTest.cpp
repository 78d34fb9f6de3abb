// The seven rectangles, the decisions about the scroll bars at their corner cases, the scroll
// limits, locks, heading sizes and the hit tests.

#include "grid/windows/GridView.h"
#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>

namespace {

bool Same(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

// A 400 by 300 grid: 360 pixels of room for columns, 280 for rows.
class Layout : public ::testing::Test {
protected:
    void Shape(int cols, int colWidth, int rows, int rowHeight) {
        grid.SetColCount(0, 0);
        grid.SetRowCount(0, 0);
        grid.SetDefaultRowHeight(rowHeight);
        grid.SetColCount(cols, 0);
        for (int c = 0; c < cols; ++c) grid.SetColWidth(c, colWidth);
        grid.SetRowCount(rows, 0);
        grid.RecalcLayout();
    }
    GridHost host{400, 300};
    RecordingGrid& grid = host.grid;
    GridSheet& s = *grid.sheet;
    const int bar = GetSystemMetrics(SM_CXVSCROLL);
    const int hbar = GetSystemMetrics(SM_CYHSCROLL);
};

} // namespace

TEST_F(Layout, ScrollBarsComeOnlyWhenNeeded) {
    struct Case {
        const char* name;
        int cols, colWidth, rows, rowHeight, tabs;
        bool vertical, horizontal;
    };
    const Case cases[] = {
        {"everything fits", 3, 75, 5, 20, 0, false, false},
        {"rows fill the room exactly", 3, 75, 14, 20, 0, true, false},
        {"rows fit beside no horizontal bar", 3, 75, 11, 25, 0, false, false},
        {"columns overflow, rows fit only without a bar", 6, 75, 11, 25, 0, true, true},
        {"rows fit even with a horizontal bar", 6, 75, 5, 20, 0, false, true},
        {"a tab strip keeps both", 3, 75, 11, 25, 100, true, true},
        {"columns fit only without a vertical bar", 5, 71, 20, 20, 0, true, true},
        {"the same columns with few rows", 5, 71, 5, 20, 0, false, false},
    };
    for (const Case& c : cases) {
        grid.SetTabStripWidth(c.tabs);
        Shape(c.cols, c.colWidth, c.rows, c.rowHeight);
        const int V = c.vertical ? bar : 0, B = c.horizontal ? hbar : 0;
        EXPECT_EQ(RectWidth(s.vScrollRect), V) << c.name;
        EXPECT_EQ(RectHeight(s.hScrollRect), B) << c.name;
        EXPECT_TRUE(Same(s.viewRect, RECT{40, 20, 400 - V, 300 - B})) << c.name;
        EXPECT_EQ(s.viewWidth, 360 - V) << c.name;
        EXPECT_EQ(s.viewHeight, 280 - B) << c.name;
        // The wishes stand again after the layout.
        EXPECT_EQ(s.vScrollWidth, bar) << c.name;
        EXPECT_EQ(s.hScrollHeight, hbar) << c.name;
    }
}

TEST_F(Layout, RectanglesShareTheClientArea) {
    grid.SetTabStripWidth(100);
    Shape(6, 75, 30, 20);
    const int V = bar, B = hbar;
    EXPECT_TRUE(Same(s.cornerRect, RECT{0, 0, 40, 20}));
    EXPECT_TRUE(Same(s.topHeadingRect, RECT{40, 0, 400 - V, 20}));
    EXPECT_TRUE(Same(s.sideHeadingRect, RECT{0, 20, 40, 300 - B}));
    EXPECT_TRUE(Same(s.vScrollRect, RECT{400 - V, 0, 400, 300 - B}));
    EXPECT_TRUE(Same(s.tabsRect, RECT{0, 300 - B, 100, 300}));
    EXPECT_TRUE(Same(s.hScrollRect, RECT{100, 300 - B, 400 - V, 300}));
    RECT placed;
    grid.view->GetWindowRect(&placed);
    grid.ScreenToClient(&placed);
    EXPECT_TRUE(Same(placed, s.viewRect));
}

TEST_F(Layout, TabStripIsClampedForTheLayoutOnly) {
    grid.SetTabStripWidth(500);
    host.Resize(300, 300);
    EXPECT_EQ(s.tabsRect.right, 300 - 40 - 30);
    EXPECT_EQ(s.tabStripWidth, 500);
    host.Resize(800, 300);
    EXPECT_EQ(s.tabsRect.right, 500);
    grid.SetTabStripWidth(2);
    grid.RecalcLayout();
    EXPECT_EQ(s.tabsRect.right, 4);
}

TEST_F(Layout, ClientMayAdjustTheRectangles) {
    grid.onAdjust = [](RECT* view) { view->bottom -= 10; };
    Shape(3, 75, 5, 20);
    EXPECT_EQ(s.viewHeight, 270);
    RECT client;
    grid.view->GetClientRect(&client);
    EXPECT_EQ(client.bottom, 270);
}

TEST_F(Layout, LastRowShowsFromTheLargestTopRow) {
    Shape(3, 75, 100, 20);
    ASSERT_EQ(s.viewHeight, 280);
    EXPECT_EQ(s.maxTopRow, 86);
    grid.SetRowHeight(99, 100);
    grid.UpdateMaxTopRow();
    EXPECT_EQ(s.maxTopRow, 90);
    grid.SetUniformRowHeight(1);
    grid.UpdateMaxTopRow();
    EXPECT_EQ(s.maxTopRow, 86);
    EXPECT_EQ(grid.SetTopRow(500), 0);
    EXPECT_EQ(grid.GetTopRow(), 86);
    grid.SetRowCount(0, 0);
    EXPECT_EQ(s.maxTopRow, 0);
    EXPECT_EQ(grid.GetTopRow(), 0);
}

TEST_F(Layout, LastColumnShowsFromTheLargestLeftColumn) {
    Shape(10, 75, 5, 20);
    const int room = s.viewWidth;
    // Columns 9, 8, ... fill the room; the first that doesn't fit is one left of the limit.
    EXPECT_EQ(s.maxLeftCol, 10 - room / 75);
    EXPECT_EQ(grid.SetLeftCol(99), 0);
    EXPECT_EQ(grid.GetLeftCol(), s.maxLeftCol);
}

TEST_F(Layout, LocksHoldRowsAndColumnsInPlace) {
    Shape(10, 75, 100, 20);
    EXPECT_EQ(grid.LockRows(-1), 1);
    EXPECT_EQ(grid.LockRows(101), 1);
    EXPECT_EQ(grid.LockRows(2), 0);
    EXPECT_EQ(grid.GetTopRow(), 2);
    EXPECT_EQ(s.lockedHeight, 40);
    EXPECT_EQ(grid.LockCols(1), 0);
    EXPECT_EQ(s.lockedWidth, 75);
    grid.SetColWidth(0, 50);
    EXPECT_EQ(s.lockedWidth, 50);
    grid.SetTopRow(10);
    grid.SetLeftCol(3);
    int col, row;
    EXPECT_EQ(grid.HitTest(49, 39, &col, &row), 0);
    EXPECT_EQ(col, 0);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(grid.HitTest(50, 40, &col, &row), 0);
    EXPECT_EQ(col, 3);
    EXPECT_EQ(row, 10);
    // A top row can't go into the locked rows.
    EXPECT_EQ(grid.SetTopRow(0), 0);
    EXPECT_EQ(grid.GetTopRow(), 2);
}

TEST_F(Layout, HitTestsFindCellsAndWholeJoins) {
    Shape(3, 75, 5, 20);
    int col = -5, row = -5;
    RECT r;
    EXPECT_EQ(grid.HitTestRect(75, 19, &col, &row, &r), 0);
    EXPECT_EQ(col, 1);
    EXPECT_EQ(row, 0);
    EXPECT_TRUE(Same(r, RECT{75, 0, 150, 20}));
    EXPECT_EQ(grid.HitTest(225, 10, &col, &row), 1);
    EXPECT_EQ(grid.HitTest(10, 100, &col, &row), 1);
    EXPECT_EQ(grid.HitTest(-1, 10, &col, &row), 1);

    grid.JoinCells(1, 1, 2, 2);
    EXPECT_EQ(grid.HitTestRect(160, 45, &col, &row, &r), 0);
    EXPECT_EQ(col, 1);
    EXPECT_EQ(row, 1);
    EXPECT_TRUE(Same(r, RECT{75, 20, 225, 60}));
    grid.EnableJoins(0);
    grid.HitTestRect(160, 45, &col, &row, &r);
    EXPECT_EQ(col, 2);
    EXPECT_TRUE(Same(r, RECT{150, 40, 225, 60}));
}

TEST_F(Layout, RangesRunTenPixelsOutOfView) {
    Shape(10, 75, 100, 20);
    RECT r;
    grid.GetRangeRect(1, 2, 2, 200, &r);
    EXPECT_TRUE(Same(r, RECT{75, 40, 225, s.viewHeight + 10}));
    grid.SetLeftCol(3);
    grid.GetRangeRect(1, 0, 4, 0, &r);
    EXPECT_TRUE(Same(r, RECT{-10, 0, 150, 20}));
    grid.GetJoinedCellRect(1, 0, &r);
    EXPECT_TRUE(Same(r, RECT{0, 0, 0, 20}));
}

TEST_F(Layout, HeadingPartsKeepTheirShares) {
    EXPECT_EQ(grid.SetTopHeadingRows(65), 1);
    EXPECT_EQ(grid.SetTopHeadingRows(2), 0);
    EXPECT_EQ(grid.SetTopHeadingRowHeight(-3, 5), 1);
    EXPECT_EQ(grid.SetTopHeadingRowHeight(-1, 1025), 2);
    EXPECT_EQ(grid.SetTopHeadingRowHeight(-2, 10), 0);
    EXPECT_EQ(grid.SetTopHeadingHeight(1025), 1);
    EXPECT_EQ(grid.SetTopHeadingHeight(60), 0);
    EXPECT_EQ(s.topHeadingRowHeights, (std::vector<int>{40, 20}));
    EXPECT_EQ(s.viewRect.top, 60);
    EXPECT_EQ(grid.SetSideHeadingColWidth(-1, 55), 0);
    EXPECT_EQ(grid.GetSideHeadingWidth(), 55);
    EXPECT_EQ(s.viewRect.left, 55);
    EXPECT_EQ(grid.SetSideHeadingCols(3), 0);
    EXPECT_EQ(s.sideHeadingColWidths, (std::vector<int>{55, 75, 75}));
}
