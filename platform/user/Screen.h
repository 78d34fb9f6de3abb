#pragma once
// The screen as a person would see it: the desktop with every visible top-level window on it,
// back to front.

#include <cairo.h>

#include "platform/base/WinTypes.h"

namespace plat {

// A new image of the whole screen; the caller destroys it.
cairo_surface_t* ComposeScreen();
// The pixels of one top-level window, frame included (not a copy: valid until it repaints).
cairo_surface_t* WindowSurface(HWND topLevel);
// Writes the screen as a PNG; false when the file cannot be written.
bool WriteScreenshot(const char* path);

}  // namespace plat
