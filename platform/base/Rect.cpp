#include "platform/base/Rect.h"

#include <algorithm>

BOOL SetRect(RECT* r, int left, int top, int right, int bottom) {
    if (!r) return FALSE;
    *r = RECT{left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(RECT* r) { return SetRect(r, 0, 0, 0, 0); }

BOOL IsRectEmpty(const RECT* r) { return !r || r->right <= r->left || r->bottom <= r->top; }

BOOL CopyRect(RECT* dst, const RECT* src) {
    if (!dst || !src) return FALSE;
    *dst = *src;
    return TRUE;
}

BOOL OffsetRect(RECT* r, int dx, int dy) {
    if (!r) return FALSE;
    r->left += dx, r->right += dx, r->top += dy, r->bottom += dy;
    return TRUE;
}

BOOL InflateRect(RECT* r, int dx, int dy) {
    if (!r) return FALSE;
    r->left -= dx, r->right += dx, r->top -= dy, r->bottom += dy;
    return TRUE;
}

BOOL PtInRect(const RECT* r, POINT p) {
    return r && p.x >= r->left && p.x < r->right && p.y >= r->top && p.y < r->bottom;
}

BOOL EqualRect(const RECT* a, const RECT* b) { return a && b && *a == *b; }

BOOL IntersectRect(RECT* dst, const RECT* a, const RECT* b) {
    RECT r{std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
           std::min(a->bottom, b->bottom)};
    if (IsRectEmpty(&r)) {
        *dst = RECT{};
        return FALSE;
    }
    *dst = r;
    return TRUE;
}

BOOL UnionRect(RECT* dst, const RECT* a, const RECT* b) {
    if (IsRectEmpty(a)) {
        *dst = IsRectEmpty(b) ? RECT{} : *b;
    } else if (IsRectEmpty(b)) {
        *dst = *a;
    } else {
        *dst = RECT{std::min(a->left, b->left), std::min(a->top, b->top),
                    std::max(a->right, b->right), std::max(a->bottom, b->bottom)};
    }
    return !IsRectEmpty(dst);
}

// Only a cut that removes a whole side leaves a rectangle; anything else leaves `a` as it was.
BOOL SubtractRect(RECT* dst, const RECT* a, const RECT* b) {
    RECT r = *a, cut;
    if (IntersectRect(&cut, a, b)) {
        if (cut.top == a->top && cut.bottom == a->bottom) {
            if (cut.left == a->left) r.left = cut.right;
            else if (cut.right == a->right) r.right = cut.left;
        } else if (cut.left == a->left && cut.right == a->right) {
            if (cut.top == a->top) r.top = cut.bottom;
            else if (cut.bottom == a->bottom) r.bottom = cut.top;
        }
    }
    *dst = IsRectEmpty(&r) ? RECT{} : r;
    return !IsRectEmpty(dst);
}
