// Counts, sizes, rows and columns added and removed in step with the store, column moves,
// fitted widths, sorting, and the registry of data sources.

#include "grid/cells/GridDataSource.h"
#include "grid/windows/GridView.h"
#include "platform/afx/CClientDC.h"
#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

// The table with its heading row and column, "." for a cell without text.
Strings Snapshot(GridCtrl& grid) {
    Strings lines;
    for (int r = -1; r < grid.GetRowCount(); ++r) {
        std::string line;
        for (int c = -1; c < grid.GetColCount(); ++c) {
            const char* text = grid.GetCellText(c, r);
            line += (c > -1 ? "|" : "") + std::string(text && *text ? text : ".");
        }
        lines.push_back(line);
    }
    return lines;
}

void FillWithHeadings(GridCtrl& grid) {
    Fill(grid, 3, 3);
    for (int i = 0; i < 3; ++i) {
        grid.SetCellText(i, -1, "T" + std::to_string(i));
        grid.SetCellText(-1, i, "S" + std::to_string(i));
    }
}

} // namespace

TEST(RowsCols, CountsHaveTheirLimits) {
    GridCtrl grid;
    EXPECT_EQ(grid.SetColCount(-1, 0), 1);
    EXPECT_EQ(grid.SetColCount(32001, 1), 1);
    EXPECT_EQ(grid.SetColCount(32000, 1), 0);
    EXPECT_EQ(grid.GetColCount(), 32000);
    EXPECT_EQ(grid.SetRowCount(-1, 0), 1);
    EXPECT_EQ(grid.GetRowCount(), 0);
}

TEST(RowsCols, LargeTablesTurnUniformAndStaySo) {
    GridCtrl grid;
    grid.SetColCount(2, 0);
    grid.SetRowCount(64000, 0);
    EXPECT_FALSE(grid.sheet->uniformRowHeight);
    EXPECT_EQ(grid.sheet->rowHeights.size(), 64000u);
    grid.SetRowCount(64001, 0);
    EXPECT_TRUE(grid.sheet->uniformRowHeight);
    EXPECT_TRUE(grid.sheet->rowHeights.empty());
    EXPECT_EQ(grid.GetRowHeight(64000), 20);
    EXPECT_EQ(grid.GotoRow(64000), 0);
    EXPECT_EQ(grid.GetCurrentRow(), 64000);
    grid.SetRowCount(10, 0);
    EXPECT_TRUE(grid.sheet->uniformRowHeight);
    EXPECT_EQ(grid.GetCurrentRow(), 9);
    grid.SetRowHeight(3, 30);
    EXPECT_EQ(grid.GetRowHeight(7), 30);
    grid.SetUniformRowHeight(0);
    grid.SetRowHeight(5, 40);
    EXPECT_EQ(grid.GetRowHeight(5), 40);
    EXPECT_EQ(grid.GetRowHeight(4), 30);
    EXPECT_EQ(grid.GetRowHeight(10), 0);
    int height = -1;
    EXPECT_EQ(grid.GetRowHeight(10, &height), 1);
    EXPECT_EQ(height, -1);
}

TEST(RowsCols, ShrinkingPullsTheCurrentCellAndTheLocksBack) {
    GridCtrl grid;
    Fill(grid, 2, 10);
    grid.GotoRow(5);
    grid.LockRows(5);
    EXPECT_EQ(grid.SetRowCount(3, 0), 0);
    EXPECT_EQ(grid.sheet->lockedRows, 2);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    grid.LockRows(1);
    grid.SetRowCount(0, 0);
    EXPECT_EQ(grid.sheet->lockedRows, 1);
    EXPECT_EQ(grid.GetCurrentRow(), -1);
    EXPECT_EQ(grid.sheet->previousRow, -1);
    EXPECT_EQ(grid.sheet->pendingRow, -1);
}

