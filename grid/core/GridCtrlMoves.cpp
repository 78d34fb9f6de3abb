// Moves of the current cell and of the view. The protocol is told in GridCtrl.h: bounds and
// joins, the data source's veto, CanMoveCurrentCell, CanScrollView, then the new state and
// CommitCellMove. Moves aim at the pending cell; CommitCellMove derives the current cell.

#include "grid/cells/GridDataSource.h"
#include "grid/core/GridCtrl.h"
#include "grid/windows/CornerButton.h"
#include "grid/windows/GridHScroll.h"
#include "grid/windows/GridVScroll.h"
#include "grid/windows/GridView.h"
#include "grid/windows/SideHeading.h"
#include "grid/windows/TopHeading.h"

#include <algorithm>

namespace {

bool ShiftOrControlDown() {
    return GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0;
}

} // namespace

int GridCtrl::GotoRow(int row) {
    GridSheet& s = *sheet;
    if (s.moveSource == 0 && !ShiftOrControlDown()) {
        int col, anchorRow;
        if (s.selection->GetAnchor(&col, &anchorRow) == 0) {
            s.currentCol = col;
            s.currentRow = anchorRow;
        }
    }
    if (row == s.pendingRow) return 0;
    if (ValidateRow(&row)) return 1;
    if (row == s.pendingRow) return 0;
    if (!CanMoveCurrentCell(s.pendingCol, s.pendingRow, s.pendingCol, row)) return 2;
    const bool onView = row >= s.topRow && row < s.bottomRow;
    if (!onView && !CanScrollView(s.leftCol, s.leftCol, s.topRow, row)) return 2;
    s.pendingRow = row;
    KeepPendingRowVisible();
    CommitCellMove();
    return 0;
}

int GridCtrl::GotoCol(int col) {
    GridSheet& s = *sheet;
    if (s.moveSource == 0 && !ShiftOrControlDown()) {
        int anchorCol, row;
        if (s.selection->GetAnchor(&anchorCol, &row) == 0) {
            s.currentCol = anchorCol;
            s.currentRow = row;
        }
    }
    if (col == s.pendingCol) return 0;
    if (ValidateCol(&col)) return 1;
    if (col == s.pendingCol) return 0;
    if (s.dataSource->CanMoveCurrentCell(s.pendingCol, s.pendingRow, col, s.pendingRow) != 1)
        return 2;
    if (!CanMoveCurrentCell(s.pendingCol, s.pendingRow, col, s.pendingRow)) return 2;
    const bool onView = col >= s.leftCol && col < s.rightCol;
    if (!onView && !CanScrollView(s.leftCol, col, s.topRow, s.topRow)) return 2;
    s.pendingCol = col;
    KeepPendingColVisible();
    CommitCellMove();
    return 0;
}

int GridCtrl::GotoCell(int col, int row) {
    GridSheet& s = *sheet;
    if (col == s.pendingCol && row == s.pendingRow) return 0;
    if (ValidateRow(&row)) return 1;
    if (s.joinsEnabled) GetJoinedMain(&col, &row);
    if (s.dataSource->CanMoveCurrentCell(s.currentCol, s.currentRow, col, row) != 1) return 2;
    // Here the first two are the view's origin, not the old cell.
    if (!CanMoveCurrentCell(s.leftCol, s.topRow, col, row)) return 2;
    const bool onView =
        col >= s.leftCol && col < s.rightCol && row >= s.topRow && row < s.bottomRow;
    if (!onView && !CanScrollView(s.leftCol, col, s.topRow, row)) return 2;
    s.pendingCol = col;
    s.pendingRow = row;
    KeepPendingColVisible();
    KeepPendingRowVisible();
    CommitCellMove();
    return 0;
}

int GridCtrl::SetTopRow(int row) {
    GridSheet& s = *sheet;
    if (row == s.topRow) return 0;
    ValidateTopRow(&row);
    if (!CanScrollView(s.leftCol, s.topRow, s.leftCol, row)) return 2;
    s.topRow = row;
    CommitCellMove();
    return 0;
}

int GridCtrl::SetLeftCol(int col) {
    GridSheet& s = *sheet;
    if (col == s.leftCol) return 0;
    ValidateLeftCol(&col);
    if (!CanScrollView(s.leftCol, s.topRow, col, s.topRow)) return 2;
    if (col == s.leftCol) return 0;
    s.leftCol = col;
    CommitCellMove();
    return 0;
}

int GridCtrl::ValidateTopRow(int* row) {
    *row = std::max(std::min(*row, sheet->maxTopRow), sheet->lockedRows);
    return 0;
}

int GridCtrl::ValidateLeftCol(int* col) {
    *col = std::max(std::min(*col, sheet->maxLeftCol), sheet->lockedCols);
    return 0;
}

int GridCtrl::ValidateRow(int* row) {
    GridSheet& s = *sheet;
    if (*row >= s.rowCount) {
        const int count = s.rowCount;
        const int past = static_cast<int>(
            std::min<long long>(static_cast<long long>(*row) - count + 1, 0x7FFFFFFF));
        int gained = 0;
        s.dataSource->NotifyPastLastRow(count, past, &gained);
        NotifyPastLastRow(count, past, gained);
        // A row that the source or the handler added shows through the new count.
        if (s.pendingRow == s.rowCount - 1) return 1;
        *row = s.rowCount - 1;
    }
    if (*row < 0) *row = 0;
    if (!s.joinsEnabled) return 0;
    if (GetCell(s.pendingCol, *row, scratchCell) != 0 || !scratchCell.HasProperty(PropJoin))
        return 0;
    int startCol = s.pendingCol, startRow = *row, endCol, endRow;
    if (GetJoinedRange(&startCol, &startRow, &endCol, &endRow) != 0) return 0;
    if (s.moveSource != 0) {
        // The mouse lands on the join's first cell.
        *row = startRow;
    } else if (*row > s.pendingRow) {
        // Keys step over a join at once.
        if (s.pendingRow < startRow)
            *row = startRow;
        else if (endRow + 1 < s.rowCount)
            *row = endRow + 1;
    } else if (s.pendingRow <= endRow && startRow - 1 > 0) {
        *row = startRow - 1;
    }
    return 0;
}

