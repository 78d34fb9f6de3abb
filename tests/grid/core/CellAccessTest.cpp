// The layers of a cell as painted (column or heading default, stored cell, the read
// notification, the hook, the style), the raw read that the shortcuts use, and writes.

#include "grid/cells/CellHook.h"
#include "platform/afx/CBitmap.h"
#include "tests/grid/core/RecordingGrid.h"

#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

// Writes down the text it sees, then sets its own text colour.
class MarkingHook : public CellHook {
public:
    void HookCell(GridCell* cell) override {
        seen = cell->GetText() ? cell->GetText() : "";
        cell->SetTextColor(RGB(0, 0, 9));
    }
    std::string seen;
};

class CellAccess : public ::testing::Test {
protected:
    void SetUp() override {
        grid.SetColCount(3, 0);
        grid.SetRowCount(4, 0);
        grid.Take();
    }
    RecordingGrid grid;
    GridCell cell;
};

} // namespace

TEST_F(CellAccess, StoredPropertiesLieOverTheColumnDefault) {
    GridCell columnDefault;
    columnDefault.SetBackColor(RGB(1, 2, 3));
    columnDefault.SetTextColor(RGB(4, 5, 6));
    ASSERT_EQ(grid.SetColumnDefault(1, columnDefault), 0);
    grid.SetCellTextColor(1, 2, RGB(7, 8, 9));

    grid.GetEffectiveCell(1, 2, cell);
    EXPECT_EQ(cell.GetBackColor(), RGB(1, 2, 3));
    EXPECT_EQ(cell.GetTextColor(), RGB(7, 8, 9));
    // The raw read shows only what is stored.
    EXPECT_EQ(grid.GetCell(1, 2, cell), 0);
    EXPECT_EQ(cell.GetProperties(), static_cast<DWORD>(PropTextColor));
    // Other columns keep their own default.
    grid.GetEffectiveCell(0, 2, cell);
    EXPECT_FALSE(cell.HasProperty(PropBackColor));
}

TEST_F(CellAccess, ReadNotificationThenHookThenStyleWin) {
    MarkingHook hook;
    GridCell style;
    style.SetBackColor(RGB(50, 50, 50));
    GridCell stored;
    stored.SetText("stored");
    stored.SetBackColor(RGB(9, 9, 9));
    stored.SetTextColor(RGB(1, 1, 1));
    stored.SetCellHook(&hook);
    stored.SetStyleCell(&style);
    grid.SetCell(0, 1, stored);
    grid.onRead = [](GridCell* c) { c->SetText("read"); };

    grid.GetEffectiveCell(0, 1, cell);
    EXPECT_EQ(hook.seen, "read");
    EXPECT_STREQ(cell.GetText(), "read");
    EXPECT_EQ(cell.GetTextColor(), RGB(0, 0, 9));
    EXPECT_EQ(cell.GetBackColor(), RGB(50, 50, 50));
}

TEST_F(CellAccess, RowsPastTheEndShowTheDefaultWithoutReading) {
    GridCell columnDefault;
    columnDefault.SetBackColor(RGB(1, 2, 3));
    grid.SetColumnDefault(2, columnDefault);
    grid.SetCellText(2, 3, "last");
    grid.recordReads = true;
    EXPECT_EQ(grid.GetEffectiveCell(2, 4, cell), 0);
    EXPECT_EQ(cell.GetProperties(), static_cast<DWORD>(PropBackColor));
    EXPECT_TRUE(grid.Take().empty());
    grid.GetEffectiveCell(2, 3, cell);
    EXPECT_EQ(grid.Take(), (Strings{"Read 2 3"}));
}

TEST_F(CellAccess, ReadsAndWritesGoToTheSourceColumn) {
    grid.SetCellText(0, 0, "a");
    grid.SetCellText(2, 0, "c");
    ASSERT_EQ(grid.MoveColTo(0, 2, 0), 0);
    EXPECT_EQ(grid.GetTranslatedCol(2), 0);
    EXPECT_STREQ(grid.GetCellText(2, 0), "a");
    EXPECT_STREQ(grid.GetCellText(1, 0), "c");
    // The text alone comes the same way, also of a heading, and of no cell past the table.
    std::string text;
    grid.GetCellText(2, 0, text);
    EXPECT_EQ(text, "a");
    grid.SetCellText(-1, 0, "side");
    grid.GetCellText(-1, 0, text);
    EXPECT_EQ(text, "side");
    grid.GetCellText(3, 0, text);
    EXPECT_EQ(text, "");
    grid.recordReads = true;
    grid.GetEffectiveCell(2, 0, cell);
    grid.SetCellText(2, 1, "b");
    // The read names the source's column, the write the grid's; the shortcut reads raw.
    EXPECT_EQ(grid.Take(), (Strings{"Read 0 0", "Write 2 1"}));
    EXPECT_EQ(grid.SetTranslatedCol(1, 9), 0);
    EXPECT_EQ(grid.SetTranslatedCol(3, 9), 1);
    EXPECT_EQ(grid.GetTranslatedCol(-1), -1);
}

