// Buttons clicked as users and programs click them, and what static text and buttons look like
// when enabled and disabled.

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/gdi/Gdi.h"

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;

class ButtonTest : public ::testing::Test {
protected:
    void Later() { plat::Headless().Sleep(1000); }
    ControlHarness harness;
};

TEST_F(ButtonTest, ClickIsAPressAndAReleaseInside) {
    HWND button = harness.Add("Button", BS_PUSHBUTTON | WS_TABSTOP, 10, 10, 80, 24, 5, "Go");
    ControlHarness::Press(button, 10, 10);
    EXPECT_EQ(GetFocus(), button);
    EXPECT_EQ(GetCapture(), button);
    EXPECT_NE(SendMessage(button, BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
    // Leaving the button lets it up; coming back pushes it again.
    ControlHarness::MoveTo(button, 200, 10);
    EXPECT_EQ(SendMessage(button, BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
    ControlHarness::MoveTo(button, 10, 10);
    EXPECT_NE(SendMessage(button, BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
    EXPECT_TRUE(harness.Take().empty());
    ControlHarness::Release(button, 10, 10);
    EXPECT_EQ(harness.Take(), Events{"BN_CLICKED 5"});
    EXPECT_EQ(GetCapture(), nullptr);
    Later();
    ControlHarness::Press(button, 10, 10);
    ControlHarness::Release(button, 200, 10);
    EXPECT_TRUE(harness.Take().empty());
}

TEST_F(ButtonTest, SpaceAndBmClickClickButADisabledButtonStaysSilent) {
    HWND button = harness.Add("Button", BS_PUSHBUTTON | WS_TABSTOP, 10, 10, 80, 24, 6, "Go");
    SetFocus(button);
    ControlHarness::Key(VK_SPACE);
    SendMessage(button, BM_CLICK, 0, 0);
    EXPECT_EQ(harness.Take(), (Events{"BN_CLICKED 6", "BN_CLICKED 6"}));
    EnableWindow(button, FALSE);
    SendMessage(button, BM_CLICK, 0, 0);
    Later();
    ControlHarness::Click(button, 10, 10);
    EXPECT_TRUE(harness.Take().empty());
}

TEST_F(ButtonTest, DialogCodesFollowTheDefaultStyle) {
    HWND button = harness.Add("Button", BS_PUSHBUTTON, 10, 10, 80, 24, 1, "OK");
    EXPECT_EQ(SendMessage(button, WM_GETDLGCODE, 0, 0), DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON);
    SendMessage(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(SendMessage(button, WM_GETDLGCODE, 0, 0), DLGC_BUTTON | DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(GetWindowLong(button, GWL_STYLE) & BS_TYPEMASK, BS_DEFPUSHBUTTON);
}

TEST_F(ButtonTest, AutomaticCheckBoxesAndRadioButtonsMarkThemselves) {
    HWND check = harness.Add("Button", BS_AUTOCHECKBOX | WS_TABSTOP, 10, 10, 100, 20, 10, "Check");
    HWND manual = harness.Add("Button", BS_CHECKBOX | WS_TABSTOP, 10, 30, 100, 20, 11, "Manual");
    HWND up = harness.Add("Button", BS_AUTORADIOBUTTON | WS_GROUP, 10, 50, 100, 20, 12, "Up");
    HWND down = harness.Add("Button", BS_AUTORADIOBUTTON, 10, 70, 100, 20, 13, "Down");
    HWND other = harness.Add("Button", BS_AUTORADIOBUTTON | WS_GROUP, 10, 90, 100, 20, 14, "Other");
    SendMessage(check, BM_CLICK, 0, 0);
    SendMessage(manual, BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessage(check, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessage(manual, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    SendMessage(check, BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessage(check, BM_GETCHECK, 0, 0), BST_UNCHECKED);

    SendMessage(other, BM_SETCHECK, BST_CHECKED, 0);
    SendMessage(up, BM_CLICK, 0, 0);
    SendMessage(down, BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessage(up, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(SendMessage(down, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessage(other, BM_GETCHECK, 0, 0), BST_CHECKED); // another group
    EXPECT_EQ(harness.Take(), (Events{"BN_CLICKED 10", "BN_CLICKED 11", "BN_CLICKED 10",
                                      "BN_CLICKED 12", "BN_CLICKED 13"}));
}

TEST_F(ButtonTest, NotifyingStaticReportsClicksOthersLetThemThrough) {
    HWND label = harness.Add("Static", SS_NOTIFY, 10, 10, 100, 20, 20, "Label");
    HWND plain = harness.Add("Static", 0, 10, 40, 100, 20, 21, "Plain");
    ControlHarness::Click(label, 5, 5);
    Later();
    ControlHarness::Click(plain, 5, 5);
    EXPECT_EQ(harness.Take(), Events{"STN_CLICKED 20"});
    EXPECT_EQ(SendMessage(plain, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
}

// Counts the pixels of a window's client area, as painted, that pass a test. Text is drawn
// with smoothed edges, so tests look for pixels near a colour rather than equal to it.
int CountPixels(HWND hwnd, const std::function<bool(COLORREF)>& test) {
    UpdateWindow(hwnd);
    HDC dc = GetDC(hwnd);
    RECT r;
    GetClientRect(hwnd, &r);
    int n = 0;
    for (int y = 0; y < r.bottom; ++y)
        for (int x = 0; x < r.right; ++x)
            if (test(GetPixel(dc, x, y))) ++n;
    ReleaseDC(hwnd, dc);
    return n;
}

bool Reddish(COLORREF c) {
    return GetRValue(c) > 150 && GetGValue(c) < 110 && GetBValue(c) < 110;
}
bool Dark(COLORREF c) {
    return GetRValue(c) < 60 && GetGValue(c) < 60 && GetBValue(c) < 60;
}
// The grey of disabled text, or text smoothed into the face around it.
bool Greyish(COLORREF c) {
    int r = GetRValue(c), g = GetGValue(c), b = GetBValue(c);
    return std::abs(r - g) < 12 && std::abs(g - b) < 12 && r >= 100 && r < 180;
}

TEST_F(ButtonTest, StaticTakesTheParentsColourButADisabledOneIsGrey) {
    constexpr COLORREF Red = RGB(255, 0, 0);
    // As the parcel dialog does: the default answer, then red text.
    harness.hook = [&](UINT msg, WPARAM wParam, LPARAM lParam, LRESULT* result) {
        if (msg != WM_CTLCOLORSTATIC) return false;
        *result = DefWindowProc(harness.Window(), msg, wParam, lParam);
        SetTextColor(reinterpret_cast<HDC>(wParam), Red);
        return true;
    };
    HWND label = harness.Add("Static", SS_LEFT, 10, 10, 200, 20, 30, "WARNING WARNING");
    EXPECT_GT(CountPixels(label, Reddish), 20);
    EXPECT_EQ(CountPixels(label, Greyish), 0);
    EnableWindow(label, FALSE);
    EXPECT_EQ(CountPixels(label, Reddish), 0);
    EXPECT_GT(CountPixels(label, Greyish), 20);
    harness.hook = nullptr;
}

TEST_F(ButtonTest, StaticRepaintsNewTextAndWrapsIt) {
    HWND label = harness.Add("Static", SS_LEFT, 10, 10, 60, 60, 31, "");
    EXPECT_EQ(CountPixels(label, Dark), 0);
    SetWindowText(label, "several words to wrap");
    EXPECT_GT(CountPixels(label, Dark), 20);
    // Wrapped, the text reaches below its first line.
    HDC dc = GetDC(label);
    TEXTMETRIC tm;
    SelectObject(dc, GetStockObject(SYSTEM_FONT));
    GetTextMetrics(dc, &tm);
    bool below = false;
    for (int y = tm.tmHeight + 1; y < 60 && !below; ++y)
        for (int x = 0; x < 60; ++x)
            if (Dark(GetPixel(dc, x, y))) below = true;
    ReleaseDC(label, dc);
    EXPECT_TRUE(below);
}

TEST_F(ButtonTest, DisabledButtonTextIsGrey) {
    HWND button = harness.Add("Button", BS_PUSHBUTTON, 10, 10, 100, 30, 40, "Button");
    int grey = CountPixels(button, Greyish);
    EXPECT_GT(CountPixels(button, Dark), 10);
    EnableWindow(button, FALSE);
    EXPECT_EQ(CountPixels(button, Dark), 0);
    EXPECT_GT(CountPixels(button, Greyish), grey + 10);
}

} // namespace
