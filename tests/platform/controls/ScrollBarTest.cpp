// The scroll bar control: its range, page and position, and what it tells its parent when the
// mouse works its arrows, shaft and thumb.

#include "platform/controls/ScrollBar.h"

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"

#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;

constexpr int Length = 200;
constexpr int Arrow = 16; // SM_CYVSCROLL

class ScrollBarTest : public ::testing::Test {
protected:
    HWND Make(DWORD style, int min, int max, UINT page, int pos) {
        bool vertical = style & SBS_VERT;
        bar = harness.Add("ScrollBar", style, 10, 10, vertical ? 16 : Length,
                          vertical ? Length : 16, 7);
        SCROLLINFO info;
        info.fMask = SIF_ALL;
        info.nMin = min;
        info.nMax = max;
        info.nPage = page;
        info.nPos = pos;
        SetScrollInfo(bar, SB_CTL, &info, TRUE);
        return bar;
    }
    void Later() { plat::Headless().Sleep(1000); }

    ControlHarness harness;
    HWND bar = nullptr;
};

TEST_F(ScrollBarTest, ArrowsAndShaftSendTheirCodesThenEndScroll) {
    Make(SBS_VERT, 0, 99, 10, 50);
    const struct {
        int y;
        const char* code;
    } clicks[] = {{3, "SB_LINEUP"},
                  {Length - 3, "SB_LINEDOWN"},
                  {Arrow + 3, "SB_PAGEUP"},
                  {Length - Arrow - 3, "SB_PAGEDOWN"}};
    for (const auto& c : clicks) {
        ControlHarness::Click(bar, 8, c.y);
        Later();
        EXPECT_EQ(harness.Take(),
                  (Events{std::string("VSCROLL ") + c.code + " 0", "VSCROLL SB_ENDSCROLL 0"}))
            << c.y;
        EXPECT_EQ(harness.lastScrollBar, bar);
    }
    // The bar itself never moves: that is the parent's business.
    EXPECT_EQ(GetScrollPos(bar, SB_CTL), 50);
    EXPECT_NE(GetFocus(), bar);
}

TEST_F(ScrollBarTest, HeldArrowRepeatsWhileThePointerStaysOnIt) {
    Make(SBS_VERT, 0, 99, 10, 50);
    ControlHarness::Press(bar, 8, Length - 3);
    for (int i = 0; i < 5; ++i) {
        Sleep(150);
        ControlHarness::Pump();
    }
    Events held = harness.Take();
    EXPECT_GT(held.size(), 3u);
    for (const std::string& e : held) EXPECT_EQ(e, "VSCROLL SB_LINEDOWN 0");
    // Off the arrow it pauses; the release ends it.
    ControlHarness::MoveTo(bar, 100, Length - 3);
    for (int i = 0; i < 5; ++i) {
        Sleep(150);
        ControlHarness::Pump();
    }
    EXPECT_TRUE(harness.Take().empty());
    ControlHarness::Release(bar, 100, Length - 3);
    EXPECT_EQ(harness.Take(), Events{"VSCROLL SB_ENDSCROLL 0"});
    Sleep(1000);
    ControlHarness::Pump();
    EXPECT_TRUE(harness.Take().empty());
}

TEST_F(ScrollBarTest, DraggingTheThumbTracksThenSetsThePosition) {
    Make(SBS_VERT, 0, 99, 10, 0);
    // Page 10 of 100 over a 168-pixel shaft: a 16-pixel thumb at the top of the shaft.
    ControlHarness::Press(bar, 8, Arrow + 5);
    EXPECT_TRUE(harness.Take().empty());
    ControlHarness::MoveTo(bar, 8, Arrow + 5 + 76);
    SCROLLINFO info;
    info.fMask = SIF_POS | SIF_TRACKPOS;
    GetScrollInfo(bar, SB_CTL, &info);
    EXPECT_EQ(info.nPos, 0);
    EXPECT_EQ(info.nTrackPos, 45);
    // Far past the end the thumb stops at the last position the page allows.
    ControlHarness::MoveTo(bar, 8, Length + 50);
    ControlHarness::Release(bar, 8, Length + 50);
    EXPECT_EQ(harness.Take(), (Events{"VSCROLL SB_THUMBTRACK 45", "VSCROLL SB_THUMBTRACK 90",
                                      "VSCROLL SB_THUMBPOSITION 90", "VSCROLL SB_ENDSCROLL 0"}));
}

