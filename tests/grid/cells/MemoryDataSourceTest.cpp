#include "grid/cells/MemoryDataSource.h"

#include "FakeGrid.h"
#include "grid/cells/GridCell.h"

#include <gtest/gtest.h>
#include <string>

namespace {

class MemoryStore : public ::testing::Test {
protected:
    MemoryStore() { store.grid = &grid; }

    void Put(int col, int row, const std::string& text) {
        GridCell cell;
        cell.SetText(text);
        store.SetCell(col, row, cell);
    }
    // The text at the place, "-" where nothing is stored.
    std::string At(int col, int row) {
        GridCell cell;
        if (store.GetCell(col, row, cell) != 0) return "-";
        return cell.GetText() ? cell.GetText() : "";
    }
    std::string Row(int row, int from, int to) {
        std::string s;
        for (int col = from; col <= to; ++col) s += At(col, row) + " ";
        return s;
    }

    FakeGrid grid{4, 4};
    MemoryDataSource store;
};

TEST_F(MemoryStore, ReadOfAnEmptyStoreLeavesTheCell) {
    GridCell cell;
    cell.SetBackColor(3);
    EXPECT_EQ(store.GetCell(0, 0, cell), 1);
    EXPECT_EQ(cell.GetProperties(), DWORD{PropBackColor});
}

TEST_F(MemoryStore, WriteMakesEmptyPlacesUpToIt) {
    Put(5, 3, "x");
    EXPECT_EQ(At(5, 3), "x");
    EXPECT_EQ(At(2, 3), "-");
    // Places between the anchor and the written cell exist; beyond it they don't.
    EXPECT_EQ(store.ClearCell(2, 3), 0);
    EXPECT_EQ(store.ClearCell(6, 3), 1);
    EXPECT_EQ(store.ClearCell(0, 2), 1);
    EXPECT_EQ(store.ClearCell(0, 4), 1);
}

TEST_F(MemoryStore, HeadingCellsLieBeforeTheAnchor) {
    Put(0, 2, "a");
    Put(-1, 2, "h");
    Put(0, -1, "top");
    EXPECT_EQ(Row(2, -1, 1), "h a - ");
    EXPECT_EQ(At(0, -1), "top");
    EXPECT_EQ(At(0, 2), "a");
    // The first row made stays row 0, and the heading row lies before it.
    store.InsertRow(-1);
    EXPECT_EQ(At(0, -1), "-");
    EXPECT_EQ(At(0, 0), "top");
    EXPECT_EQ(At(0, 3), "a");
}

TEST_F(MemoryStore, ColumnsShiftInEveryRowThatReachesThem) {
    Put(0, 0, "a");
    Put(1, 0, "b");
    Put(2, 0, "c");
    Put(0, 1, "short");
    Put(-2, 2, "h2");
    Put(-1, 2, "h1");
    EXPECT_EQ(store.InsertCol(1), 0);
    EXPECT_EQ(Row(0, 0, 3), "a - b c ");
    EXPECT_EQ(Row(1, 0, 2), "short - - ");
    EXPECT_EQ(grid.sourceCols, (std::vector<int>{0, 2, 3, 4}));

    // Among heading cells the new place goes in outside the one addressed.
    store.InsertCol(-1);
    EXPECT_EQ(Row(2, -3, 0), "h2 - h1 - ");
    store.DeleteCol(-2);
    EXPECT_EQ(Row(2, -3, 0), "- h2 h1 - ");

    EXPECT_EQ(store.DeleteCol(1), 0);
    EXPECT_EQ(Row(0, 0, 3), "a b c - ");
    // The last place of a row only loses its value.
    store.DeleteCol(2);
    EXPECT_EQ(Row(0, 0, 3), "a b - - ");
    EXPECT_EQ(store.ClearCell(2, 0), 0);
}

TEST_F(MemoryStore, InsertColTakesAHeldSourceColumnAsGridColumn) {
    Put(0, 0, "a");
    Put(1, 0, "b");
    Put(2, 0, "c");
    grid.sourceCols = {0, 2, 1, 3};
    store.InsertCol(2);
    EXPECT_EQ(Row(0, 0, 3), "a - b c ");
    EXPECT_EQ(grid.sourceCols, (std::vector<int>{0, 3, 2, 4}));
}

TEST_F(MemoryStore, FindTextToLeft) {
    Put(0, 0, "a");
    Put(1, 0, "");
    Put(3, 0, "d");
    Put(0, 1, "e");
    Put(2, 1, "");
    store.ClearCell(2, 1);
    const struct {
        int col, row, answer, found;
    } cases[] = {
        {3, 0, 0, 0}, // the empty text at 1 doesn't count
        {9, 0, 0, 3}, // past the end the walk starts at the last place
        {2, 0, 0, 0},  {0, 0, 1, 0},
        {9, 1, 1, 9}, // the last place is empty
        {1, 1, 0, 0},  {0, 5, 1, 0},
        {-1, 0, 0, 0}, // before the row the walk starts at its first place
    };
    for (const auto& c : cases) {
        int col = c.col;
        EXPECT_EQ(store.FindTextToLeft(&col, c.row), c.answer) << c.col << "," << c.row;
        EXPECT_EQ(col, c.found) << c.col << "," << c.row;
    }
}

} // namespace
