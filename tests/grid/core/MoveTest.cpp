// Moves of the current cell and of the view: the order of the notifications, vetoes, the end
// of the table, joins under keys and mouse, page steps, the scroll bars, the selection's
// anchor and the floating window.

#include "grid/windows/GridVScroll.h"
#include "grid/windows/GridView.h"
#include "tests/grid/core/GridHost.h"

#include <functional>
#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

// 10 columns of 75 and 100 rows of 20 in a view exactly 200 pixels high: rows 0 to 9 and
// columns 0 to 3 are on view.
class Moves : public ::testing::Test {
protected:
    void SetUp() override {
        grid.SetHScrollHeight(0);
        Fill(grid, 10, 100);
        GridHost::Pump();
        grid.Take();
    }
    GridHost host{400, 220};
    RecordingGrid& grid = host.grid;
    GridSheet& s = *grid.sheet;
};

} // namespace

TEST(MovesOfANewGrid, TheCurrentCellComesWithTheFirstColumnAndRow) {
    RecordingGrid grid;
    grid.SetColCount(3, 0);
    EXPECT_EQ(grid.GetCurrentCol(), 0);
    EXPECT_EQ(grid.GetCurrentRow(), -1);
    grid.SetRowCount(4, 0);
    EXPECT_EQ(grid.Take(),
              (Strings{"CanMove -1 -1 0 -1", "CanScroll 0 0 0 0", "ColumnChanged -1 0",
                       "CellChanged -1 0 -1 -1", "CanMove 0 -1 0 0", "CanScroll 0 0 0 0",
                       "RowChanged -1 0", "CellChanged 0 0 -1 0"}));
}

TEST_F(Moves, NotificationsComeInTheirOrderThenTheCellTypes) {
    ASSERT_EQ(s.viewHeight, 200);
    ASSERT_EQ(s.bottomRow, 10);
    ASSERT_EQ(s.rightCol, 4);
    RecordingCellType recording(grid);
    const int id = grid.AddCellType(&recording);
    EXPECT_EQ(id, 4);
    grid.SetCellTypeId(0, 0, id);
    grid.SetCellTypeId(2, 5, id);

    EXPECT_EQ(grid.GotoCell(2, 5), 0);
    EXPECT_EQ(grid.Take(), (Strings{"CanMove 0 0 2 5", "ColumnChanged 0 2", "RowChanged 0 5",
                                    "CellChanged 0 2 0 5", "Leave 0 0", "Enter 2 5"}));
    EXPECT_EQ(grid.GotoCell(6, 30), 0);
    EXPECT_EQ(grid.Take(), (Strings{"CanMove 0 0 6 30", "CanScroll 0 6 0 30", "ColumnChanged 2 6",
                                    "RowChanged 5 30", "CellChanged 2 6 5 30",
                                    "LeftColumnChanged 0 3", "TopRowChanged 0 21", "Leave 2 5"}));
    EXPECT_EQ(grid.GetTopRow(), 21);
    EXPECT_EQ(grid.GetBottomRow(), 31);
    // Only the view moves: no cell notification.
    EXPECT_EQ(grid.SetTopRow(25), 0);
    EXPECT_EQ(grid.Take(), (Strings{"CanScroll 3 21 3 25", "TopRowChanged 21 25"}));
    EXPECT_EQ(grid.SetLeftCol(4), 0);
    EXPECT_EQ(grid.Take(), (Strings{"CanScroll 3 25 4 25", "LeftColumnChanged 3 4"}));
}

TEST_F(Moves, VetoesLeaveEverythingAsItWas) {
    struct Case {
        const char* name;
        int allowMove, allowScroll;
        std::function<int(GridCtrl&)> move;
        int result;
        Strings log;
        int pendingCol, pendingRow, topRow;
    };
    const Case cases[] = {
        {"cell refused",
         0,
         1,
         [](GridCtrl& g) { return g.GotoRow(5); },
         2,
         {"CanMove 0 0 0 5"},
         0,
         0,
         0},
        {"scroll refused",
         1,
         0,
         [](GridCtrl& g) { return g.GotoRow(50); },
         2,
         {"CanMove 0 0 0 50", "CanScroll 0 0 0 50"},
         0,
         0,
         0},
        {"column refused",
         0,
         1,
         [](GridCtrl& g) { return g.GotoCol(2); },
         2,
         {"CanMove 0 0 2 0"},
         0,
         0,
         0},
        {"column scroll refused",
         1,
         0,
         [](GridCtrl& g) { return g.GotoCol(7); },
         2,
         {"CanMove 0 0 7 0", "CanScroll 0 7 0 0"},
         0,
         0,
         0},
        {"cell of GotoCell refused",
         0,
         1,
         [](GridCtrl& g) { return g.GotoCell(1, 1); },
         2,
         {"CanMove 0 0 1 1"},
         0,
         0,
         0},
        {"view refused",
         1,
         0,
         [](GridCtrl& g) { return g.SetTopRow(5); },
         2,
         {"CanScroll 0 0 0 5"},
         0,
         0,
         0},
        {"no scroll asked on view",
         1,
         0,
         [](GridCtrl& g) { return g.GotoRow(5); },
         0,
         {"CanMove 0 0 0 5", "RowChanged 0 5", "CellChanged 0 0 0 5"},
         0,
         5,
         0},
    };
    for (const Case& c : cases) {
        grid.allowMove = 1, grid.allowScroll = 1;
        grid.GotoCell(0, 0);
        grid.SetTopRow(0);
        grid.Take();
        grid.allowMove = c.allowMove, grid.allowScroll = c.allowScroll;
        EXPECT_EQ(c.move(grid), c.result) << c.name;
        EXPECT_EQ(grid.Take(), c.log) << c.name;
        EXPECT_EQ(s.pendingCol, c.pendingCol) << c.name;
        EXPECT_EQ(s.pendingRow, c.pendingRow) << c.name;
        EXPECT_EQ(s.topRow, c.topRow) << c.name;
    }
}

