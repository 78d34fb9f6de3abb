#pragma once
// The memory store as plainly as it can be written: a list of rows numbered from the row made
// first, each a list of places numbered from its anchor, each place holding a whole GridCell or
// nothing. Every operation follows the store's rules step by step, the sort is a bubble sort and
// the search walks place by place. The tests run the real store beside it.

#include "grid/cells/GridCell.h"
#include "grid/cells/SourceGrid.h"

#include <memory>
#include <string>
#include <vector>

class ReferenceStore {
public:
    explicit ReferenceStore(SourceGrid* grid) : grid(grid) {}

    int GetCell(int col, int row, GridCell& cell) const;
    int SetCell(int col, int row, const GridCell& cell);
    int ClearCell(int col, int row);
    int InsertRow(int row);
    int DeleteRow(int row);
    int InsertCol(int col);
    int DeleteCol(int col);
    int DeleteAll();
    int FindFirst(const std::string& text, int* col, int* row, int flags);
    int FindNext(std::string text, int* col, int* row, int flags);
    int SortRows(const int* keyCols, int keyCount, int flags);
    int FindTextToLeft(int* col, int row) const;

    bool Empty() const { return rows.empty(); }
    int FirstRow() const { return base; }
    int LastRow() const { return base + static_cast<int>(rows.size()) - 1; }
    int MinCol() const;
    int MaxCol() const;

private:
    struct Row {
        std::vector<std::unique_ptr<GridCell>> places;
        int anchor = 0;
    };

    const Row* RowAt(int row) const;
    Row* RowAt(int row);
    // Index of the place numbered col, or -1.
    static int PlaceIndex(const Row& r, int col);
    const GridCell* CellAt(int col, int row) const;

    SourceGrid* grid;
    std::vector<Row> rows;
    int base = 0;
};
