// The list box through the keyboard and the mouse as a user works it, and through the messages
// programs send it.

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/controls/ScrollBar.h"

#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;

class ListBoxTest : public ::testing::Test {
protected:
    HWND Make(DWORD style, std::initializer_list<const char*> items, int height = 100) {
        list = harness.Add("ListBox", WS_BORDER | style, 10, 10, 120, height, 100);
        for (const char* item : items)
            SendMessage(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        return list;
    }
    int CurSel() const { return static_cast<int>(SendMessage(list, LB_GETCURSEL, 0, 0)); }
    int Caret() const { return static_cast<int>(SendMessage(list, LB_GETCARETINDEX, 0, 0)); }
    int Top() const { return static_cast<int>(SendMessage(list, LB_GETTOPINDEX, 0, 0)); }
    int ItemHeight() const { return static_cast<int>(SendMessage(list, LB_GETITEMHEIGHT, 0, 0)); }
    void Later() { plat::Headless().Sleep(1000); } // no press counts as half a double click

    ControlHarness harness;
    HWND list = nullptr;
};

TEST_F(ListBoxTest, KeysSelectAndEachNotifiesAsRecorded) {
    struct Step {
        int key;
        bool clearFirst;
        int cursel;
    };
    // The recording's walk: with no selection, Down and Up take the caret's item and Home the
    // first; every key notifies, also where nothing moves.
    const Step steps[] = {{VK_DOWN, false, 0}, {VK_DOWN, true, 0},  {VK_HOME, true, 0},
                          {VK_DOWN, false, 1}, {VK_UP, false, 0},   {VK_UP, false, 0},
                          {VK_END, false, 3},  {VK_DOWN, false, 3}, {VK_UP, true, 3},
                          {VK_END, true, 3}};
    Make(LBS_NOTIFY | WS_VSCROLL, {"*", "B", "C", ""});
    SetFocus(list);
    EXPECT_EQ(harness.Take(), Events{"LBN_SETFOCUS"});
    EXPECT_EQ(CurSel(), -1);
    EXPECT_EQ(Caret(), 0);
    for (const Step& s : steps) {
        if (s.clearFirst) SendMessage(list, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        ControlHarness::Key(s.key);
        EXPECT_EQ(CurSel(), s.cursel) << "key " << s.key;
        EXPECT_EQ(Caret(), s.cursel);
        EXPECT_EQ(harness.Take(), Events{"LBN_SELCHANGE"}) << "key " << s.key;
    }
    EXPECT_EQ(SendMessage(list, LB_SETCURSEL, 2, 0), 2);
    EXPECT_TRUE(harness.Take().empty());
    SetFocus(harness.Window());
    EXPECT_EQ(harness.Take(), Events{"LBN_KILLFOCUS"});
}

TEST_F(ListBoxTest, TypedCharacterSelectsTheNextItemStartingWithItWrappingRound) {
    Make(LBS_NOTIFY, {"apple", "Banana", "berry", "cherry"});
    SetFocus(list);
    harness.Take();
    const struct {
        char c;
        int cursel;
    } steps[] = {{'b', 1}, {'B', 2}, {'b', 1}, {'c', 3}, {'a', 0}};
    for (const auto& s : steps) {
        ControlHarness::Type(std::string(1, s.c));
        EXPECT_EQ(CurSel(), s.cursel) << s.c;
    }
    EXPECT_EQ(harness.Take().size(), std::size(steps));
    ControlHarness::Type("z");
    EXPECT_EQ(CurSel(), 0);
    EXPECT_TRUE(harness.Take().empty());
}

TEST_F(ListBoxTest, PressSelectsAtOnceReleaseNotifiesDoubleClickSaysSo) {
    Make(LBS_NOTIFY, {"*", "B", "C", ""});
    int h = ItemHeight();
    harness.Take();
    ControlHarness::Press(list, 20, h + h / 2);
    EXPECT_EQ(CurSel(), 1);
    EXPECT_EQ(GetFocus(), list);
    EXPECT_EQ(harness.Take(), Events{"LBN_SETFOCUS"});
    ControlHarness::Release(list, 20, h + h / 2);
    EXPECT_EQ(harness.Take(), Events{"LBN_SELCHANGE"});
    Later();
    ControlHarness::Click(list, 20, 2 * h + h / 2, true);
    EXPECT_EQ(CurSel(), 2);
    EXPECT_EQ(harness.Take(), (Events{"LBN_SELCHANGE", "LBN_DBLCLK"}));
}

TEST_F(ListBoxTest, DragFollowsThePointerAndTheReleaseMayLandOutside) {
    Make(LBS_NOTIFY, {"a", "b", "c", "d"});
    int h = ItemHeight();
    ControlHarness::Press(list, 20, h / 2);
    ControlHarness::MoveTo(list, 20, 3 * h + 2);
    EXPECT_EQ(CurSel(), 3);
    EXPECT_EQ(GetCapture(), list);
    harness.Take();
    ControlHarness::Release(list, 200, 3 * h + 2);
    EXPECT_EQ(CurSel(), 3);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(harness.Take(), Events{"LBN_SELCHANGE"});
}

TEST_F(ListBoxTest, WithoutNotifyStyleTheParentHearsNothing) {
    Make(0, {"a", "b"});
    SetFocus(list);
    ControlHarness::Key(VK_DOWN);
    Later();
    ControlHarness::Click(list, 10, 2, true);
    SetFocus(harness.Window());
    EXPECT_EQ(CurSel(), 0);
    EXPECT_TRUE(harness.Take().empty());
}

TEST_F(ListBoxTest, ProgramsManageStringsDataAndSearches) {
    Make(LBS_SORT, {"pear", "Apple", "banana", "apricot"});
    auto text = [&](int i) {
        char buffer[32] = "";
        SendMessage(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(buffer));
        return std::string(buffer);
    };
    EXPECT_EQ(text(0), "Apple");
    EXPECT_EQ(text(1), "apricot");
    EXPECT_EQ(text(3), "pear");
    EXPECT_EQ(SendMessage(list, LB_GETTEXTLEN, 1, 0), 7);
    EXPECT_EQ(SendMessage(list, LB_GETTEXTLEN, 9, 0), LB_ERR);
    const struct {
        UINT msg;
        int start;
        const char* key;
        LRESULT found;
    } searches[] = {
        {LB_FINDSTRING, -1, "ap", 0},
        {LB_FINDSTRING, 0, "AP", 1},
        {LB_FINDSTRING, 1, "ap", 0},
        {LB_FINDSTRING, -1, "x", LB_ERR},
        {LB_FINDSTRINGEXACT, -1, "APPLE", 0},
        {LB_FINDSTRINGEXACT, -1, "app", LB_ERR},
        {LB_FINDSTRING, 2, "", 3},
    };
    for (const auto& s : searches)
        EXPECT_EQ(
            SendMessage(list, s.msg, static_cast<WPARAM>(s.start), reinterpret_cast<LPARAM>(s.key)),
            s.found)
            << s.key << " after " << s.start;
    EXPECT_EQ(SendMessage(list, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                          reinterpret_cast<LPARAM>("ban")),
              2);
    EXPECT_EQ(CurSel(), 2);
    EXPECT_EQ(SendMessage(list, LB_SETITEMDATA, 3, 77), LB_OKAY);
    // Deleting above the selection moves it with its item; the data stays with its item too.
    EXPECT_EQ(SendMessage(list, LB_DELETESTRING, 0, 0), 3);
    EXPECT_EQ(CurSel(), 1);
    EXPECT_EQ(SendMessage(list, LB_GETITEMDATA, 2, 0), 77);
    EXPECT_EQ(SendMessage(list, LB_INSERTSTRING, 0, reinterpret_cast<LPARAM>("zz")), 0);
    EXPECT_EQ(CurSel(), 2);
    EXPECT_EQ(SendMessage(list, LB_INSERTSTRING, 9, reinterpret_cast<LPARAM>("bad")), LB_ERR);
    EXPECT_EQ(SendMessage(list, LB_DELETESTRING, 2, 0), 3);
    EXPECT_EQ(CurSel(), -1);
    EXPECT_EQ(SendMessage(list, LB_SETCURSEL, static_cast<WPARAM>(-1), 0), LB_ERR);
    EXPECT_EQ(SendMessage(list, LB_SETCURSEL, 5, 0), LB_ERR);
    SendMessage(list, LB_RESETCONTENT, 0, 0);
    EXPECT_EQ(SendMessage(list, LB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(CurSel(), -1);
}

TEST_F(ListBoxTest, KeysAndWheelKeepTheSelectionInView) {
    Make(LBS_NOTIFY | WS_VSCROLL | LBS_NOINTEGRALHEIGHT, {}, 0);
    for (int i = 0; i < 20; ++i)
        SendMessage(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::to_string(i).c_str()));
    MoveWindow(list, 10, 10, 120, 5 * ItemHeight() + 2, TRUE);
    SetFocus(list);
    ControlHarness::Key(VK_END);
    EXPECT_EQ(Top(), 15);
    ControlHarness::Key(VK_PRIOR);
    EXPECT_EQ(CurSel(), 15);
    ControlHarness::Key(VK_PRIOR);
    EXPECT_EQ(CurSel(), 11);
    EXPECT_EQ(Top(), 11);
    ControlHarness::Key(VK_NEXT);
    EXPECT_EQ(CurSel(), 15);
    ControlHarness::Key(VK_HOME);
    EXPECT_EQ(Top(), 0);
    POINT p{20, 20};
    ClientToScreen(list, &p);
    INPUT wheel;
    wheel.type = INPUT_MOUSE;
    wheel.mi.dx = p.x * 65535 / (GetSystemMetrics(SM_CXSCREEN) - 1);
    wheel.mi.dy = p.y * 65535 / (GetSystemMetrics(SM_CYSCREEN) - 1);
    wheel.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_WHEEL;
    wheel.mi.mouseData = static_cast<DWORD>(-WHEEL_DELTA);
    SendInput(1, &wheel, sizeof wheel);
    ControlHarness::Pump();
    EXPECT_EQ(Top(), 3);
    EXPECT_EQ(SendMessage(list, LB_SETTOPINDEX, 19, 0), LB_OKAY);
    EXPECT_EQ(Top(), 15);
}

TEST_F(ListBoxTest, ItsScrollBarShowsWhenNeededAndScrollsTheItems) {
    Make(WS_VSCROLL | LBS_NOINTEGRALHEIGHT, {"a", "b"}, 0);
    MoveWindow(list, 10, 10, 120, 3 * ItemHeight() + 2, TRUE);
    HWND bar = GetWindow(list, GW_CHILD);
    ASSERT_NE(bar, nullptr);
    EXPECT_FALSE(IsWindowVisible(bar));
    for (const char* s : {"c", "d", "e", "f"})
        SendMessage(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(s));
    EXPECT_TRUE(IsWindowVisible(bar));
    SCROLLINFO info;
    info.fMask = SIF_ALL;
    GetScrollInfo(bar, SB_CTL, &info);
    EXPECT_EQ(info.nMax, 5);
    EXPECT_EQ(info.nPage, 3u);
    // A click on the bar's lower arrow scrolls one item; the selection does not move.
    RECT r;
    GetClientRect(bar, &r);
    ControlHarness::Click(bar, r.right / 2, r.bottom - 3);
    EXPECT_EQ(Top(), 1);
    EXPECT_EQ(GetScrollPos(bar, SB_CTL), 1);
    EXPECT_EQ(CurSel(), -1);
    // The items no longer reach under the bar.
    RECT item;
    SendMessage(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
    RECT client;
    GetClientRect(list, &client);
    EXPECT_EQ(item.right, client.right - GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(item.top, 0);
}

TEST_F(ListBoxTest, HeightShrinksToWholeItemsUnlessAskedNotTo) {
    Make(0, {"a"}, 0);
    int h = ItemHeight();
    RECT client;
    MoveWindow(list, 10, 10, 100, 4 * h + h / 2 + 2, TRUE);
    GetClientRect(list, &client);
    EXPECT_EQ(client.bottom, 4 * h);
    HWND loose = harness.Add("ListBox", WS_BORDER | LBS_NOINTEGRALHEIGHT, 150, 10, 100,
                             4 * h + h / 2 + 2, 101);
    GetClientRect(loose, &client);
    EXPECT_EQ(client.bottom, 4 * h + h / 2);
}

TEST_F(ListBoxTest, ItemGeometryAndHitTests) {
    Make(LBS_NOINTEGRALHEIGHT, {"a", "b", "c"});
    EXPECT_EQ(SendMessage(list, LB_SETITEMHEIGHT, 0, 20), LB_OKAY);
    EXPECT_EQ(ItemHeight(), 20);
    RECT r;
    SendMessage(list, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&r));
    EXPECT_EQ(r.top, 40);
    EXPECT_EQ(r.bottom, 60);
    EXPECT_EQ(SendMessage(list, LB_ITEMFROMPOINT, 0, MakePointLParam(5, 45)), MAKELONG(2, 0));
    // Below the last item: the last one, marked as outside.
    EXPECT_EQ(SendMessage(list, LB_ITEMFROMPOINT, 0, MakePointLParam(5, 90)), MAKELONG(2, 1));
    EXPECT_EQ(SendMessage(list, LB_GETITEMRECT, 7, reinterpret_cast<LPARAM>(&r)), LB_ERR);
}

TEST_F(ListBoxTest, SubclassThatTakesTheChoiceOnReleaseAsTheGridsDropListDoes) {
    Make(WS_VSCROLL, {"one", "two"});
    static WNDPROC original = nullptr;
    static int taken = -2;
    original = reinterpret_cast<WNDPROC>(GetWindowLongPtr(list, GWLP_WNDPROC));
    WNDPROC dropList = [](HWND h, UINT m, WPARAM w, LPARAM l) -> LRESULT {
        if (m == WM_LBUTTONUP) {
            ReleaseCapture();
            taken = static_cast<int>(CallWindowProc(original, h, LB_GETCURSEL, 0, 0));
            return 0;
        }
        return CallWindowProc(original, h, m, w, l);
    };
    SetWindowLongPtr(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(dropList));
    int h = ItemHeight();
    ControlHarness::Click(list, 10, h + 2);
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(GetCapture(), nullptr);
    // The box forgot its press with the capture: moving over it selects nothing.
    ControlHarness::MoveTo(list, 10, 2);
    EXPECT_EQ(CurSel(), 1);
}

} // namespace