TEST(RowsCols, StoreKeepsItsShapeThroughInsertsAndDeletesAtBothEnds) {
    GridCtrl grid;
    FillWithHeadings(grid);
    const Strings original{".|T0|T1|T2", "S0|r0c0|r0c1|r0c2", "S1|r1c0|r1c1|r1c2",
                           "S2|r2c0|r2c1|r2c2"};
    ASSERT_EQ(Snapshot(grid), original);

    EXPECT_EQ(grid.InsertRow(0), 0);
    EXPECT_EQ(grid.InsertRow(4), 0);
    EXPECT_EQ(Snapshot(grid), (Strings{".|T0|T1|T2", ".|.|.|.", "S0|r0c0|r0c1|r0c2",
                                       "S1|r1c0|r1c1|r1c2", "S2|r2c0|r2c1|r2c2", ".|.|.|."}));
    EXPECT_EQ(grid.InsertRow(7), 1);
    EXPECT_EQ(grid.DeleteRow(0), 0);
    EXPECT_EQ(grid.DeleteRow(3), 0);
    EXPECT_EQ(grid.DeleteRow(3), 1);
    EXPECT_EQ(Snapshot(grid), original);

    EXPECT_EQ(grid.InsertCol(0), 0);
    EXPECT_EQ(grid.InsertCol(3), 0);
    EXPECT_EQ(Snapshot(grid), (Strings{".|.|T0|T1|.|T2", "S0|.|r0c0|r0c1|.|r0c2",
                                       "S1|.|r1c0|r1c1|.|r1c2", "S2|.|r2c0|r2c1|.|r2c2"}));
    for (int c = 0; c < grid.GetColCount(); ++c) EXPECT_EQ(grid.GetTranslatedCol(c), c);
    EXPECT_EQ(grid.DeleteCol(0), 0);
    EXPECT_EQ(grid.DeleteCol(3), 0);
    EXPECT_EQ(Snapshot(grid),
              (Strings{".|T0|T1|.", "S0|r0c0|r0c1|.", "S1|r1c0|r1c1|.", "S2|r2c0|r2c1|."}));
    EXPECT_EQ(grid.InsertCol(3), 1);
    EXPECT_EQ(grid.DeleteCol(-1), 1);
}

TEST(RowsCols, HeightsStayWithTheirPositions) {
    GridCtrl grid;
    Fill(grid, 1, 3);
    grid.SetRowHeight(1, 33);
    grid.InsertRow(0);
    EXPECT_EQ(grid.GetRowHeight(1), 33);
    EXPECT_EQ(grid.GetRowHeight(3), 20);
}

TEST(RowsCols, DeletingTheOnlyColumnLeavesNoCurrentColumn) {
    GridCtrl grid;
    Fill(grid, 1, 2);
    EXPECT_EQ(grid.DeleteCol(0), 0);
    EXPECT_EQ(grid.GetColCount(), 0);
    EXPECT_EQ(grid.GetCurrentCol(), -1);
    EXPECT_EQ(grid.DeleteCol(0), 1);
}

TEST(RowsCols, MovedColumnsTakeTheirDataAlong) {
    GridCtrl grid;
    Fill(grid, 4, 1);
    grid.SetColWidth(0, 10);
    EXPECT_EQ(grid.MoveColTo(2, 2, 1), 0);
    EXPECT_EQ(grid.MoveColTo(2, 3, 1), 0);
    EXPECT_EQ(grid.MoveColTo(2, 1, 0), 0);
    EXPECT_EQ(grid.MoveColTo(4, 0, 1), 1);
    EXPECT_EQ(grid.MoveColTo(0, 4, 1), 0);
    EXPECT_EQ(grid.MoveColTo(0, 4, 0), 1);
    EXPECT_EQ(Snapshot(grid)[1], ".|r0c1|r0c2|r0c3|r0c0");
    EXPECT_EQ(grid.GetColWidth(3), 10);
    EXPECT_EQ(grid.MoveColTo(3, 0, 1), 0);
    EXPECT_EQ(Snapshot(grid)[1], ".|r0c0|r0c1|r0c2|r0c3");
}