TEST(MovesAtTheEnd, RowsPastTheEndAskTheClientFirst) {
    GridHost host(400, 150);
    RecordingGrid& grid = host.grid;
    grid.SetHScrollHeight(0);
    Fill(grid, 3, 10);
    grid.GotoRow(3);
    grid.Take();
    EXPECT_EQ(grid.GotoRow(50), 0);
    EXPECT_EQ(grid.GetCurrentRow(), 9);
    // The last line is the view's walk offering the source more rows below the last one.
    EXPECT_EQ(grid.Take(), (Strings{"PastLastRow 10 41 0", "CanMove 0 3 0 9", "CanScroll 0 0 0 9",
                                    "RowChanged 3 9", "CellChanged 0 0 3 9", "TopRowChanged 0 4",
                                    "PastLastRow 10 1 0"}));
    EXPECT_EQ(grid.GotoRow(10), 1);
    EXPECT_EQ(grid.Take(), (Strings{"PastLastRow 10 1 0"}));
    // A client that adds rows on demand: the move lands on the new last row.
    grid.rowsToAdd = 5;
    EXPECT_EQ(grid.GotoRow(10), 0);
    EXPECT_EQ(grid.GetCurrentRow(), 14);
    EXPECT_EQ(grid.GotoCol(3), 0);
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GotoCol(3), 1);
    EXPECT_EQ(grid.GotoCol(-4), 0);
    EXPECT_EQ(grid.GetCurrentCol(), 0);
}

TEST_F(Moves, KeysStepOverJoinsAndTheMouseLandsOnTheirFirstCell) {
    grid.JoinCells(1, 3, 2, 5);
    grid.GotoCell(1, 1);
    const int downs[][2] = {{2, 2}, {3, 3}, {4, 6}, {5, 5}, {4, 2}};
    for (auto [asked, landed] : downs) {
        EXPECT_EQ(grid.GotoRow(asked), 0);
        EXPECT_EQ(grid.GetCurrentRow(), landed) << "asked " << asked;
    }
    grid.GotoCell(0, 4);
    const int across[][2] = {{1, 1}, {2, 3}, {2, 2}, {1, 1}};
    for (auto [asked, landed] : across) {
        grid.GotoCol(asked);
        EXPECT_EQ(grid.GetCurrentCol(), landed) << "asked " << asked;
    }
    // A press anywhere in the join lands on its first cell.
    s.moveSource = 1;
    EXPECT_EQ(grid.GotoCell(2, 5), 0);
    EXPECT_EQ(grid.GetCurrentCol(), 1);
    EXPECT_EQ(grid.GetCurrentRow(), 3);
    grid.GotoCell(1, 7);
    grid.GotoRow(4);
    EXPECT_EQ(grid.GetCurrentRow(), 3);
    s.moveSource = 0;
    // From the tail of a join that begins at row 1, a key up stops on row 1.
    grid.JoinCells(4, 1, 4, 2);
    grid.GotoCell(4, 7);
    grid.GotoRow(3);
    grid.GotoRow(2);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    grid.GotoRow(1);
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    // Without joins every cell is its own.
    grid.EnableJoins(0);
    grid.GotoCell(2, 5);
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GetCurrentRow(), 5);
}

