// The find and replace dialog over the grid: one at a time, its requests as the user makes
// them with the dialog's own controls, and the one message it shows.

#include "platform/afx/CFindReplaceDialog.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"
#include "platform/user/WindowManager.h"
#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>

namespace {

enum : int {
    FindWhat = 1152,
    ReplaceWith = 1153,
    WholeText = 1040,
    Replace = 1024,
    ReplaceAll = 1025
};

class FindDialog : public ::testing::Test {
protected:
    void SetUp() override {
        Fill(grid, 3, 4);
        grid.SetCellText(1, 3, "apple");
        grid.SetCellText(2, 3, "Apple");
        grid.GotoCell(0, 0);
        grid.SetFindInAllCols(1);
        previous = plat::WindowManager::Get().onEvent;
        plat::WindowManager::Get().onEvent = [this](const std::string& kind,
                                                    const std::string& text) {
            if (kind == "msgbox") messages.push_back(text);
        };
    }
    void TearDown() override {
        if (Dialog()) Click(IDCANCEL);
        plat::WindowManager::Get().onEvent = previous;
    }

    HWND Dialog() const { return grid.findDialog ? grid.findDialog->m_hWnd : nullptr; }
    void Click(int id) {
        RECT r;
        GetWindowRect(GetDlgItem(Dialog(), id), &r);
        plat::ForgetLastClick();
        plat::PushClick(POINT{(r.left + r.right) / 2, (r.top + r.bottom) / 2}, 0);
        GridHost::Pump();
    }
    void Set(int id, const char* text) { SetWindowText(GetDlgItem(Dialog(), id), text); }

    GridHost host;
    RecordingGrid& grid = host.grid;
    std::vector<std::string> messages;
    std::function<void(const std::string&, const std::string&)> previous;
};

} // namespace

TEST_F(FindDialog, OneDialogFindsTheNextCellAndSaysWhenNothingIs) {
    ASSERT_EQ(grid.OpenFindDialog(), 0);
    HWND first = Dialog();
    EXPECT_EQ(grid.OpenReplaceDialog(), 1);
    EXPECT_EQ(Dialog(), first);
    EXPECT_EQ(GetWindowString(GetDlgItem(first, WholeText)), "Match &entire cell text");

    // A part of the text, any case, down from the current cell.
    Set(FindWhat, "APPLE");
    Click(IDOK);
    EXPECT_EQ(grid.GetCurrentCol(), 1);
    EXPECT_EQ(grid.GetCurrentRow(), 3);
    Click(IDOK);
    EXPECT_EQ(grid.GetCurrentCol(), 2);

    plat::Headless().Schedule([] { plat::PushKey(VK_RETURN); });
    Set(FindWhat, "pear");
    Click(IDOK);
    EXPECT_EQ(messages, std::vector<std::string>{"Item not found"});
    EXPECT_EQ(grid.GetCurrentCol(), 2);

    Click(IDCANCEL);
    EXPECT_EQ(grid.findDialogOpen, 0);
    EXPECT_EQ(grid.OpenFindDialog(), 0);
}

TEST_F(FindDialog, ReplaceAllRefusesWhatWouldNeverEnd) {
    ASSERT_EQ(grid.OpenReplaceDialog(), 0);
    Set(FindWhat, "apple");
    Set(ReplaceWith, "apple");
    Click(ReplaceAll);
    // A replacement that holds the text would be found again, part matches allowed.
    Set(ReplaceWith, "apples");
    Click(ReplaceAll);
    EXPECT_STREQ(grid.GetCellText(1, 3), "apple");
    EXPECT_TRUE(messages.empty());

    // With the whole text to match it runs, case ignored.
    Click(WholeText);
    Click(ReplaceAll);
    EXPECT_STREQ(grid.GetCellText(1, 3), "apples");
    EXPECT_STREQ(grid.GetCellText(2, 3), "apples");
    EXPECT_TRUE(messages.empty());

    // Replace writes where the last search landed, then finds the next.
    Click(WholeText);
    grid.GotoCell(0, 0);
    Set(FindWhat, "r1c");
    Set(ReplaceWith, "x");
    Click(IDOK);
    ASSERT_EQ(grid.GetCurrentRow(), 1);
    ASSERT_EQ(grid.GetCurrentCol(), 0);
    Click(Replace);
    EXPECT_STREQ(grid.GetCellText(0, 1), "x");
    EXPECT_EQ(grid.GetCurrentCol(), 1);
    EXPECT_TRUE(messages.empty());
}
