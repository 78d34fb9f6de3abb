#pragma once
// The pixels that a one-pixel line sets, as the platform sets them: a Bresenham walk from the
// first point that stops before the last one, in every direction. Drawing whole pixels this
// way, rather than stroking antialiased paths, keeps lines crisp and lets grid lines meet
// exactly.

#include "platform/base/WinTypes.h"

#include <span>
#include <vector>

namespace gdi {

// Appends the pixels from `from` up to, not including, `to`.
void WalkLine(POINT from, POINT to, std::vector<POINT>& pixels);

// Splits the pixels of a styled line (PS_DASH, PS_DOT, PS_DASHDOT) into the pixels drawn in the
// pen's colour and the gaps between them. Solid styles put everything in `on`.
void SplitByStyle(std::span<const POINT> pixels, int style, std::vector<POINT>& on,
                  std::vector<POINT>& gaps);

// Joins pixels into few rectangles: runs along rows, then runs of equal spans down columns.
std::vector<RECT> PixelsToRects(std::span<const POINT> pixels);

} // namespace gdi
