// The grid's built-in special cell types: the check box, the marker and the drop-list button
// drawn into an off-screen bitmap, and the drop-down list on a real grid, driven by keys and
// the mouse through the window system.

#include "grid/cells/DropListCellType.h"
#include "grid/core/GridCtrl.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CListBox.h"
#include "platform/afx/DCStateSaver.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr COLORREF Paper = RGB(255, 255, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Shadow = RGB(128, 128, 128);
constexpr COLORREF Light = RGB(225, 225, 225);
constexpr COLORREF Face = RGB(212, 208, 200);
constexpr COLORREF HiliteBack = RGB(10, 36, 106);
constexpr COLORREF Red = RGB(255, 0, 0);

// A drop-list type whose button can be held down without a list.
class HeldDropList : public DropListCellType {
public:
    void HoldButton(int down) { buttonDown = down; }
};

class CellTypesDraw : public ::testing::Test {
protected:
    CellTypesDraw() {
        dc.CreateCompatibleDC(nullptr);
        surface.CreateCompatibleBitmap(&dc, 200, 60);
        dc.SelectObject(&surface);
        dc.FillSolidRect(0, 0, 200, 60, Paper);
        dc.SelectObject(grid.GetFont(grid.AddFontByFace("Arial", -12, 400)));
        grid.SetColCount(3, 0);
        grid.SetRowCount(3, 0);
        grid.SetBorderWidth(1);
        dropList.grid = &grid;
    }
    COLORREF At(int x, int y) const { return dc.GetPixel(x, y); }
    // How many pixels of `area` aren't white: the ink of black text, smoothed.
    int Ink(const RECT& area) const {
        return (area.right - area.left) * (area.bottom - area.top) - Count(area, White);
    }
    // How many pixels of `area` have `colour`.
    int Count(const RECT& area, COLORREF colour) const {
        int n = 0;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x) n += At(x, y) == colour;
        return n;
    }
    void Draw(CellType& type, RECT rect, GridCell& cell, int selected = 0, int current = 0) {
        dc.FillSolidRect(0, 0, 200, 60, Paper);
        DCStateSaver saved(dc);
        type.Draw(&dc, &rect, 0, 0, cell, selected, current);
    }

    GridCtrl grid;
    HeldDropList dropList;
    CDC dc;
    CBitmap surface;
    // Inside the grid lines: 10..109 by 10..29, 19 pixels high.
    const RECT cellRect{10, 10, 110, 30};
};

// The inner rectangle is 19 high: a 12-pixel box from (13, 13) to (25, 25), its inside from
// (14, 14), and a cross from (15, 15) to (23, 23) with its thickening beside it.
TEST_F(CellTypesDraw, CheckBoxShowsItsStateInAFlatBoxWithTheLabelBeside) {
    CellType& type = grid.checkBoxCellType;
    GridCell cell;
    cell.SetText("1");
    Draw(type, cellRect, cell);
    for (POINT corner : {POINT{13, 13}, POINT{25, 13}, POINT{25, 25}, POINT{13, 25}})
        EXPECT_EQ(At(corner.x, corner.y), Black) << corner.x << "," << corner.y;
    EXPECT_EQ(At(15, 15), Black);
    EXPECT_EQ(At(23, 23), Black);
    EXPECT_EQ(At(19, 19), Black);
    EXPECT_EQ(At(16, 15), Black); // thick: the box is above 9 pixels
    EXPECT_EQ(At(18, 15), White);
    // The strip left of the caption is the cell's background; the text "1" shows nowhere.
    EXPECT_EQ(At(11, 20), White);
    EXPECT_EQ(Ink(RECT{26, 10, 109, 29}), 0);

    cell.SetText("0");
    cell.SetLabel("Shown");
    Draw(type, cellRect, cell);
    EXPECT_EQ(Count(RECT{14, 14, 25, 25}, White), 11 * 11);
    EXPECT_GT(Ink(RECT{28, 10, 109, 29}), 10);
    EXPECT_EQ(Count(RECT{10, 10, 28, 29}, Black), 4 * 12); // the edge alone

    // Selected, the strip takes the highlight; the box's inside stays a window's.
    cell.SetHiliteBackColor(HiliteBack);
    Draw(type, cellRect, cell, 1);
    EXPECT_EQ(At(11, 20), HiliteBack);
    EXPECT_EQ(At(19, 19), White);
}

