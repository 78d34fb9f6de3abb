#include "grid/cells/CellTypeGrid.h"
#include "grid/cells/CheckBoxCellType.h"
#include "grid/cells/DropListCellType.h"
#include "grid/cells/GridCell.h"
#include "grid/cells/MarkerCellType.h"
#include "grid/cells/NormalCellType.h"
#include "platform/base/Messages.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

// Cells stored by address; the effective read lays them over a default with a text colour,
// so that a write of a merged cell can be told from a write of the stored one.
class FakeGrid : public CellTypeGrid {
public:
    static constexpr COLORREF DefaultColour = 0x123456;

    int GetCell(int col, int row, GridCell& cell) override {
        auto found = cells.find({col, row});
        if (found == cells.end()) return 1;
        cell.MergeFrom(*found->second);
        return 0;
    }
    int GetEffectiveCell(int col, int row, GridCell& cell) override {
        cell.SetTextColor(DefaultColour);
        GetCell(col, row, cell);
        return 0;
    }
    int SetCell(int col, int row, GridCell& cell) override {
        Stored(col, row).CopyFrom(cell);
        ++writes;
        return 0;
    }
    int RedrawCell(int col, int row) override {
        redrawn.push_back({col, row});
        return 0;
    }
    int GetCurrentCol() const override { return currentCol; }
    int GetCurrentRow() const override { return currentRow; }
    CFont* GetDefaultFont() const override { return nullptr; }
    // Nothing here draws: the drawing reads a real control (tests/grid/core).
    DrawSettings GetDrawSettings() override { return {}; }
    int GetColWidth(int) const override { return 75; }
    int GetRowHeight(int) const override { return 20; }
    int GetHeadingRowHeight(int) const override { return 20; }
    int GetJoinedRange(int*, int*, int*, int*) override { return 2; }
    int GetJoinedCellRect(int, int, RECT* rect) override {
        *rect = RECT{0, 0, 75, 20};
        return 0;
    }
    // No window here: the list window is tried on a real control (tests/grid/core).
    CWnd* GetCellView() override { return nullptr; }
    CellType* GetCellType(int) override { return &normal; }
    int FindTextToLeft(int*, int) override { return 1; }
    int NotifyCellTypeEvent(int typeId, int col, int row, int event, LPARAM parameter) override {
        events.push_back({typeId, col, row, event, static_cast<int>(parameter)});
        return 1;
    }

    GridCell& Stored(int col, int row) {
        auto& slot = cells[{col, row}];
        if (!slot) slot = std::make_unique<GridCell>();
        return *slot;
    }
    std::string Text(int col, int row) { return Stored(col, row).GetText() ?: ""; }

    std::map<std::pair<int, int>, std::unique_ptr<GridCell>> cells;
    int writes = 0;
    std::vector<std::pair<int, int>> redrawn;
    std::vector<std::vector<int>> events;
    int currentCol = 0, currentRow = 0;
    NormalCellType normal;
};

TEST(CellType, OnlyPlainAndDropListCellsOpenAnEditor) {
    NormalCellType normal;
    DropListCellType dropList;
    CheckBoxCellType checkBox;
    MarkerCellType marker;
    EXPECT_EQ(normal.GetEditable(), 1);
    EXPECT_EQ(dropList.GetEditable(), 1);
    EXPECT_EQ(checkBox.GetEditable(), 0);
    EXPECT_EQ(marker.GetEditable(), 0);
    // Drop lists and check boxes keep their text to themselves, however plain the cell.
    GridCell plain;
    EXPECT_EQ(normal.AllowsOverflow(plain), 1);
    EXPECT_EQ(dropList.AllowsOverflow(plain), 0);
    EXPECT_EQ(checkBox.AllowsOverflow(plain), 0);
}

