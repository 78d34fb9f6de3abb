#include "ReferenceStore.h"

#include "platform/base/MbString.h"

#include <algorithm>
#include <climits>

const ReferenceStore::Row* ReferenceStore::RowAt(int row) const {
    int i = row - base;
    return i >= 0 && i < static_cast<int>(rows.size()) ? &rows[i] : nullptr;
}

ReferenceStore::Row* ReferenceStore::RowAt(int row) {
    return const_cast<Row*>(static_cast<const ReferenceStore*>(this)->RowAt(row));
}

int ReferenceStore::PlaceIndex(const Row& r, int col) {
    int i = r.anchor + col;
    return i >= 0 && i < static_cast<int>(r.places.size()) ? i : -1;
}

const GridCell* ReferenceStore::CellAt(int col, int row) const {
    const Row* r = RowAt(row);
    int i = r ? PlaceIndex(*r, col) : -1;
    return i < 0 ? nullptr : r->places[i].get();
}

int ReferenceStore::MinCol() const {
    int m = 0;
    for (const Row& r : rows) m = std::min(m, -r.anchor);
    return m;
}

int ReferenceStore::MaxCol() const {
    int m = 0;
    for (const Row& r : rows) m = std::max(m, static_cast<int>(r.places.size()) - r.anchor - 1);
    return m;
}

int ReferenceStore::GetCell(int col, int row, GridCell& cell) const {
    const GridCell* stored = CellAt(col, row);
    if (!stored) return 1;
    cell.MergeFrom(*stored);
    return 0;
}

int ReferenceStore::SetCell(int col, int row, const GridCell& cell) {
    if (rows.empty()) {
        rows.emplace_back();
        base = 0;
    }
    for (; row < base; --base) rows.insert(rows.begin(), Row{});
    while (row > LastRow()) rows.emplace_back();
    Row& r = *RowAt(row);
    if (r.places.empty()) r.places.emplace_back();
    for (; PlaceIndex(r, col) < 0 && col < 0; ++r.anchor)
        r.places.insert(r.places.begin(), nullptr);
    while (PlaceIndex(r, col) < 0) r.places.emplace_back();
    auto& place = r.places[PlaceIndex(r, col)];
    if (!place) place = std::make_unique<GridCell>();
    cell.CopyTo(*place);
    return 0;
}

int ReferenceStore::ClearCell(int col, int row) {
    Row* r = RowAt(row);
    int i = r ? PlaceIndex(*r, col) : -1;
    if (i < 0) return 1;
    r->places[i].reset();
    return 0;
}

int ReferenceStore::InsertRow(int row) {
    if (RowAt(row)) rows.insert(rows.begin() + (row - base), Row{});
    return 0;
}

int ReferenceStore::DeleteRow(int row) {
    if (!RowAt(row)) return 0;
    rows.erase(rows.begin() + (row - base));
    if (rows.empty()) base = 0;
    return 0;
}

int ReferenceStore::InsertCol(int col) {
    if (rows.empty()) return 1;
    int position = col;
    for (int c = 0; c < grid->GetColCount(); ++c) {
        if (grid->GetTranslatedCol(c) == col) {
            position = c;
            break;
        }
    }
    for (Row& r : rows) {
        int i = PlaceIndex(r, position);
        if (i < 0) continue;
        r.places.insert(r.places.begin() + i, nullptr);
        // The new place takes the anchor's role when it goes in before the anchor.
        if (i < r.anchor) ++r.anchor;
    }
    for (int c = 0; c < grid->GetColCount(); ++c) {
        int source = grid->GetTranslatedCol(c);
        if (source >= position) grid->SetTranslatedCol(c, source + 1);
    }
    return 0;
}

int ReferenceStore::DeleteCol(int col) {
    if (rows.empty()) return 1;
    for (Row& r : rows) {
        int i = PlaceIndex(r, col);
        if (i < 0) continue;
        if (i + 1 == static_cast<int>(r.places.size())) {
            r.places[i].reset();
            continue;
        }
        r.places.erase(r.places.begin() + i);
        if (i < r.anchor) --r.anchor;
    }
    for (int c = 0; c < grid->GetColCount(); ++c) {
        int source = grid->GetTranslatedCol(c);
        if (source >= col) grid->SetTranslatedCol(c, source - 1);
    }
    return 0;
}