TEST_F(CellTypesDraw, CheckBoxEdgesMarksAndTooLowARow) {
    CellType& type = grid.checkBoxCellType;
    GridCell cell;
    cell.SetNumber(1);

    cell.SetCellTypeOption(0x100); // sunken: shadow, then black, on the top left
    Draw(type, cellRect, cell);
    EXPECT_EQ(At(13, 20), Shadow);
    EXPECT_EQ(At(20, 13), Shadow);
    EXPECT_EQ(At(25, 20), Light);
    EXPECT_EQ(At(14, 20), Black);
    EXPECT_EQ(At(24, 20), Face);

    cell.SetCellTypeOption(0x300); // sunken wins over raised
    Draw(type, cellRect, cell);
    EXPECT_EQ(At(13, 20), Shadow);

    cell.SetCellTypeOption(0x200); // raised: light and face on the top left
    Draw(type, cellRect, cell);
    EXPECT_EQ(At(13, 20), Light);
    EXPECT_EQ(At(25, 20), Black);
    EXPECT_EQ(At(14, 20), Face);
    EXPECT_EQ(At(24, 20), Shadow);

    // A tick from (16, 21) down to (18, 23) and up to the right, out past the box.
    cell.SetCellTypeOption(0x1000);
    Draw(type, cellRect, cell);
    EXPECT_EQ(At(17, 22), Black);
    EXPECT_EQ(At(16, 20), Black); // thick
    EXPECT_EQ(At(27, 14), Black);
    EXPECT_EQ(At(15, 15), White); // no cross

    // 15 high: an 8-pixel box at (13, 13)..(21, 21) with a thin cross.
    cell.SetCellTypeOption(0);
    Draw(type, RECT{10, 10, 110, 25}, cell);
    EXPECT_EQ(At(15, 15), Black);
    EXPECT_EQ(At(16, 15), White);

    // 11 high: no box at all, only the strip.
    Draw(type, RECT{10, 10, 110, 21}, cell);
    EXPECT_EQ(Count(RECT{10, 10, 109, 20}, Black), 0);
    EXPECT_EQ(At(12, 15), White);
}

// The middle of 10..109 by 10..29 is (59, 19); an arrow to the right has its long line at
// x 58 from y 16 to 22, and its point at x 61.
TEST_F(CellTypesDraw, MarkerDrawsTheArrowItsOptionNamesAndNoText) {
    CellType& type = grid.markerCellType;
    struct Case {
        int option;
        std::vector<int> inkColumns, clearColumns;
    } cases[] = {
        {0, {58, 59, 61}, {57, 62}},
        {0x10 | 0x20, {58, 61}, {57}},
        {0x20, {60, 59, 57}, {61, 56}},
        {0x40, {55, 58, 61, 64}, {54, 65}},
        {0x80, {54, 57, 60, 63}, {53, 64}},
        {0x100, {}, {58, 59, 60}},
    };
    for (const Case& c : cases) {
        GridCell cell;
        cell.SetText("text");
        cell.SetTextColor(Red);
        if (c.option) cell.SetCellTypeOption(c.option);
        Draw(type, cellRect, cell);
        for (int x : c.inkColumns)
            EXPECT_GT(Count(RECT{x, 10, x + 1, 29}, Red), 0) << c.option << " at " << x;
        for (int x : c.clearColumns)
            EXPECT_EQ(Count(RECT{x, 10, x + 1, 29}, Red), 0) << c.option << " at " << x;
        EXPECT_EQ(Count(RECT{10, 10, 109, 29}, Black), 0) << c.option;
        EXPECT_EQ(At(30, 20), White) << c.option;
    }

    GridCell cell;
    cell.SetTextColor(Red);
    Draw(type, cellRect, cell);
    EXPECT_EQ(At(58, 16), Red);
    EXPECT_EQ(At(58, 15), White);
    cell.SetHiliteBackColor(HiliteBack);
    Draw(type, cellRect, cell, 0, 1); // the current cell is highlighted too
    EXPECT_EQ(At(30, 20), HiliteBack);
    Draw(type, RECT{10, 10, 14, 30}, cell);
    EXPECT_EQ(Count(RECT{10, 10, 14, 30}, Red), 0);
    EXPECT_EQ(At(10, 20), White);
}

