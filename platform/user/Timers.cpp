#include "platform/backend/Backend.h"
#include "platform/user/Internal.h"

using namespace plat;

UINT_PTR SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc) {
    if (hwnd && !W(hwnd)) return 0;
    return WM().timers.Set(hwnd, id, elapse, proc, WM().GetBackend().Now());
}

BOOL KillTimer(HWND hwnd, UINT_PTR id) {
    bool killed = WM().timers.Kill(hwnd, id);
    // A WM_TIMER already posted for it must not arrive any more.
    std::erase_if(WM().queue.posted, [&](const MSG& m) {
        return m.message == WM_TIMER && m.hwnd == hwnd && m.wParam == id;
    });
    return killed;
}

DWORD GetTickCount() { return WM().GetBackend().Now(); }

void Sleep(DWORD ms) { WM().GetBackend().Sleep(ms); }
