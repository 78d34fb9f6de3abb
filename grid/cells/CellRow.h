#pragma once
// One row of the memory store. The row has places from firstCol to lastCol, and the values
// written to some of them. Place 0 is the row's anchor: columns count from it, heading cells
// lie before it under negative numbers, and a row that has places always has place 0. A place
// that was never written, or was cleared, holds nothing; only written places cost memory.
//
// The places matter beside the values: an operation that addresses a column outside them
// doesn't arrive (a clear answers 1, an inserted column doesn't reach the row), and a removed
// place closes the gap while a cleared one stays.

#include "grid/cells/PackedCell.h"

#include <cstddef>
#include <cstdint>
#include <vector>

struct StoredCell {
    std::int32_t col;
    PackedCell value;
};

class CellRow {
public:
    bool HasPlaces() const { return firstCol <= lastCol; }
    bool HasPlace(int col) const { return col >= firstCol && col <= lastCol; }
    int FirstCol() const { return firstCol; }
    int LastCol() const { return lastCol; }

    // The value at col, or null. `hint` is the index of the value found last; a sweep along a
    // row or down a column finds the next one there or right beside it.
    const PackedCell* Find(int col, std::size_t& hint) const {
        const std::size_t n = cells.size();
        if (hint < n && cells[hint].col == col) return &cells[hint].value;
        if (hint + 1 < n && cells[hint + 1].col == col) return &cells[++hint].value;
        // In a row without gaps the value sits as far from the first one as its column.
        if (n && col >= cells[0].col) {
            std::size_t guess =
                static_cast<std::size_t>(static_cast<long long>(col) - cells[0].col);
            if (guess < n && cells[guess].col == col) return &cells[hint = guess].value;
        }
        return Search(col, hint);
    }
    // The value at col, made empty if it wasn't there; the places grow to include col, starting
    // with the anchor in a row that has none.
    PackedCell& Place(int col, std::size_t& hint);
    // Takes the value away and keeps the place; false when col is no place.
    bool Clear(int col);
    // A new empty place at col, pushing the places beyond it one further from the anchor; for
    // a negative col the new place lies outside col, since the anchor doesn't move. Nothing
    // happens when col is no place.
    void InsertPlace(int col);
    // Removes the place at col and closes the gap towards the anchor, except that the last place
    // of the row only loses its value.
    void DeletePlace(int col);

    // The values in the order of their columns.
    const std::vector<StoredCell>& Cells() const { return cells; }

private:
    std::size_t LowerBound(int col) const;
    const PackedCell* Search(int col, std::size_t& hint) const;

    std::int32_t firstCol = 1;
    std::int32_t lastCol = 0;
    std::vector<StoredCell> cells;
};
