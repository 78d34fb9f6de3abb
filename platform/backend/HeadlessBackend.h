#pragma once
// A machine made up in memory, for tests and scripts: a virtual screen, a virtual clock that
// moves only when nothing else can happen, and input from a queue of actions. Two runs of the
// same program with the same actions do exactly the same.

#include <deque>
#include <functional>

#include "platform/backend/Backend.h"

namespace plat {

class HeadlessBackend : public Backend {
public:
    explicit HeadlessBackend(SIZE screen = SIZE{1280, 1024}) : screen(screen) {}

    // Runs `action` when the queue is next empty, after the actions queued before it. An action
    // typically hands in input (PushKey, PushClick) or calls WaitFor.
    void Schedule(std::function<void()> action) { actions.push_back(std::move(action)); }
    bool HasActions() const { return !actions.empty(); }
    // Lets `ms` of virtual time pass before the next action; timers fire at their due times.
    void WaitFor(DWORD ms) { waitUntil = now + ms, waiting = true; }
    // Whether the clock may jump to the next timer when nothing else is left (tests); scripts
    // turn it off so that only their own waits move time.
    void SetAutoAdvance(bool on) { autoAdvance = on; }
    void SetScreenSize(SIZE size);

    DWORD Now() const override { return now; }
    void Sleep(DWORD ms) override { now += ms; }
    bool Wait(std::optional<DWORD> nextTimer) override;
    SIZE ScreenSize() const override { return screen; }
    void TopLevelChanged(HWND) override {}
    void TopLevelPainted(HWND) override {}
    void Beep(DWORD, DWORD) override {}
    std::string ClipboardText() override { return clipboard; }
    void SetClipboardText(const std::string& text) override { clipboard = text; }

private:
    SIZE screen;
    DWORD now = 1000;
    DWORD waitUntil = 0;
    bool waiting = false;
    bool autoAdvance = true;
    DWORD idleSince = 1000;
    std::deque<std::function<void()>> actions;
    std::string clipboard;
};

// The headless backend of the process, installed if no backend was yet.
HeadlessBackend& Headless();

}  // namespace plat