// The button is the 16 pixels right of the grid line's inside, 93..108; its arrow starts at
// x 98, y 18.
TEST_F(CellTypesDraw, DropListShowsARaisedButtonWithAnArrowRightOfItsText) {
    ASSERT_EQ(GetSystemMetrics(SM_CXVSCROLL), 16);
    GridCell cell;
    cell.SetText("WWWWWWWWWWWWWWWWWWWWWWWWWWWW");
    Draw(dropList, cellRect, cell);
    EXPECT_EQ(At(93, 20), White);  // raised: highlight on the left
    EXPECT_EQ(At(108, 20), Shadow); // and shadow on the right
    EXPECT_EQ(At(100, 12), Face);
    EXPECT_EQ(At(92, 20), Face); // the line left of the button
    for (int x = 98; x < 103; ++x) EXPECT_EQ(At(x, 18), Black) << x;
    EXPECT_EQ(At(97, 18), Face);
    EXPECT_EQ(At(103, 18), Face);
    EXPECT_EQ(Count(RECT{98, 19, 103, 20}, Black), 3);
    EXPECT_EQ(At(100, 20), Black);
    EXPECT_EQ(At(99, 20), Face);
    // The long text is clipped before the button.
    EXPECT_GT(Count(RECT{80, 10, 92, 29}, Black), 0);

    // A held button shows pressed on the current cell only.
    dropList.HoldButton(1);
    Draw(dropList, cellRect, cell, 0, 1);
    EXPECT_EQ(At(93, 20), Shadow);
    Draw(dropList, cellRect, cell, 0, 0);
    EXPECT_EQ(At(93, 20), White);

    // Option 0x200: no button but on the current cell.
    cell.SetText("");
    cell.SetCellTypeOption(0x200);
    Draw(dropList, cellRect, cell);
    EXPECT_EQ(Count(RECT{10, 10, 109, 29}, Black), 0);
    EXPECT_EQ(At(100, 12), White);
    Draw(dropList, cellRect, cell, 0, 1);
    EXPECT_EQ(At(100, 18), Black);
}

// A grid that writes down the cell type events, can change what they carry and can discard a
// choice.
class EventGrid : public GridCtrl {
public:
    int NotifyCellTypeEvent(int typeId, int col, int row, int event, LPARAM parameter) override {
        std::string line = std::to_string(event) + " " + std::to_string(typeId) + " " +
                           std::to_string(col) + " " + std::to_string(row);
        if (event == DropListCellType::EventDropping) {
            auto* choices = reinterpret_cast<std::vector<std::string>*>(parameter);
            line += " " + std::to_string(choices->size());
            if (!extraChoice.empty()) choices->push_back(extraChoice);
        } else if (event == DropListCellType::EventChosen) {
            auto* choice = reinterpret_cast<std::string*>(parameter);
            line += " " + *choice;
            if (!replacement.empty()) *choice = replacement;
            events.push_back(line);
            return accept;
        }
        events.push_back(line);
        return 1;
    }

    std::vector<std::string> events;
    std::string extraChoice;
    std::string replacement;
    int accept = 1;
};

