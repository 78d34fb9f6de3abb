// The frame of the control: what a new control holds, the two ways of making its windows, the
// option setters with their ranges, sheets, the context menu's items and commands, and the
// colour scheme changing under it.

#include "grid/windows/GridView.h"
#include "platform/afx/CDialog.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"
#include "tests/grid/core/GridHost.h"

#include <functional>
#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

TEST(Frame, NewControlHasOneEmptySheetAndTheBuiltInTypes) {
    GridCtrl grid;
    EXPECT_EQ(grid.GetSheetCount(), 1);
    EXPECT_EQ(grid.GetColCount(), 0);
    EXPECT_EQ(grid.GetRowCount(), 0);
    EXPECT_EQ(grid.GetCurrentCol(), -1);
    EXPECT_EQ(grid.GetCurrentRow(), -1);
    EXPECT_EQ(grid.GetCellTypeId(&grid.normalCellType), 0);
    EXPECT_EQ(grid.GetCellTypeId(&grid.dropListCellType), 1);
    EXPECT_EQ(grid.GetCellTypeId(&grid.checkBoxCellType), 2);
    EXPECT_EQ(grid.GetCellTypeId(&grid.markerCellType), 3);
    EXPECT_EQ(grid.GetCellEditor(), &grid.builtInEditor);
    EXPECT_EQ(grid.builtInEditor.grid, &grid);
    GridCell heading;
    grid.GetHeadingDefault(heading);
    EXPECT_EQ(heading.GetBackColor(), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(heading.GetAlignment(), 36);
    EXPECT_EQ(heading.GetBorder(), 0x2000);
    EXPECT_EQ(grid.GetVScrollWidth(), GetSystemMetrics(SM_CXVSCROLL));
}

TEST(Frame, CreateGridMakesTheChildrenAndNotifiesAfterThem) {
    GridHost host;
    RecordingGrid& grid = host.grid;
    EXPECT_EQ(grid.Take(), (Strings{"GridCreated", "SheetCreated 0 0 1"}));
    EXPECT_TRUE(grid.GetStyle() & WS_CLIPCHILDREN);
    for (int id = 1; id <= 7; ++id) {
        CWnd* child = grid.GetDlgItem(id);
        ASSERT_NE(child, nullptr) << id;
        EXPECT_TRUE(child->IsWindowVisible()) << id;
    }
    EXPECT_EQ(grid.GetDlgItem(1), grid.view.get());
    EXPECT_TRUE(grid.GetDlgItem(6)->GetStyle() & SBS_VERT);
    EXPECT_EQ(grid.GetDlgItem(123), &grid.builtInEditor);
    EXPECT_FALSE(grid.builtInEditor.IsWindowVisible());
    // The view is the grid's client area less the headings and whatever bars were needed.
    RECT view;
    grid.view->GetClientRect(&view);
    EXPECT_EQ(view.right, grid.sheet->viewWidth);
    EXPECT_EQ(view.bottom, grid.sheet->viewHeight);
    EXPECT_EQ(CWnd::GetFocus(), grid.view.get());
}

namespace {

class AttachDialog : public CDialog {
public:
    explicit AttachDialog(const DialogTemplate& t) : CDialog(t) {}
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        missing = stray.AttachToControl(this, 999);
        attached = grid.AttachToControl(this, 1000);
        style = grid.GetStyle();
        viewMade = grid.view->m_hWnd != nullptr;
        return TRUE;
    }
    RecordingGrid grid;
    RecordingGrid stray;
    int missing = -1, attached = -1;
    DWORD style = 0;
    bool viewMade = false;
};

} // namespace

