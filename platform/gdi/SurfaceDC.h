#pragma once
// How the rest of the platform makes drawing contexts: a window's context draws on the surface
// of its top-level window, shifted to the window's client origin and clipped to what of the
// window may be painted. Not for programs of the platform; they get contexts from GetDC,
// BeginPaint and CreateCompatibleDC.

#include "platform/base/WinTypes.h"

#include <cairo.h>

// `origin`: where the context's (0,0) lies on the surface. `clip`: the region, in the context's
// own coordinates, outside which nothing is drawn (copied; nullptr: the whole surface).
// The surface is referenced for the context's life. Delete the context with DeleteDC.
HDC CreateSurfaceDC(cairo_surface_t* surface, POINT origin, const cairo_region_t* clip);

// The resolution a context reports through GetDeviceCaps(LOGPIXELSX/Y).
constexpr int ScreenPixelsPerInch = 96;

// The size of the screen that screen and memory contexts report as HORZRES and VERTRES; the
// backend sets it at start-up (1280 by 1024 until then).
void SetScreenSize(int width, int height);

// The region object's region (read only); null for anything that is not a region.
const cairo_region_t* RegionOf(HRGN rgn);
// Makes the region object hold a copy of `region`; false for anything that is not a region.
bool AssignRegion(HRGN rgn, const cairo_region_t* region);
