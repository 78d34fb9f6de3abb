#pragma once
// The stores of an accepted table, kept from one call to the next: a call without arguments
// starts from them.

#include "shell/TableStore.h"

#include <string>

struct TableCopy {
    StringStore Layers;
    IntStore UsedFlags;
    StringStore Counts;
    std::string TypeChoices;
    RowStore Rows;
};