int GridCtrl::ValidateCol(int* col) {
    GridSheet& s = *sheet;
    if (*col >= s.colCount) {
        if (s.pendingCol == s.colCount - 1) return 1;
        *col = s.colCount - 1;
    }
    if (*col == s.pendingCol) return 0;
    if (*col < 0) *col = 0;
    if (!s.joinsEnabled) return 0;
    if (GetCell(*col, s.pendingRow, scratchCell) != 0 || !scratchCell.HasProperty(PropJoin))
        return 0;
    int startCol = *col, startRow = s.pendingRow, endCol, endRow;
    if (GetJoinedRange(&startCol, &startRow, &endCol, &endRow) != 0) return 0;
    if (s.moveSource != 0) {
        *col = startCol;
    } else if (*col > s.pendingCol) {
        if (s.pendingCol < startCol)
            *col = startCol;
        else if (endCol + 1 < s.colCount)
            *col = endCol + 1;
    } else if (*col < s.pendingCol && s.pendingCol <= endCol && startCol - 1 > 0) {
        *col = startCol - 1;
    }
    return 0;
}

void GridCtrl::KeepPendingRowVisible() {
    GridSheet& s = *sheet;
    if (s.topRow > s.pendingRow)
        s.topRow = s.pendingRow < s.lockedRows ? s.lockedRows : s.pendingRow;
    if (s.topRow == s.pendingRow) return;
    const long long room = static_cast<long long>(s.viewHeight) - s.lockedHeight;
    if (s.uniformRowHeight) {
        const long long lowest = s.pendingRow - room / s.defaultRowHeight + 1;
        if (s.topRow < lowest) s.topRow = static_cast<int>(lowest);
        return;
    }
    // The pending row ends at the bottom of the view, fully shown.
    long long left = room;
    for (int r = s.pendingRow; r >= s.topRow; --r) {
        left -= s.RowHeight(r);
        if (left < 0) {
            s.topRow = r + 1;
            return;
        }
    }
}

void GridCtrl::KeepPendingColVisible() {
    GridSheet& s = *sheet;
    if (s.leftCol > s.pendingCol)
        s.leftCol = s.pendingCol < s.lockedCols ? s.lockedCols : s.pendingCol;
    if (s.leftCol == s.pendingCol) return;
    long long left = static_cast<long long>(s.viewWidth) - s.lockedWidth;
    // A wide column at the end doesn't push the view past its limit.
    for (int c = s.pendingCol; c >= s.leftCol; --c) {
        left -= s.ColWidth(c);
        if (left < 0 && c < s.maxLeftCol) {
            s.leftCol = c + 1;
            return;
        }
    }
}

void GridCtrl::CommitCellMove() {
    GridSheet& s = *sheet;
    if (s.selectionMode == 0 || editing) {
        s.currentCol = s.pendingCol;
        s.currentRow = s.pendingRow;
    } else {
        MultiSelect& store = *s.selection;
        switch (s.moveSource) {
        case 0: store.OnKeyMove(s.pendingCol, s.pendingRow); break;
        case 1: store.OnLeftPress(s.pendingCol, s.pendingRow, s.moveKeyFlags); break;
        case 2: store.OnRightPress(s.pendingCol, s.pendingRow, s.moveKeyFlags); break;
        default: store.OnDrag(s.pendingCol, s.pendingRow, s.moveKeyFlags); break;
        }
        // During a drag or a Shift move the current cell stays where the block began.
        int col, row;
        if (store.GetAnchor(&col, &row) == 0) {
            s.currentCol = col;
            s.currentRow = row;
        }
    }
    const bool colChanged = s.previousCol != s.currentCol;
    const bool rowChanged = s.previousRow != s.currentRow;
    if (colChanged) {
        s.dataSource->NotifyColumnChanged(s.previousCol, s.currentCol);
        NotifyColumnChanged(s.previousCol, s.currentCol);
    }
    if (rowChanged) {
        s.dataSource->NotifyRowChanged(s.previousRow, s.currentRow);
        NotifyRowChanged(s.previousRow, s.currentRow);
    }
    if (colChanged || rowChanged)
        NotifyCellChanged(s.previousCol, s.currentCol, s.previousRow, s.currentRow);
    if (s.previousLeftCol != s.leftCol) NotifyLeftColumnChanged(s.previousLeftCol, s.leftCol);
    if (s.previousTopRow != s.topRow) NotifyTopRowChanged(s.previousTopRow, s.topRow);
    KeepFloatingDialogClear();
    if (colChanged || rowChanged) {
        GetCellTypeAt(s.previousCol, s.previousRow)
            ->NotifyLeave(s.previousCol, s.previousRow, &scratchCell);
        GetCellTypeAt(s.currentCol, s.currentRow)
            ->NotifyEnter(s.currentCol, s.currentRow, &scratchCell);
    }
    view->UpdateView();
    sideHeading->UpdateView();
    topHeading->UpdateView();
    vScroll->Refresh();
    hScroll->Refresh();
    cornerButton->UpdateView();
    s.previousTopRow = s.topRow;
    s.previousRow = s.currentRow;
    s.previousLeftCol = s.leftCol;
    s.previousCol = s.currentCol;
}

int GridCtrl::ResetCurrentCell() {
    sheet->currentCol = -1;
    sheet->currentRow = -1;
    return 0;
}