TEST(CellType, OverflowFollowsAlignmentElseOptionAndJoin) {
    struct Case {
        const char* name;
        void (*set)(GridCell&);
        int allows;
    } cases[] = {
        {"nothing set", [](GridCell&) {}, 1},
        {"left alignment", [](GridCell& c) { c.SetAlignment(0x1); }, 1},
        {"left alignment beats an option",
         [](GridCell& c) {
             c.SetAlignment(0x21);
             c.SetCellTypeOption(4);
         },
         1},
        {"centred", [](GridCell& c) { c.SetAlignment(0x4); }, 0},
        {"right", [](GridCell& c) { c.SetAlignment(0x2); }, 0},
        {"no horizontal bit", [](GridCell& c) { c.SetAlignment(0x20); }, 0},
        {"option 0", [](GridCell& c) { c.SetCellTypeOption(0); }, 1},
        {"option 4", [](GridCell& c) { c.SetCellTypeOption(4); }, 0},
        {"joined", [](GridCell& c) { c.SetJoin(1, 1, 0); }, 0},
    };
    NormalCellType type;
    for (const Case& c : cases) {
        GridCell cell;
        c.set(cell);
        EXPECT_EQ(type.AllowsOverflow(cell), c.allows) << c.name;
    }
}

class CheckBoxTest : public ::testing::Test {
protected:
    CheckBoxTest() {
        type.grid = &grid;
        type.SetTypeId(2);
    }
    int Click(int isDown, POINT point) { return type.LeftClick(1, 2, isDown, &rect, &point); }
    int Space(UINT character = ' ') { return type.CharInput(7, 7, &character); }

    FakeGrid grid;
    CheckBoxCellType type;
    // 20 high: a 12-pixel box at x 13..25, y 44..56.
    RECT rect{10, 40, 110, 60};
};

TEST_F(CheckBoxTest, BoxIsCentredAtTheLeftAndShrinksWithTheRow) {
    RECT box = CheckBoxCellType::BoxOf(rect);
    EXPECT_EQ(box.left, 13);
    EXPECT_EQ(box.top, 44);
    EXPECT_EQ(box.right, 25);
    EXPECT_EQ(box.bottom, 56);
    box = CheckBoxCellType::BoxOf({0, 0, 50, 10});
    EXPECT_EQ(box.top, 3);
    EXPECT_EQ(box.bottom, 7);
}

TEST_F(CheckBoxTest, OnlyAReleaseInTheBoxTogglesAndStoresTheMergedCell) {
    EXPECT_EQ(Click(1, {13, 44}), 0); // a press
    EXPECT_EQ(Click(0, {26, 50}), 0); // beside the box
    EXPECT_EQ(grid.writes, 0);

    EXPECT_EQ(Click(0, {25, 56}), 1); // the box's edges count
    EXPECT_EQ(grid.Text(1, 2), "1.000000");
    EXPECT_EQ(grid.Stored(1, 2).GetTextColor(), FakeGrid::DefaultColour);
    EXPECT_EQ(grid.redrawn, (std::vector<std::pair<int, int>>{{1, 2}}));
    EXPECT_EQ(grid.events, (std::vector<std::vector<int>>{{2, 1, 2, 53, 1}}));

    EXPECT_EQ(Click(0, {13, 44}), 1);
    EXPECT_EQ(grid.Text(1, 2), "0.000000");
    EXPECT_EQ(grid.events.back()[4], 0);
}

TEST_F(CheckBoxTest, DoubleClickIsAPressAndTogglesNothing) {
    POINT inBox{15, 50};
    EXPECT_EQ(type.DoubleClick(1, 2, &rect, &inBox), 0);
    EXPECT_EQ(grid.writes, 0);
}

TEST_F(CheckBoxTest, ReadOnlyCellsIgnoreClicksAndSpace) {
    grid.Stored(1, 2).SetReadOnly(1);
    grid.Stored(7, 7).SetReadOnly(1);
    grid.currentCol = grid.currentRow = 7;
    EXPECT_EQ(Click(0, {15, 50}), 0);
    EXPECT_EQ(Space(), 0);
    EXPECT_EQ(grid.writes, 0);
    EXPECT_TRUE(grid.events.empty());
}

