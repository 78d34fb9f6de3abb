// From a point of the view to a cell and from cells to a rectangle. Columns and rows are
// walked the same way: the locked ones first, then from the scroll position on.

#include "grid/core/GridCtrl.h"
#include "grid/core/ViewAxis.h"

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