int ReferenceStore::DeleteAll() {
    rows.clear();
    base = 0;
    return -1;
}

int ReferenceStore::FindFirst(const std::string& text, int* col, int* row, int flags) {
    if (flags & 0x8) *col = -1;
    *row = flags & 0x8 ? 0 : -1;
    return FindNext(text, col, row, flags);
}

namespace {

bool Matches(const GridCell& cell, std::string search, int flags) {
    std::string text = cell.GetText() ? cell.GetText() : "";
    switch (flags & 0x3) {
    case 0: return _mbscmp(text.c_str(), search.c_str()) == 0;
    case 0x2: return _mbsicmp(text.c_str(), search.c_str()) == 0;
    case 0x1: return _mbsstr(text.c_str(), search.c_str()) != nullptr;
    default: return _mbsstr(_mbsupr(text.data()), _mbsupr(search.data())) != nullptr;
    }
}

} // namespace

int ReferenceStore::FindNext(std::string text, int* col, int* row, int flags) {
    const int lastRow = grid->GetRowCount() - 1, lastCol = grid->GetColCount() - 1;
    const int limit = grid->GetRowCount() + 1, dir = flags & 0x4 ? -1 : 1;
    if (flags & 0x2) _mbsupr(text.data());
    int findCol = *col, findRow = *row;
    auto wrapRow = [&] { findRow = findRow > lastRow ? 0 : findRow < 0 ? lastRow : findRow; };
    auto nextRow = [&] {
        findRow += dir;
        wrapRow();
    };
    if (flags & 0x8) {
        findCol += dir;
        if (findCol > lastCol) {
            findCol = 0;
            ++findRow;
        } else if (findCol < 0) {
            findCol = lastCol;
            --findRow;
        }
        wrapRow();
    } else {
        nextRow();
    }
    for (int count = 0; count < limit;) {
        if (!RowAt(findRow)) {
            nextRow();
            ++count;
            continue;
        }
        for (;;) {
            const GridCell* cell = CellAt(findCol, findRow);
            if (cell && Matches(*cell, text, flags)) {
                *col = findCol;
                *row = findRow;
                return 0;
            }
            if (flags & 0x8) {
                findCol += dir;
                if (findCol >= 0 && findCol <= lastCol) continue;
                findCol = dir > 0 ? 0 : lastCol;
            }
            nextRow();
            ++count;
            break;
        }
    }
    return 1;
}

int ReferenceStore::SortRows(const int* keyCols, int keyCount, int flags) {
    if (!RowAt(0) || !RowAt(1)) return 0;
    auto nodeAt = [](const Row& r, int col) -> const GridCell* {
        int i = col < 0 ? -1 : PlaceIndex(r, col);
        return i < 0 ? nullptr : r.places[i].get();
    };
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (int a = -base; a + 1 < static_cast<int>(rows.size()); ++a) {
            for (int k = 0; k < keyCount; ++k) {
                int c = grid->CompareCells(nodeAt(rows[a], keyCols[k]),
                                           nodeAt(rows[a + 1], keyCols[k]), flags);
                if (c > 0) {
                    std::swap(rows[a], rows[a + 1]);
                    swapped = true;
                }
                if (c != 0) break;
            }
        }
    }
    return 0;
}

int ReferenceStore::FindTextToLeft(int* col, int row) const {
    const Row* r = RowAt(row);
    if (!r || r->places.empty()) return 1;
    const int size = static_cast<int>(r->places.size());
    int i = r->anchor + *col;
    if (i < 0 || i >= size) {
        i = i < 0 ? 0 : size - 1;
        if (!r->places[i]) return 1;
    }
    for (; i >= r->anchor; --i) {
        const GridCell* cell = r->places[i].get();
        if (i - r->anchor != *col && cell && cell->GetTextLength() >= 1) {
            *col = i - r->anchor;
            return 0;
        }
    }
    return 1;
}
