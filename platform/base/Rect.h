#pragma once
// Rectangle helpers of the window system. Right and bottom edges are exclusive.

#include "platform/base/WinTypes.h"

BOOL SetRect(RECT* r, int left, int top, int right, int bottom);
BOOL SetRectEmpty(RECT* r);
BOOL IsRectEmpty(const RECT* r);
BOOL CopyRect(RECT* dst, const RECT* src);
BOOL OffsetRect(RECT* r, int dx, int dy);
BOOL InflateRect(RECT* r, int dx, int dy);
BOOL PtInRect(const RECT* r, POINT p);
BOOL EqualRect(const RECT* a, const RECT* b);
// Both answer FALSE and an empty rectangle when nothing is left.
BOOL IntersectRect(RECT* dst, const RECT* a, const RECT* b);
BOOL UnionRect(RECT* dst, const RECT* a, const RECT* b);
BOOL SubtractRect(RECT* dst, const RECT* a, const RECT* b);

inline int RectWidth(const RECT& r) { return r.right - r.left; }
inline int RectHeight(const RECT& r) { return r.bottom - r.top; }
