// Joined cells. There is no table of joins: the cells carry them. The first (upper left) cell
// of a join holds the offsets to the far corner, every other cell the offsets back to the
// first one, so that any cell finds the whole join.

#include "grid/core/GridCtrl.h"

int GridCtrl::JoinCells(int leftCol, int topRow, int rightCol, int bottomRow) {
    const GridSheet& s = *sheet;
    if (leftCol > rightCol || topRow > bottomRow || rightCol >= s.colCount ||
        bottomRow >= s.rowCount || leftCol < -s.sideHeadingCols || topRow < -s.topHeadingRows)
        return 1;
    for (int row = topRow; row <= bottomRow; ++row) {
        for (int col = leftCol; col <= rightCol; ++col) {
            GetCell(col, row, scratchCell);
            scratchCell.SetJoin(0, leftCol - col, topRow - row);
            SetCell(col, row, scratchCell);
        }
    }
    GetCell(leftCol, topRow, scratchCell);
    scratchCell.SetJoin(1, rightCol - leftCol, bottomRow - topRow);
    SetCell(leftCol, topRow, scratchCell);
    return 0;
}

int GridCtrl::UnjoinCells(int col, int row) {
    int endCol, endRow;
    if (GetJoinedRange(&col, &row, &endCol, &endRow) != 0) return 0;
    for (int r = row; r <= endRow; ++r) {
        for (int c = col; c <= endCol; ++c) {
            GetCell(c, r, scratchCell);
            scratchCell.ClearProperty(PropJoin);
            SetCell(c, r, scratchCell);
        }
    }
    return 0;
}

int GridCtrl::GetJoinedMainCell(int* col, int* row, GridCell& cell) {
    if (!sheet->joinsEnabled) return 1;
    GetEffectiveCell(*col, *row, cell);
    if (!cell.HasProperty(PropJoin)) return 2;
    short isMain;
    int colOffset, rowOffset;
    cell.GetJoin(isMain, colOffset, rowOffset);
    if (isMain == 1) return 0;
    *col += colOffset;
    *row += rowOffset;
    GetEffectiveCell(*col, *row, cell);
    return 0;
}

int GridCtrl::GetJoinedRange(int* col, int* row, int* endCol, int* endRow) {
    if (int result = GetJoinedMainCell(col, row, scratchCell)) return result;
    short isMain = 0;
    int colOffset = 0, rowOffset = 0;
    scratchCell.GetJoin(isMain, colOffset, rowOffset);
    *endCol = *col + colOffset;
    *endRow = *row + rowOffset;
    return 0;
}
