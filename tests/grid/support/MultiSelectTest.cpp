#include "grid/cells/MultiSelect.h"

#include "grid/cells/SelectionGrid.h"
#include "grid/cells/SelectionSheet.h"
#include "platform/base/Messages.h"
#include "platform/user/User.h"

#include <array>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

struct Range {
    int left, top, right, bottom;
    bool operator==(const Range&) const = default;
};

class FakeGrid : public SelectionGrid, public SelectionSheet {
public:
    int RedrawAll() override {
        ++redrawAll;
        return 0;
    }
    void AddViewRange(int left, int top, int right, int bottom) override {
        queued.push_back({left, top, right, bottom});
    }
    int GetCurrentCol() const override { return currentCol; }
    int GetCurrentRow() const override { return currentRow; }
    int GetColCount() const override { return colCount; }

    int redrawAll = 0;
    std::vector<Range> queued;
    int currentCol = 0, currentRow = 0, colCount = 10;
};

// Shift and Control as GetKeyState reports them, up again at the end of the scope.
class HeldKeys {
public:
    HeldKeys(bool shift, bool control) { Set(shift, control); }
    ~HeldKeys() { Set(false, false); }

private:
    static void Set(bool shift, bool control) {
        std::array<BYTE, 256> keys{};
        keys[VK_SHIFT] = shift ? 0x80 : 0;
        keys[VK_CONTROL] = control ? 0x80 : 0;
        SetKeyboardState(keys.data());
    }
};

class MultiSelectTest : public ::testing::Test {
protected:
    MultiSelectTest() {
        store.grid = &grid;
        store.sheet = &grid;
        store.SetMode(MultiSelect::ModeBlocks);
    }

    void Key(int col, int row, bool shift = false, bool control = false) {
        HeldKeys keys(shift, control);
        store.OnKeyMove(col, row);
    }
    Range LastBlock() {
        Range r{};
        EXPECT_EQ(store.GetLastBlock(&r.left, &r.top, &r.right, &r.bottom), 0);
        return r;
    }
    std::pair<int, int> Anchor() {
        std::pair<int, int> a;
        EXPECT_EQ(store.GetAnchor(&a.first, &a.second), 0);
        return a;
    }
    std::vector<std::pair<int, int>> Enumerate() {
        std::vector<std::pair<int, int>> cells;
        int col, row;
        for (int r = store.FirstCell(&col, &row); r == 0; r = store.NextCell(&col, &row))
            cells.push_back({col, row});
        return cells;
    }

    FakeGrid grid;
    MultiSelect store;
};

using Cells = std::vector<std::pair<int, int>>;

TEST_F(MultiSelectTest, EmptyStoreStandsForTheCurrentCell) {
    grid.currentCol = 4;
    grid.currentRow = 7;
    int l, t, r, b;
    EXPECT_EQ(store.GetBounds(&l, &t, &r, &b), 2);
    EXPECT_EQ(store.GetAnchor(&l, &t), 1);
    EXPECT_EQ(store.ExtendBlock(1, 1), 1);
    EXPECT_EQ(Enumerate(), (Cells{{4, 7}}));
    EXPECT_EQ(store.GetSelectionCount(), 0);
}

TEST_F(MultiSelectTest, PlainMovesKeepOneCellAndRepaintTheOldOne) {
    Key(2, 3);
    Key(5, 6);
    EXPECT_EQ(store.GetSelectionCount(), 1);
    EXPECT_EQ(LastBlock(), (Range{5, 6, 5, 6}));
    EXPECT_FALSE(store.IsSelected(2, 3, nullptr));
    EXPECT_EQ(grid.queued, (std::vector<Range>{{2, 3, 2, 3}}));
    EXPECT_EQ(grid.redrawAll, 0); // one cell was no real selection
}

