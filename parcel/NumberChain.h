#pragma once
// The numbering rule of the table: a row starts at or above the number where the row above
// ends (its number plus its quantity). A chain checks a new start number for one row against
// the row above, then rewrites the numbers of all rows below from it. Made on the stack for
// one operation: for a typed number, or for a recount from row 0 after the layers changed.
//
// A refused number is put back in the cell, told to the user in an alert, and the cell's
// editor opens on it again; the grid's NumberRefused stays set until the next check.

#include <vector>

class ParcelGrid;

class NumberChain {
public:
    // `text` is the new number of `row`; neither it nor the grid is owned.
    NumberChain(ParcelGrid* grid, const char* text, int row) : row(row), text(text), grid(grid) {}

    // True when the number is acceptable; the quantities and starts of the rows from `row`
    // down are then gathered.
    bool Check();
    // True when the numbers were rewritten, false when Check refused.
    bool Apply();

private:
    bool Refuse(const char* message, const char* old);

    std::vector<int> quantities;
    std::vector<int> starts;
    int row;
    const char* text;
    ParcelGrid* grid;
};
