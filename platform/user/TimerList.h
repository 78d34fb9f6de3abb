#pragma once
// Timers of all windows. A timer is due when the clock reaches its time; it then makes one
// WM_TIMER and is due again one period later, so a late loop never sees a burst.

#include <optional>
#include <vector>

#include "platform/base/WinTypes.h"

namespace plat {

struct Timer {
    HWND hwnd = nullptr;
    UINT_PTR id = 0;
    UINT elapse = 0;
    TIMERPROC proc = nullptr;
    DWORD due = 0;
};

class TimerList {
public:
    UINT_PTR Set(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc, DWORD now);
    bool Kill(HWND hwnd, UINT_PTR id);
    void KillAll(HWND hwnd);
    // The earliest due timer whose time has come and that matches the filter; it is re-armed.
    std::optional<Timer> TakeDue(DWORD now, HWND filter, bool remove);
    std::optional<DWORD> NextDue() const;
    bool Empty() const { return timers.empty(); }

private:
    std::vector<Timer> timers;
    UINT_PTR nextThreadTimer = 0x7FFF;
};

}  // namespace plat