TEST(RowsCols, SortByTwoKeysIsStable) {
    GridCtrl grid;
    // Key 1 (column 2), key 2 (column 0), and the original order in column 1.
    const char* rows[][3] = {{"b", "0", "x"}, {"a", "1", "y"}, {"b", "2", "x"},
                             {"a", "3", "x"}, {"b", "4", "w"}, {"a", "5", "y"}};
    grid.SetColCount(3, 0);
    grid.SetRowCount(6, 0);
    for (int r = 0; r < 6; ++r)
        for (int c = 0; c < 3; ++c) grid.SetCellText(c, r, rows[r][c]);
    auto order = [&grid](int col = 1) {
        std::string seen;
        for (int r = 0; r < grid.GetRowCount(); ++r) seen += grid.GetCellText(col, r);
        return seen;
    };
    int keys[] = {2, 0};
    EXPECT_EQ(grid.SortByCols(keys, 2, 0), 0);
    EXPECT_EQ(keys[0], 2);
    EXPECT_EQ(order(), "430215");
    int descending[] = {2, 0};
    grid.SortByCols(descending, 2, 0x2);
    EXPECT_EQ(order(), "150234");
    // One key: rows equal in it keep the order they had.
    grid.SortByCol(2, 0);
    EXPECT_EQ(order(), "402315");
    // A moved column sorts by the data it shows.
    grid.MoveColTo(2, 0, 1);
    grid.SortByCol(1, 0);
    EXPECT_EQ(order(2), "315402");
}

namespace {

// A source of cols x rows cells whose text names the place; it can refuse row operations.
class SizedSource : public GridDataSource {
public:
    SizedSource(int cols, int rows) : cols(cols), rows(rows) {}
    int GetColCount() override { return cols; }
    int GetRowCount() override { return rows; }
    int AppendRow() override { return refusal; }
    int GetCell(int col, int row, GridCell& cell) override {
        cell.SetText("s" + std::to_string(col) + "," + std::to_string(row));
        return 0;
    }
    int cols, rows;
    int refusal = 0;
};

} // namespace

TEST(RowsCols, DataSourcesRegisterBindAndShape) {
    GridCtrl grid;
    std::vector<std::unique_ptr<SizedSource>> sources;
    for (int i = 1; i <= 16; ++i) {
        sources.push_back(std::make_unique<SizedSource>(4, 7));
        EXPECT_EQ(grid.AddDataSource(sources.back().get()), i);
        EXPECT_EQ(sources.back()->GetSourceId(), i);
        EXPECT_EQ(sources.back()->grid, &grid);
    }
    EXPECT_EQ(grid.AddDataSource(nullptr), -1);
    EXPECT_EQ(grid.GetDataSource(0), &grid.sheet->memoryDataSource);
    EXPECT_EQ(grid.GetDataSource(17), nullptr);
    EXPECT_EQ(grid.RemoveDataSource(3), 0);
    EXPECT_EQ(grid.RemoveDataSource(3), 1);
    EXPECT_EQ(grid.GetDataSource(3), nullptr);
    EXPECT_EQ(grid.SelectDataSource(3), 1);
    EXPECT_EQ(grid.AddDataSource(sources[2].get()), 3);

    EXPECT_EQ(grid.ShapeToDataSource(2), 0);
    EXPECT_EQ(grid.GetColCount(), 4);
    EXPECT_EQ(grid.GetRowCount(), 7);
    EXPECT_EQ(grid.ShapeToDataSource(40), 1);
    sources[4]->cols = 0;
    EXPECT_EQ(grid.ShapeToDataSource(5), 2);
    sources[5]->rows = -1;
    sources[5]->cols = 2;
    EXPECT_EQ(grid.ShapeToDataSource(6), 0);
    EXPECT_EQ(grid.GetColCount(), 2);
    EXPECT_EQ(grid.GetRowCount(), 7);

    // The memory store until a source is selected; a column can read from another one.
    grid.SetCellText(0, 0, "mem");
    EXPECT_STREQ(grid.GetCellText(0, 0), "mem");
    EXPECT_EQ(grid.SetColDataSourceByIndex(1, 2), 0);
    EXPECT_STREQ(grid.GetCellText(1, 3), "s1,3");
    std::string text;
    grid.GetCellText(1, 3, text);
    EXPECT_EQ(text, "s1,3");
    EXPECT_EQ(grid.SetColDataSource(2, sources[0].get()), 1);
    EXPECT_EQ(grid.SetColDataSourceByIndex(0, 99), 1);
    EXPECT_EQ(grid.SelectDataSource(1), 0);
    EXPECT_EQ(grid.GetDataSourceIndex(), 1);
    EXPECT_STREQ(grid.GetCellText(0, 0), "s0,0");
    sources[0]->refusal = 5;
    EXPECT_EQ(grid.AppendRow(), 5);
    EXPECT_EQ(grid.GetRowCount(), 7);
    sources[0]->refusal = 0;
    EXPECT_EQ(grid.AppendRow(), 0);
    EXPECT_EQ(grid.GetRowCount(), 8);
}

