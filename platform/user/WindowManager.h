#pragma once
// The one place that holds the window system's state: the windows behind their handles, the
// registered classes, focus, activation and capture, and the backend that supplies time, input
// and the screen. Everything runs on one thread.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/user/MessageQueue.h"
#include "platform/user/TimerList.h"
#include "platform/user/Window.h"

namespace plat {

class Backend;

class WindowManager {
public:
    static WindowManager& Get();

    Window* Find(HWND hwnd) const;
    Window* Desktop() { return desktop.get(); }
    HWND Adopt(std::unique_ptr<Window> window);
    void Release(HWND hwnd);
    // Frees released records once no message is being handled any more.
    void Bury();
    int depth = 0;  // messages being handled, nested

    const WindowClass* FindClass(const std::string& name) const;
    ATOM AddClass(const WNDCLASS& wc);
    bool RemoveClass(const std::string& name);

    // Visits every window in tree order: a parent before its children, front to back.
    void ForEach(const std::function<void(Window*)>& visit);

    Backend& GetBackend();

    MessageQueue queue;
    TimerList timers;
    HWND focus = nullptr;
    HWND active = nullptr;
    HWND capture = nullptr;
    // Called when the queue is empty and the backend says nothing will ever come; the default
    // posts WM_QUIT so that every loop ends.
    std::function<void()> onStall;
    // Called for each new window before its first message, so that a framework can bind its
    // object to the window (the real system offers a hook for the same purpose).
    std::function<void(HWND)> onCreate;
    // Receives the events a transcript shows: ("msgbox", text), ("beep", "FREQ MS").
    std::function<void(const std::string& kind, const std::string& text)> onEvent;

private:
    WindowManager();
    std::unique_ptr<Window> desktop;
    std::unordered_map<std::uintptr_t, std::unique_ptr<Window>> windows;
    std::vector<std::unique_ptr<Window>> graveyard;
    std::unordered_map<std::string, std::unique_ptr<WindowClass>> classes;
    std::uintptr_t nextHandle = 0x10020;
};

void ReportEvent(const std::string& kind, const std::string& text);

}  // namespace plat
