// Picks in the Layer column: quantities follow, the drop-downs offer only free layers, "*"
// takes what is left and collapses the rows below it, and Delete Row gives a layer back.

#include "platform/backend/HeadlessBackend.h"
#include "tests/parcel/ParcelTable.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

class ParcelLayers : public ::testing::Test {
protected:
    void SetUp() override {
        table.Stock({{"*", 0}, {"A", 12}, {"B", 7}, {"C", 30}}, "T1\nT2\n");
        table.Open();
    }
    std::string Label(int row) {
        GridCell cell;
        grid.GetCell(0, row, cell);
        return cell.GetLabel() ? cell.GetLabel() : "<none>";
    }
    void DeleteRow() {
        table.dialog->SendMessage(WM_COMMAND, MAKEWPARAM(ParcelGrid::DeleteRowButton, BN_CLICKED),
                                  0);
        ParcelTable::Pump();
    }
    // Lets virtual time pass, with the timers that fall due.
    static void RunFor(DWORD ms) {
        const DWORD until = GetTickCount() + ms;
        plat::Headless().WaitFor(ms);
        MSG msg;
        while (GetTickCount() < until) {
            if (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
                DispatchMessage(&msg);
            else
                WaitMessage();
        }
        ParcelTable::Pump();
    }

    ParcelTable table;
    ParcelGrid& grid = *table.grid;
};

} // namespace

TEST_F(ParcelLayers, TheWorkedExampleFromPickToDelete) {
    table.Pick(0, "A");
    EXPECT_EQ(table.Table(), (Rows{"A|12||1", "|||13"}));
    EXPECT_EQ(grid.LayerChoices, "*\nB\nC\n");
    // Every drop-down but the picked cell's, which the pick itself stored, offers the rest.
    EXPECT_EQ(Label(1), "*\nB\nC\n");
    // The filled-in row got its type list and an editable black number.
    GridCell cell;
    grid.GetCell(2, 0, cell);
    EXPECT_EQ(cell.GetLabel(), std::string("T1\nT2\n\n"));
    grid.GetCell(3, 0, cell);
    EXPECT_FALSE(cell.HasProperty(PropReadOnly));
    EXPECT_EQ(cell.GetTextColor(), 0u);

    table.Pick(1, "B");
    EXPECT_EQ(table.Table(), (Rows{"A|12||1", "B|7||13", "|||20"}));
    EXPECT_EQ(grid.LayerChoices, "*\nC\n");

    table.Pick(2, "*");
    EXPECT_EQ(table.Table(), (Rows{"A|12||1", "B|7||13", "*|30||20"}));
    EXPECT_EQ(grid.LayerChoices, "*\nC\n");
    RunFor(150);
    EXPECT_EQ(Label(2), grid.LayerChoices);

    table.Click(0, 1);
    EXPECT_TRUE(table.DeleteRowEnabled());
    DeleteRow();
    EXPECT_EQ(table.Table(), (Rows{"A|12||1", "*|37||13"}));
    EXPECT_FALSE(table.DeleteRowEnabled());
    EXPECT_EQ(grid.UsedFlags[2], 0);
    EXPECT_EQ(grid.LayerChoices, "*\nB\nC\n");
    // A filled row also offers the layer it holds.
    EXPECT_EQ(Label(0), "A\n*\nB\nC\n");
}

TEST_F(ParcelLayers, StarInTheFirstRowRemovesAllOthers) {
    table.Pick(0, "A");
    table.Pick(1, "B");
    table.Pick(0, "*");
    EXPECT_EQ(table.Table(), (Rows{"*|49||1"}));
    EXPECT_EQ(grid.LayerChoices, "*\nA\nB\nC\n");
    EXPECT_FALSE(table.DeleteRowEnabled());
    // The picked cell keeps the label it was picked from until 100 ms later.
    EXPECT_EQ(Label(0), "*\nC\n");
    RunFor(150);
    EXPECT_EQ(Label(0), grid.LayerChoices);
    EXPECT_FALSE(table.DeleteRowEnabled());
}

TEST_F(ParcelLayers, RemovingTheCatchAllByButtonBringsABlankRowBack) {
    table.Pick(0, "C");
    table.Pick(1, "*");
    ASSERT_EQ(table.Table(), (Rows{"C|30||1", "*|19||31"}));
    table.Click(0, 1);
    DeleteRow();
    EXPECT_EQ(table.Table(), (Rows{"C|30||1", "|||31"}));
    EXPECT_EQ(grid.UsedFlags[0], 0);
}

TEST_F(ParcelLayers, PickingTheSameLayerAgainChangesNoFlags) {
    table.Pick(0, "B");
    const std::string before = grid.LayerChoices;
    table.Pick(0, "B");
    EXPECT_EQ(grid.LayerChoices, before);
    EXPECT_EQ(grid.UsedFlags[2], 1);
    EXPECT_EQ(table.Table(), (Rows{"B|7||1", "|||8"}));
}

TEST_F(ParcelLayers, APickFurtherUpAddsNoRowAndKeepsTheType) {
    table.Pick(0, "A");
    grid.SetCellText(2, 0, "T2");
    table.Pick(1, "B");
    table.Pick(0, "C");
    EXPECT_EQ(table.Table(), (Rows{"C|30|T2|1", "B|7||31", "|||38"}));
    EXPECT_EQ(grid.LayerChoices, "*\nA\n");
}

TEST_F(ParcelLayers, ATypedNameOutsideTheStockOnlyFreesTheOldLayer) {
    table.Pick(0, "A");
    table.Click(0, 0);
    grid.SetCellText(0, 0, "Z");
    EXPECT_EQ(table.Table(), (Rows{"Z|12||1", "|||13"}));
    EXPECT_EQ(grid.UsedFlags[1], 0);
    EXPECT_EQ(grid.LayerChoices, "*\nA\nB\nC\n");
}

TEST_F(ParcelLayers, TheMarkFollowsTheCurrentCellAndTheBlankRowStaysGrey) {
    table.Pick(0, "A");
    table.Click(2, 0);
    GridCell cell;
    grid.GetCell(2, 0, cell);
    EXPECT_EQ(cell.GetBackColor(), ParcelGrid::MarkBackColor);
    EXPECT_EQ(cell.GetTextColor(), ParcelGrid::MarkTextColor);
    EXPECT_TRUE(table.DeleteRowEnabled());

    table.Click(3, 1);
    grid.GetCell(3, 1, cell);
    EXPECT_EQ(cell.GetBackColor(), grid.WindowColor);
    EXPECT_FALSE(table.DeleteRowEnabled());
    // Its number is read-only: the click opens no editor.
    EXPECT_EQ(grid.editing, 0);
    EXPECT_NE(CWnd::GetFocus(), &grid.NumberEditor);

    table.Click(1, 0);
    grid.GetCell(3, 1, cell);
    EXPECT_EQ(cell.GetTextColor(), ParcelGrid::BlankNumberColor);
}

TEST_F(ParcelLayers, AClickOnAHeadingOnlyStopsTheMessage) {
    table.dialog->label.Start(0, 200, "Type is absent");
    grid.SelectedRow = 0;
    grid.NotifyCellLeftMouse(1, -1, 1, nullptr, nullptr, 0);
    EXPECT_EQ(table.dialog->label.GetWindowText(), "");
    EXPECT_EQ(grid.SelectedRow, 0);
}
