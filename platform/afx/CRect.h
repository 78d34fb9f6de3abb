#pragma once

#include "platform/afx/CPoint.h"
#include "platform/afx/CSize.h"
#include "platform/base/Rect.h"

class CRect : public RECT {
public:
    CRect() = default;
    CRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    CRect(const RECT& r) : RECT(r) {}
    CRect(POINT topLeft, SIZE size) : CRect(topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy) {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    bool IsRectEmpty() const { return ::IsRectEmpty(this) != 0; }
    bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    bool PtInRect(POINT p) const { return ::PtInRect(this, p) != 0; }
    void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
    void OffsetRect(POINT p) { ::OffsetRect(this, p.x, p.y); }
    void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
    void DeflateRect(int dx, int dy) { ::InflateRect(this, -dx, -dy); }
    bool IntersectRect(const RECT* a, const RECT* b) { return ::IntersectRect(this, a, b) != 0; }
    bool UnionRect(const RECT* a, const RECT* b) { return ::UnionRect(this, a, b) != 0; }
    void NormalizeRect() {
        if (left > right) std::swap(left, right);
        if (top > bottom) std::swap(top, bottom);
    }
    operator RECT*() { return this; }
    operator const RECT*() const { return this; }
};
