#include "FakeGrid.h"
#include "ReferenceStore.h"
#include "grid/cells/GridCell.h"
#include "grid/cells/MemoryDataSource.h"

#include <gtest/gtest.h>
#include <string>

namespace {

// Three columns, three rows:   "ab"    "x"       "AB"
//                              "xABy"  no text   "b"
//                              -       "ab"      -
class StoreFind : public ::testing::Test {
protected:
    StoreFind() {
        store.grid = &grid;
        const char* texts[3][3] = {
            {"ab", "x", "AB"}, {"xABy", nullptr, "b"}, {nullptr, "ab", nullptr}};
        for (int row = 0; row < 3; ++row) {
            for (int col = 0; col < 3; ++col) {
                GridCell cell;
                if (texts[row][col])
                    cell.SetText(texts[row][col]);
                else if (row == 1)
                    cell.SetBackColor(1);
                else
                    continue;
                store.SetCell(col, row, cell);
                model.SetCell(col, row, cell);
            }
        }
    }

    FakeGrid grid{3, 3};
    MemoryDataSource store;
    ReferenceStore model{&grid};
};

TEST_F(StoreFind, FlagsAndWrapping) {
    const struct {
        bool first;
        int flags, col, row;
        const char* text;
        int answer, foundCol, foundRow;
    } cases[] = {
        {true, 0x8, 0, 0, "ab", 0, 0, 0},
        {false, 0x8, 0, 0, "ab", 0, 1, 2},
        {false, 0x8, 1, 2, "ab", 0, 0, 0}, // wraps from the last cell to the first
        {true, 0xC, 0, 0, "ab", 0, 1, 2},  // backward starts at the last cell
        {false, 0xC, 0, 0, "ab", 0, 1, 2}, // and wraps there from the first
        {false, 0xA, 0, 0, "ab", 0, 2, 0}, // whole text, any case
        {false, 0xA, 2, 0, "ab", 0, 1, 2},
        {false, 0xB, 2, 0, "ab", 0, 0, 1}, // part of the text, any case
        {false, 0x9, 0, 0, "AB", 0, 2, 0}, // part of the text, exact case
        {false, 0x9, 2, 0, "AB", 0, 0, 1},
        {true, 0x8, 0, 0, "", 0, 1, 1}, // a cell without text has an empty one
        {true, 0x9, 0, 0, "", 0, 0, 0},
        {true, 0x0, 1, 0, "ab", 0, 1, 2},  // down one column
        {false, 0x0, 0, 0, "ab", 0, 0, 0}, // which comes round to the start again
        {false, 0x4, 2, 2, "b", 0, 2, 1},
        {true, 0x8, 5, 5, "zz", 1, -1, 0}, // a first search has set the start
        {true, 0x0, 1, 5, "zz", 1, 1, -1},
        {false, 0x8, 1, 1, "zz", 1, 1, 1},
    };
    for (const auto& c : cases) {
        int col = c.col, row = c.row;
        int answer = c.first ? store.FindFirst(c.text, &col, &row, c.flags)
                             : store.FindNext(c.text, &col, &row, c.flags);
        SCOPED_TRACE(std::string(c.text) + " flags " + std::to_string(c.flags));
        EXPECT_EQ(answer, c.answer);
        EXPECT_EQ(col, c.foundCol);
        EXPECT_EQ(row, c.foundRow);
    }
}

TEST_F(StoreFind, ARowThatIsNotStoredKeepsTheColumn) {
    grid.rowCount = 5;
    int col = 0, row = 3;
    // Rows 3 and 4 hold nothing, so the search enters row 0 at column 1 and misses (0, 0).
    EXPECT_EQ(store.FindNext("ab", &col, &row, 0x8), 0);
    EXPECT_EQ(col, 1);
    EXPECT_EQ(row, 2);
}

TEST_F(StoreFind, AgreesWithTheReferenceForEveryFlagAndStart) {
    grid.rowCount = 4;
    for (const char* text : {"ab", "AB", "b", "", "y"})
        for (int flags = 0; flags < 16; ++flags)
            for (int startRow = -1; startRow <= 4; ++startRow)
                for (int startCol = -1; startCol <= 3; ++startCol) {
                    int col = startCol, row = startRow, refCol = startCol, refRow = startRow;
                    ASSERT_EQ(store.FindNext(text, &col, &row, flags),
                              model.FindNext(text, &refCol, &refRow, flags))
                        << text << " " << flags << " " << startCol << "," << startRow;
                    ASSERT_EQ(col, refCol);
                    ASSERT_EQ(row, refRow);
                }
}

TEST(StoreFindText, TextsEndAtAZeroByte) {
    FakeGrid grid(1, 1);
    MemoryDataSource store;
    store.grid = &grid;
    GridCell cell;
    cell.SetText(std::string("ab\0cd", 5));
    store.SetCell(0, 0, cell);
    const struct {
        const char* text;
        int flags, answer;
    } cases[] = {{"ab", 0x8, 0}, {"AB", 0xA, 0}, {"cd", 0x9, 1}, {"CD", 0xB, 1}, {"b", 0x9, 0}};
    for (const auto& c : cases) {
        int col = 0, row = 0;
        EXPECT_EQ(store.FindFirst(c.text, &col, &row, c.flags), c.answer) << c.text;
    }
}

TEST(StoreFindWithoutGrid, FindsNothing) {
    MemoryDataSource store;
    GridCell cell;
    cell.SetText("a");
    store.SetCell(0, 0, cell);
    int col = 0, row = 0;
    EXPECT_EQ(store.FindFirst("a", &col, &row, 0x8), 1);
}

} // namespace
