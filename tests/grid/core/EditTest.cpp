// The editing session: where the editor opens and on what, who may refuse at either end, what
// is written, and how a session walks on to the next cell over joins and round the edges.

#include "grid/cells/CheckBoxCellType.h"
#include "grid/windows/GridView.h"
#include "grid/windows/TopHeading.h"
#include "tests/grid/core/GridHost.h"

#include <algorithm>
#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

class Edit : public ::testing::Test {
protected:
    void SetUp() override {
        Fill(grid, 4, 4);
        grid.GotoCell(0, 0);
        grid.Take();
    }

    // The session's questions, without the moves around them.
    Strings Questions() {
        Strings all = grid.Take(), asked;
        std::copy_if(all.begin(), all.end(), std::back_inserter(asked),
                     [](const std::string& line) { return line.rfind("Edit", 0) == 0; });
        return asked;
    }
    CWnd* Editor() { return grid.GetCellEditor(); }
    // The editor's rectangle in its parent's client coordinates.
    bool EditorCovers(CWnd* parent, const RECT& cell) {
        RECT r;
        Editor()->GetWindowRect(&r);
        parent->ScreenToClient(&r);
        const RECT expected{cell.left, cell.top, cell.right - 1, cell.bottom - 1};
        return EqualRect(&r, &expected);
    }

    GridHost host;
    RecordingGrid& grid = host.grid;
};

} // namespace

TEST_F(Edit, OpensOverTheCellAndWalksOnWithEnter) {
    ASSERT_EQ(grid.StartEdit(2, 1, 'x'), 0);
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    RECT cell;
    grid.GetJoinedCellRect(2, 1, &cell);
    // One pixel short at the right and the bottom, for the grid lines.
    EXPECT_TRUE(EditorCovers(grid.view.get(), cell));
    EXPECT_TRUE(Editor()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), Editor());
    // The cell's text came first and was selected, so the key replaced it.
    EXPECT_EQ(Editor()->GetWindowText(), "x");

    GridHost::Type("y");
    GridHost::Key(VK_RETURN);
    EXPECT_STREQ(grid.GetCellText(2, 1), "xy");
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    EXPECT_EQ(Editor()->GetWindowText(), "r2c2");
    GridHost::Type("z");
    GridHost::Key(VK_ESCAPE);
    EXPECT_STREQ(grid.GetCellText(2, 2), "r2c2");
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), grid.view.get());
    EXPECT_EQ(Questions(), (Strings{"EditStart 2 1", "EditFinish 2 1 0 xy", "EditContinue 2 1 2 2",
                                    "EditStart 2 2", "EditFinish 2 2 1 z"}));
}

TEST_F(Edit, RefusalsLeaveNoEditorButTheMoveStands) {
    GridCell readOnly;
    readOnly.SetReadOnly(1);
    grid.SetCell(1, 1, readOnly);
    grid.SelectRange(0, 0, 2, 2);
    EXPECT_EQ(grid.StartEdit(1, 1, 0), 1);
    EXPECT_EQ(grid.GetCurrentCol(), 1);
    EXPECT_FALSE(grid.IsCellSelected(2, 2, nullptr));
    EXPECT_FALSE(Editor()->IsWindowVisible());

    GridCell checkBox;
    checkBox.SetCellType(grid.GetCellTypeId(grid.GetCellType(2)));
    grid.SetCell(3, 3, checkBox);
    EXPECT_EQ(grid.StartEdit(3, 3, 0), 1);
    EXPECT_EQ(grid.StartEdit(-1, -1, 0), 1);

    grid.allowEditStart = 0;
    EXPECT_EQ(grid.StartEdit(0, 2, 0), 1);
    grid.allowEditStart = 1;
    grid.allowMove = 0;
    EXPECT_EQ(grid.StartEdit(0, 3, 0), 2);
    grid.allowMove = 1;
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(Questions(), (Strings{"EditStart 0 2"}));
}

TEST_F(Edit, AVetoKeepsTheSessionAndCancellingWritesNothing) {
    ASSERT_EQ(grid.StartEdit(1, 2, 0), 0);
    grid.allowEditFinish = 0;
    GridHost::Type("k");
    GridHost::Key(VK_RETURN);
    EXPECT_EQ(CWnd::GetFocus(), Editor());
    EXPECT_EQ(Editor()->GetWindowText(), "k");
    EXPECT_STREQ(grid.GetCellText(1, 2), "r2c1");
    grid.allowEditFinish = 1;
    GridHost::Key(VK_ESCAPE);
    EXPECT_STREQ(grid.GetCellText(1, 2), "r2c1");
    EXPECT_EQ(Questions(), (Strings{"EditStart 1 2", "EditFinish 1 2 0 k", "EditFinish 1 2 1 k"}));

    // With the flag set, focus that leaves the grid cancels; within the grid it writes.
    grid.SetCancelEditOnFocusLoss(1);
    CEdit outside;
    outside.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 10, 10}, &host.window, 77);
    ASSERT_EQ(grid.StartEdit(0, 0, 0), 0);
    GridHost::Type("gone");
    outside.SetFocus();
    EXPECT_STREQ(grid.GetCellText(0, 0), "r0c0");
    ASSERT_EQ(grid.StartEdit(0, 0, 0), 0);
    GridHost::Type("kept");
    grid.view->SetFocus();
    EXPECT_STREQ(grid.GetCellText(0, 0), "kept");

    ASSERT_EQ(grid.StartEdit(0, 1, 0), 0);
    EXPECT_EQ(grid.CancelEdit(), 0);
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), grid.view.get());
    EXPECT_STREQ(grid.GetCellText(0, 1), "r1c0");
}

