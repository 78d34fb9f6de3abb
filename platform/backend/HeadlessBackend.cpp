#include "platform/backend/HeadlessBackend.h"

#include <memory>

#include "platform/gdi/SurfaceDC.h"

namespace plat {

namespace {
// How long the clock may run on timers alone before the program counts as hung: long enough
// for any blinking or delayed message, short enough to end a test that forgot to close a box.
constexpr DWORD AutoAdvanceLimit = 10 * 60 * 1000;

bool Before(DWORD a, DWORD b) { return static_cast<std::int32_t>(a - b) < 0; }
}  // namespace

void HeadlessBackend::SetScreenSize(SIZE size) {
    screen = size;
    if (&CurrentBackend() == this) ::SetScreenSize(size.cx, size.cy);
}

bool HeadlessBackend::Wait(std::optional<DWORD> nextTimer) {
    if (waiting) {
        if (nextTimer && !Before(waitUntil, *nextTimer)) {
            if (Before(now, *nextTimer)) now = *nextTimer;
        } else {
            now = waitUntil;
            waiting = false;
        }
        idleSince = now;
        return true;
    }
    if (!actions.empty()) {
        auto action = std::move(actions.front());
        actions.pop_front();
        action();
        idleSince = now;
        return true;
    }
    if (autoAdvance && nextTimer && Before(*nextTimer - AutoAdvanceLimit, idleSince)) {
        if (Before(now, *nextTimer)) now = *nextTimer;
        return true;
    }
    return false;
}

namespace {
Backend*& Installed() {
    static Backend* backend = nullptr;
    return backend;
}
}  // namespace

HeadlessBackend& Headless() {
    static HeadlessBackend* headless = [] {
        auto* h = new HeadlessBackend;
        if (!Installed()) Installed() = h;
        return h;
    }();
    return *headless;
}

Backend& CurrentBackend() {
    if (!Installed()) Headless();
    return *Installed();
}

void InstallBackend(Backend* backend) {
    Installed() = backend;
    // Drawing contexts of the screen report its size.
    SIZE s = backend->ScreenSize();
    ::SetScreenSize(s.cx, s.cy);
}

}  // namespace plat
