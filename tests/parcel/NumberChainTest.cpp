// Typed numbers: a row starts at or above where the row above ends, the rows below follow the
// chain, and a refused number comes back with an alert and an open editor.

#include "parcel/NumberChain.h"

#include "parcel/CallState.h"
#include "platform/user/Input.h"
#include "tests/parcel/ParcelTable.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

class Numbering : public ::testing::Test {
protected:
    void SetUp() override {
        table.Stock({{"*", 0}, {"A", 5}, {"B", 0}, {"C", 30}}, "T\n");
        grid.Rows.Add({"A", "5", "T", "10"});
        grid.Rows.Add({"B", "0", "", "15"});
        grid.Rows.Add({"C", "30", "T", "15"});
        grid.MarkUsedLayers();
        table.Open();
        table.TakeEvents();
    }
    void Escape() {
        plat::PushKey(VK_ESCAPE);
        ParcelTable::Pump();
    }

    ParcelTable table;
    ParcelGrid& grid = *table.grid;
};

} // namespace

TEST_F(Numbering, ANumberAtTheLimitIsTakenAndTheRowsBelowFollow) {
    table.TypeNumber(1, "16");
    EXPECT_EQ(table.Table(), (Rows{"A|5|T|10", "B|0||16", "C|30|T|16", "|||46"}));
    table.TypeNumber(1, "15");
    EXPECT_EQ(table.Table(), (Rows{"A|5|T|10", "B|0||15", "C|30|T|15", "|||45"}));
    EXPECT_TRUE(table.TakeEvents().empty());
    table.TypeNumber(0, "100");
    // A quantity of 0 chains equal numbers; the blank row takes part.
    EXPECT_EQ(table.Table(), (Rows{"A|5|T|100", "B|0||105", "C|30|T|105", "|||135"}));
    EXPECT_EQ(grid.NumberRefused, 0);
    // A gap opened further down stays until a recount from row 0.
    table.TypeNumber(2, "200");
    EXPECT_EQ(table.Table(), (Rows{"A|5|T|100", "B|0||105", "C|30|T|200", "|||230"}));
    EXPECT_TRUE(table.TakeEvents().empty());
}

TEST_F(Numbering, ANumberBelowTheLimitIsRefusedNamingTheLimit) {
    table.TypeNumber(1, "14");
    EXPECT_EQ(table.TakeEvents(),
              (Rows{"alert: Value '14' is not correct\\nYou must enter Number great or equal than "
                    "'15'"}));
    EXPECT_EQ(grid.NumberRefused, 1);
    EXPECT_STREQ(grid.GetCellText(3, 1), "15");
    // The editor is open again on the old number.
    EXPECT_EQ(CWnd::GetFocus(), &grid.NumberEditor);
    EXPECT_EQ(grid.NumberEditor.GetWindowText(), "15");
    Escape();
    EXPECT_EQ(table.Table(), (Rows{"A|5|T|10", "B|0||15", "C|30|T|15", "|||45"}));
}

TEST_F(Numbering, ZeroAndAnEmptyNumberAreRefused) {
    table.TypeNumber(0, "0");
    EXPECT_EQ(table.TakeEvents(),
              (Rows{"alert: Value '0' is not correct\\nNumber can't be equal or less than '0'"}));
    Escape();
    table.Click(3, 0);
    plat::PushKey(VK_BACK);
    plat::PushKey(VK_RETURN);
    ParcelTable::Pump();
    EXPECT_EQ(table.TakeEvents(),
              (Rows{"alert: Value '' is not correct\\nNumber can't be equal or less than '0'"}));
    Escape();
    EXPECT_STREQ(grid.GetCellText(3, 0), "10");
}

TEST_F(Numbering, LeadingZerosStayInTheCellAndTheChainReadsTheValue) {
    table.TypeNumber(0, "1");
    table.TypeNumber(1, "007");
    EXPECT_EQ(table.Table(), (Rows{"A|5|T|1", "B|0||007", "C|30|T|7", "|||37"}));
}

TEST_F(Numbering, TheSameTextOrACancelledEditChangesNothing) {
    grid.SetCellText(3, 3, "99");
    table.TypeNumber(0, "10");
    EXPECT_STREQ(grid.GetCellText(3, 3), "99");
    table.Click(3, 1);
    plat::PushChar('1');
    Escape();
    EXPECT_STREQ(grid.GetCellText(3, 1), "15");
}

TEST_F(Numbering, WhileCancellingNoNumberIsChecked) {
    CancelPressed = 1;
    table.TypeNumber(1, "3");
    EXPECT_TRUE(table.TakeEvents().empty());
    EXPECT_STREQ(grid.GetCellText(3, 1), "15");
    CancelPressed = 0;
    Escape();
}

TEST_F(Numbering, AChainWithoutGridOrTextOrRowRefusesQuietly) {
    EXPECT_FALSE(NumberChain(nullptr, "5", 0).Apply());
    EXPECT_FALSE(NumberChain(&grid, nullptr, 0).Apply());
    EXPECT_FALSE(NumberChain(&grid, "5", -1).Apply());
    EXPECT_TRUE(table.TakeEvents().empty());
    // A cascade past six digits is written as it comes.
    EXPECT_TRUE(NumberChain(&grid, "999999", 0).Apply());
    EXPECT_STREQ(grid.GetCellText(3, 3), "1000034");
}
