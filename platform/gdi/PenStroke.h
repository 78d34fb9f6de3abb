#pragma once
// Drawing with the context's pen. One-pixel pens set whole pixels along a Bresenham walk under
// the context's mix mode, with the dashes of their style; wider pens are stroked with round
// ends and joins, and always copy their colour.

#include "platform/gdi/DeviceContext.h"

#include <span>

namespace gdi {

// Lines from each point to the next, in surface coordinates. The last pixel of the last line
// is left out, as the platform's LineTo and Polyline leave it out.
bool StrokePolyline(DeviceContext& dc, std::span<const POINT> points);

} // namespace gdi