TEST(Frame, AttachTakesOverTheDialogsControl) {
    DialogTemplate t;
    t.cx = 200, t.cy = 120;
    t.items.push_back(
        DialogItemTemplate{WS_CHILD | WS_VISIBLE, 0, 5, 5, 150, 80, 1000, "Static", ""});
    AttachDialog dialog(t);
    plat::Headless().Schedule([&] { dialog.PostMessage(WM_COMMAND, IDOK); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.missing, 0);
    EXPECT_TRUE(dialog.stray.log.empty());
    EXPECT_EQ(dialog.stray.view->m_hWnd, nullptr);
    EXPECT_EQ(dialog.attached, 1);
    EXPECT_EQ(dialog.style & (WS_CLIPCHILDREN | WS_TABSTOP | WS_BORDER),
              WS_CLIPCHILDREN | WS_TABSTOP | WS_BORDER);
    EXPECT_TRUE(dialog.viewMade);
    EXPECT_EQ(dialog.grid.log, (Strings{"GridCreated", "SheetCreated 0 0 1"}));
}

TEST(Frame, OptionSettersKeepTheirRanges) {
    GridCtrl grid;
    GridSheet& s = *grid.sheet;
    struct Case {
        const char* name;
        std::function<int(int)> set;
        int* field;
        int value;
        int result;
        int stored;
    };
    const Case cases[] = {
        {"row height 1025", [&](int v) { return grid.SetDefaultRowHeight(v); }, &s.defaultRowHeight,
         1025, 1, 20},
        {"row height 1024", [&](int v) { return grid.SetDefaultRowHeight(v); }, &s.defaultRowHeight,
         1024, 0, 1024},
        {"row height 0", [&](int v) { return grid.SetDefaultRowHeight(v); }, &s.defaultRowHeight, 0,
         1, 1024},
        {"border 17", [&](int v) { return grid.SetBorderWidth(v); }, &s.borderWidth, 17, 1, 1},
        {"border 16", [&](int v) { return grid.SetBorderWidth(v); }, &s.borderWidth, 16, 0, 16},
        {"border 0", [&](int v) { return grid.SetBorderWidth(v); }, &s.borderWidth, 0, 1, 16},
        {"highlight 4", [&](int v) { return grid.SetHighlightMode(v); }, &s.highlightMode, 4, 1, 1},
        {"highlight 3", [&](int v) { return grid.SetHighlightMode(v); }, &s.highlightMode, 3, 0, 3},
        {"auto scroll -1", [&](int v) { return grid.SetAutoScrollMode(v); }, &s.autoScrollMode, -1,
         1, 0},
        {"delay 32001", [&](int v) { return grid.SetAutoScrollDelay(v); }, &s.autoScrollDelay,
         32001, 1, 200},
        {"delay 32000", [&](int v) { return grid.SetAutoScrollDelay(v); }, &s.autoScrollDelay,
         32000, 0, 32000},
        {"ramp 1001", [&](int v) { return grid.SetKeyRepeatRamp(v); }, &s.keyRepeatRamp, 1001, 1,
         0},
        {"key delay -1", [&](int v) { return grid.SetKeyRepeatDelay(v); }, &s.keyRepeatDelay, -1, 1,
         0},
        {"margin -1", [&](int v) { return grid.SetCellMargin(v); }, &s.cellMargin, -1, 1, 4},
        {"col width -1", [&](int v) { return grid.SetDefaultColWidth(v); }, &s.defaultColWidth, -1,
         1, 75},
        {"col width 0", [&](int v) { return grid.SetDefaultColWidth(v); }, &s.defaultColWidth, 0, 0,
         0},
        {"v scroll 1025", [&](int v) { return grid.SetVScrollWidth(v); }, &s.vScrollWidth, 1025, 1,
         s.vScrollWidth},
        {"h scroll 0", [&](int v) { return grid.SetHScrollHeight(v); }, &s.hScrollHeight, 0, 0, 0},
        {"joins 5", [&](int v) { return grid.EnableJoins(v); }, &s.joinsEnabled, 5, 0, 1},
        {"lines 0", [&](int v) { return grid.EnableGridLines(v); }, &s.gridLinesEnabled, 0, 0, 0},
        {"cancel on focus 7", [&](int v) { return grid.SetCancelEditOnFocusLoss(v); },
         &s.cancelEditOnFocusLoss, 7, 0, 1},
        {"resize mode 9", [&](int v) { return grid.SetUserResizeMode(v); }, &s.userResizeMode, 9, 0,
         9},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.set(c.value), c.result) << c.name;
        EXPECT_EQ(*c.field, c.stored) << c.name;
    }
    EXPECT_EQ(grid.SetArrowCursor(nullptr), 1);
    EXPECT_EQ(grid.SetDefaultFont(nullptr), 1);
    EXPECT_EQ(s.defaultFont, nullptr);
}

