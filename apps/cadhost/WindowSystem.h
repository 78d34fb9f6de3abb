#pragma once
// The machine cadhost runs its windows on. Headless when asked for (--headless, or a script,
// which plays on the headless backend only), when there is no display, or when SDL cannot
// open one; otherwise real windows through SDL. Installed for the life of the object.

#include "platform/backend/SdlBackend.h"

#include <memory>

class CommandLine;

class WindowSystem {
public:
    explicit WindowSystem(const CommandLine& options);
    ~WindowSystem();
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;

    bool Headless() const { return !sdl; }
    // Where the host's main window goes: the whole virtual screen headless; with a display,
    // most of the screen, so that the terminal the host was started from stays in reach.
    RECT MainWindowArea() const;

private:
    std::unique_ptr<plat::SdlBackend> sdl;
};
