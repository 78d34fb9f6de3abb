// A tracked popup menu answered with keys and clicks while its own loop runs, what its owner
// hears, where it opens and how it looks.

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Dialog.h"
#include "platform/user/Input.h"
#include "platform/user/Screen.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <map>

namespace {

enum : UINT { Cut = 101, Copy, Paste, Delete, SelectAll };

// A character typed, among the virtual keys.
constexpr int Typed(char c) {
    return 0x1000 + c;
}

class MenuTrackTest : public ::testing::Test {
protected:
    void SetUp() override {
        menu = CreatePopupMenu();
        AppendMenu(menu, MF_STRING, Cut, "Cu&t\tCtrl+X");
        AppendMenu(menu, MF_STRING, Copy, "&Copy");
        AppendMenu(menu, MF_SEPARATOR, 0, nullptr);
        AppendMenu(menu, MF_GRAYED, Paste, "&Paste");
        AppendMenu(menu, MF_STRING, Delete, "&Delete");
        AppendMenu(menu, MF_CHECKED, SelectAll, "Select &All");
        owner.hook = [this](UINT msg, WPARAM wParam, LPARAM lParam, LRESULT*) {
            Record(msg, wParam, static_cast<std::uintptr_t>(lParam));
            return false;
        };
    }
    void TearDown() override {
        EXPECT_FALSE(plat::Headless().HasActions());
        DestroyMenu(menu);
    }

