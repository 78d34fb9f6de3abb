#pragma once
// One direction of the view, walked the way every part of the grid walks it: the locked
// columns (or rows) first, then from the scroll position on.

#include "grid/core/GridSheet.h"

struct ViewAxis {
    const GridSheet& s;
    bool cols;

    int Count() const { return cols ? s.colCount : s.rowCount; }
    int Locked() const { return cols ? s.lockedCols : s.lockedRows; }
    int ScrollPos() const { return cols ? s.leftCol : s.topRow; }
    int LockedSize() const { return cols ? s.lockedWidth : s.lockedHeight; }
    int ViewSize() const { return cols ? s.viewWidth : s.viewHeight; }
    int Size(int i) const { return cols ? s.ColWidth(i) : s.RowHeight(i); }
    int Start() const { return Locked() > 0 ? 0 : ScrollPos(); }
    int Next(int i) const { return i + 1 == Locked() ? ScrollPos() : i + 1; }
    bool OnWalk(int i) const { return i >= 0 && i < Count() && (i < Locked() || i >= ScrollPos()); }

    // Where item i begins on the walk; i must be on it. Uniform rows take no walk.
    long long Offset(int i) const {
        long long sum = 0;
        const int locked = i < Locked() ? i : Locked();
        for (int k = 0; k < locked; ++k) sum += Size(k);
        if (i < Locked()) return sum;
        if (!cols && s.uniformRowHeight)
            return sum + static_cast<long long>(i - ScrollPos()) * s.defaultRowHeight;
        for (int k = ScrollPos(); k < i; ++k) sum += Size(k);
        return sum;
    }

    // The item whose far edge lies past pos, so that an edge pixel belongs to the next item.
    bool Hit(int pos, int* index, LONG* low, LONG* high) const {
        long long sum = 0;
        for (int i = Start(); i < Count(); i = Next(i)) {
            const long long before = sum;
            sum += Size(i);
            if (sum > pos) {
                *index = i;
                *low = static_cast<LONG>(before);
                *high = static_cast<LONG>(sum);
                return true;
            }
        }
        return false;
    }

    // The extent of items first to last; an end that is scrolled away stays where the
    // scrolling part begins.
    void Span(int first, int last, LONG* low, LONG* high) const {
        const long long start = first >= Locked() ? LockedSize() : 0;
        *low = static_cast<LONG>(OnWalk(first) ? Offset(first) : start);
        *high = static_cast<LONG>(OnWalk(last) ? Offset(last) + Size(last) : start);
    }

    // As Span, but the walk gives up beyond the view, and ends off view lie 10 pixels out.
    void RangeSpan(int first, int last, LONG* low, LONG* high) const {
        if (first >= Locked() && Locked() > 0) *low = LockedSize();
        long long sum = 0;
        for (int i = Start(); i < Count(); i = Next(i)) {
            if (i == first) *low = static_cast<LONG>(sum);
            sum += Size(i);
            if (i == last) {
                *high = static_cast<LONG>(sum);
                return;
            }
            if (sum > ViewSize()) return;
        }
    }
};
