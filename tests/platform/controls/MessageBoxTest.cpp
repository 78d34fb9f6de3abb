// Message boxes answered with the keyboard and the mouse, the way scripts of the host program
// answer them, and what runs around them while they are open.

#include "ControlHarness.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Input.h"
#include "platform/user/WindowManager.h"

#include <gtest/gtest.h>

namespace {

struct KeyRun {
    UINT type;
    std::vector<int> keys; // each pressed once the box waits for input
    int result;
};

void PrintTo(const KeyRun& run, std::ostream* out) {
    *out << "type 0x" << std::hex << run.type << std::dec << " keys";
    for (int key : run.keys)
        *out << ' ' << (key == VK_RETURN ? "Enter" : key == VK_ESCAPE ? "Escape" : "Tab");
    *out << " gives " << run.result;
}

class MessageBoxTest : public ::testing::TestWithParam<KeyRun> {
protected:
    ControlHarness owner;
};

TEST_P(MessageBoxTest, KeysPressTheButtons) {
    const KeyRun& run = GetParam();
    for (int key : run.keys) plat::Headless().Schedule([key] { plat::PushKey(key); });
    EXPECT_EQ(MessageBox(owner.Window(), "Question?", "Caption", run.type), run.result);
    EXPECT_FALSE(plat::Headless().HasActions());
}

INSTANTIATE_TEST_SUITE_P(
    EnterAndEscape, MessageBoxTest,
    ::testing::Values(KeyRun{MB_OK, {VK_RETURN}, IDOK}, KeyRun{MB_OK, {VK_ESCAPE}, IDOK},
                      KeyRun{MB_OKCANCEL, {VK_RETURN}, IDOK},
                      KeyRun{MB_OKCANCEL, {VK_ESCAPE}, IDCANCEL},
                      KeyRun{MB_OKCANCEL | MB_DEFBUTTON2, {VK_RETURN}, IDCANCEL},
                      // Escape does nothing where there is no Cancel.
                      KeyRun{MB_YESNO, {VK_ESCAPE, VK_RETURN}, IDYES},
                      KeyRun{MB_YESNO | MB_DEFBUTTON2, {VK_RETURN}, IDNO},
                      KeyRun{MB_YESNO | MB_DEFBUTTON2, {VK_TAB, VK_RETURN}, IDYES},
                      KeyRun{MB_YESNOCANCEL | MB_DEFBUTTON3, {VK_RETURN}, IDCANCEL},
                      KeyRun{MB_YESNOCANCEL, {VK_ESCAPE}, IDCANCEL},
                      KeyRun{MB_ABORTRETRYIGNORE | MB_DEFBUTTON2, {VK_ESCAPE, VK_RETURN}, IDRETRY},
                      KeyRun{MB_RETRYCANCEL, {VK_RETURN}, IDRETRY}));

TEST(MessageBox, OpensWithItsDefaultButtonFocusedAndTheOwnerDisabled) {
    ControlHarness owner;
    std::vector<std::string> reports;
    auto previous = plat::WindowManager::Get().onEvent;
    plat::WindowManager::Get().onEvent = [&](const std::string& kind, const std::string& text) {
        reports.push_back(kind + ": " + text);
    };
    HWND box = nullptr;
    int focused = 0;
    bool ownerEnabled = true;
    std::string caption, text;
    plat::Headless().Schedule([&] {
        box = GetActiveWindow();
        focused = GetDlgCtrlID(GetFocus());
        ownerEnabled = IsWindowEnabled(owner.Window());
        caption = GetWindowString(box);
        text = GetWindowString(GetDlgItem(box, 0xFFFF));
        plat::PushKey(VK_RETURN);
    });
    EXPECT_EQ(MessageBox(owner.Window(), "Line one\nline two", nullptr, MB_YESNO | MB_DEFBUTTON2),
              IDNO);
    plat::WindowManager::Get().onEvent = previous;
    EXPECT_EQ(focused, IDNO);
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(IsWindowEnabled(owner.Window()));
    EXPECT_EQ(caption, "Error");
    EXPECT_EQ(text, "Line one\nline two");
    EXPECT_EQ(reports, std::vector<std::string>{"msgbox: Line one\nline two"});
    EXPECT_FALSE(IsWindow(box));
}

TEST(MessageBox, AClickOnAButtonAnswersWithItsId) {
    ControlHarness owner;
    plat::Headless().Schedule([] {
        HWND cancel = GetDlgItem(GetActiveWindow(), IDCANCEL);
        RECT r;
        GetWindowRect(cancel, &r);
        plat::PushClick(POINT{(r.left + r.right) / 2, (r.top + r.bottom) / 2}, 0);
    });
    EXPECT_EQ(MessageBox(owner.Window(), "Sure?", "Q", MB_OKCANCEL), IDCANCEL);
}

TEST(MessageBox, TheOwnersTimersKeepFiringWhileItIsOpen) {
    ControlHarness owner;
    SetTimer(owner.Window(), 9, 50, nullptr);
    plat::Headless().Schedule([] { plat::Headless().WaitFor(500); });
    plat::Headless().Schedule([] { plat::PushKey(VK_ESCAPE); });
    EXPECT_EQ(MessageBox(owner.Window(), "Wait", "Q", MB_OK), IDOK);
    KillTimer(owner.Window(), 9);
    EXPECT_GE(owner.Ticks(9), 5);
}

TEST(MessageBox, LongTextWrapsInABoxThatStaysOnTheScreen) {
    std::string text;
    for (int i = 0; i < 60; ++i) text += "word ";
    RECT box{}, label{};
    plat::Headless().Schedule([&] {
        HWND dialog = GetActiveWindow();
        GetWindowRect(dialog, &box);
        GetWindowRect(GetDlgItem(dialog, 0xFFFF), &label);
        plat::PushKey(VK_RETURN);
    });
    EXPECT_EQ(MessageBox(nullptr, text.c_str(), "Long", MB_OK), IDOK);
    EXPECT_GE(box.left, 0);
    EXPECT_LE(box.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(label.right - label.left, GetSystemMetrics(SM_CXSCREEN) / 2);
    EXPECT_GT(label.bottom - label.top, 30); // several lines
}

} // namespace
