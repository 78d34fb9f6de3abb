#pragma once
// Services the window manager's files share with each other.

#include "platform/user/Window.h"
#include "platform/user/WindowManager.h"

namespace plat {

inline WindowManager& WM() { return WindowManager::Get(); }
inline Window* W(HWND hwnd) { return WindowManager::Get().Find(hwnd); }

// Focus and activation (Focus.cpp).
void FocusLeaves(Window* w);  // the window or a descendant is hidden, disabled or destroyed
void ActivateAnother(Window* leaving);
// Painting (Paint.cpp).
void InvalidateWindow(Window* w, const RECT* r, bool erase, bool children);
void InvalidateUnder(Window* w);  // the parent's area under a child that moved or hid
void EraseNow(Window* w);
void EnsureSurface(Window* top);
// Capture and input (Input.cpp).
void CaptureLost(Window* w);
void ForgetInput(HWND hwnd);

}  // namespace plat
