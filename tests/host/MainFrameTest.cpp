#include "host/ui/MainFrame.h"

#include "platform/user/User.h"

#include <gtest/gtest.h>

namespace {

RECT ClientOf(HWND hwnd) {
    RECT r{};
    GetClientRect(hwnd, &r);
    return r;
}

TEST(MainFrame, DocumentFillsTheMainWindowWhichStaysWhenAskedToClose) {
    const host::MainFrame frame("plan.dwg", RECT{0, 0, 640, 480});
    EXPECT_EQ(GetWindowString(frame.Main()), "AutoCAD - [plan.dwg]");
    EXPECT_EQ(GetActiveWindow(), frame.Main());
    EXPECT_EQ(GetParent(frame.Document()), frame.Main());
    EXPECT_EQ(GetDlgItem(frame.Main(), host::MainFrame::DocumentId), frame.Document());
    EXPECT_EQ(GetWindowString(frame.Document()), "plan.dwg");
    EXPECT_TRUE(IsWindowVisible(frame.Document()));

    MoveWindow(frame.Main(), 10, 10, 500, 300, TRUE);
    const RECT main = ClientOf(frame.Main());
    const RECT document = ClientOf(frame.Document());
    EXPECT_EQ(document.right, main.right);
    EXPECT_EQ(document.bottom, main.bottom);

    SendMessage(frame.Main(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindow(frame.Main()));
}

TEST(MainFrame, WindowsAndClassesGoWithTheFrame) {
    HWND main = nullptr;
    {
        const host::MainFrame frame("a.dwg", RECT{0, 0, 200, 100});
        main = frame.Main();
    }
    EXPECT_FALSE(IsWindow(main));
    WNDCLASS ignored;
    EXPECT_FALSE(GetClassInfo(nullptr, "AcadMainFrame", &ignored));
    // A second frame registers the classes again.
    const host::MainFrame again("b.dwg", RECT{0, 0, 200, 100});
    EXPECT_TRUE(IsWindow(again.Document()));
}

} // namespace
