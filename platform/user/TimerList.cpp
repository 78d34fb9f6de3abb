#include "platform/user/TimerList.h"

#include <algorithm>

namespace plat {

namespace {
// Signed distance on the wrapping millisecond clock.
bool Reached(DWORD now, DWORD due) { return static_cast<std::int32_t>(now - due) >= 0; }
}  // namespace

UINT_PTR TimerList::Set(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc, DWORD now) {
    // The real system raises tiny periods to its minimum of 10 ms.
    elapse = std::max<UINT>(elapse, 10);
    if (!hwnd && id == 0) id = ++nextThreadTimer;
    for (Timer& t : timers) {
        if (t.hwnd == hwnd && t.id == id) {
            t.elapse = elapse, t.proc = proc, t.due = now + elapse;
            return hwnd ? 1 : id;
        }
    }
    timers.push_back(Timer{hwnd, id, elapse, proc, now + elapse});
    return hwnd ? 1 : id;
}

bool TimerList::Kill(HWND hwnd, UINT_PTR id) {
    auto it = std::find_if(timers.begin(), timers.end(),
                           [&](const Timer& t) { return t.hwnd == hwnd && t.id == id; });
    if (it == timers.end()) return false;
    timers.erase(it);
    return true;
}

void TimerList::KillAll(HWND hwnd) {
    std::erase_if(timers, [&](const Timer& t) { return t.hwnd == hwnd; });
}

std::optional<Timer> TimerList::TakeDue(DWORD now, HWND filter, bool remove) {
    Timer* best = nullptr;
    for (Timer& t : timers) {
        if (!Reached(now, t.due) || (filter && t.hwnd != filter)) continue;
        if (!best || static_cast<std::int32_t>(t.due - best->due) < 0) best = &t;
    }
    if (!best) return std::nullopt;
    Timer fired = *best;
    if (remove) best->due = now + best->elapse;
    return fired;
}

std::optional<DWORD> TimerList::NextDue() const {
    std::optional<DWORD> next;
    for (const Timer& t : timers)
        if (!next || static_cast<std::int32_t>(t.due - *next) < 0) next = t.due;
    return next;
}

}  // namespace plat
