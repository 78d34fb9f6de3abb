#pragma once
// One record a column of a sheet: how wide it is, which data source holds its cells and under
// which column number that source knows them, and the cell laid under each of its cells.

#include "grid/cells/GridCell.h"

#include <memory>

class GridDataSource;

struct ColumnInfo {
    int width = 0;
    // Not owned; null means the sheet's source.
    GridDataSource* dataSource = nullptr;
    std::unique_ptr<GridCell> defaultCell;
    // Starts equal to the grid column and parts from it when columns move or are remapped.
    int sourceCol = 0;
};