TEST_F(CheckBoxTest, SpaceTogglesTheCurrentCellByItsTruthAndStoresOnlyItsValue) {
    grid.currentCol = 3;
    grid.currentRow = 4;
    struct Case {
        const char* text;
        const char* after;
        int event;
    } cases[] = {
        {"abc", "1.000000", 1}, {"TRUE", "0.000000", 0}, {"1", "0.000000", 0}, {"", "1.000000", 1}};
    for (const Case& c : cases) {
        grid.Stored(3, 4).SetText(c.text);
        EXPECT_EQ(Space(), 1) << c.text;
        EXPECT_EQ(grid.Text(3, 4), c.after) << c.text;
        EXPECT_EQ(grid.events.back(), (std::vector<int>{2, 3, 4, 53, c.event})) << c.text;
    }
    EXPECT_FALSE(grid.Stored(3, 4).HasProperty(PropTextColor));
    EXPECT_EQ(Space('x'), 0);
    EXPECT_EQ(grid.writes, 4);
}

// Opens the button as a press would, and hears the presses a double click makes.
class TestDropList : public DropListCellType {
public:
    void PressButton(RECT button, int col, int row) {
        buttonRect = button;
        buttonDown = 1;
        dropCol = col;
        dropRow = row;
    }
    int LeftClick(int col, int row, int isDown, RECT*, POINT*) override {
        presses.push_back({col, row, isDown});
        return 1;
    }
    int ButtonDown() const { return buttonDown; }
    int DropCol() const { return dropCol; }

    std::vector<std::vector<int>> presses;
};

TEST(DropListCellType, DoubleClickOnTheButtonIsAPress) {
    TestDropList type;
    RECT rect{0, 0, 100, 20};
    POINT onButton{85, 5}, beside{84, 5};
    EXPECT_EQ(type.DoubleClick(3, 4, &rect, &onButton), 1);
    EXPECT_EQ(type.DoubleClick(3, 4, &rect, &beside), 0);
    EXPECT_EQ(type.presses, (std::vector<std::vector<int>>{{3, 4, 1}}));
}

TEST(DropListCellType, AReleaseLiftsTheButtonAndThePressAfterADismissalOnlyCloses) {
    FakeGrid grid;
    TestDropList type;
    type.grid = &grid;
    RECT rect{0, 0, 100, 20};
    POINT point{50, 10};
    EXPECT_EQ(type.DropListCellType::LeftClick(5, 6, 0, &rect, &point), 0);
    type.PressButton({84, 0, 100, 20}, -2, -2);
    EXPECT_EQ(type.DropListCellType::LeftClick(5, 6, 0, &rect, &point), 1);
    EXPECT_EQ(type.ButtonDown(), 0);
    EXPECT_EQ(grid.redrawn, (std::vector<std::pair<int, int>>{{5, 6}}));

    EXPECT_EQ(type.DropListCellType::LeftClick(5, 6, 1, &rect, &point), 0);
    EXPECT_EQ(type.DropCol(), -1);
    EXPECT_TRUE(grid.events.empty()); // nothing dropped
}

TEST(DropListCellType, HeldButtonFollowsTheMouseAndLeavingTheCellClosesTheList) {
    FakeGrid grid;
    TestDropList type;
    type.grid = &grid;
    type.PressButton({84, 0, 100, 20}, 5, 6);
    POINT outside{50, 5}, edge{100, 20};
    EXPECT_EQ(type.MouseMove(5, 6, &outside, 0), 1); // no button held: nothing follows
    EXPECT_EQ(type.ButtonDown(), 1);

    EXPECT_EQ(type.MouseMove(5, 6, &outside, MK_LBUTTON), 0);
    EXPECT_EQ(type.ButtonDown(), 0);
    EXPECT_EQ(type.MouseMove(5, 6, &outside, MK_LBUTTON), 0);
    EXPECT_EQ(type.MouseMove(5, 6, &edge, MK_LBUTTON), 0);
    EXPECT_EQ(type.ButtonDown(), 1);
    EXPECT_EQ(grid.redrawn, (std::vector<std::pair<int, int>>{{5, 6}, {5, 6}}));

    type.NotifyLeave(5, 6, nullptr);
    EXPECT_EQ(type.DropCol(), -1);
}

} // namespace
