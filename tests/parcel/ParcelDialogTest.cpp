// The dialog in its own modal loop: OK passes only a complete table and keeps the widths,
// Cancel asks first (also from a press on the button while a number is being typed), and the
// dialog's look: the template, the fixed-pitch font, the red status line, the fit to the screen.

#include "parcel/CallState.h"
#include "parcel/WindowSettings.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CFont.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"
#include "tests/parcel/ParcelTable.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

class ParcelDialogTest : public ::testing::Test {
protected:
    void SetUp() override { table.Stock({{"*", 0}, {"A", 12}, {"B", 7}}, "T1\n"); }
    void TearDown() override { plat::Headless().SetScreenSize(SIZE{1280, 1024}); }

    // Runs the dialog; `steps` run one after the other inside its loop.
    INT_PTR Run(std::vector<std::function<void()>> steps) {
        for (auto& step : steps) plat::Headless().Schedule(std::move(step));
        const INT_PTR result = dialog.DoModal();
        // Keys that the boxes left unread (the releases) go nowhere now.
        ParcelTable::Pump();
        return result;
    }
    void Press(int id) {
        RECT r{};
        dialog.GetDlgItem(id)->GetWindowRect(&r);
        plat::ForgetLastClick();
        plat::PushClick(POINT{(r.left + r.right) / 2, (r.top + r.bottom) / 2}, 0);
    }

    ParcelTable table;
    ParcelDialog& dialog = *table.dialog;
    ParcelGrid& grid = *table.grid;
};

} // namespace

TEST_F(ParcelDialogTest, OkRefusesAnIncompleteTableThenAcceptsAndKeepsTheWidths) {
    std::string shown;
    const INT_PTR result = Run({[&] { Press(IDOK); },
                                [&] {
                                    shown = dialog.label.GetWindowText();
                                    grid.SetColWidth(1, 77);
                                    grid.SetCellText(2, 0, "T1");
                                    Press(IDOK);
                                }});
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(shown, "Type is absent");
    EXPECT_EQ(grid.Rows.GetSize(), 1);
    int widths[4] = {0, 0, 0, 0};
    WindowSettings(ModulePath).Read(widths);
    EXPECT_EQ(widths[1], 77);
    EXPECT_EQ(widths[0], grid.ColumnWidths[0]);
}

