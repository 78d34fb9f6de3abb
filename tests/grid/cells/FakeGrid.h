#pragma once
// A grid as a data source sees it: counts and a column table, and the default ordering.

#include "grid/cells/SourceGrid.h"

#include <vector>

class FakeGrid : public SourceGrid {
public:
    FakeGrid(int cols, int rows) : rowCount(rows) {
        for (int c = 0; c < cols; ++c) sourceCols.push_back(c);
    }

    int GetRowCount() override { return rowCount; }
    int GetColCount() override { return static_cast<int>(sourceCols.size()); }
    int GetTranslatedCol(int col) override { return IsDataCol(col) ? sourceCols[col] : col; }
    int SetTranslatedCol(int col, int sourceCol) override {
        if (!IsDataCol(col)) return 1;
        sourceCols[col] = sourceCol;
        return 0;
    }

    int rowCount;
    std::vector<int> sourceCols;

private:
    bool IsDataCol(int col) const { return col >= 0 && col < static_cast<int>(sourceCols.size()); }
};
