// The virtual clock and timers: due times, periods, killing, and timers of every window
// firing inside a nested modal loop.

#include <gtest/gtest.h>

#include <vector>

#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Dialog.h"

namespace {

std::vector<std::pair<UINT_PTR, DWORD>> fired;

LRESULT Recorder(HWND h, UINT m, WPARAM w, LPARAM l) {
    if (m == WM_TIMER) fired.emplace_back(w, GetTickCount());
    return DefWindowProc(h, m, w, l);
}

HWND MakeWindow() {
    static bool registered = false;
    if (!registered) {
        WNDCLASS wc;
        wc.lpfnWndProc = Recorder;
        wc.lpszClassName = "TimerRecorder";
        RegisterClass(&wc);
        registered = true;
    }
    return CreateWindow("TimerRecorder", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
}

void RunUntilIdle() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessage(&msg);
}

}  // namespace

TEST(Timers, WaitFiresEachPeriodAtItsDueTime) {
    plat::HeadlessBackend& clock = plat::Headless();
    HWND w = MakeWindow();
    fired.clear();
    DWORD start = GetTickCount();
    SetTimer(w, 1, 200, nullptr);
    SetTimer(w, 2, 500, nullptr);
    clock.SetAutoAdvance(false);
    clock.WaitFor(1000);
    // Pump while the backend lets the time pass.
    MSG msg;
    while (GetTickCount() - start < 1000) {
        if (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessage(&msg);
        else WaitMessage();
    }
    RunUntilIdle();
    std::vector<std::pair<UINT_PTR, DWORD>> expected = {{1, 200}, {1, 400}, {2, 500}, {1, 600}, {1, 800}, {1, 1000}, {2, 1000}};
    ASSERT_EQ(fired.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(fired[i].first, expected[i].first) << i;
        EXPECT_EQ(fired[i].second - start, expected[i].second) << i;
    }
    KillTimer(w, 1);
    KillTimer(w, 2);
    DestroyWindow(w);
    clock.SetAutoAdvance(true);
}

TEST(Timers, KilledTimerNeverFiresAgainAndDestroyedWindowLosesItsTimers) {
    HWND w = MakeWindow();
    fired.clear();
    SetTimer(w, 5, 100, nullptr);
    plat::Headless().Sleep(150);
    // Due now; killing it before the queue is read must drop the pending tick.
    EXPECT_TRUE(KillTimer(w, 5));
    EXPECT_FALSE(KillTimer(w, 5));
    RunUntilIdle();
    EXPECT_TRUE(fired.empty());
    SetTimer(w, 6, 100, nullptr);
    DestroyWindow(w);
    plat::Headless().Sleep(500);
    RunUntilIdle();
    EXPECT_TRUE(fired.empty());
}

TEST(Timers, OwnerTimerKeepsFiringInsideModalDialogAndDialogEndsFromTimer) {
    HWND owner = MakeWindow();
    fired.clear();
    SetTimer(owner, 9, 50, nullptr);
    DialogTemplate tpl;
    tpl.cx = 100, tpl.cy = 50;
    tpl.caption = "wait";
    static int dialogTicks;
    dialogTicks = 0;
    INT_PTR r = DialogBoxIndirectParam(
        nullptr, &tpl, owner,
        [](HWND d, UINT m, WPARAM w, LPARAM) -> INT_PTR {
            if (m == WM_INITDIALOG) SetTimer(d, 1, 300, nullptr);
            if (m == WM_TIMER && w == 1 && ++dialogTicks == 2) EndDialog(d, 77);
            return m == WM_INITDIALOG;
        },
        0);
    EXPECT_EQ(r, 77);
    // 600 ms of dialog: the owner's 50 ms timer ticked about a dozen times meanwhile.
    EXPECT_GE(fired.size(), 11u);
    EXPECT_TRUE(IsWindowEnabled(owner));
    KillTimer(owner, 9);
    DestroyWindow(owner);
}

TEST(Timers, ModalLoopWithNothingLeftToHappenEndsInsteadOfHanging) {
    plat::Headless().SetAutoAdvance(false);
    DialogTemplate tpl;
    tpl.cx = 100, tpl.cy = 50;
    INT_PTR r = DialogBoxIndirectParam(nullptr, &tpl, nullptr, [](HWND, UINT m, WPARAM, LPARAM) -> INT_PTR { return m == WM_INITDIALOG; }, 0);
    EXPECT_EQ(r, IDCANCEL);
    MSG msg;
    // The quit that ended it is left for the outer loop.
    EXPECT_TRUE(PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    plat::Headless().SetAutoAdvance(true);
}
