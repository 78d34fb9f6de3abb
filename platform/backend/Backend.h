#pragma once
// What the window system needs of the machine under it: a clock, input, a place to show
// top-level windows, sound and the clipboard. The headless backend makes all of it up,
// deterministically; the SDL backend uses real windows and devices.

#include <optional>
#include <string>

#include "platform/base/WinTypes.h"

namespace plat {

class Backend {
public:
    virtual ~Backend() = default;

    virtual DWORD Now() const = 0;
    virtual void Sleep(DWORD ms) = 0;
    // Called when the queue is empty. Waits for input (handed to the window manager with
    // plat::PushInput) or for `nextTimer`, whichever comes first. Answers false when nothing can
    // ever come: the program would hang.
    virtual bool Wait(std::optional<DWORD> nextTimer) = 0;

    virtual SIZE ScreenSize() const = 0;
    // A top-level window was shown, hidden, moved, resized, retitled or destroyed.
    virtual void TopLevelChanged(HWND hwnd) = 0;
    // Pixels of a top-level window changed; the backend shows them when it next waits.
    virtual void TopLevelPainted(HWND hwnd) = 0;

    virtual void Beep(DWORD frequency, DWORD ms) = 0;
    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& text) = 0;
};

// The backend the process runs on: SDL when asked for and a display is there, else headless.
// Installed into the window manager by the first call; may be replaced before any window exists.
Backend& CurrentBackend();
void InstallBackend(Backend* backend);

}  // namespace plat
