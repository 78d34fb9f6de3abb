// The masked editor: what a mask keeps of a text, each typed character held against its
// position, and the keys that end a session, as the table's number column uses it.

#include "grid/windows/MaskedEdit.h"

#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>

namespace {

class Masked : public ::testing::Test {
protected:
    void SetUp() override {
        Fill(grid, 3, 4);
        editor.Create(WS_CHILD | ES_AUTOHSCROLL, RECT{0, 0, 10, 10}, &grid, 200);
        grid.lentEditor = &editor;
        for (int row = 0; row < 4; ++row) grid.SetCellMask(1, row, "999999");
    }
    // The text a mask makes of `text`, through a session on a cell with that mask.
    std::string Typed(const char* mask, const std::string& text) {
        grid.SetCellText(0, 0, "");
        grid.SetCellMask(0, 0, mask);
        EXPECT_EQ(grid.StartEdit(0, 0, 0), 0);
        GridHost::Type(text);
        std::string shown = editor.GetWindowText();
        GridHost::Key(VK_ESCAPE);
        return shown;
    }

    GridHost host;
    RecordingGrid& grid = host.grid;
    MaskedEdit editor;
};

} // namespace

TEST_F(Masked, ApplyMaskKeepsWhatEachPositionAccepts) {
    EXPECT_EQ(editor.grid, &grid);
    std::string text = "12";
    EXPECT_EQ(editor.ApplyMask(text), 1);
    const struct {
        const char* mask;
        const char* text;
        const char* kept;
    } cases[] = {{"99-", "12", "12"},       {"0L", "a1b", "1b"},   {"99-99", "123", "12-3"},
                 {"\\99", "5", "95"},       {"#a?", "-x ", "-x "}, {"LL", "1a2b3c", "ab"},
                 {"999999", "12a4", "124"}, {"A&", "!a!", "a!"}};
    for (const auto& c : cases) {
        editor.SetMask(c.mask);
        text = c.text;
        EXPECT_EQ(editor.ApplyMask(text), 0);
        EXPECT_EQ(text, c.kept) << c.mask << " " << c.text;
    }
}

TEST_F(Masked, TypedCharactersAreHeldAgainstTheirPositions) {
    EXPECT_EQ(Typed("99-99", "123"), "12-3");
    EXPECT_EQ(Typed("\\99", "5"), "95");
    EXPECT_EQ(Typed("999999", "1234567"), "123456");
    EXPECT_EQ(Typed("999999", "1 x2"), "1 2");
    EXPECT_EQ(Typed("LL", "a1b"), "ab");
    // Without a mask anything goes, up to the length that the last mask ("LL") set.
    grid.SetCellText(2, 0, "");
    ASSERT_EQ(grid.StartEdit(2, 0, 0), 0);
    GridHost::Type("x-1");
    EXPECT_EQ(editor.GetWindowText(), "x-");
    GridHost::Key(VK_ESCAPE);
}

TEST_F(Masked, TheNumberColumnsSession) {
    grid.SetCellText(1, 1, "12a4");
    ASSERT_EQ(grid.StartEdit(1, 1, 0), 0);
    EXPECT_EQ(editor.GetWindowText(), "124");
    // Tab stays in the cell.
    GridHost::Key(VK_TAB);
    EXPECT_EQ(CWnd::GetFocus(), &editor);
    GridHost::Key(VK_RETURN);
    EXPECT_STREQ(grid.GetCellText(1, 1), "124");
    EXPECT_EQ(grid.GetCurrentRow(), 2);

    // The whole number is selected: a letter deletes it and is refused.
    GridHost::Type("x");
    EXPECT_EQ(editor.GetWindowText(), "");
    GridHost::Type("9");
    GridHost::Key(VK_UP);
    EXPECT_STREQ(grid.GetCellText(1, 2), "9");
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    GridHost::Type("55");
    GridHost::Key(VK_ESCAPE);
    EXPECT_STREQ(grid.GetCellText(1, 1), "124");
    EXPECT_FALSE(editor.IsWindowVisible());

    // Focus that leaves for another window writes the text; the flag of the sheet is not read.
    grid.SetCancelEditOnFocusLoss(1);
    CEdit outside;
    outside.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 10, 10}, &host.window, 77);
    ASSERT_EQ(grid.StartEdit(1, 3, 0), 0);
    GridHost::Type("77");
    outside.SetFocus();
    EXPECT_STREQ(grid.GetCellText(1, 3), "77");
}