TEST_F(ParcelDialogTest, CancelAsksAndADeclinedQuestionKeepsTheDialogOpen) {
    bool stillOpen = false;
    const INT_PTR result = Run({[&] { Press(IDCANCEL); },
                                [&] {
                                    stillOpen = dialog.IsWindowVisible();
                                    EXPECT_EQ(CancelPressed, 0);
                                    table.answerOk = true;
                                    UINT escape = VK_ESCAPE;
                                    grid.NotifyKeyDown(&escape, 0);
                                }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(CancelPressed, 1);
    EXPECT_EQ(table.TakeEvents(), (Rows{"msgbox: Do your really want to cancel dialog?",
                                        "msgbox: Do your really want to cancel dialog?"}));
    // Only OK writes the settings.
    int widths[4] = {-1, -1, -1, -1};
    WindowSettings(ModulePath).Read(widths);
    EXPECT_EQ(widths[0], -1);
}

TEST_F(ParcelDialogTest, APressOnCancelDuringABadNumberOnlyAsks) {
    table.answerOk = true;
    grid.Rows.Add({"A", "12", "T1", "1"});
    grid.Rows.Add({"*", "7", "T1", "13"});
    const INT_PTR result = Run({[&] {
        table.Click(3, 1);
        plat::PushChar('2');
        Press(IDCANCEL);
    }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(table.TakeEvents(), (Rows{"msgbox: Do your really want to cancel dialog?"}));
}

TEST_F(ParcelDialogTest, DeleteRowStaysOffUntilTheCurrentCellMoves) {
    grid.Rows.Add({"A", "12", "T1", "1"});
    grid.Rows.Add({"B", "7", "T1", "13"});
    std::vector<bool> enabled;
    auto look = [&] { enabled.push_back(table.DeleteRowEnabled()); };
    Run({[&] {
             look();
             table.Click(0, 0);
             look();
             Press(ParcelGrid::DeleteRowButton);
         },
         [&] {
             look();
             table.Click(1, 0);
             look();
             dialog.EndDialog(IDCANCEL);
         }});
    EXPECT_EQ(enabled, (std::vector<bool>{false, true, false, true}));
    // The recount keeps the number of the new first row.
    EXPECT_EQ(table.Table(), (Rows{"B|7|T1|13", "|||20"}));
}

TEST_F(ParcelDialogTest, TheTemplateTheFontAndTheRedStatusLine) {
    std::string face, caption, deleteText;
    COLORREF labelColor = 0;
    CWnd* attached = nullptr;
    Run({[&] {
        LOGFONT lf{};
        dialog.GetFont()->GetLogFont(&lf);
        face = lf.lfFaceName;
        caption = dialog.GetWindowText();
        deleteText = dialog.GetDlgItem(ParcelGrid::DeleteRowButton)->GetWindowText();
        CDC* dc = dialog.label.GetDC();
        dialog.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc->m_hDC),
                           reinterpret_cast<LPARAM>(dialog.label.m_hWnd));
        labelColor = dc->GetTextColor();
        dialog.label.ReleaseDC(dc);
        attached = CWnd::FromHandlePermanent(dialog.GetDlgItem(ParcelDialog::GridControl)->m_hWnd);
        dialog.EndDialog(IDCANCEL);
    }});
    EXPECT_EQ(attached, &grid);
    EXPECT_EQ(face, "Courier");
    EXPECT_EQ(caption, "Kerv area table");
    EXPECT_EQ(deleteText, "&Delete Row ");
    EXPECT_EQ(labelColor, 0xFFu);
}

TEST_F(ParcelDialogTest, OnlyADialogWithinTenPixelsOfTheScreenIsShrunk) {
    // The size of a fresh dialog on a screen of the given size.
    auto measure = [](LONG screenWidth, LONG screenHeight) {
        plat::Headless().SetScreenSize(SIZE{screenWidth, screenHeight});
        ParcelDialog fresh;
        ActiveDialog = &fresh;
        RECT seen{};
        plat::Headless().Schedule([&] {
            fresh.GetWindowRect(&seen);
            fresh.EndDialog(IDCANCEL);
        });
        fresh.DoModal();
        ParcelTable::Pump();
        return SIZE{seen.right - seen.left, seen.bottom - seen.top};
    };
    const SIZE natural = measure(1280, 1024);
    const SIZE roomy = measure(natural.cx + 11, natural.cy + 11);
    EXPECT_EQ(roomy.cx, natural.cx);
    EXPECT_EQ(roomy.cy, natural.cy);
    EXPECT_NE(measure(natural.cx + 11, natural.cy + 10).cy, natural.cy);
    EXPECT_NE(measure(natural.cx + 10, natural.cy + 11).cx, natural.cx);
    ActiveDialog = &dialog;
}

TEST_F(ParcelDialogTest, SaveAndLoadBringTheRowsBackWithoutQuantitiesOrNumbers) {
    Rows before, loaded;
    const std::string file = table.folder + "plan.tab";
    const INT_PTR result = Run({[&] {
                                    grid.SetCellText(2, 0, "T1");
                                    before = table.Table();
                                    Press(1002);
                                },
                                // The host's file dialog offers the drawing's name.
                                [] { plat::PushKey(VK_RETURN); },
                                [&] {
                                    EXPECT_TRUE(std::filesystem::exists(file));
                                    grid.SetCellText(2, 0, "");
                                    Press(1003);
                                },
                                [] { plat::PushKey(VK_RETURN); },
                                [&] {
                                    loaded = table.Table();
                                    Press(IDOK);
                                }});
    EXPECT_EQ(result, IDOK);
    ASSERT_FALSE(before.empty());
    EXPECT_EQ(before[0].substr(0, 2), "*|");
    EXPECT_EQ(loaded, (Rows{"*|0|T1|1"}));
}
