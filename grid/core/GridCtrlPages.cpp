// Steps of the pending cell and of the view: one on, one back, a page, the first, the last.
// Page moves may overshoot into the negative or past the end; the validation of the move they
// end in brings them back.

#include "grid/core/GridCtrl.h"

#include <algorithm>

int GridCtrl::PageRowBack(int from, int sizeLimit) {
    const GridSheet& s = *sheet;
    // Rows outside [0, sizeLimit) count with the default height.
    auto height = [&s, sizeLimit](int r) {
        return r < 0 || r >= sizeLimit ? s.defaultRowHeight : s.RowHeight(r);
    };
    long long room = static_cast<long long>(s.viewHeight) - s.lockedHeight;
    int r = from;
    while (room >= 0) {
        room -= height(r);
        --r;
        if (height(r) > room) break;
    }
    return r;
}

int GridCtrl::PageRowOn(int from, int sizeLimit) {
    const GridSheet& s = *sheet;
    auto height = [&s, sizeLimit](int r) {
        return r < 0 || r >= sizeLimit ? s.defaultRowHeight : s.RowHeight(r);
    };
    long long room = static_cast<long long>(s.viewHeight) - s.lockedHeight;
    int r = from;
    while (room >= 0) {
        room -= height(r);
        ++r;
        if (height(r) > room) break;
    }
    return r;
}

int GridCtrl::PageCol(int from, int step) {
    const GridSheet& s = *sheet;
    // A zero default width would never use up the room.
    const int outsideWidth = std::max(s.defaultColWidth, 1);
    long long room = static_cast<long long>(s.viewWidth) - s.lockedWidth;
    int c = from;
    while (room >= 0) {
        room -= c < 0 ? outsideWidth : s.ColWidth(c);
        c += step;
    }
    return c;
}

int GridCtrl::StepRow(int where) {
    const GridSheet& s = *sheet;
    switch (where) {
    case 0: return GotoRow(s.pendingRow - 1);
    case 1: return GotoRow(s.pendingRow + 1);
    case 2: return GotoRow(PageRowBack(s.pendingRow, s.rowCount));
    case 3: return GotoRow(PageRowOn(s.pendingRow, s.rowCount));
    case 4: return GotoRow(0);
    case 5: return GotoRow(s.rowCount - 1);
    default: return 0;
    }
}

int GridCtrl::StepCol(int where) {
    const GridSheet& s = *sheet;
    switch (where) {
    case 0: return GotoCol(s.pendingCol - 1);
    case 1: return GotoCol(s.pendingCol + 1);
    case 2: return GotoCol(PageCol(s.pendingCol, -1));
    case 3: return GotoCol(PageCol(s.pendingCol, 1));
    case 4: return GotoCol(0);
    case 5: return GotoCol(s.colCount - 1);
    default: return 0;
    }
}

int GridCtrl::ScrollRows(int where) {
    const GridSheet& s = *sheet;
    switch (where) {
    case 0: return SetTopRow(s.topRow - 1);
    case 1: return SetTopRow(s.topRow + 1);
    case 2: return SetTopRow(PageRowBack(s.topRow, s.maxTopRow));
    case 3: return SetTopRow(PageRowOn(s.topRow, s.maxTopRow));
    case 4: return SetTopRow(0);
    case 5: return SetTopRow(s.rowCount - 1);
    default: return 0;
    }
}

int GridCtrl::ScrollCols(int where) {
    const GridSheet& s = *sheet;
    switch (where) {
    case 0: return SetLeftCol(s.leftCol - 1);
    case 1: return SetLeftCol(s.leftCol + 1);
    case 2: return SetLeftCol(PageCol(s.leftCol, -1));
    case 3: return SetLeftCol(PageCol(s.leftCol, 1));
    case 4: return SetLeftCol(0);
    case 5: return SetLeftCol(s.colCount - 1);
    default: return 0;
    }
}
