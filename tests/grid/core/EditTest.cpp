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

TEST_F(Edit, OpensOverTheCellWithItsTextAndTheKeyTyped) {
    ASSERT_EQ(grid.StartEdit(2, 1, 'x'), 0);
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    RECT cell;
    grid.GetJoinedCellRect(2, 1, &cell);
    // One pixel short at the right and the bottom, for the grid lines.
    EXPECT_TRUE(EditorCovers(grid.view.get(), cell));
    EXPECT_TRUE(Editor()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), Editor());
    // The key arrives after the cell's text was put in.
    const std::string text = Editor()->GetWindowText();
    EXPECT_NE(text.find('x'), std::string::npos);
    EXPECT_NE(text.find("r1c2"), std::string::npos);
    EXPECT_EQ(Questions(), (Strings{"EditStart 2 1"}));

    // Finished: written as typed, and the editor goes.
    EXPECT_EQ(grid.EditFinished("new", 0, 0, 0, 0), 1);
    EXPECT_STREQ(grid.GetCellText(2, 1), "new");
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(Questions(), (Strings{"EditFinish 2 1 0 new"}));
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

TEST_F(Edit, VetoesAtTheEndKeepTheSessionAndCancelWritesNothing) {
    ASSERT_EQ(grid.StartEdit(1, 2, 0), 0);
    grid.Take();
    grid.allowEditFinish = 0;
    EXPECT_EQ(grid.EditFinished("kept?", 0, 0, 0, 0), 0);
    EXPECT_TRUE(Editor()->IsWindowVisible());
    EXPECT_STREQ(grid.GetCellText(1, 2), "r2c1");
    grid.allowEditFinish = 1;
    EXPECT_EQ(grid.EditFinished("dropped", 1, 0, 0, 0), 1);
    EXPECT_STREQ(grid.GetCellText(1, 2), "r2c1");
    EXPECT_EQ(Questions(), (Strings{"EditFinish 1 2 0 kept?", "EditFinish 1 2 1 dropped"}));

    // A lent editor takes the place of the control's own.
    CEdit lent;
    lent.Create(WS_CHILD, RECT{0, 0, 10, 10}, &host.window, 77);
    grid.lentEditor = &lent;
    ASSERT_EQ(grid.StartEdit(0, 0, 0), 0);
    EXPECT_TRUE(lent.IsWindowVisible());
    EXPECT_EQ(lent.GetParent(), grid.view.get());
    EXPECT_EQ(lent.GetWindowText(), "r0c0");
    EXPECT_EQ(grid.EditFinished("lent", 0, 0, 0, 0), 1);
    EXPECT_FALSE(lent.IsWindowVisible());
    grid.lentEditor = nullptr;

    ASSERT_EQ(grid.StartEdit(0, 1, 0), 0);
    EXPECT_EQ(grid.CancelEdit(), 0);
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), grid.view.get());
    EXPECT_STREQ(grid.GetCellText(0, 1), "r1c0");
}

TEST_F(Edit, TheWalkComesRoundTheEdgeAndStepsOverJoins) {
    ASSERT_EQ(grid.StartEdit(3, 2, 0), 0);
    EXPECT_EQ(grid.EditFinished("a", 0, 1, 4, 2), 1);
    EXPECT_EQ(grid.GetCurrentCol(), 0);
    EXPECT_EQ(grid.GetCurrentRow(), 2);
    EXPECT_TRUE(Editor()->IsWindowVisible());
    grid.onContinue = [](int* nextCol, int*) { *nextCol = 2; };
    EXPECT_EQ(grid.EditFinished("b", 0, 1, 0, 4), 1);
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GetCurrentRow(), 0);
    grid.onContinue = nullptr;
    EXPECT_EQ(Questions(), (Strings{"EditStart 3 2", "EditFinish 3 2 0 a", "EditContinue 3 2 0 2",
                                    "EditStart 0 2", "EditFinish 0 2 0 b", "EditContinue 0 2 0 0",
                                    "EditStart 2 0"}));
    EXPECT_STREQ(grid.GetCellText(3, 2), "a");
    EXPECT_STREQ(grid.GetCellText(0, 2), "b");

    // From a join's first column a step into it lands behind it; a step from elsewhere into a
    // join lands on its first cell.
    grid.EnableJoins(1);
    grid.JoinCells(1, 1, 2, 1);
    ASSERT_EQ(grid.StartEdit(1, 1, 0), 0);
    EXPECT_EQ(grid.EditFinished("j", 0, 1, 2, 1), 1);
    EXPECT_EQ(grid.GetCurrentCol(), 3);
    EXPECT_EQ(grid.EditFinished("k", 0, 1, 2, 1), 1);
    EXPECT_EQ(grid.GetCurrentCol(), 1);

    grid.allowEditContinue = 0;
    EXPECT_EQ(grid.EditFinished("l", 0, 1, 2, 1), 1);
    EXPECT_FALSE(Editor()->IsWindowVisible());
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
    EXPECT_EQ(grid.EditFinished("Title", 0, 1, 2, -1), 1);
    EXPECT_STREQ(grid.GetCellText(1, -1), "Title");
    EXPECT_FALSE(Editor()->IsWindowVisible());
    EXPECT_EQ(Questions(), (Strings{"EditStart 1 -1", "EditFinish 1 -1 0 Title"}));
}