    // Tracks the menu, which must close through the input given, not for want of any.
    BOOL Track(UINT flags, int x = 100, int y = 100, HMENU which = nullptr) {
        BOOL result = TrackPopupMenu(which ? which : menu, flags, x, y, 0, owner.Window(), nullptr);
        MSG quit;
        EXPECT_FALSE(PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "input ran out";
        return result;
    }
    // Runs once the open menu waits for input.
    static void Then(std::function<void()> action) { plat::Headless().Schedule(std::move(action)); }
    void Click(int item, int button = 0) {
        Then([this, item, button] {
            RECT r;
            ASSERT_TRUE(GetMenuItemRect(nullptr, menu, static_cast<UINT>(item), &r));
            plat::ForgetLastClick();
            plat::PushClick(POINT{(r.left + r.right) / 2, (r.top + r.bottom) / 2}, button);
        });
    }
    void Keys(const std::vector<int>& keys) {
        for (int key : keys)
            Then([key] {
                key >= Typed(0) ? plat::PushChar(static_cast<char>(key - Typed(0)))
                                : plat::PushKey(key);
            });
    }
    // "name wParam lParam" in hex, the menu's handle as "menu".
    void Record(UINT msg, WPARAM wParam, std::uintptr_t lParam) {
        static const std::map<UINT, std::string> names = {
            {WM_ENTERMENULOOP, "enter"}, {WM_INITMENU, "init"},     {WM_INITMENUPOPUP, "initpopup"},
            {WM_MENUSELECT, "select"},   {WM_EXITMENULOOP, "exit"}, {WM_COMMAND, "command"},
            {WM_LBUTTONDOWN, "press"}};
        auto show = [this](std::uintptr_t v) {
            char hex[20];
            std::snprintf(hex, sizeof hex, "%lx", static_cast<unsigned long>(v));
            return v == reinterpret_cast<std::uintptr_t>(menu) ? std::string("menu") : hex;
        };
        if (auto it = names.find(msg); it != names.end())
            heard.push_back(it->second + " " + show(wParam) + " " + show(lParam));
    }
    static RECT MenuWindowRect() {
        RECT r{};
        HWND top = GetTopWindow(nullptr); // the menu, when one is open
        char name[16] = "";
        GetClassName(top, name, sizeof name);
        if (std::string(name) == "#32768") GetWindowRect(top, &r);
        return r;
    }

    ControlHarness owner;
    HMENU menu = nullptr;
    std::vector<std::string> heard;
};

struct KeyRun {
    std::vector<int> keys;
    UINT chosen;
};

class MenuKeyTest : public MenuTrackTest, public ::testing::WithParamInterface<KeyRun> {};

TEST_P(MenuKeyTest, KeysMoveTheHighlightAndChoose) {
    Keys(GetParam().keys);
    EXPECT_EQ(static_cast<UINT>(Track(TPM_RETURNCMD)), GetParam().chosen);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, MenuKeyTest,
    ::testing::Values(
        // Down skips the separator and the greyed item; Up and Down go round the ends.
        KeyRun{{VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}, Delete},
        KeyRun{{VK_UP, VK_RETURN}, SelectAll}, KeyRun{{VK_DOWN, VK_UP, VK_RETURN}, SelectAll},
        KeyRun{{VK_END, VK_UP, VK_UP, VK_RETURN}, Copy}, KeyRun{{VK_END, VK_DOWN, VK_RETURN}, Cut},
        KeyRun{{VK_DOWN, VK_DOWN, VK_HOME, VK_RETURN}, Cut},
        // Escape, Alt, F10 and Enter on no item close it with nothing chosen.
        KeyRun{{VK_DOWN, VK_ESCAPE}, 0}, KeyRun{{VK_MENU}, 0}, KeyRun{{VK_F10}, 0},
        KeyRun{{VK_RETURN}, 0},
        // A mnemonic chooses its item; a greyed item's only takes the highlight.
        KeyRun{{Typed('d')}, Delete}, KeyRun{{Typed('A')}, SelectAll},
        KeyRun{{Typed('p'), VK_DOWN, VK_RETURN}, Delete}));

TEST_F(MenuTrackTest, OwnerHearsTheLoopAndTheHighlightThenGetsTheCommandAfterTheReturn) {
    Keys({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(Track(0), TRUE);
    // WM_MENUSELECT carries MF_HILITE and the id, then 0xFFFF and no menu as it closes.
    EXPECT_EQ(heard, (std::vector<std::string>{"enter 1 0", "init menu 0", "initpopup menu 0",
                                               "select 800065 menu", "select 800066 menu",
                                               "select ffff0000 0", "exit 1 0"}));
    heard.clear();
    ControlHarness::Pump();
    EXPECT_EQ(heard, std::vector<std::string>{"command 66 0"});
}

TEST_F(MenuTrackTest, ClickChoosesAndAReturnedCommandIsNotPosted) {
    Click(1);
    EXPECT_EQ(Track(TPM_NONOTIFY), TRUE);
    ControlHarness::Pump();
    EXPECT_EQ(heard, std::vector<std::string>{"command 66 0"});
    Click(4);
    EXPECT_EQ(Track(TPM_RETURNCMD | TPM_NONOTIFY), static_cast<BOOL>(Delete));
    ControlHarness::Pump();
    EXPECT_EQ(heard.size(), 1u);
}

TEST_F(MenuTrackTest, GreyedItemsAndSeparatorsIgnoreClicksThatLeaveActivationAndFocus) {
    HWND active = nullptr, focus = nullptr;
    Click(3);
    Click(2);
    Then([&] {
        active = GetActiveWindow();
        focus = GetFocus();
        plat::PushKey(VK_ESCAPE);
    });
    EXPECT_EQ(Track(TPM_RETURNCMD), 0);
    EXPECT_EQ(heard[3], "select 80810067 menu"); // greyed, highlighted by the mouse
    EXPECT_EQ(active, owner.Window());
    EXPECT_EQ(focus, owner.Window());
}

TEST_F(MenuTrackTest, RightButtonChoosesOnlyWhenAllowed) {
    Click(0, 1);
    Keys({VK_ESCAPE});
    EXPECT_EQ(Track(TPM_RETURNCMD), 0);
    Click(0, 1);
    EXPECT_EQ(Track(TPM_RETURNCMD | TPM_RIGHTBUTTON), static_cast<BOOL>(Cut));
}

TEST_F(MenuTrackTest, ClickOutsideDismissesAndIsNotPassedOn) {
    Then([this] {
        POINT p{300, 250};
        ClientToScreen(owner.Window(), &p);
        plat::PushClick(p, 0);
    });
    EXPECT_EQ(Track(0), TRUE);
    ControlHarness::Pump();
    EXPECT_EQ(heard.back(), "exit 1 0");
    EXPECT_TRUE(std::none_of(heard.begin(), heard.end(),
                             [](const std::string& line) { return line.starts_with("press"); }));
}

TEST_F(MenuTrackTest, TimersRunWhileOpenAndEndingAllModalLoopsClosesIt) {
    int depth = 0;
    SetTimer(owner.Window(), 7, 100, nullptr);
    owner.hook = [&](UINT msg, WPARAM, LPARAM, LRESULT*) {
        if (msg != WM_TIMER) return false;
        depth = ModalDepth();
        KillTimer(owner.Window(), 7);
        EndAllModalLoops(IDCANCEL);
        return true;
    };
    EXPECT_EQ(Track(TPM_RETURNCMD), 0);
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(ModalDepth(), 0);
    EXPECT_EQ(MenuWindowRect(), RECT{});
}

TEST_F(MenuTrackTest, RefusesBadHandlesAndASecondMenu) {
    EXPECT_FALSE(TrackPopupMenu(nullptr, 0, 0, 0, 0, owner.Window(), nullptr));
    EXPECT_FALSE(TrackPopupMenu(menu, 0, 0, 0, 0, reinterpret_cast<HWND>(0x4321), nullptr));
    EXPECT_FALSE(EndMenu());
    BOOL second = TRUE;
    Then([&] {
        second = TrackPopupMenu(menu, 0, 0, 0, 0, owner.Window(), nullptr);
        EXPECT_TRUE(EndMenu());
    });
    EXPECT_EQ(Track(TPM_RETURNCMD), 0);
    EXPECT_FALSE(second);
}

TEST_F(MenuTrackTest, OpensWhereTheFlagsSayUnlessTheScreenEndsThereAndEmptyAsAFrame) {
    // Which corner lies on the point: the top left, or the bottom right with the flags or
    // where the screen ends.
    const struct {
        UINT flags;
        int x, y;
        bool farCorner;
    } runs[] = {{0, 100, 100, false},
                {TPM_RIGHTALIGN | TPM_BOTTOMALIGN, 600, 600, true},
                {0, 1270, 1010, true},
                {TPM_RIGHTALIGN | TPM_BOTTOMALIGN, 5, 5, false}};
    RECT r{};
    for (const auto& run : runs) {
        Then([&] {
            r = MenuWindowRect();
            plat::PushKey(VK_ESCAPE);
        });
        Track(run.flags, run.x, run.y);
        EXPECT_EQ((POINT{run.farCorner ? r.right : r.left, run.farCorner ? r.bottom : r.top}),
                  (POINT{run.x, run.y}));
    }
    HMENU empty = CreatePopupMenu();
    Then([&] {
        r = MenuWindowRect();
        plat::PushKey(VK_ESCAPE);
    });
    EXPECT_TRUE(Track(0, 50, 60, empty));
    EXPECT_EQ(r, (RECT{50, 60, 56, 66}));
    DestroyMenu(empty);
}

TEST_F(MenuTrackTest, ScreenShowsTheHighlightedRowTheFaceAndTheCheckMark) {
    std::vector<COLORREF> seen;
    Keys({VK_DOWN, VK_DOWN});
    Then([&] {
        cairo_surface_t* screen = plat::ComposeScreen();
        cairo_surface_flush(screen);
        // Near the top left of Cut and of Copy, and in the middle of Select All's check column.
        for (auto [item, middle] : {std::pair{0, false}, {1, false}, {5, true}}) {
            RECT r;
            GetMenuItemRect(nullptr, menu, static_cast<UINT>(item), &r);
            int inset = middle ? (r.bottom - r.top) / 2 : 2;
            const BYTE* px = cairo_image_surface_get_data(screen) +
                             (r.top + inset) * cairo_image_surface_get_stride(screen) +
                             4 * (r.left + inset);
            seen.push_back(RGB(px[2], px[1], px[0]));
        }
        cairo_surface_destroy(screen);
        plat::PushKey(VK_ESCAPE);
    });
    Track(0);
    EXPECT_EQ(seen, (std::vector<COLORREF>{GetSysColor(COLOR_MENU), GetSysColor(COLOR_HIGHLIGHT),
                                           GetSysColor(COLOR_MENUTEXT)}));
}

} // namespace
