#pragma once
// What a data source may ask of the grid it serves: the grid's counts, the mapping of grid
// columns to source columns, and the ordering of cells for a sort. The grid control implements
// it; a source reaches it through its `grid` pointer, so that sources live below the control.

class GridCell;

class SourceGrid {
public:
    virtual int GetRowCount() = 0;
    virtual int GetColCount() = 0;
    // The source column of a grid column; a col outside the data columns comes back unchanged.
    virtual int GetTranslatedCol(int col) = 0;
    // 0, or 1 when col is no data column.
    virtual int SetTranslatedCol(int col, int sourceCol) = 0;

    // Order of two cells for a sort, by sign: ascending, or descending with bit 0x2 of flags.
    // Either cell may be null. Texts of data types 2, 3 and 5 compare as numbers, all others
    // byte by byte.
    virtual int CompareCells(const GridCell* first, const GridCell* second, int flags);

protected:
    ~SourceGrid() = default;
};