TEST_F(Moves, PagesAndEnds) {
    struct Step {
        const char* name;
        std::function<int(GridCtrl&)> step;
        int col, row, top;
    };
    const Step steps[] = {
        {"page down", [](GridCtrl& g) { return g.StepRow(3); }, 0, 10, 1},
        {"page down again", [](GridCtrl& g) { return g.StepRow(3); }, 0, 20, 11},
        {"page up", [](GridCtrl& g) { return g.StepRow(2); }, 0, 10, 10},
        {"page up to the top", [](GridCtrl& g) { return g.StepRow(2); }, 0, 0, 0},
        {"page up at the top", [](GridCtrl& g) { return g.StepRow(2); }, 0, 0, 0},
        {"last row", [](GridCtrl& g) { return g.StepRow(5); }, 0, 99, 90},
        {"first row", [](GridCtrl& g) { return g.StepRow(4); }, 0, 0, 0},
        {"by seven", [](GridCtrl& g) { return g.StepRowBy(7); }, 0, 7, 0},
        {"last column", [](GridCtrl& g) { return g.StepCol(5); }, 9, 7, 0},
        {"column page back", [](GridCtrl& g) { return g.StepCol(2); }, 4, 7, 0},
        {"first column", [](GridCtrl& g) { return g.StepCol(4); }, 0, 7, 0},
        {"view a page on", [](GridCtrl& g) { return g.ScrollRows(3); }, 0, 7, 10},
        {"view to the end", [](GridCtrl& g) { return g.ScrollRows(5); }, 0, 7, 90},
        {"view one back", [](GridCtrl& g) { return g.ScrollRows(0); }, 0, 7, 89},
        {"unknown step", [](GridCtrl& g) { return g.StepRow(9); }, 0, 7, 89},
    };
    for (const Step& st : steps) {
        EXPECT_EQ(st.step(grid), 0) << st.name;
        EXPECT_EQ(s.pendingCol, st.col) << st.name;
        EXPECT_EQ(s.pendingRow, st.row) << st.name;
        EXPECT_EQ(s.topRow, st.top) << st.name;
    }
}

TEST_F(Moves, ScrollBarsMoveTheViewAndFollowIt) {
    grid.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_PAGEDOWN, 0));
    EXPECT_EQ(grid.GetTopRow(), 10);
    EXPECT_EQ(s.moveSource, 4);
    EXPECT_EQ(grid.vScroll->GetScrollPos(), 10);
    grid.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 42));
    EXPECT_EQ(grid.GetTopRow(), 42);
    grid.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEDOWN, 0));
    EXPECT_EQ(grid.GetLeftCol(), 1);
    // A long sheet scales rows to at most 1000 thumb units.
    grid.SetRowCount(5000, 1);
    ASSERT_EQ(s.maxTopRow, 4990);
    grid.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 500));
    EXPECT_EQ(grid.GetTopRow(), 2495);
    EXPECT_EQ(grid.vScroll->GetScrollPos(), static_cast<int>(2495 * (1000.0 / 4990)));
    grid.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_BOTTOM, 0));
    EXPECT_EQ(grid.GetTopRow(), 4990);
}

TEST_F(Moves, ShiftMovesOnlyTheEndOfTheSelection) {
    grid.SetSelectionMode(1);
    grid.GotoCell(1, 1);
    BYTE keys[256] = {};
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys);
    grid.GotoRow(3);
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
    EXPECT_EQ(s.pendingRow, 3);
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    EXPECT_TRUE(grid.IsCellSelected(1, 2, nullptr));
    grid.GotoRow(5);
    EXPECT_EQ(grid.GetCurrentRow(), 5);
    EXPECT_FALSE(grid.IsCellSelected(1, 2, nullptr));
    int col, row;
    EXPECT_EQ(grid.FirstSelectedCell(&col, &row), 0);
    EXPECT_EQ(row, 5);
    EXPECT_EQ(grid.NextSelectedCell(&col, &row), 1);
    grid.ClearSelection();
    EXPECT_EQ(s.pendingRow, 5);
}

TEST_F(Moves, AResetCellIsNoTargetOfItsOwn) {
    grid.GotoCell(2, 2);
    grid.Take();
    EXPECT_EQ(grid.ResetCurrentCell(), 0);
    EXPECT_EQ(grid.GetCurrentCol(), -1);
    EXPECT_EQ(grid.GotoCell(2, 2), 0);
    EXPECT_TRUE(grid.Take().empty());
    EXPECT_EQ(grid.GetCurrentRow(), -1);
}

TEST_F(Moves, FloatingWindowKeepsClearOfTheCell) {
    CWnd floating;
    ASSERT_TRUE(floating.CreateEx(0, AfxRegisterWndClass(0), "tool", WS_POPUP | WS_VISIBLE,
                                  RECT{130, 55, 230, 105}, nullptr, 0));
    EXPECT_EQ(grid.SetFloatingDialog(nullptr), 1);
    EXPECT_EQ(grid.SetFloatingDialog(&floating), 0);
    POINT origin{0, 0};
    grid.view->ClientToScreen(&origin);
    ASSERT_EQ(origin.x, 50);
    ASSERT_EQ(origin.y, 30);
    // Cell (1, 1) lies at 75..150, 20..40 of the view: the window moves right of it.
    grid.GotoCell(1, 1);
    RECT now;
    floating.GetWindowRect(&now);
    EXPECT_EQ(now.left, 130 + (150 - 80 + 5));
    EXPECT_EQ(now.top, 55);
    EXPECT_EQ(grid.Take().back(), "FloatingMoved 130 55 205 55");
    // Docked: 30 pixels right of the cell, at its top, where the handler may still move it.
    grid.SetFloatingDialogPlacement(1);
    grid.onFloatingMoved = [](RECT* r) { OffsetRect(r, 0, 1); };
    grid.GotoCell(2, 2);
    floating.GetWindowRect(&now);
    EXPECT_EQ(now.left, 50 + 225 + 30);
    EXPECT_EQ(now.top, 30 + 40 + 1);
    EXPECT_EQ(now.right - now.left, 100);
    grid.floatingDialog = nullptr;
}
