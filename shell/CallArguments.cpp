#include "shell/CallArguments.h"

#include "host/ads/AdsCodes.h"
#include "host/ads/AdsServices.h"
#include "platform/base/MbString.h"

#include <utility>

namespace {

constexpr char Mismatch[] = "Count of layers not equal count of counts";

std::string Text(const resbuf* node) {
    return node->restype == RTSTR && node->resval.rstring ? node->resval.rstring : "";
}

const resbuf* Next(const resbuf* node) {
    return node ? node->rbnext : nullptr;
}

// Reads the elements of one list up to its RTLE, handing each to `take`; answers that RTLE
// (or null when the chain ended first).
template <typename Take> const resbuf* ReadList(const resbuf* node, Take take) {
    for (; node && node->restype != RTLE; node = node->rbnext) take(node);
    return node;
}

} // namespace

int ReadCallArguments(const resbuf* chain, CallStores s) {
    // The opening RTLB of the first list is not looked at.
    const resbuf* node = ReadList(Next(chain), [&s](const resbuf* n) {
        s.layers.Add(Text(n));
        s.usedFlags.Add(0);
    });
    node = ReadList(Next(Next(node)), [&s](const resbuf* n) { s.typeChoices += Text(n) + "\n"; });
    node = ReadList(Next(Next(node)), [&s](const resbuf* n) { s.counts.Add(Text(n)); });
    if (s.layers.GetSize() != s.counts.GetSize()) {
        acedAlert(Mismatch);
        return 0;
    }
    s.layers.Add("*");
    s.counts.Add("");
    s.usedFlags.Add(0);
    SortLayers(s.layers, s.counts);

    s.rows.SetSize(0);
    node = Next(node);
    if (!node || node->restype == RTNIL) return 1;
    for (node = node->rbnext; node && node->restype != RTLE;) {
        // A row: its RTLB, four strings, its RTLE.
        const resbuf* field = Next(node);
        ParcelRow row;
        for (std::string* part : {&row.Layer, &row.Quantity, &row.Type, &row.Number}) {
            if (!field) break;
            *part = Text(field);
            field = field->rbnext;
        }
        s.rows.Add(std::move(row));
        node = Next(field);
    }
    return 1;
}

int SortLayers(StringStore& layers, StringStore& counts) {
    const int n = layers.GetSize();
    if (n != counts.GetSize()) {
        acedAlert(Mismatch);
        return 0;
    }
    for (int i = 0; i + 1 < n; ++i)
        for (int j = i + 1; j < n; ++j)
            if (_mbsicmp(layers[i].c_str(), layers[j].c_str()) > 0) {
                std::swap(layers[i], layers[j]);
                std::swap(counts[i], counts[j]);
            }
    return 1;
}
