#pragma once
// Painting whole pixels on a context's target under its clip. Where a colour simply replaces
// the pixels the work goes through cairo, so that a printer's page gets vector shapes; where
// the new pixels depend on the old ones (inversion, exclusive or) it is done on the pixels, and
// only raster targets take it. All rectangles are in surface coordinates.

#include "platform/gdi/DeviceContext.h"

#include <cstdint>
#include <span>

namespace gdi {

// Makes the brush the source of `cr`; false for a null brush, which paints nothing.
bool UseBrush(DeviceContext& dc, cairo_t* cr, const Brush& brush);
void SetSourceColor(cairo_t* cr, COLORREF color);

void FillRects(DeviceContext& dc, std::span<const RECT> rects, COLORREF color);
// Solid and pattern brushes; a null brush paints nothing.
void FillRectsWithBrush(DeviceContext& dc, std::span<const RECT> rects, const Brush& brush);
// Exclusive or of the colour bits with `mask`; false when the target is not a raster.
bool XorRects(DeviceContext& dc, std::span<const RECT> rects, std::uint32_t mask);
// Inverts single pixels; false when the target is not a raster.
bool InvertPixels(DeviceContext& dc, std::span<const POINT> pixels);
// A pen's pixels under the context's mix mode (SetROP2).
bool MixRects(DeviceContext& dc, std::span<const RECT> rects, COLORREF color);
// A brush's pixels under the context's mix mode.
bool MixRectsWithBrush(DeviceContext& dc, std::span<const RECT> rects, const Brush& brush);

} // namespace gdi
