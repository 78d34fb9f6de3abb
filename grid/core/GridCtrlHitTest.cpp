// From a point of the view to a cell and from cells to a rectangle. Columns and rows are
// walked the same way: the locked ones first, then from the scroll position on.

#include "grid/core/GridCtrl.h"

namespace {

// One direction of the view.
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

} // namespace

int GridCtrl::HitTest(int x, int y, int* col, int* row) {
    RECT ignored;
    return HitTestRect(x, y, col, row, &ignored);
}

int GridCtrl::HitTestRect(int x, int y, int* col, int* row, RECT* rect) {
    const GridSheet& s = *sheet;
    if (x < 0 || y < 0 || x > s.viewWidth || y > s.viewHeight) return 1;
    if (!ViewAxis{s, true}.Hit(x, col, &rect->left, &rect->right)) return 1;
    if (!ViewAxis{s, false}.Hit(y, row, &rect->top, &rect->bottom)) return 1;
    if (s.joinsEnabled && GetCell(*col, *row, scratchCell) == 0 &&
        scratchCell.HasProperty(PropJoin))
        GetJoinedCellRectByRef(col, row, rect);
    return 0;
}

int GridCtrl::GetJoinedCellRect(int col, int row, RECT* rect) {
    return GetJoinedCellRectByRef(&col, &row, rect);
}

int GridCtrl::GetJoinedCellRectByRef(int* col, int* row, RECT* rect) {
    int left = *col, top = *row, right = *col, bottom = *row;
    if (sheet->joinsEnabled && GetJoinedRange(&left, &top, &right, &bottom) == 0) {
        *col = left;
        *row = top;
    }
    ViewAxis{*sheet, true}.Span(left, right, &rect->left, &rect->right);
    ViewAxis{*sheet, false}.Span(top, bottom, &rect->top, &rect->bottom);
    return 0;
}

int GridCtrl::GetRangeRect(int leftCol, int topRow, int rightCol, int bottomRow, RECT* rect) {
    *rect = RECT{-10, -10, sheet->viewWidth + 10, sheet->viewHeight + 10};
    ViewAxis{*sheet, true}.RangeSpan(leftCol, rightCol, &rect->left, &rect->right);
    ViewAxis{*sheet, false}.RangeSpan(topRow, bottomRow, &rect->top, &rect->bottom);
    return 0;
}
