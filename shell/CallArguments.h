#pragma once
// The four arguments of KERVDIALOG read into the table's stores: the layers (each one free),
// the types (each ended by a line feed), the parcel count of each layer, and nil or the rows
// of an earlier table. The elements' codes are not looked at: every element is read as a
// string. Layers and counts must be as many; the catch-all "*" joins the layers with an empty
// count, and the layers are sorted with their counts.

#include "host/ads/Resbuf.h"
#include "shell/TableStore.h"

#include <string>

struct CallStores {
    StringStore& layers;
    IntStore& usedFlags;
    std::string& typeChoices;
    StringStore& counts;
    RowStore& rows;
};

// 0 after the alert "Count of layers not equal count of counts", with the rows left alone.
int ReadCallArguments(const resbuf* chain, CallStores stores);

// Sorts the layers by name, without regard to case, keeping each count with its layer; names
// that compare equal stay in their order. 0 after the alert when the two differ in length.
int SortLayers(StringStore& layers, StringStore& counts);
