// The tab strip: its 64 places, which tab stays current as tabs come and go, presses on tabs
// and on the grip, and how wide the strip may be dragged.

#include "grid/windows/SheetTabs.h"

#include "platform/afx/CClientDC.h"
#include "platform/user/Input.h"
#include "tests/grid/core/GridHost.h"

#include <gtest/gtest.h>

using Strings = std::vector<std::string>;

namespace {

class Tabs : public ::testing::Test {
protected:
    void SetUp() override {
        grid.SetTabStripWidth(300);
        grid.RecalcLayout();
        grid.Take();
    }
    SheetTabs& Strip() { return *grid.tabs; }
    // A press at x in the strip, halfway down.
    void Press(int x, bool drag = false, int toX = 0) {
        RECT r;
        Strip().GetWindowRect(&r);
        const POINT at{r.left + x, (r.top + r.bottom) / 2};
        plat::ForgetLastClick();
        if (!drag) {
            plat::PushClick(at, 0);
        } else {
            plat::PushInput({plat::RawInput::MouseMove, at, 0, 0, 0});
            plat::PushInput({plat::RawInput::ButtonDown, at, 0, 0, 0});
            plat::PushInput({plat::RawInput::MouseMove, {r.left + toX, at.y}, 0, 0, 0});
            plat::PushInput({plat::RawInput::ButtonUp, {r.left + toX, at.y}, 0, 0, 0});
        }
        GridHost::Pump();
    }
    // What the strip measures for a tab's text.
    int Width(const std::string& text) {
        CFont arial;
        arial.CreateFont(14, 0, 0, 0, 500, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
        CClientDC dc(&Strip());
        dc.SelectObject(&arial);
        return dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx + 10;
    }

    GridHost host;
    RecordingGrid& grid = host.grid;
    const int arrowWidth = 2 * GetSystemMetrics(SM_CXHSCROLL);
};

} // namespace

TEST_F(Tabs, SixtyFourPlacesAndTheCurrentTabStaysAsTabsComeAndGo) {
    for (int i = 0; i < SheetTabs::MaxTabs; ++i)
        ASSERT_EQ(grid.AddTab("T" + std::to_string(i), i), 0);
    EXPECT_EQ(grid.AddTab("full", 99), 1);
    EXPECT_EQ(grid.InsertTab(3, "full", 99), 1);
    for (int i = 10; i < SheetTabs::MaxTabs; ++i) grid.DeleteTab(i);

    EXPECT_EQ(grid.SelectTab(5), 0);
    EXPECT_EQ(grid.SelectTab(77), 1);
    EXPECT_EQ(grid.Take(), (Strings{"TabSelected 5"}));
    EXPECT_EQ(grid.InsertTab(2, "new", 20), 0);
    EXPECT_EQ(grid.GetCurrentTab(), 6);
    EXPECT_EQ(grid.InsertTab(-1, "ignored", 21), 0);
    EXPECT_EQ(Strip().GetTabCount(), 11);
    EXPECT_EQ(grid.DeleteTab(9), 1);
    EXPECT_EQ(grid.GetCurrentTab(), 6);
    EXPECT_EQ(grid.DeleteTab(0), 1);
    EXPECT_EQ(grid.GetCurrentTab(), 5);
    // The current one goes: the first becomes current, and nobody is told.
    EXPECT_EQ(grid.DeleteTab(5), 1);
    EXPECT_EQ(grid.GetCurrentTab(), 0);
    EXPECT_EQ(grid.DeleteTab(5), 0);
    EXPECT_EQ(grid.SetTabTextColor(1, RGB(1, 2, 3)), 1);
    EXPECT_EQ(grid.SetTabBackColor(42, RGB(1, 2, 3)), 0);
    EXPECT_TRUE(grid.Take().empty());
}

TEST_F(Tabs, APressOnATabReportsItsIdAndTheGripSizesTheStrip) {
    grid.AddTab("First", 10);
    grid.AddTab("Second", 20);
    const int firstRight = arrowWidth + Width("First");
    Press(arrowWidth + 1);
    // The slanted gap up to two pixels right of the tab is still the tab.
    Press(firstRight + 2);
    Press(firstRight + 3);
    EXPECT_EQ(grid.Take(), (Strings{"TabSelected 10", "TabSelected 10", "TabSelected 20"}));
    EXPECT_EQ(grid.GetCurrentTab(), 1);

    // The current tab is drawn white, the others in the face colour.
    GridHost::Pump();
    RECT strip;
    Strip().GetClientRect(&strip);
    {
        CClientDC dc(&Strip());
        EXPECT_EQ(dc.GetPixel(firstRight + 8, strip.bottom - 3), RGB(255, 255, 255));
        EXPECT_EQ(dc.GetPixel(arrowWidth + 8, strip.bottom - 3), GetSysColor(COLOR_BTNFACE));
    }

    // A drag on the grip: no tab, and no wider than the control allows.
    Press(strip.right - 3, true, 390);
    EXPECT_TRUE(grid.Take().empty());
    RECT client;
    grid.GetClientRect(&client);
    EXPECT_EQ(grid.sheet->tabStripWidth, client.right - 15);
    // Shown narrower than wished, for want of room; its grip is where it is shown.
    Strip().GetClientRect(&strip);
    Press(strip.right - 3, true, 150);
    EXPECT_EQ(grid.sheet->tabStripWidth, 150);
}