TEST_F(CellAccess, HeadingCellsLieOverTheHeadingDefault) {
    grid.SetCellText(-1, 3, "side");
    grid.SetCellText(1, -1, "top");
    grid.GetEffectiveCell(-1, 3, cell);
    EXPECT_STREQ(cell.GetText(), "side");
    EXPECT_EQ(cell.GetBackColor(), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(cell.GetBorder(), 0x2000);
    grid.GetEffectiveCell(1, -1, cell);
    EXPECT_STREQ(cell.GetText(), "top");
    // A column past the table counts as heading.
    grid.GetEffectiveCell(3, 0, cell);
    EXPECT_EQ(cell.GetAlignment(), 36);
    cell.SetText("kept");
    EXPECT_EQ(grid.GetCell(3, 0, cell), 1);
    EXPECT_STREQ(cell.GetText(), "kept");
}

TEST_F(CellAccess, ShortcutsChangeOnePropertyAndKeepTheRest) {
    grid.SetCellText(1, 1, "x");
    grid.SetCellBackColor(1, 1, RGB(3, 3, 3));
    grid.SetCellText(1, 1, "");
    grid.GetCell(1, 1, cell);
    EXPECT_STREQ(cell.GetText(), "");
    EXPECT_EQ(cell.GetBackColor(), RGB(3, 3, 3));

    CBitmap bitmap;
    grid.SetCellBitmap(1, 1, &bitmap);
    grid.GetCell(1, 1, cell);
    EXPECT_EQ(cell.GetBitmap(), &bitmap);
    grid.SetCellBitmap(1, 1, nullptr);
    grid.GetCell(1, 1, cell);
    EXPECT_FALSE(cell.HasProperty(PropBitmap));

    grid.SetCellNumber(0, 0, 2.5);
    grid.GetCell(0, 0, cell);
    EXPECT_STREQ(cell.GetText(), "2.500000");
    EXPECT_EQ(cell.GetDataType(), CellDataNumber);

    std::string text = "old";
    grid.GetCellText(2, 2, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(grid.GetCellText(2, 2), nullptr);
}

TEST_F(CellAccess, TheWriteNotificationComesFirstAndMayChangeTheCell) {
    grid.onWrite = [](GridCell* c) { c->SetLabel("added"); };
    grid.SetCellText(0, 2, "t");
    grid.GetCell(0, 2, cell);
    EXPECT_STREQ(cell.GetLabel(), "added");
    GridCell block;
    block.SetText("same");
    grid.SetCellRange(0, 0, 1, 1, block);
    EXPECT_STREQ(grid.GetCellText(1, 1), "same");
    EXPECT_STREQ(grid.GetCellText(0, 1), "same");
}

TEST_F(CellAccess, CellTypeComesFromTheMergedCell) {
    EXPECT_EQ(grid.GetCellTypeAt(0, 0), &grid.normalCellType);
    grid.SetCellTypeId(0, 0, 2);
    EXPECT_EQ(grid.GetCellTypeAt(0, 0), &grid.checkBoxCellType);
    GridCell columnDefault;
    columnDefault.SetCellType(1);
    grid.SetColumnDefault(1, columnDefault);
    EXPECT_EQ(grid.GetCellTypeAt(1, 3), &grid.dropListCellType);
    grid.SetCellTypeId(2, 0, 77);
    EXPECT_EQ(grid.GetCellTypeAt(2, 0), &grid.normalCellType);
}

TEST_F(CellAccess, DefaultsCopyInAndOut) {
    GridCell wanted;
    wanted.SetTextColor(RGB(1, 0, 0));
    EXPECT_EQ(grid.SetColumnDefault(3, wanted), 1);
    EXPECT_EQ(grid.GetColumnDefault(-1, cell), 1);
    grid.SetGridDefault(wanted);
    grid.SetColCount(4, 0);
    grid.GetColumnDefault(3, cell);
    EXPECT_EQ(cell.GetTextColor(), RGB(1, 0, 0));
    grid.GetColumnDefault(0, cell);
    EXPECT_FALSE(cell.HasProperty(PropTextColor));
    grid.SetHeadingDefault(wanted);
    grid.GetEffectiveCell(-1, 0, cell);
    EXPECT_EQ(cell.GetProperties(), static_cast<DWORD>(PropTextColor));
}

TEST_F(CellAccess, DeleteCellEmptiesThePlace) {
    grid.SetCellText(1, 2, "gone");
    EXPECT_EQ(grid.DeleteCell(1, 2), 0);
    EXPECT_EQ(grid.GetCellText(1, 2), nullptr);
    // Past the columns there is nothing to write to, and nobody hears of it.
    grid.recordReads = true;
    EXPECT_EQ(grid.SetCell(3, 0, cell), 1);
    EXPECT_EQ(grid.DeleteCell(3, 0), 1);
    EXPECT_TRUE(grid.Take().empty());
}
