#pragma once
// The sheet's own store: cells kept in memory, by row and column number.
//
// Rows are numbered by position. Row 0 is the row made first, when the empty store got its
// first cell; rows before it carry negative numbers, which is how heading cells live in the
// same store. Writing to a row beyond either end makes the rows up to it; inserting or deleting
// a row renumbers those behind it. Within a row, columns count from the row's anchor (see
// CellRow), so the heading cells of a row travel with it.
//
// The store keeps no counts: those belong to the sheet. It reads the grid's counts for a search
// and the grid's column table in InsertCol and DeleteCol, which keep the table's source columns
// in step with the moved cells, and it sorts with the grid's CompareCells.
//
// Every access finds its row directly and its cell by a short search that starts where the last
// access stopped, so that the grid's sweeps along a row or down a column cost one step a cell.

#include "grid/cells/CellRow.h"
#include "grid/cells/GridDataSource.h"

#include <cstddef>
#include <string>
#include <vector>

class TextMatcher;

class MemoryDataSource : public GridDataSource {
public:
    MemoryDataSource() = default;
    ~MemoryDataSource() override = default;

    // A row or column comes into being when a cell is written: both answer 0 and do nothing.
    int AppendRow() override;
    int AppendCol() override;
    // Nothing changes, and the answer is 0, when no stored row lies at or behind row.
    int InsertRow(int row) override;
    int DeleteRow(int row) override;
    // A col that the grid's column table holds as a source column is taken as the number of the
    // grid column that holds it. 1 for an empty store.
    int InsertCol(int col) override;
    // 1 for an empty store.
    int DeleteCol(int col) override;
    // The place stays, empty; 1 when it doesn't exist.
    int ClearCell(int col, int row) override;
    // Answers -1 after emptying the store.
    int DeleteAll() override;
    int GetCell(int col, int row, GridCell& cell) override;
    // The stored text alone, as GetCell would give it, without building the cell: the grid's
    // sweeps over its own store read this. Empty for a cell without text or no cell.
    void GetText(int col, int row, std::string& text);
    // Always arrives; the stored value is replaced as a whole.
    int SetCell(int col, int row, const GridCell& cell) override;
    // Start before the first place, or with flag 0x4 after the last: col -1 and row 0 with flag
    // 0x8, else row -1. The search visits the grid's rows, wrapping round, at most one row more
    // than the grid has, and answers 1 when nothing matched; with flag 0x8 it covers the grid's
    // columns of each row.
    int FindFirst(const std::string& text, int* col, int* row, int flags) override;
    int FindNext(const std::string& text, int* col, int* row, int flags) override;
    // Rows from 0 on exchange their cells; heading rows stay. Stable: rows that compare equal
    // in all keys keep their order. 1 when there is no grid to compare with.
    int SortRows(const int* keyCols, int keyCount, int flags) override;
    int SortRowsByCol(int col, int flags) override;
    // Starts at col, or at the row's last place when col lies beyond it, which then must hold
    // a value, and walks left to column 0 for a text of one byte or more at another column.
    int FindTextToLeft(int* col, int row) override;

private:
    CellRow* RowAt(long long row) {
        const long long i = row - firstRow;
        return i >= 0 && i < static_cast<long long>(rows.size())
                   ? &rows[static_cast<std::size_t>(i)]
                   : nullptr;
    }
    CellRow& MakeRow(int row);
    bool ScanRow(const CellRow& row, long long findCol, int lastCol, int step,
                 const TextMatcher& matcher, int* foundCol);

    // Rows firstRow, firstRow + 1, ...
    std::vector<CellRow> rows;
    int firstRow = 0;
    // Index of the value found last in its row, where the next search in a row starts.
    std::size_t cellHint = 0;
};