class DropList : public ::testing::Test {
protected:
    DropList() {
        plat::Headless();
        window.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP | WS_VISIBLE,
                        RECT{0, 0, 500, 400}, nullptr, 0);
        grid.CreateGrid(WS_CHILD | WS_VISIBLE, RECT{10, 10, 410, 310}, &window, 1000);
        grid.SetColCount(4, 0);
        grid.SetRowCount(40, 0);
        for (int row = 0; row < 40; ++row) {
            grid.SetCellTypeId(1, row, grid.GetCellTypeId(&grid.dropListCellType));
            grid.SetCellLabel(1, row, "one\ntwo\nthree\n");
        }
        Pump();
        grid.GetCellView()->SetFocus();
    }
    ~DropList() override {
        grid.DestroyWindow();
        window.DestroyWindow();
    }
    static void Pump() {
        MSG msg;
        while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessage(&msg);
        }
    }
    static void Key(int vk) {
        plat::PushKey(vk);
        Pump();
    }
    // A press in the middle of the cell as the view hands it on: the cell becomes current and
    // its type hears of the press. The release follows through the window system, where the
    // mouse capture sends it.
    int Press(int col, int row) {
        grid.GotoCell(col, row);
        RECT rect;
        grid.GetJoinedCellRect(col, row, &rect);
        POINT point{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
        const int taken = type().LeftClick(col, row, 1, &rect, &point);
        grid.GetCellView()->ClientToScreen(&point);
        plat::PushInput(plat::RawInput{plat::RawInput::ButtonUp, point, 0, 0, 0});
        Pump();
        return taken;
    }
    // The open list, or null.
    CListBox* List() {
        return dynamic_cast<CListBox*>(grid.GetCellView()->GetDlgItem(123));
    }
    RECT ListRect() {
        RECT r;
        List()->GetWindowRect(&r);
        grid.GetCellView()->ScreenToClient(&r);
        return r;
    }
    std::vector<std::string> Entries() {
        std::vector<std::string> entries;
        for (int i = 0; i < List()->GetCount(); ++i) entries.push_back(List()->GetText(i));
        return entries;
    }
    std::string Text(int col, int row) {
        const char* text = grid.GetCellText(col, row);
        return text ? text : "";
    }
    DropListCellType& type() { return grid.dropListCellType; }
    std::vector<std::string> Take() { return std::exchange(grid.events, {}); }

    CWnd window;
    EventGrid grid;
};

using Strings = std::vector<std::string>;

TEST_F(DropList, APressDropsTheLabelsChoicesUnderTheCellAndItsReleaseKeepsThemOpen) {
    EXPECT_EQ(Press(1, 2), 1);
    ASSERT_NE(List(), nullptr);
    EXPECT_TRUE(List()->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), List());
    EXPECT_EQ(Entries(), (Strings{"one", "two", "three"}));
    EXPECT_EQ(List()->GetCurSel(), LB_ERR);
    EXPECT_EQ(Take(), (Strings{"100 1 1 2 3"}));

    RECT cell, list = ListRect();
    grid.GetJoinedCellRect(1, 2, &cell);
    EXPECT_EQ(list.top, cell.bottom);
    EXPECT_EQ(list.left, cell.left);
    EXPECT_EQ(list.right, cell.right);

    // Pressing the cell of the open list closes it, and the next press opens it again.
    EXPECT_EQ(Press(1, 2), 0);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Press(1, 2), 1);
    EXPECT_NE(List(), nullptr);
}

TEST_F(DropList, TheListShowsEightChoicesAtMostAndStaysInsideTheView) {
    grid.SetCellLabel(1, 2, "a\nb"); // text behind the last line feed is no choice
    Press(1, 2);
    EXPECT_EQ(Entries(), (Strings{"a"}));
    const LONG oneHigh = ListRect().bottom - ListRect().top;
    Key(VK_ESCAPE);

    grid.SetCellLabel(1, 2, "1\n2\n3\n4\n5\n6\n7\n8\n9\n");
    Press(1, 2); // spent: it follows a dismissal
    Press(1, 2);
    const LONG nineHigh = ListRect().bottom - ListRect().top;
    EXPECT_EQ(List()->GetCount(), 9);
    EXPECT_GT(nineHigh, oneHigh);
    Key(VK_ESCAPE);
    grid.SetCellLabel(1, 2, "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n");
    Press(1, 2);
    Press(1, 2);
    EXPECT_EQ(ListRect().bottom - ListRect().top, nineHigh);
    Key(VK_ESCAPE);

    // A cell at the bottom of the view: the list moves up over the cell.
    RECT client, cell;
    grid.GetCellView()->GetClientRect(&client);
    const int bottomRow = grid.GetBottomRow() - 1;
    Press(1, bottomRow); // moving away forgets the dismissal
    grid.GetJoinedCellRect(1, bottomRow, &cell);
    ASSERT_NE(List(), nullptr);
    EXPECT_LT(ListRect().top, cell.bottom);
    EXPECT_LE(ListRect().bottom, client.bottom);
    Key(VK_ESCAPE);

    // A column that runs past the view's right edge: the list moves left into it.
    grid.SetColWidth(1, 600);
    Press(1, 1);
    EXPECT_EQ(ListRect().left, 0);
    EXPECT_EQ(ListRect().right, client.right);
}

