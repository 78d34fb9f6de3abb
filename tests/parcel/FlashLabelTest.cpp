// The status line's blinking on the virtual clock: lit with a beep first, grey between, the
// end of a message by Stop or by its time, and a new message over a running one.

#include "parcel/FlashLabel.h"

#include "platform/backend/HeadlessBackend.h"
#include "platform/user/WindowManager.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

class FlashLabelTest : public ::testing::Test {
protected:
    void SetUp() override {
        plat::Headless().SetAutoAdvance(false);
        parent.CreateEx(0, AfxRegisterWndClass(0), "dialog", WS_POPUP | WS_VISIBLE,
                        RECT{0, 0, 300, 100}, nullptr, 0);
        label.Create("", WS_CHILD | WS_VISIBLE, RECT{10, 10, 290, 30}, &parent, 1001);
        previous = plat::WindowManager::Get().onEvent;
        plat::WindowManager::Get().onEvent = [this](const std::string& kind,
                                                    const std::string& text) {
            if (kind == "beep") beeps.push_back(Elapsed());
            EXPECT_EQ(text, "100 100");
        };
        start = GetTickCount();
    }
    void TearDown() override {
        plat::WindowManager::Get().onEvent = previous;
        label.DestroyWindow();
        parent.DestroyWindow();
        plat::Headless().SetAutoAdvance(true);
    }

    DWORD Elapsed() const { return GetTickCount() - start; }
    // Lets the clock run to `until` ms after the start, with every timer due on the way.
    void RunTo(DWORD until) {
        plat::Headless().WaitFor(until - Elapsed());
        MSG msg;
        while (Elapsed() < until) {
            if (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
                DispatchMessage(&msg);
            else
                WaitMessage();
        }
        while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessage(&msg);
    }
    std::string Text() const { return label.GetWindowText(); }
    bool Lit() const { return IsWindowEnabled(label.m_hWnd); }

    CWnd parent;
    FlashLabel label;
    std::vector<DWORD> beeps;
    std::function<void(const std::string&, const std::string&)> previous;
    DWORD start = 0;
};

} // namespace

TEST_F(FlashLabelTest, LightsWithABeepEveryOtherTickUntilStopped) {
    label.Start(0, 200, "Layer 0 has no type");
    EXPECT_EQ(Text(), "Layer 0 has no type");
    RunTo(200);
    EXPECT_TRUE(Lit());
    RunTo(400);
    EXPECT_FALSE(Lit());
    RunTo(1000);
    EXPECT_TRUE(Lit());
    EXPECT_EQ(beeps, (std::vector<DWORD>{200, 600, 1000}));

    // Stopped while grey: enabled, empty, and silent from then on.
    RunTo(1200);
    ASSERT_FALSE(Lit());
    label.Stop();
    EXPECT_TRUE(Lit());
    EXPECT_EQ(Text(), "");
    RunTo(2000);
    EXPECT_EQ(beeps.size(), 3u);
}

TEST_F(FlashLabelTest, AMessageWithAnEndGoesAtItsTime) {
    label.Start(500, 200, "first");
    RunTo(400);
    ASSERT_FALSE(Lit());
    RunTo(500);
    EXPECT_TRUE(Lit());
    EXPECT_EQ(Text(), "");
    RunTo(1500);
    EXPECT_EQ(beeps, (std::vector<DWORD>{200}));
}

TEST_F(FlashLabelTest, ANewMessageReplacesARunningOneAndLightsFirst) {
    label.Start(0, 200, "first");
    RunTo(400);
    ASSERT_FALSE(Lit());
    label.Start(0, 300, "second");
    EXPECT_EQ(Text(), "second");
    RunTo(700);
    EXPECT_TRUE(Lit());
    RunTo(1000);
    EXPECT_FALSE(Lit());
    EXPECT_EQ(beeps, (std::vector<DWORD>{200, 700}));
    label.Stop();
}
