#pragma once
// The record behind a window handle. Only the window manager's own files use it; programs
// see handles and the functions of User.h.

#include <cairo.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/user/User.h"

namespace plat {

struct WindowClass {
    std::string name;
    WNDCLASS wc;
};

struct Window {
    HWND handle = nullptr;
    const WindowClass* cls = nullptr;
    WNDPROC proc = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    int id = 0;
    HINSTANCE instance = nullptr;
    std::string text;
    LONG_PTR userData = 0;
    std::map<int, LONG_PTR> extra;

    Window* parent = nullptr;  // the desktop for top-level windows
    Window* owner = nullptr;   // popups and dialogs
    std::vector<Window*> children;  // z-order: front first, which is also the tab order

    // The window's rectangle relative to its parent's client area (the screen for top-level
    // windows) and the client area's rectangle within the window.
    RECT rect;
    RECT clientInWindow;

    // What must be painted, in client coordinates, and whether the background is to be erased
    // first.
    cairo_region_t* update = nullptr;
    bool erasePending = false;
    bool internalPaint = false;
    bool framePending = false;  // the frame is drawn at the next BeginPaint, after the parent's

    HWND lastFocus = nullptr;  // top-level windows: the control to give the focus back to
    bool destroying = false;
    bool created = false;

    // Top-level windows own the pixels of themselves and all their children.
    cairo_surface_t* surface = nullptr;

    ~Window();

    bool IsChild() const { return (style & WS_CHILD) != 0; }
    bool Visible() const { return (style & WS_VISIBLE) != 0; }
    bool Enabled() const { return (style & WS_DISABLED) == 0; }
    int Width() const { return rect.right - rect.left; }
    int Height() const { return rect.bottom - rect.top; }
    RECT ClientRect() const {
        return RECT{0, 0, clientInWindow.right - clientInWindow.left,
                    clientInWindow.bottom - clientInWindow.top};
    }
    // The top-level window whose surface this window draws on.
    Window* TopLevel();
    // Visible, and so are all its ancestors.
    bool ReallyVisible() const;
    // Where the client area's origin lies on the screen and on the top-level's surface.
    POINT ClientOriginOnScreen() const;
    POINT ClientOriginOnSurface() const;
    bool NeedsPaint() const;
};

}  // namespace plat