TEST(RowsCols, BestFitMeasuresTheCellsItScans) {
    GridHost host;
    GridCtrl& grid = host.grid;
    grid.SetColCount(3, 0);
    EXPECT_EQ(grid.BestFitCols(0, 0, 0, 0), 0);
    EXPECT_EQ(grid.GetColWidth(0), 5);
    grid.SetRowCount(4, 0);
    grid.BestFitCols(0, 0, 0, 0);
    EXPECT_EQ(grid.GetColWidth(0), 11);

    grid.SetCellText(1, 3, "WWWW");
    grid.SetCellText(1, -1, "a much longer heading text");
    SIZE text{}, heading{};
    {
        CClientDC dc(grid.view.get());
        GetTextExtentPoint32(dc, "WWWW", 4, &text);
        GetTextExtentPoint32(dc, "a much longer heading text", 26, &heading);
    }
    grid.BestFitCols(1, 1, 0, 0);
    EXPECT_EQ(grid.GetColWidth(1), text.cx + 8);
    // Three rows scanned leave the fourth out.
    grid.BestFitCols(1, 1, 3, 0);
    EXPECT_EQ(grid.GetColWidth(1), 11);
    grid.BestFitCols(1, 1, 0, 1);
    EXPECT_EQ(grid.GetColWidth(1), heading.cx + 8);

    std::string wide(200, 'W');
    grid.SetCellText(2, 0, wide);
    grid.BestFitCols(2, 2, 0, 0);
    RECT client;
    grid.view->GetClientRect(&client);
    EXPECT_EQ(grid.GetColWidth(2), client.right - grid.GetVScrollWidth());

    // A registered type measures its own cells.
    struct WideType : CellType {
        void GetBestSize(CDC*, SIZE* size, const GridCell&) override { *size = SIZE{40, 5}; }
    } wideType;
    GridCell typed;
    typed.SetCellType(grid.AddCellType(&wideType));
    grid.SetCell(0, 1, typed);
    grid.BestFitCols(0, 0, 0, 0);
    EXPECT_EQ(grid.GetColWidth(0), 42);

    EXPECT_EQ(grid.BestFitCols(-2, 0, 0, 0), 1);
    EXPECT_EQ(grid.BestFitCols(0, 3, 0, 0), 2);
    EXPECT_EQ(grid.BestFitCols(2, 1, 0, 0), 3);
}

TEST(RowsCols, FitToViewFillsTheViewExactly) {
    GridHost host;
    GridCtrl& grid = host.grid;
    grid.SetColCount(4, 0);
    grid.SetColWidth(1, 30);
    grid.SetColWidth(2, 60);
    grid.SetColWidth(3, 90);
    EXPECT_EQ(grid.FitColsToView(1, 3), 0);
    RECT client;
    grid.view->GetClientRect(&client);
    EXPECT_EQ(grid.GetColWidth(1) + grid.GetColWidth(2) + grid.GetColWidth(3), client.right);
    EXPECT_EQ(grid.GetColWidth(2), client.right / 3);
    EXPECT_EQ(grid.FitColsToView(2, 1), 1);
    EXPECT_EQ(grid.FitColsToView(0, 4), 1);
}
