// The table built from its stores: the default row of a fresh call, the blank row behind a
// table that doesn't end in "*", the column widths, and a second setup over a live table.

#include "parcel/CallState.h"
#include "parcel/WindowSettings.h"
#include "tests/parcel/ParcelTable.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

class ParcelSetup : public ::testing::Test {
protected:
    void SetUp() override { table.Stock({{"*", 0}, {"A", 12}, {"B", 7}, {"C", 30}}, "T1\nT2\n"); }

    std::string Label(int col, int row) {
        GridCell cell;
        grid.GetCell(col, row, cell);
        return cell.GetLabel() ? cell.GetLabel() : "<none>";
    }

    ParcelTable table;
    ParcelGrid& grid = *table.grid;
};

} // namespace

TEST_F(ParcelSetup, AFreshCallIsOneRowThatTakesTheWholeStock) {
    table.Open();
    EXPECT_EQ(table.Table(), (Rows{"*|49||1"}));
    EXPECT_EQ(grid.StockTotal, 49);
    EXPECT_EQ(grid.LayerChoices, "*\nA\nB\nC\n");
    EXPECT_EQ(grid.TypeChoices, "T1\nT2\n\n");
    EXPECT_EQ(Label(0, 0), grid.LayerChoices);
    EXPECT_EQ(Label(2, 0), "T1\nT2\n\n");
    EXPECT_EQ(grid.GetCellTypeAt(0, 0), grid.GetCellType(1));
    EXPECT_EQ(grid.GetCellTypeAt(2, 0), grid.GetCellType(1));
    GridCell cell;
    grid.GetCell(1, 0, cell);
    EXPECT_TRUE(cell.GetReadOnly());
    grid.GetCell(3, 0, cell);
    EXPECT_STREQ(cell.GetMask(), "999999");
    const char* titles[] = {"Layer", "Quantity", "Type", "Numbering"};
    for (int col = 0; col < 4; ++col) {
        grid.GetCell(col, -1, cell);
        EXPECT_STREQ(cell.GetText(), titles[col]);
    }
    EXPECT_EQ(grid.GetSideHeadingWidth(), 0);
    EXPECT_FALSE(table.DeleteRowEnabled());
    EXPECT_EQ(grid.TableReady, 1);

    // Without a settings file the client width is shared 3:1:3:1.
    RECT client{};
    grid.GetClientRect(&client);
    const int w = client.right / 8;
    ASSERT_GT(w, 0);
    EXPECT_EQ(grid.GetColWidth(0), 3 * w);
    EXPECT_EQ(grid.GetColWidth(1), w);
    EXPECT_EQ(grid.GetColWidth(2), 3 * w);
    EXPECT_EQ(grid.GetColWidth(3), w);
}

TEST_F(ParcelSetup, ATableThatDoesNotEndInTheCatchAllGetsAGreyBlankRow) {
    grid.Rows.Add({"A", "12", "T1", "5"});
    grid.Rows.Add({"B", "7", "", "17"});
    grid.MarkUsedLayers();
    table.Open();
    EXPECT_EQ(table.Table(), (Rows{"A|12|T1|5", "B|7||17", "|||24"}));
    GridCell cell;
    grid.GetCell(3, 2, cell);
    EXPECT_TRUE(cell.HasProperty(PropReadOnly));
    EXPECT_EQ(cell.GetTextColor(), ParcelGrid::BlankNumberColor);
    EXPECT_STREQ(cell.GetMask(), "999999");
    // The blank row has no type list, and offers the free layers.
    EXPECT_EQ(Label(2, 2), "<none>");
    EXPECT_EQ(Label(0, 2), "*\nC\n");
    // Its number can't be typed.
    EXPECT_EQ(grid.StartEdit(3, 2, 0), 1);
}

TEST_F(ParcelSetup, WithEveryRealLayerInARowTheBlankRowOffersNothing) {
    grid.Rows.Add({"A", "12", "T1", "1"});
    grid.Rows.Add({"B", "7", "T1", "13"});
    grid.Rows.Add({"C", "30", "T2", "20"});
    grid.MarkUsedLayers();
    table.Open();
    EXPECT_EQ(grid.LayerChoices, "*\n");
    EXPECT_EQ(table.Table().back(), "|||50");
    EXPECT_EQ(Label(0, 3), "");
}

TEST_F(ParcelSetup, ASecondSetupRebuildsTheTableFromTheStores) {
    table.Open();
    table.Pick(0, "A");
    ASSERT_EQ(grid.GetRowCount(), 2);
    grid.Rows.SetSize(0);
    grid.Rows.Add({"C", "30", "T2", "3"});
    grid.Rows.Add({"*", "19", "T1", "33"});
    grid.MarkUsedLayers();
    grid.NotifyGridCreated();
    EXPECT_EQ(table.Table(), (Rows{"C|30|T2|3", "*|19|T1|33"}));
    EXPECT_EQ(grid.TypeChoices, "T1\nT2\n\n\n");
    EXPECT_EQ(grid.NumberEditor.GetDlgCtrlID(), ParcelGrid::NumberEditorId);
}

TEST_F(ParcelSetup, WidthsFromTheSettingsFileAreTakenAsTheyAre) {
    // Only the first width decides; a file of two numbers leaves the others unknown.
    std::FILE* file = std::fopen(WindowSettings(ModulePath).Path().c_str(), "w");
    std::fputs("100 40 ", file);
    std::fclose(file);
    table.Open();
    EXPECT_EQ(grid.ColumnWidths[0], 100);
    EXPECT_EQ(grid.ColumnWidths[1], 40);
    EXPECT_EQ(grid.ColumnWidths[2], -1);
    EXPECT_EQ(grid.GetColWidth(0), 100);
    EXPECT_EQ(grid.GetColWidth(1), 40);
}