TEST(Frame, SheetCountIsLimitedAndNewSheetsAreActiveWhileSetUp) {
    GridHost host;
    RecordingGrid& grid = host.grid;
    grid.Take();
    EXPECT_EQ(grid.SetSheetCount(0), 1);
    EXPECT_EQ(grid.SetSheetCount(1025), 1);
    EXPECT_EQ(grid.SetSheetCount(3), 0);
    // index, the active index (unchanged), whether the new sheet is the control's sheet.
    EXPECT_EQ(grid.Take(), (Strings{"SheetCreated 1 0 1", "SheetCreated 2 0 1"}));
    EXPECT_EQ(grid.GetSheetIndex(), 0);
    EXPECT_EQ(grid.sheet, grid.sheets[0].get());
    EXPECT_EQ(grid.SetSheetCount(1024), 0);
    EXPECT_EQ(grid.GetSheetCount(), 1024);
    EXPECT_EQ(grid.SelectSheet(1024, 1), 1);
    EXPECT_EQ(grid.SelectSheet(-1, 1), 1);
}

TEST(Frame, SheetsKeepTheirOwnTablesAndShareTheTabStripWidth) {
    GridHost host;
    GridCtrl& grid = host.grid;
    grid.SetSheetCount(4);
    Fill(grid, 2, 3);
    grid.SetTopHeadingHeight(30);
    grid.SetTabStripWidth(120);
    CEdit lent;
    grid.SetCellEditor(&lent);

    EXPECT_EQ(grid.SelectSheet(3, 1), 0);
    EXPECT_EQ(grid.GetColCount(), 0);
    EXPECT_EQ(grid.GetTopHeadingHeight(), 20);
    EXPECT_EQ(grid.sheet->tabStripWidth, 120);
    EXPECT_EQ(grid.GetCellEditor(), &grid.builtInEditor);
    EXPECT_EQ(grid.view->sheet, grid.sheet);

    // Dropping the active sheet leaves the last one active, with the strip's width.
    grid.SetTabStripWidth(150);
    EXPECT_EQ(grid.SetSheetCount(2), 0);
    EXPECT_EQ(grid.GetSheetIndex(), 1);
    EXPECT_EQ(grid.sheet, grid.sheets[1].get());
    EXPECT_EQ(grid.sheet->tabStripWidth, 150);
    EXPECT_EQ(grid.view->sheet, grid.sheet);

    grid.SelectSheet(0, 0);
    EXPECT_STREQ(grid.GetCellText(1, 2), "r2c1");
    EXPECT_EQ(grid.GetCellEditor(), &lent);
    EXPECT_EQ(grid.GetTopHeadingHeight(), 30);
}

