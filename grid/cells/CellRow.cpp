#include "grid/cells/CellRow.h"

#include <algorithm>

std::size_t CellRow::LowerBound(int col) const {
    auto it = std::lower_bound(cells.begin(), cells.end(), col,
                               [](const StoredCell& c, int value) { return c.col < value; });
    return static_cast<std::size_t>(it - cells.begin());
}

const PackedCell* CellRow::Search(int col, std::size_t& hint) const {
    std::size_t i = LowerBound(col);
    if (i == cells.size() || cells[i].col != col) return nullptr;
    hint = i;
    return &cells[i].value;
}

PackedCell& CellRow::Place(int col, std::size_t& hint) {
    if (!HasPlaces()) firstCol = lastCol = 0;
    firstCol = std::min(firstCol, col);
    lastCol = std::max(lastCol, col);

    std::size_t i = cells.size();
    // Rows are mostly written from left to right: the new value goes at the end.
    if (!cells.empty() && cells.back().col >= col) i = LowerBound(col);
    if (i == cells.size() || cells[i].col != col) {
        // Small steps keep short rows tight; the step grows with the row.
        if (cells.size() == cells.capacity())
            cells.reserve(cells.size() + std::max<std::size_t>(4, cells.size() / 2));
        if (i == cells.size())
            cells.emplace_back().col = col;
        else
            cells.insert(cells.begin() + static_cast<std::ptrdiff_t>(i), StoredCell{col, {}});
    }
    hint = i;
    return cells[i].value;
}

bool CellRow::Clear(int col) {
    if (!HasPlace(col)) return false;
    std::size_t i = LowerBound(col);
    if (i < cells.size() && cells[i].col == col)
        cells.erase(cells.begin() + static_cast<std::ptrdiff_t>(i));
    return true;
}

void CellRow::InsertPlace(int col) {
    if (!HasPlace(col)) return;
    // Numbers end at the limits of 32 bits: a value pushed past them falls off the row.
    if (col >= 0) {
        if (lastCol == INT32_MAX) Clear(INT32_MAX);
        for (auto it = cells.begin() + static_cast<std::ptrdiff_t>(LowerBound(col));
             it != cells.end(); ++it)
            ++it->col;
        if (lastCol != INT32_MAX) ++lastCol;
    } else {
        if (firstCol == INT32_MIN) Clear(INT32_MIN);
        for (auto it = cells.begin(); it != cells.end() && it->col < col; ++it) --it->col;
        if (firstCol != INT32_MIN) --firstCol;
    }
}

void CellRow::DeletePlace(int col) {
    if (!HasPlace(col)) return;
    Clear(col);
    if (col >= 0) {
        if (col == lastCol) return;
        for (auto it = cells.begin() + static_cast<std::ptrdiff_t>(LowerBound(col));
             it != cells.end(); ++it)
            --it->col;
        --lastCol;
    } else {
        for (auto it = cells.begin(); it != cells.end() && it->col < col; ++it) ++it->col;
        ++firstCol;
    }
}