TEST_F(MultiSelectTest, ShiftMovesGrowOneBlockFromTheAnchorAndRepaintOnlyStrips) {
    Key(5, 5);
    Key(6, 5, true);
    Key(6, 7, true);
    EXPECT_EQ(Anchor(), std::make_pair(5, 5));
    EXPECT_EQ(LastBlock(), (Range{5, 5, 6, 7}));
    EXPECT_EQ(store.GetSelectionCount(), 2);
    EXPECT_EQ(grid.queued, (std::vector<Range>{{5, 5, 6, 5}, {5, 5, 6, 7}}));

    // The corner crosses the anchor: the bounds flip, the strips span old and new.
    grid.queued.clear();
    Key(3, 4, true);
    EXPECT_EQ(LastBlock(), (Range{3, 4, 5, 5}));
    EXPECT_EQ(grid.queued, (std::vector<Range>{{3, 4, 6, 7}, {3, 4, 6, 7}}));
    EXPECT_EQ(store.GetSelectionCount(), 2);

    Key(0, 0); // a plain move repaints the whole grid, as there was a real selection
    EXPECT_EQ(grid.redrawAll, 1);
    EXPECT_EQ(store.GetSelectionCount(), 1);
}

TEST_F(MultiSelectTest, ControlPressesAddBlocksAndShiftPressExtendsTheLast) {
    store.OnLeftPress(1, 1, 0);
    store.OnLeftPress(3, 1, MK_CONTROL);
    store.OnLeftPress(5, 1, MK_CONTROL | MK_SHIFT);
    store.OnLeftPress(6, 3, MK_SHIFT);
    int block = -1;
    EXPECT_TRUE(store.IsSelected(1, 1, &block));
    EXPECT_EQ(block, 0);
    EXPECT_TRUE(store.IsSelected(3, 1, &block));
    EXPECT_EQ(block, 1);
    EXPECT_TRUE(store.IsSelected(6, 2, &block));
    EXPECT_EQ(block, 2);
    EXPECT_FALSE(store.IsSelected(2, 1, &block));
    EXPECT_EQ(block, 0);
    EXPECT_EQ(Anchor(), std::make_pair(5, 1));
    EXPECT_EQ(store.GetSelectionCount(), 4);
}

TEST_F(MultiSelectTest, KeyControlStartsABlockAndShiftWinsOverControl) {
    Key(1, 1);
    Key(4, 4, false, true);
    Key(5, 5, true, true);
    EXPECT_TRUE(store.IsSelected(1, 1, nullptr));
    EXPECT_EQ(LastBlock(), (Range{4, 4, 5, 5}));
}

TEST_F(MultiSelectTest, TheLastPressedCellIsPassedOverByDragAndKeys) {
    store.OnLeftPress(2, 2, 0);
    store.OnDrag(2, 2, MK_LBUTTON);
    EXPECT_EQ(store.GetSelectionCount(), 1); // no extension onto itself
    store.OnDrag(4, 4, MK_LBUTTON);
    store.OnDrag(2, 2, MK_LBUTTON);
    Key(2, 2, true);
    EXPECT_EQ(LastBlock(), (Range{2, 2, 4, 4}));
    store.OnLeftPress(2, 2, MK_SHIFT);
    EXPECT_EQ(LastBlock(), (Range{2, 2, 4, 4}));
}

TEST_F(MultiSelectTest, RightPressKeepsTheSelectionOnlyWhenItHitsIt) {
    store.OnLeftPress(1, 1, 0);
    store.OnLeftPress(3, 3, MK_SHIFT);
    store.OnRightPress(2, 2, 0);
    EXPECT_EQ(LastBlock(), (Range{1, 1, 3, 3}));
    store.OnRightPress(8, 8, 0);
    EXPECT_EQ(LastBlock(), (Range{8, 8, 8, 8}));
    EXPECT_FALSE(store.IsSelected(2, 2, nullptr));
}

