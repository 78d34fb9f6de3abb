#include "grid/cells/MemoryDataSource.h"

#include "grid/cells/GridCell.h"
#include "grid/cells/SourceGrid.h"
#include "grid/cells/TextMatcher.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <numeric>

CellRow& MemoryDataSource::MakeRow(int row) {
    if (rows.empty()) {
        // The first row is row 0, whichever row was asked for; the rows up to that one follow.
        rows.emplace_back();
        firstRow = 0;
    }
    if (row < firstRow) {
        std::vector<CellRow> before(
            static_cast<std::size_t>(firstRow - static_cast<long long>(row)));
        rows.insert(rows.begin(), std::make_move_iterator(before.begin()),
                    std::make_move_iterator(before.end()));
        firstRow = row;
    } else if (row - static_cast<long long>(firstRow) >= static_cast<long long>(rows.size())) {
        rows.resize(static_cast<std::size_t>(row - static_cast<long long>(firstRow) + 1));
    }
    return rows[static_cast<std::size_t>(row - static_cast<long long>(firstRow))];
}

int MemoryDataSource::AppendRow() {
    return 0;
}

int MemoryDataSource::AppendCol() {
    return 0;
}

int MemoryDataSource::InsertRow(int row) {
    if (!RowAt(row)) return 0;
    rows.insert(rows.begin() + (row - static_cast<long long>(firstRow)), CellRow{});
    return 0;
}

int MemoryDataSource::DeleteRow(int row) {
    if (!RowAt(row)) return 0;
    rows.erase(rows.begin() + (row - static_cast<long long>(firstRow)));
    return 0;
}

int MemoryDataSource::InsertCol(int col) {
    if (rows.empty()) return 1;
    int position = col;
    const int colCount = grid ? grid->GetColCount() : 0;
    for (int c = 0; c < colCount; ++c) {
        if (grid->GetTranslatedCol(c) == col) {
            position = c;
            break;
        }
    }
    for (CellRow& row : rows) row.InsertPlace(position);
    for (int c = 0; c < colCount; ++c) {
        int source = grid->GetTranslatedCol(c);
        if (source >= position && source != INT32_MAX) grid->SetTranslatedCol(c, source + 1);
    }
    return 0;
}

int MemoryDataSource::DeleteCol(int col) {
    if (rows.empty()) return 1;
    for (CellRow& row : rows) row.DeletePlace(col);
    const int colCount = grid ? grid->GetColCount() : 0;
    for (int c = 0; c < colCount; ++c) {
        int source = grid->GetTranslatedCol(c);
        if (source >= col && source != INT32_MIN) grid->SetTranslatedCol(c, source - 1);
    }
    return 0;
}

int MemoryDataSource::ClearCell(int col, int row) {
    CellRow* r = RowAt(row);
    return r && r->Clear(col) ? 0 : 1;
}

int MemoryDataSource::DeleteAll() {
    rows.clear();
    rows.shrink_to_fit();
    firstRow = 0;
    cellHint = 0;
    return -1;
}

int MemoryDataSource::GetCell(int col, int row, GridCell& cell) {
    const CellRow* r = RowAt(row);
    const PackedCell* value = r ? r->Find(col, cellHint) : nullptr;
    if (!value) return 1;
    value->MergeInto(cell);
    return 0;
}

void MemoryDataSource::GetText(int col, int row, std::string& text) {
    const CellRow* r = RowAt(row);
    const PackedCell* value = r ? r->Find(col, cellHint) : nullptr;
    text.assign(value ? value->Text() : std::string_view());
}

int MemoryDataSource::SetCell(int col, int row, const GridCell& cell) {
    MakeRow(row).Place(col, cellHint).Pack(cell);
    return 0;
}

int MemoryDataSource::FindFirst(const std::string& text, int* col, int* row, int flags) {
    if (!col || !row) return 1;
    if (flags & 0x8) {
        *col = -1;
        *row = 0;
    } else {
        *row = -1;
    }
    return FindNext(text, col, row, flags);
}

bool MemoryDataSource::ScanRow(const CellRow& row, long long findCol, int lastCol, int step,
                               const TextMatcher& matcher, int* foundCol) {
    const std::vector<StoredCell>& cells = row.Cells();
    auto found = [&](const StoredCell& c) {
        if (!matcher.Matches(c.value.Text())) return false;
        *foundCol = c.col;
        return true;
    };
    // Outside the grid's columns only the place itself is looked at.
    if (findCol < 0 || findCol > lastCol) {
        if (findCol < INT32_MIN || findCol > INT32_MAX) return false;
        std::size_t hint = 0;
        const PackedCell* value = row.Find(static_cast<int>(findCol), hint);
        return value && found(cells[hint]);
    }
    auto from = cells.begin();
    if (!cells.empty() && cells.front().col < findCol)
        from = std::lower_bound(cells.begin(), cells.end(), findCol,
                                [](const StoredCell& c, long long v) { return c.col < v; });
    if (step > 0) {
        for (auto it = from; it != cells.end() && it->col <= lastCol; ++it)
            if (found(*it)) return true;
    } else {
        if (from != cells.end() && from->col == findCol) ++from;
        for (auto it = std::make_reverse_iterator(from); it != cells.rend() && it->col >= 0; ++it)
            if (found(*it)) return true;
    }
    return false;
}

