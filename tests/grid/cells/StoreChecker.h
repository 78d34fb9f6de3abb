#pragma once
// Checks that the memory store holds what the reference store holds.

#include "ReferenceStore.h"
#include "grid/cells/GridCell.h"
#include "grid/cells/MemoryDataSource.h"

#include <string>

// Every property of the cell as its getters show it, bits included.
std::string DescribeCell(const GridCell& cell);

// Reads every address from one row and column before the stored ones to one after them from
// both stores and compares the results and the cells, and the answers of FindTextToLeft.
void ExpectSameStore(MemoryDataSource& store, const ReferenceStore& model);
