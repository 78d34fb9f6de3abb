#pragma once
// What the standard controls share. A control is an object behind its window: made when the
// window's first message (WM_NCCREATE) arrives and found again by the window's handle. It lives
// until WM_NCDESTROY has been handled and no handler of it runs any more, so that a handler
// whose notification destroyed the window can still unwind; such a handler checks Gone() after
// every message it sends out. Messages may also arrive through CallWindowProc from a program
// that subclassed the control: the class's procedure serves them the same way.

#include "platform/user/User.h"

#include <memory>

namespace plat {

class ControlBase {
public:
    explicit ControlBase(HWND hwnd) : hwnd(hwnd) {}
    virtual ~ControlBase() = default;
    ControlBase(const ControlBase&) = delete;
    ControlBase& operator=(const ControlBase&) = delete;

    // The window procedure of the control class T, which answers messages with
    // `LRESULT Handle(UINT, WPARAM, LPARAM)`.
    template <class T> static LRESULT Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);

protected:
    DWORD Style() const { return static_cast<DWORD>(GetWindowLong(hwnd, GWL_STYLE)); }
    bool Focused() const { return GetFocus() == hwnd; }
    bool Gone() const { return gone; }
    // WM_COMMAND with `code` to the parent; false when the window is gone afterwards.
    bool Notify(WORD code);
    // Asks the parent for the colours (a WM_CTLCOLOR* message): sets them on `dc` and answers
    // the background brush; the system's colours when the parent has none.
    HBRUSH ControlColor(UINT msg, HDC dc);
    // The font set with WM_SETFONT, or the system font.
    HFONT Font() const;
    // The font messages, then DefWindowProc.
    LRESULT Default(UINT msg, WPARAM wParam, LPARAM lParam);

    const HWND hwnd;
    HFONT font = nullptr;

private:
    static ControlBase* Find(HWND hwnd);
    static ControlBase* Adopt(std::unique_ptr<ControlBase> control);
    static void Release(ControlBase* control);
    int busy = 0;
    bool gone = false;
};

template <class T> LRESULT ControlBase::Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    ControlBase* control = Find(hwnd);
    if (!control) {
        if (msg != WM_NCCREATE) return DefWindowProc(hwnd, msg, wParam, lParam);
        control = Adopt(std::make_unique<T>(hwnd));
    }
    ++control->busy;
    LRESULT result = static_cast<T*>(control)->Handle(msg, wParam, lParam);
    --control->busy;
    if (msg == WM_NCDESTROY) control->gone = true;
    if (control->gone && control->busy == 0) Release(control);
    return result;
}

} // namespace plat
