#include "grid/windows/DrawHint.h"

#include <algorithm>

void DrawHint::AddRange(int startCol, int startRow, int endCol, int endRow) {
    if (ranges.empty()) {
        minCol = startCol;
        minRow = startRow;
        maxCol = endCol;
        maxRow = endRow;
    } else {
        Grow(startCol, startRow, endCol, endRow);
    }
    ranges.push_back({startCol, startRow, endCol, endRow});
}

void DrawHint::MergeRange(int startCol, int startRow, int endCol, int endRow) {
    if (ranges.empty()) {
        AddRange(startCol, startRow, endCol, endRow);
        return;
    }
    Range& first = ranges.front();
    first.startCol = std::min(first.startCol, startCol);
    first.startRow = std::min(first.startRow, startRow);
    first.endCol = std::max(first.endCol, endCol);
    first.endRow = std::max(first.endRow, endRow);
    Grow(startCol, startRow, endCol, endRow);
}

void DrawHint::Grow(int startCol, int startRow, int endCol, int endRow) {
    minCol = std::min(minCol, startCol);
    minRow = std::min(minRow, startRow);
    maxCol = std::max(maxCol, endCol);
    maxRow = std::max(maxRow, endRow);
}

bool DrawHint::Contains(int col, int row) const {
    if (ranges.empty()) return false;
    if (col < minCol || col > maxCol || row < minRow || row > maxRow) return false;
    return std::any_of(ranges.begin(), ranges.end(), [&](const Range& r) {
        return col >= r.startCol && col <= r.endCol && row >= r.startRow && row <= r.endRow;
    });
}

bool DrawHint::IsDone(int col, int row) const {
    return std::any_of(done.begin(), done.end(),
                       [&](const Done& d) { return d.col == col && d.row == row; });
}

void DrawHint::Clear() {
    ranges.clear();
    done.clear();
}