int MemoryDataSource::FindNext(const std::string& text, int* col, int* row, int flags) {
    if (!col || !row || !grid) return 1;
    const long long rowCount = grid->GetRowCount();
    const long long lastRow = rowCount - 1;
    const int lastCol = grid->GetColCount() - 1;
    const bool allCols = flags & 0x8;
    const int step = flags & 0x4 ? -1 : 1;
    const TextMatcher matcher(text, flags);
    auto wrap = [lastRow](long long r) { return r > lastRow ? 0 : r < 0 ? lastRow : r; };

    long long findCol = *col, findRow = *row;
    if (allCols) {
        findCol += step;
        if (findCol > lastCol) {
            findCol = 0;
            ++findRow;
        } else if (findCol < 0) {
            findCol = lastCol;
            --findRow;
        }
    } else {
        findRow += step;
    }
    findRow = wrap(findRow);

    for (long long visited = 0; visited <= rowCount; ++visited) {
        if (const CellRow* r = RowAt(findRow)) {
            int foundCol;
            bool hit = false;
            if (allCols) {
                hit = ScanRow(*r, findCol, lastCol, step, matcher, &foundCol);
                findCol = step > 0 ? 0 : lastCol;
            } else if (findCol >= INT32_MIN && findCol <= INT32_MAX) {
                std::size_t hint = 0;
                const PackedCell* value = r->Find(static_cast<int>(findCol), hint);
                hit = value && matcher.Matches(value->Text());
                foundCol = static_cast<int>(findCol);
            }
            if (hit) {
                *col = foundCol;
                *row = static_cast<int>(findRow);
                return 0;
            }
        }
        // A row that isn't stored passes without taking findCol back to the edge.
        findRow = wrap(findRow + step);
    }
    return 1;
}

int MemoryDataSource::SortRows(const int* keyCols, int keyCount, int flags) {
    const long long zero = -static_cast<long long>(firstRow);
    if (zero >= static_cast<long long>(rows.size()) - 1 || keyCount <= 0) return 0;
    if (!keyCols || !grid) return 1;
    const std::size_t n = rows.size() - static_cast<std::size_t>(zero);
    const std::size_t keys = static_cast<std::size_t>(keyCount);

    // The key cells of every row, unpacked once, so that the comparisons decode nothing.
    // An absent place and an empty one compare as null, as do negative key columns.
    std::unique_ptr<GridCell[]> values(new GridCell[n * keys]);
    std::vector<const GridCell*> keyCells(n * keys, nullptr);
    for (std::size_t i = 0; i < n; ++i) {
        const CellRow& r = rows[static_cast<std::size_t>(zero) + i];
        std::size_t hint = 0;
        for (std::size_t k = 0; k < keys; ++k) {
            if (keyCols[k] < 0) continue;
            if (const PackedCell* value = r.Find(keyCols[k], hint)) {
                value->MergeInto(values[i * keys + k]);
                keyCells[i * keys + k] = &values[i * keys + k];
            }
        }
    }

    // The order is the one a bubble sort reaches when it exchanges neighbours a, b whenever
    // CompareCells(a, b) is above 0 in the first key that doesn't answer 0: so x goes before y
    // when the comparison of y with x is above 0, and rows that compare equal keep their order.
    // An ordering that contradicts itself (mixed data types in a key column), on which the
    // bubble sort would never end, still ends here.
    SourceGrid* g = grid;
    auto goesBefore = [&](std::size_t x, std::size_t y) {
        for (std::size_t k = 0; k < keys; ++k) {
            int c = g->CompareCells(keyCells[y * keys + k], keyCells[x * keys + k], flags);
            if (c != 0) return c > 0;
        }
        return false;
    };
    const std::size_t rowsBefore = rows.size();
    const int firstBefore = firstRow;
    std::vector<std::size_t> order(n);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), goesBefore);
    // A comparison that wrote to the store has left nothing to sort safely.
    if (rows.size() != rowsBefore || firstRow != firstBefore) return 1;

    std::vector<CellRow> sorted;
    sorted.reserve(n);
    for (std::size_t i : order)
        sorted.push_back(std::move(rows[static_cast<std::size_t>(zero) + i]));
    std::move(sorted.begin(), sorted.end(), rows.begin() + zero);
    return 0;
}

int MemoryDataSource::SortRowsByCol(int col, int flags) {
    return SortRows(&col, 1, flags);
}

int MemoryDataSource::FindTextToLeft(int* col, int row) {
    if (!col) return 1;
    const CellRow* r = RowAt(row);
    if (!r || !r->HasPlaces()) return 1;
    int start = *col;
    if (!r->HasPlace(start)) {
        // Past the row's end the walk starts on the place reached last, which must hold a value.
        start = start > r->LastCol() ? r->LastCol() : r->FirstCol();
        std::size_t hint = 0;
        if (!r->Find(start, hint)) return 1;
    }
    const std::vector<StoredCell>& cells = r->Cells();
    auto from = std::upper_bound(cells.begin(), cells.end(), start,
                                 [](int v, const StoredCell& c) { return v < c.col; });
    for (auto it = std::make_reverse_iterator(from); it != cells.rend() && it->col >= 0; ++it) {
        if (it->col != *col && !it->value.Text().empty()) {
            *col = it->col;
            return 0;
        }
    }
    return 1;
}
