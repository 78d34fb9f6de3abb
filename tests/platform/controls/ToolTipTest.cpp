// Tool tips: a tracking tip placed by its program, and a tip that shows when the pointer rests
// on a tool and asks its window for the text.

#include "ControlHarness.h"
#include "platform/controls/ToolTips.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

class ToolTipTest : public ::testing::Test {
protected:
    void SetUp() override {
        tip = CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                             0, 0, owner.Window(), nullptr, nullptr, nullptr);
        ASSERT_NE(tip, nullptr);
    }
    void TearDown() override { DestroyWindow(tip); }
    RECT Placement() const {
        RECT r;
        GetWindowRect(tip, &r);
        return r;
    }
    // Hands the tip a mouse message of the owner, as a program relays them.
    void Relay(UINT msg, int x, int y) {
        MSG m{owner.Window(), msg, 0, MakePointLParam(x, y), 0, {}};
        SendMessage(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&m));
    }

    ControlHarness owner;
    HWND tip = nullptr;
};

TEST_F(ToolTipTest, TrackingTipShowsWhereItIsPutWithoutTakingTheActivation) {
    TOOLINFO ti;
    ti.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    ti.hwnd = owner.Window();
    ti.uId = 1;
    ti.lpszText = const_cast<char*>("Row 5");
    EXPECT_TRUE(SendMessage(tip, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&ti)));
    EXPECT_EQ(SendMessage(tip, TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_FALSE(IsWindowVisible(tip));
    SendMessage(tip, TTM_TRACKPOSITION, 0, MakePointLParam(300, 200));
    SendMessage(tip, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&ti));
    EXPECT_TRUE(IsWindowVisible(tip));
    EXPECT_EQ(GetActiveWindow(), owner.Window());
    RECT r = Placement();
    EXPECT_EQ(r.left, 300);
    EXPECT_EQ(r.top, 200);
    int narrow = r.right - r.left;
    // A longer text widens it; a new position moves it.
    ti.lpszText = const_cast<char*>("Row 5000 of 12000");
    SendMessage(tip, TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&ti));
    SendMessage(tip, TTM_TRACKPOSITION, 0, MakePointLParam(310, 250));
    r = Placement();
    EXPECT_GT(r.right - r.left, narrow);
    EXPECT_EQ(r.top, 250);
    SendMessage(tip, TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&ti));
    EXPECT_FALSE(IsWindowVisible(tip));
    SendMessage(tip, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&ti));
    EXPECT_EQ(SendMessage(tip, TTM_GETTOOLCOUNT, 0, 0), 0);
}

TEST_F(ToolTipTest, RestingPointerShowsTheTextItsWindowGivesAndAPressHidesIt) {
    int asked = 0;
    owner.hook = [&](UINT msg, WPARAM, LPARAM lParam, LRESULT*) {
        if (msg != WM_NOTIFY) return false;
        auto* info = reinterpret_cast<NMTTDISPINFO*>(lParam);
        if (info->hdr.code != TTN_GETDISPINFO) return false;
        ++asked;
        std::strcpy(info->szText, "Col:1 Row:2");
        return true;
    };
    TOOLINFO ti;
    ti.uFlags = TTF_IDISHWND;
    ti.hwnd = owner.Window();
    ti.uId = reinterpret_cast<UINT_PTR>(owner.Window());
    ti.lpszText = LPSTR_TEXTCALLBACK;
    SendMessage(tip, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&ti));
    Relay(WM_MOUSEMOVE, 40, 40);
    ControlHarness::Pump();
    EXPECT_FALSE(IsWindowVisible(tip));
    Sleep(SendMessage(tip, TTM_GETDELAYTIME, TTDT_INITIAL, 0) + 10);
    ControlHarness::Pump();
    EXPECT_TRUE(IsWindowVisible(tip));
    EXPECT_EQ(asked, 1);
    Relay(WM_LBUTTONDOWN, 40, 40);
    EXPECT_FALSE(IsWindowVisible(tip));
    // Not again on the same tool until the pointer has left it.
    Relay(WM_MOUSEMOVE, 41, 40);
    Sleep(2000);
    ControlHarness::Pump();
    EXPECT_FALSE(IsWindowVisible(tip));
    owner.hook = nullptr;
}

TEST_F(ToolTipTest, AnInactiveTipStaysHidden) {
    TOOLINFO ti;
    ti.hwnd = owner.Window();
    ti.uId = 3;
    ti.rect = RECT{0, 0, 100, 100};
    ti.lpszText = const_cast<char*>("tip");
    SendMessage(tip, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&ti));
    SendMessage(tip, TTM_ACTIVATE, FALSE, 0);
    Relay(WM_MOUSEMOVE, 10, 10);
    Sleep(2000);
    ControlHarness::Pump();
    EXPECT_FALSE(IsWindowVisible(tip));
    SendMessage(tip, TTM_ACTIVATE, TRUE, 0);
    Relay(WM_MOUSEMOVE, 150, 10); // outside the tool
    Relay(WM_MOUSEMOVE, 10, 10);
    Sleep(2000);
    ControlHarness::Pump();
    EXPECT_TRUE(IsWindowVisible(tip));
}

} // namespace
