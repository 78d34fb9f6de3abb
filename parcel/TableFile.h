#pragma once
// The table file: which layers have rows with which type, which layers are taken, and the list
// of types, kept in a profile text with the extension "tab" beside the drawing. One section per
// row (named by its layer, "*" too), then one per remaining layer, then "Types" with one key per
// type in list order. Quantities and numbers are not kept: a loaded table has quantity "0" and
// number "1" in every row until it is worked again.

#include "shell/TableStore.h"

#include <string>

class TableFile {
public:
    // The stores a save reads and a load replaces; Counts is neither.
    TableFile(StringStore& layers, IntStore& usedFlags, RowStore& rows, std::string& typeChoices);

    // The drawing's folder and name without its extension.
    static std::string DefaultName();
    // Replaces the file's whole content; 0 when it can't be opened for writing.
    int Save(const std::string& path);
    // Replaces the stores by the file's content; 0, with the stores untouched, when the file
    // can't be opened.
    int Load(const std::string& path);

private:
    StringStore& layers;
    IntStore& usedFlags;
    RowStore& rows;
    std::string& typeChoices;
};
