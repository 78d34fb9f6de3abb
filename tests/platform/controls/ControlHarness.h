#pragma once
// A top-level window to hold controls under test. It writes down what its children tell it in
// the words of the recorded traces ("EN_UPDATE \"12\"", "LBN_SELCHANGE", "VSCROLL SB_LINEDOWN 0")
// and drives them through the real input path: raw input into the queue, then the queue run
// through TranslateMessage and DispatchMessage as a program's loop would.

#include "platform/user/User.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

class ControlHarness {
public:
    explicit ControlHarness(int width = 400, int height = 300);
    ~ControlHarness();
    ControlHarness(const ControlHarness&) = delete;
    ControlHarness& operator=(const ControlHarness&) = delete;

    HWND Window() const { return hwnd; }
    HWND Add(const char* className, DWORD style, int x, int y, int width, int height, int id,
             const char* text = "");
    // What the children reported since the last call, oldest first.
    std::vector<std::string> Take();
    int Ticks(UINT_PTR timer) const;
    // Sees every message first; answering true with a result keeps it from the default.
    std::function<bool(UINT msg, WPARAM wParam, LPARAM lParam, LRESULT* result)> hook;
    HWND lastScrollBar = nullptr; // lParam of the last WM_VSCROLL or WM_HSCROLL

    // Runs every message that is waiting; no time passes.
    static void Pump();
    // Input at a point of a window's client area, and keys, each followed by Pump.
    static void Press(HWND target, int x, int y);
    static void MoveTo(HWND target, int x, int y);
    static void Release(HWND target, int x, int y);
    static void Click(HWND target, int x, int y, bool doubleClick = false);
    static void Key(int vk, bool shift = false, bool ctrl = false);
    static void Type(const std::string& text);

private:
    static LRESULT Proc(HWND h, UINT msg, WPARAM wParam, LPARAM lParam);
    void Record(UINT msg, WPARAM wParam, LPARAM lParam);

    HWND hwnd = nullptr;
    std::vector<std::string> events;
    std::map<UINT_PTR, int> ticks;
};