TEST_F(DropList, KeysChooseAnEntryAndTheGridWritesIt) {
    Press(1, 2);
    Take();
    Key(VK_DOWN);
    Key(VK_DOWN);
    Key(VK_RETURN);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Text(1, 2), "two");
    EXPECT_EQ(Take(), (Strings{"101 1 1 2 two"}));
    EXPECT_EQ(CWnd::GetFocus(), grid.GetCellView());
    // A choice taken is no dismissal: the next press drops the list again.
    EXPECT_EQ(Press(1, 2), 1);
    EXPECT_NE(List(), nullptr);

    // The handler may change the choice, or discard it; the list closes either way. A
    // read-only cell keeps only the editor away.
    GridCell readOnly;
    grid.GetCell(1, 2, readOnly);
    readOnly.SetReadOnly(1);
    grid.SetCell(1, 2, readOnly);
    grid.replacement = "changed";
    Key(VK_END);
    Key(VK_RETURN);
    EXPECT_EQ(Text(1, 2), "changed");
    grid.accept = 0;
    Press(1, 2);
    Key(VK_HOME);
    Key(VK_RETURN);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Text(1, 2), "changed");
    EXPECT_EQ(Take().back(), "101 1 1 2 one");
}

TEST_F(DropList, AClickOnAnEntryTakesIt) {
    grid.extraChoice = "four"; // the handler adds a choice as the list drops
    Press(1, 3);
    ASSERT_EQ(Entries(), (Strings{"one", "two", "three", "four"}));
    RECT item;
    List()->SendMessage(LB_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&item));
    POINT point{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    List()->ClientToScreen(&point);
    plat::PushClick(point, 0);
    Pump();
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Text(1, 3), "four");
}

TEST_F(DropList, EscapeAndTheLossOfFocusCloseWithoutWritingAndSpendTheNextPress) {
    grid.SetCellText(1, 2, "kept");
    Press(1, 2);
    Key(VK_DOWN);
    Key(VK_ESCAPE);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Text(1, 2), "kept");
    // The press that comes after a dismissal only closes.
    EXPECT_EQ(Press(1, 2), 0);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Press(1, 2), 1);
    EXPECT_NE(List(), nullptr);

    Key(VK_DOWN);
    grid.GetCellView()->SetFocus();
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Text(1, 2), "kept");
    EXPECT_EQ(Press(1, 2), 0);
    for (const std::string& line : Take()) EXPECT_NE(line.rfind("101", 0), 0u) << line;
    // A move of the current cell forgets a dismissal.
    grid.SetCellLabel(1, 2, "");
    Press(1, 2);
    Key(VK_ESCAPE);
    grid.GotoCell(1, 1);
    grid.GotoCell(1, 2);
    EXPECT_EQ(Press(1, 2), 1);

    // Enter on a list without entries only closes it.
    EXPECT_EQ(List()->GetCount(), 0);
    Key(VK_RETURN);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Text(1, 2), "kept");
}

TEST_F(DropList, EnterAndCtrlDownDropTheListOfTheCurrentCell) {
    grid.GotoCell(1, 3);
    UINT key = VK_DOWN;
    EXPECT_EQ(type().KeyDown(1, 3, &key), 0);
    EXPECT_EQ(List(), nullptr);
    key = VK_RETURN;
    EXPECT_EQ(type().KeyDown(1, 3, &key), 1);
    EXPECT_EQ(key, 0u);
    ASSERT_NE(List(), nullptr);
    // A list that is open already stays as it is.
    EXPECT_EQ(type().ShowList(), 1);
    Key(VK_ESCAPE);

    plat::PushInput(plat::RawInput{plat::RawInput::KeyDown, {}, 0, VK_CONTROL, 0});
    Pump();
    key = VK_DOWN;
    EXPECT_EQ(type().KeyDown(1, 3, &key), 1);
    plat::PushInput(plat::RawInput{plat::RawInput::KeyUp, {}, 0, VK_CONTROL, 0});
    Pump();
    EXPECT_NE(List(), nullptr);
}

} // namespace