TEST(Frame, ContextMenuOpensOnTheJoinsMainCellAndReportsClientCommands) {
    GridHost host;
    RecordingGrid& grid = host.grid;
    Fill(grid, 4, 4);
    grid.EnableJoins(1);
    grid.JoinCells(1, 1, 2, 2);
    EXPECT_EQ(grid.AddPopupItem(1000, "Copy"), 0);
    EXPECT_EQ(grid.AddPopupItem(-1, "ignored"), 0);
    EXPECT_EQ(grid.AddPopupItem(1001, ""), 0);
    EXPECT_EQ(grid.AddPopupItem(1002, "Paste"), 0);
    EXPECT_EQ(grid.AddPopupItem(999, "Framework's"), 0);
    CMenu* menu = grid.GetPopupMenu();
    EXPECT_EQ(menu->GetMenuItemID(1), 0u);
    EXPECT_EQ(menu->GetMenuItemID(2), 0u);
    EXPECT_EQ(grid.RemovePopupItem(1002), 0);
    EXPECT_EQ(grid.RemovePopupItem(1002), 1);
    EXPECT_EQ(menu->GetMenuItemCount(), 4u);
    grid.Take();

    POINT at{120, 90};
    EXPECT_EQ(grid.ShowContextMenu(2, 2, &at, 1), 1);
    grid.EnablePopupMenu(1);
    grid.allowMenu = 0;
    EXPECT_EQ(grid.ShowContextMenu(2, 2, &at, 1), 2);
    EXPECT_EQ(grid.Take(), (Strings{"MenuStart 1 1 1"}));

    // The first item, chosen with the keys while the menu's own loop runs; its command is
    // posted and arrives once the menu has closed.
    grid.allowMenu = 1;
    plat::Headless().Schedule([] { plat::PushKey(VK_DOWN); });
    plat::Headless().Schedule([] { plat::PushKey(VK_RETURN); });
    EXPECT_EQ(grid.ShowContextMenu(2, 2, &at, 1), 0);
    EXPECT_EQ(grid.Take(), (Strings{"MenuStart 1 1 1"}));
    GridHost::Pump();
    EXPECT_EQ(grid.Take(), (Strings{"MenuCommand 1 1 1 1000"}));

    // The right button chooses too.
    plat::Headless().Schedule([menu] {
        RECT item;
        ASSERT_TRUE(GetMenuItemRect(nullptr, *menu, 0, &item));
        plat::ForgetLastClick();
        plat::PushClick(POINT{item.left + 5, item.top + 3}, 1);
    });
    EXPECT_EQ(grid.ShowContextMenu(-1, -1, &at, 4), 0);
    GridHost::Pump();
    EXPECT_EQ(grid.Take(), (Strings{"MenuStart -1 -1 4", "MenuCommand -1 -1 4 1000"}));
    EXPECT_EQ(grid.ClearPopupMenu(), 0);
    EXPECT_EQ(menu->GetMenuItemCount(), 0u);

    // Ids below 1000 go to the framework alone.
    grid.SendMessage(WM_COMMAND, 999);
    grid.SendMessage(WM_COMMAND, 1001);
    EXPECT_EQ(grid.Take(), (Strings{"MenuCommand -1 -1 4 1001"}));
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE),
              static_cast<LRESULT>(DLGC_WANTARROWS | DLGC_WANTALLKEYS));
}

TEST(Frame, ColourChangeRenewsTheActiveSheetsHeadingsAndThePens) {
    GridHost host;
    GridCtrl& grid = host.grid;
    grid.SetSheetCount(2);
    const int indexes[] = {COLOR_BTNFACE, COLOR_BTNHIGHLIGHT};
    const COLORREF before[] = {GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNHIGHLIGHT)};
    const COLORREF after[] = {RGB(10, 20, 30), RGB(200, 210, 220)};
    SetSysColors(2, indexes, after);
    grid.SendMessage(WM_SYSCOLORCHANGE);
    GridCell heading;
    grid.GetHeadingDefault(heading);
    const COLORREF activeFace = heading.GetBackColor();
    LOGPEN pen;
    grid.highlightPen.GetLogPen(&pen);
    grid.SelectSheet(1, 0);
    grid.GetHeadingDefault(heading);
    SetSysColors(2, indexes, before);
    EXPECT_EQ(activeFace, RGB(10, 20, 30));
    EXPECT_EQ(pen.lopnColor, RGB(200, 210, 220));
    EXPECT_EQ(heading.GetBackColor(), before[0]);
}
