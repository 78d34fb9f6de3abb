// Searches in the sheet's data source through the grid: every flag, the wrap, and columns
// that were moved.

#include "tests/grid/core/RecordingGrid.h"

#include <gtest/gtest.h>

namespace {

class Find : public ::testing::Test {
protected:
    void SetUp() override {
        const char* texts[6][4] = {{"apple", "Apple pie", "pear", "x"},
                                   {"banana", "apple", "APPLE", "y"},
                                   {"cherry", "pineapple", "apple", "z"},
                                   {"q", "q", "q", "q"},
                                   {"q", "q", "q", "q"},
                                   {"q", "q", "q", "q"}};
        grid.SetColCount(4, 0);
        grid.SetRowCount(6, 0);
        for (int r = 0; r < 6; ++r)
            for (int c = 0; c < 4; ++c) grid.SetCellText(c, r, texts[r][c]);
    }
    RecordingGrid grid;
};

} // namespace

TEST_F(Find, FlagsChooseWholeOrPartCaseDirectionAndColumns) {
    struct Case {
        const char* name;
        const char* text;
        bool first;
        int col, row, flags;
        int foundCol, foundRow;
    };
    const Case cases[] = {
        {"whole text, case, down", "apple", true, 0, 0, 0, 0, 0},
        {"whole text skips a longer one", "apple", true, 1, 0, 0, 1, 1},
        {"ignoring case", "APPLE", true, 1, 0, 0x2, 1, 1},
        {"case counts", "APPLE", true, 2, 0, 0, 2, 1},
        {"part of the text, case counts", "apple", true, 1, 0, 0x1, 1, 1},
        {"part of the text, any case", "apple", true, 1, 0, 0x3, 1, 0},
        {"backward from the end", "apple", true, 2, 0, 0x4, 2, 2},
        {"next below", "apple", false, 1, 1, 0x1, 1, 2},
        {"next wraps to the top", "apple", false, 1, 2, 0x3, 1, 0},
        {"next backward wraps to the bottom", "apple", false, 2, 1, 0x4, 2, 2},
        {"the only hit is found again", "banana", false, 0, 1, 0, 0, 1},
        {"all columns, row by row", "apple", false, 0, 0, 0x8, 1, 1},
        {"all columns, any case", "apple", false, 1, 1, 0xA, 2, 1},
        {"all columns, parts", "apple", false, 2, 1, 0x9, 1, 2},
        {"all columns, backward", "apple", false, 2, 2, 0xC, 1, 1},
        {"all columns wrap", "apple", false, 2, 2, 0x8, 0, 0},
        {"all columns from the start", "pear", true, 3, 5, 0x8, 2, 0},
    };
    for (const Case& c : cases) {
        int col = c.col, row = c.row;
        const int result = c.first ? grid.FindInDataSource(c.text, &col, &row, c.flags)
                                   : grid.FindNextInDataSource(c.text, &col, &row, c.flags);
        EXPECT_EQ(result, 0) << c.name;
        EXPECT_EQ(col, c.foundCol) << c.name;
        EXPECT_EQ(row, c.foundRow) << c.name;
    }
}

TEST_F(Find, MissesAnswerNonZero) {
    int col = 0, row = 0;
    EXPECT_NE(grid.FindInDataSource("kiwi", &col, &row, 0xB), 0);
    col = 3, row = 0;
    EXPECT_NE(grid.FindInDataSource("apple", &col, &row, 0), 0);
}

TEST_F(Find, MovedColumnsSearchTheirData) {
    grid.MoveColTo(0, 3, 0);
    int col = 3, row = 0;
    EXPECT_EQ(grid.FindInDataSource("banana", &col, &row, 0), 0);
    // The answer is the source's column.
    EXPECT_EQ(col, 0);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(grid.GetTranslatedCol(3), 0);
}