TEST_F(MultiSelectTest, ToggleInsideABlockUnselectsUnlessTheFirstBlockDecides) {
    const int blocks = MultiSelect::ModeBlocks;
    for (int mode : {blocks, blocks | MultiSelect::ModeFirstDecides}) {
        store.SetMode(mode);
        bool firstDecides = mode & MultiSelect::ModeFirstDecides;
        store.OnLeftPress(0, 0, 0);
        store.OnLeftPress(2, 1, MK_SHIFT);
        store.ToggleCell(1, 0);
        EXPECT_EQ(store.IsSelected(1, 0, nullptr), firstDecides) << mode;
        EXPECT_EQ(store.IsColSelected(1), firstDecides) << mode;
        EXPECT_EQ(store.IsRowSelected(0), firstDecides) << mode;
        EXPECT_TRUE(store.IsRowSelected(1)) << mode;
        Cells expected{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}, {2, 1}};
        if (!firstDecides) expected.erase(expected.begin() + 1);
        EXPECT_EQ(Enumerate(), expected) << mode;
    }
}

TEST_F(MultiSelectTest, ToggleOfAOneCellBlockFlipsItInPlace) {
    store.OnLeftPress(3, 3, 0);
    store.ToggleCell(3, 3);
    EXPECT_FALSE(store.IsSelected(3, 3, nullptr));
    store.ToggleCell(3, 3);
    int block = -1;
    EXPECT_TRUE(store.IsSelected(3, 3, &block));
    EXPECT_EQ(block, 0); // no second block was added
    store.ToggleCell(5, 5);
    EXPECT_TRUE(store.IsSelected(5, 5, &block));
    EXPECT_EQ(block, 1);
}

TEST_F(MultiSelectTest, OverlappingBlocksEnumerateEachCellOnceRowByRow) {
    grid.currentCol = 9; // widens the walk, adds nothing
    grid.currentRow = 0;
    store.OnLeftPress(1, 1, 0);
    store.OnLeftPress(2, 2, MK_SHIFT);
    store.OnLeftPress(3, 1, MK_CONTROL);
    store.OnLeftPress(2, 2, MK_SHIFT);
    EXPECT_EQ(Enumerate(), (Cells{{1, 1}, {2, 1}, {3, 1}, {1, 2}, {2, 2}, {3, 2}}));
    int col, row;
    EXPECT_EQ(store.NextCell(&col, &row), 1);
    int l, t, r, b;
    EXPECT_EQ(store.GetBounds(&l, &t, &r, &b), 0);
    EXPECT_EQ((Range{l, t, r, b}), (Range{1, 1, 3, 2}));
}

TEST_F(MultiSelectTest, AllUnselectedEnumeratesNothing) {
    store.OnLeftPress(1, 1, 0);
    store.ToggleCell(1, 1);
    int col, row;
    EXPECT_EQ(store.FirstCell(&col, &row), 1);
    EXPECT_EQ(store.NextCell(&col, &row), 1);
}

TEST_F(MultiSelectTest, WholeRowBlocksSpanEveryColumn) {
    store.SetMode(MultiSelect::ModeBlocks | MultiSelect::ModeWholeRows);
    Key(4, 2);
    EXPECT_EQ(LastBlock(), (Range{0, 2, 9, 2}));
    Key(6, 5, true);
    EXPECT_EQ(LastBlock(), (Range{0, 2, 9, 5}));
    EXPECT_TRUE(store.IsSelected(9, 4, nullptr));
    EXPECT_TRUE(store.IsColSelected(1000)); // column 1 stands for all
}

TEST_F(MultiSelectTest, ClearingRepaintsOnlyARealSelectionAndResetNever) {
    store.OnLeftPress(1, 1, 0);
    store.Clear();
    EXPECT_EQ(grid.redrawAll, 0);
    store.OnLeftPress(1, 1, 0);
    store.OnLeftPress(2, 2, MK_CONTROL);
    store.SetMode(MultiSelect::ModeBlocks);
    EXPECT_EQ(grid.redrawAll, 1);
    store.OnLeftPress(1, 1, 0);
    store.OnLeftPress(2, 2, MK_CONTROL);
    store.Reset();
    EXPECT_EQ(grid.redrawAll, 1);
    EXPECT_EQ(store.GetSelectionCount(), 0);
    EXPECT_FALSE(store.IsSelected(1, 1, nullptr));
}

} // namespace
