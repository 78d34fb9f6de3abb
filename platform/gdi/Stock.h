#pragma once
// The stock objects and the other objects contexts start with. They live as long as the
// process; DeleteObject ignores them.

#include "platform/gdi/GdiObject.h"

namespace gdi {

// Null for an unknown number, or a stock font when no font can be found.
GdiObject* StockObject(int which);
// The 1-by-1 bitmap a new memory context holds until a program selects one of its own.
Bitmap* DefaultBitmap();
// A new image surface for a bitmap, black; null when the size cannot be had.
cairo_surface_t* NewBitmapSurface(int width, int height);

} // namespace gdi