TEST_F(Edit, ALentEditorTakesThePlaceOfTheControlsOwn) {
    CEdit lent;
    lent.Create(WS_CHILD, RECT{0, 0, 10, 10}, &host.window, 77);
    grid.lentEditor = &lent;
    ASSERT_EQ(grid.StartEdit(0, 0, 0), 0);
    EXPECT_TRUE(lent.IsWindowVisible());
    EXPECT_EQ(lent.GetParent(), grid.view.get());
    EXPECT_EQ(lent.GetWindowText(), "r0c0");
    // As such an editor reports its end itself.
    EXPECT_EQ(grid.EditFinished("lent", 0, 0, 0, 0), 1);
    EXPECT_FALSE(lent.IsWindowVisible());
    EXPECT_STREQ(grid.GetCellText(0, 0), "lent");
}

TEST_F(Edit, TheWalkComesRoundTheEdgesAndStepsOverJoins) {
    ASSERT_EQ(grid.StartEdit(3, 3, 0), 0);
    GridHost::Type("a");
    GridHost::Key(VK_TAB);
    EXPECT_EQ(grid.GetCurrentCol(), 0);
    EXPECT_EQ(grid.GetCurrentRow(), 3);
    grid.onContinue = [](int* nextCol, int*) { *nextCol = 2; };
    GridHost::Type("b");
    GridHost::Key(VK_RETURN);
    grid.onContinue = nullptr;
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GetCurrentRow(), 0);
    EXPECT_EQ(Questions(), (Strings{"EditStart 3 3", "EditFinish 3 3 0 a", "EditContinue 3 3 0 3",
                                    "EditStart 0 3", "EditFinish 0 3 0 b", "EditContinue 0 3 0 0",
                                    "EditStart 2 0"}));
    EXPECT_STREQ(grid.GetCellText(3, 3), "a");
    EXPECT_STREQ(grid.GetCellText(0, 3), "b");
    GridHost::Key(VK_ESCAPE);

    // From a join's first column a step into it lands behind it; a step from elsewhere into
    // the join lands on its first cell.
    grid.EnableJoins(1);
    grid.JoinCells(1, 1, 2, 1);
    ASSERT_EQ(grid.StartEdit(1, 1, 0), 0);
    GridHost::Key(VK_TAB);
    EXPECT_EQ(grid.GetCurrentCol(), 3);
    GridHost::Key(VK_TAB, true);
    EXPECT_EQ(grid.GetCurrentCol(), 1);
    grid.allowEditContinue = 0;
    GridHost::Key(VK_TAB);
    EXPECT_FALSE(Editor()->IsWindowVisible());
}

TEST_F(Edit, UpAndDownLeaveUntilTheEditorHasGrown) {
    ASSERT_EQ(grid.StartEdit(0, 1, 0), 0);
    GridHost::Key(VK_DOWN);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    RECT before;
    Editor()->GetWindowRect(&before);
    GridHost::Type(std::string(12, 'w'));
    RECT after;
    Editor()->GetWindowRect(&after);
    grid.view->ScreenToClient(&before);
    grid.view->ScreenToClient(&after);
    // Wider by whole cells, each of the default 75 pixels, one short of the column's edge.
    EXPECT_GT(after.right, before.right);
    EXPECT_EQ((after.right + 1) % 75, 0);
    EXPECT_EQ(after.bottom, before.bottom);
    GridHost::Key(VK_UP);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    EXPECT_TRUE(Editor()->IsWindowVisible());
    GridHost::Key(VK_RETURN);
    EXPECT_EQ(grid.GetCurrentRow(), 3);
    GridHost::Key(VK_ESCAPE);

    static_cast<GridEdit*>(Editor())->SetGrowWithText(0);
    ASSERT_EQ(grid.StartEdit(0, 1, 0), 0);
    Editor()->GetWindowRect(&before);
    GridHost::Type(std::string(40, 'w'));
    Editor()->GetWindowRect(&after);
    EXPECT_TRUE(EqualRect(&before, &after));
    GridHost::Key(VK_UP);
    EXPECT_EQ(grid.GetCurrentRow(), 0);
    GridHost::Key(VK_ESCAPE);
}

TEST_F(Edit, AHeadingCellIsEditedInItsHeadingAndNeverWalksOn) {
    ASSERT_EQ(grid.StartEdit(1, -1, 0), 0);
    TopHeading* heading = grid.topHeading.get();
    EXPECT_EQ(Editor()->GetParent(), heading);
    RECT cell;
    heading->GetHeadingCellRect(1, -1, &cell);
    EXPECT_EQ(cell.left, grid.GetColWidth(0));
    EXPECT_EQ(cell.bottom, grid.GetTopHeadingHeight());
    EXPECT_TRUE(EditorCovers(heading, cell));
    GridHost::Type("Title");
    GridHost::Key(VK_TAB);
    EXPECT_STREQ(grid.GetCellText(1, -1), "Title");
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(Questions(), (Strings{"EditStart 1 -1", "EditFinish 1 -1 0 Title"}));
}
