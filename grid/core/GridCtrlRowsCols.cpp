// Counts, widths and heights of the active sheet, and rows and columns added and removed in
// step with the data source. Sizes live in the sheet, contents in the source.

#include "grid/cells/GridDataSource.h"
#include "grid/core/GridCtrl.h"

#include <algorithm>

int GridCtrl::SetRowCount(int count, int redraw) {
    if (count < 0) return 1;
    GridSheet& s = *sheet;
    if (count >= 1 && count <= s.lockedRows) LockRows(count - 1);
    // A large table costs no per-row array.
    if (count > 64000 && !s.uniformRowHeight) SetUniformRowHeight(1);
    s.rowCount = count;
    if (!s.uniformRowHeight) s.rowHeights.resize(static_cast<size_t>(count), s.defaultRowHeight);
    const int oldTopRow = s.topRow;
    UpdateMaxTopRow();
    if (s.topRow != oldTopRow) CommitCellMove();
    if (s.currentRow >= count) s.currentRow = s.previousRow = s.pendingRow = count - 1;
    if (s.pendingRow >= count) s.pendingRow = count - 1;
    RecalcLockedHeight();
    if (s.currentRow < 0 && count >= 1) GotoRow(0);
    if (redraw) RedrawAll();
    return 0;
}

int GridCtrl::SetColCount(int count, int redraw) {
    if (count < 0 || count > 32000) return 1;
    GridSheet& s = *sheet;
    if (count >= 1 && count <= s.lockedCols) LockCols(count - 1);
    const int oldCount = s.colCount;
    s.columns.resize(static_cast<size_t>(count));
    for (int c = oldCount; c < count; ++c) {
        ColumnInfo& info = s.columns[static_cast<size_t>(c)];
        info.width = s.defaultColWidth;
        info.dataSource = s.dataSource;
        info.defaultCell = std::make_unique<GridCell>();
        info.defaultCell->CopyFrom(s.gridDefaultCell);
        info.sourceCol = c;
    }
    s.colCount = count;
    UpdateMaxLeftCol();
    if (s.currentCol >= count) s.currentCol = s.pendingCol = count - 1;
    RecalcLockedWidth();
    if (s.currentCol < 0 && count >= 1) GotoCol(0);
    if (redraw) RedrawAll();
    return 0;
}

int GridCtrl::SetColWidth(int col, int width) {
    if (col < 0) {
        SetSideHeadingColWidth(col, width);
        return 1;
    }
    if (col >= sheet->colCount) return 1;
    sheet->columns[static_cast<size_t>(col)].width = width;
    // A locked column's width is part of the locked width.
    if (col < sheet->lockedCols) RecalcLockedWidth();
    return 0;
}

int GridCtrl::GetColWidth(int col, int* width) const {
    if (col < 0 || col >= sheet->colCount) return 1;
    *width = sheet->columns[static_cast<size_t>(col)].width;
    return 0;
}

int GridCtrl::SetRowHeight(int row, int height) {
    GridSheet& s = *sheet;
    if (row < 0 || row >= s.rowCount) return 0;
    if (s.uniformRowHeight) {
        // Every row shares this height; 0 would leave no row to scroll by.
        if (height >= 1) s.defaultRowHeight = height;
    } else {
        s.rowHeights[static_cast<size_t>(row)] = height;
    }
    RecalcLockedHeight();
    return 0;
}

int GridCtrl::GetRowHeight(int row, int* height) const {
    if (row < 0 || row >= sheet->rowCount) return 1;
    *height = sheet->RowHeight(row);
    return 0;
}

int GridCtrl::SetUniformRowHeight(int flag) {
    GridSheet& s = *sheet;
    if (flag) {
        std::vector<int>().swap(s.rowHeights);
        s.uniformRowHeight = 1;
        return 0;
    }
    if (s.rowHeights.empty() && s.uniformRowHeight && s.rowCount > 0)
        s.rowHeights.assign(static_cast<size_t>(s.rowCount), s.defaultRowHeight);
    s.uniformRowHeight = 0;
    return 0;
}

// The heights stay with their positions: the row added or removed is at the end of the array.
int GridCtrl::AppendRow() {
    if (int result = sheet->dataSource->AppendRow()) return result;
    return SetRowCount(sheet->rowCount + 1, 1);
}

int GridCtrl::InsertRow(int row) {
    if (row < 0 || row > sheet->rowCount) return 1;
    if (int result = sheet->dataSource->InsertRow(row)) return result;
    return SetRowCount(sheet->rowCount + 1, 1);
}

int GridCtrl::DeleteRow(int row) {
    if (row < 0 || row >= sheet->rowCount) return 1;
    if (int result = sheet->dataSource->DeleteRow(row)) return result;
    return SetRowCount(sheet->rowCount - 1, 1);
}

int GridCtrl::AppendCol() {
    if (int result = sheet->dataSource->AppendCol()) return result;
    return SetColCount(sheet->colCount + 1, 1);
}

int GridCtrl::InsertCol(int col) {
    GridSheet& s = *sheet;
    if (col < 0 || col >= s.colCount) return 1;
    int sourceCol;
    if (int result = SourceOf(col, &sourceCol)->InsertCol(sourceCol)) return result;
    SetColCount(s.colCount + 1, 1);
    // The new record, made last, moves to col; the shifted records keep their source columns.
    auto at = s.columns.begin() + col;
    std::rotate(at, s.columns.end() - 1, s.columns.end());
    at->sourceCol = col;
    RecalcLockedWidth();
    return 0;
}

int GridCtrl::DeleteCol(int col) {
    GridSheet& s = *sheet;
    if (s.colCount == 0 || col < 0 || col >= s.colCount) return 1;
    int sourceCol;
    if (int result = SourceOf(col, &sourceCol)->DeleteCol(sourceCol)) return result;
    // The deleted record goes last, where the shrinking count frees it.
    std::rotate(s.columns.begin() + col, s.columns.begin() + col + 1, s.columns.end());
    return SetColCount(s.colCount - 1, 1);
}

int GridCtrl::MoveColTo(int col, int target, int before) {
    GridSheet& s = *sheet;
    const long long place = before ? target : static_cast<long long>(target) + 1;
    if (col < 0 || col >= s.colCount || place < 0 || place > s.colCount) return 1;
    const int p = static_cast<int>(place);
    if (p == col || p == col + 1) return 0;
    // The whole record travels, so the data follows through sourceCol.
    auto first = s.columns.begin();
    if (col < p)
        std::rotate(first + col, first + col + 1, first + p);
    else
        std::rotate(first + p, first + col, first + col + 1);
    RecalcLockedWidth();
    return 0;
}
