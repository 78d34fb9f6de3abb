#include "FakeGrid.h"
#include "ReferenceStore.h"
#include "StoreChecker.h"
#include "grid/cells/GridCell.h"
#include "grid/cells/MemoryDataSource.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

class StoreSort : public ::testing::Test {
protected:
    StoreSort() { store.grid = &grid; }

    // One row a string; each character a cell, '.' for none.
    void Fill(const std::vector<std::string>& rows, int firstRow = 0) {
        for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
            for (int c = 0; c < static_cast<int>(rows[r].size()); ++c) {
                if (rows[r][c] == '.') continue;
                GridCell cell;
                cell.SetText(std::string(1, rows[r][c]));
                store.SetCell(c, firstRow + r, cell);
            }
        }
    }
    std::string Column(int col, int from, int to) {
        std::string s;
        for (int row = from; row <= to; ++row) {
            GridCell cell;
            s += store.GetCell(col, row, cell) == 0 ? cell.GetText() : ".";
        }
        return s;
    }

    FakeGrid grid{3, 0};
    MemoryDataSource store;
};

TEST_F(StoreSort, TwoKeysStableInBothDirections) {
    // Key columns 0 and 1; column 2 tells the rows apart.
    Fill({"b2p", "a9q", "b1r", "a9s"});
    const int keys[] = {0, 1};
    EXPECT_EQ(store.SortRows(keys, 2, 0), 0);
    EXPECT_EQ(Column(2, 0, 3), "qsrp");
    EXPECT_EQ(store.SortRows(keys, 2, 0x2), 0);
    EXPECT_EQ(Column(2, 0, 3), "prqs");
}

TEST_F(StoreSort, HeadingRowsStayAndSideHeadingsTravel) {
    Fill({"cC", "aA", "bB"});
    GridCell cell;
    cell.SetText("top");
    store.SetCell(0, -1, cell);
    for (int row = 0; row < 3; ++row) {
        cell.SetText(std::to_string(row));
        store.SetCell(-1, row, cell);
    }
    store.SortRowsByCol(0, 0);
    EXPECT_EQ(Column(0, -1, 2).substr(3), "abc");
    EXPECT_EQ(Column(1, 0, 2), "ABC");
    EXPECT_EQ(Column(-1, 0, 2), "120");
}

TEST_F(StoreSort, NumericKindsCompareAsNumbers) {
    for (WORD kind : {1, 5}) {
        const char* values[] = {"10", "9", "100", "-2"};
        for (int row = 0; row < 4; ++row) {
            GridCell cell;
            cell.SetText(values[row]);
            cell.SetDataType(kind);
            store.SetCell(0, row, cell);
        }
        store.SortRowsByCol(0, 0);
        std::string order;
        for (int row = 0; row < 4; ++row) {
            GridCell cell;
            store.GetCell(0, row, cell);
            order += std::string(cell.GetText()) + " ";
        }
        EXPECT_EQ(order, kind == 5 ? "-2 9 10 100 " : "-2 10 100 9 ");
    }
}

TEST_F(StoreSort, WithoutAGridNothingMoves) {
    Fill({"b", "a"});
    store.grid = nullptr;
    EXPECT_EQ(store.SortRowsByCol(0, 0), 1);
    EXPECT_EQ(Column(0, 0, 1), "ba");
}

TEST_F(StoreSort, MatchesTheBubbleSortOnManyRows) {
    ReferenceStore model(&grid);
    std::mt19937 rng(7);
    for (int row = 0; row < 300; ++row) {
        for (int col = 0; col < 3; ++col) {
            int pick = static_cast<int>(rng() % 6);
            if (pick == 0) continue;
            GridCell cell;
            if (pick > 1) cell.SetText(std::string(1, static_cast<char>('a' + pick)));
            cell.SetUserValue(row);
            store.SetCell(col, row, cell);
            model.SetCell(col, row, cell);
        }
    }
    const int keys[] = {1, 0};
    for (int flags : {0, 2}) {
        EXPECT_EQ(store.SortRows(keys, 2, flags), model.SortRows(keys, 2, flags));
        ExpectSameStore(store, model);
    }
}

TEST(CompareCells, DefaultOrdering) {
    FakeGrid grid(1, 1);
    GridCell empty, otherEmpty, ten, nine, tenText;
    empty.SetBackColor(1);
    ten.SetText("10");
    ten.SetDataType(2);
    nine.SetText("9");
    nine.SetDataType(2);
    tenText.SetText("10");
    EXPECT_EQ(grid.CompareCells(&empty, &otherEmpty, 0), 0);
    EXPECT_EQ(grid.CompareCells(&ten, &nine, 0), 1);
    EXPECT_GT(grid.CompareCells(&ten, &nine, 0), 0);
    EXPECT_LT(grid.CompareCells(&tenText, &nine, 0), 0);
    EXPECT_EQ(grid.CompareCells(nullptr, &ten, 0), -1);
    EXPECT_EQ(grid.CompareCells(nullptr, &ten, 2), 1);
    EXPECT_EQ(grid.CompareCells(&empty, &ten, 0), -1);
    EXPECT_EQ(grid.CompareCells(&tenText, &empty, 0), 1);
    // A missing second text counts as 0.0 for numbers.
    nine.SetText("-9");
    nine.SetDataType(2);
    EXPECT_EQ(grid.CompareCells(&nine, &empty, 0), -1);
}

} // namespace
