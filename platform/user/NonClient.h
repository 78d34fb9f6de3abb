#pragma once
// The frame around a window's client area: borders, edges and the caption, drawn by the
// window manager itself, as the real system does for windows that leave WM_NCPAINT to it.

#include "platform/user/Window.h"

namespace plat {

// Thickness of the frame on each side, from the styles.
RECT FrameInsets(DWORD style, DWORD exStyle);
// Recomputes where the client area lies inside the window.
void PlaceClientArea(Window* w);
void DrawFrame(Window* w);
// HTCLIENT, HTCAPTION, HTBORDER or HTNOWHERE for a point in window coordinates.
int FrameHitTest(const Window* w, POINT inWindow);

}  // namespace plat
