#pragma once
// The classic three-dimensional look of the controls, drawn from the system colours: raised
// and sunken edges, arrows, embossed text of disabled controls.

#include "platform/gdi/Gdi.h"
#include "platform/user/User.h"

#include <string_view>

namespace plat {

void FillSysColor(HDC dc, const RECT& r, int sysColor);
// Every other pixel in each colour, as the shaft of a scroll bar.
void FillChecked(HDC dc, const RECT& r, int sysColorA, int sysColorB);
// A one-pixel ring just inside `r`, `topLeft` on the left and top, `bottomRight` on the right
// and bottom; `r` shrinks to what lies inside it.
void DrawRing(HDC dc, RECT& r, int topLeft, int bottomRight);
// A button standing up, and a field or a button pressed in: two rings each.
void DrawRaisedEdge(HDC dc, RECT& r);
void DrawSunkenEdge(HDC dc, RECT& r);

enum class ArrowDirection { Up, Down, Left, Right };
// A filled triangle centred in `r`, sized to the box it sits in.
void DrawArrow(HDC dc, const RECT& r, ArrowDirection direction, int sysColor);

// Text of a disabled control: grey with a white shadow, as if pressed into the face.
void DrawEmbossedText(HDC dc, std::string_view text, RECT r, UINT format);

} // namespace plat
