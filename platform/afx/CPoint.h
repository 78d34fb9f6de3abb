#pragma once

#include "platform/base/WinTypes.h"

class CPoint : public POINT {
public:
    CPoint() = default;
    CPoint(int px, int py) { x = px, y = py; }
    CPoint(POINT p) : POINT(p) {}
    // The coordinates packed in a mouse message's lParam.
    explicit CPoint(LPARAM packed) { x = GET_X_LPARAM(packed), y = GET_Y_LPARAM(packed); }
    void Offset(int dx, int dy) { x += dx, y += dy; }
    CPoint operator+(POINT p) const { return CPoint(x + p.x, y + p.y); }
    CPoint operator-(POINT p) const { return CPoint(x - p.x, y - p.y); }
};