TEST_F(ScrollBarTest, HorizontalBarTellsItsParentWithHScroll) {
    Make(SBS_HORZ, 0, 10, 0, 0);
    ControlHarness::Click(bar, Length - 3, 8);
    EXPECT_EQ(harness.Take(), (Events{"HSCROLL SB_LINEDOWN 0", "HSCROLL SB_ENDSCROLL 0"}));
}

TEST_F(ScrollBarTest, DisabledArrowsAndBarsSendNothing) {
    Make(SBS_VERT, 0, 99, 10, 50);
    EXPECT_TRUE(EnableScrollBar(bar, SB_CTL, ESB_DISABLE_RTDN));
    EXPECT_FALSE(EnableScrollBar(bar, SB_CTL, ESB_DISABLE_RTDN));
    ControlHarness::Click(bar, 8, Length - 3);
    Later();
    ControlHarness::Click(bar, 8, 3);
    EXPECT_EQ(harness.Take(), (Events{"VSCROLL SB_LINEUP 0", "VSCROLL SB_ENDSCROLL 0"}));
    EnableScrollBar(bar, SB_CTL, ESB_ENABLE_BOTH);
    EnableWindow(bar, FALSE);
    Later();
    ControlHarness::Click(bar, 8, 3);
    EXPECT_TRUE(harness.Take().empty());
}

TEST_F(ScrollBarTest, PositionStaysWhereThePageStillFits) {
    struct Case {
        UINT mask;
        int min, max;
        UINT page;
        int pos;
        int wantPos;
        UINT wantPage;
    };
    const Case cases[] = {
        {SIF_ALL, 0, 100, 10, 95, 91, 10}, // the last page starts at 91
        {SIF_ALL, 0, 100, 0, 100, 100, 0}, // no page: the maximum itself
        {SIF_ALL, 0, 9, 50, 3, 0, 10},     // a page larger than the range shrinks to it
        {SIF_ALL, 10, 20, 0, -5, 10, 0},   // below the minimum
        {SIF_POS, 0, 0, 0, 30, 20, 0},     // the range and page stay as they were
    };
    Make(SBS_VERT, 0, 0, 0, 0);
    for (const Case& c : cases) {
        SCROLLINFO info;
        info.fMask = c.mask;
        info.nMin = c.min;
        info.nMax = c.max;
        info.nPage = c.page;
        info.nPos = c.pos;
        EXPECT_EQ(SetScrollInfo(bar, SB_CTL, &info, TRUE), c.wantPos) << c.pos;
        SCROLLINFO out;
        out.fMask = SIF_ALL;
        EXPECT_TRUE(GetScrollInfo(bar, SB_CTL, &out));
        EXPECT_EQ(out.nPos, c.wantPos);
        EXPECT_EQ(out.nPage, c.wantPage);
    }
    EXPECT_EQ(SetScrollPos(bar, SB_CTL, 12, TRUE), 20);
    EXPECT_EQ(GetScrollPos(bar, SB_CTL), 12);
    EXPECT_TRUE(SetScrollRange(bar, SB_CTL, 0, 5, TRUE));
    int min = -1, max = -1;
    GetScrollRange(bar, SB_CTL, &min, &max);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 5);
    EXPECT_EQ(GetScrollPos(bar, SB_CTL), 5);
    // Windows have no scroll bars of their own here.
    EXPECT_EQ(SetScrollPos(harness.Window(), SB_VERT, 3, TRUE), 0);
    EXPECT_TRUE(ShowScrollBar(bar, SB_CTL, FALSE));
    EXPECT_FALSE(IsWindowVisible(bar));
}

TEST_F(ScrollBarTest, AnEmptyRangeHasNoThumbToDrag) {
    Make(SBS_VERT, 0, 0, 0, 0);
    ControlHarness::Click(bar, 8, Length / 2);
    EXPECT_TRUE(harness.Take().empty());
}

} // namespace
