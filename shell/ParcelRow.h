#pragma once
// One row of the table as text: the layer (or "*" for all layers left), its parcel count, the
// parcel type and the first parcel number. Counts and numbers are read with atoi where they
// are needed, so a text that is no number counts 0.

#include <string>

struct ParcelRow {
    std::string Layer;
    std::string Quantity;
    std::string Type;
    std::string Number;

    bool operator==(const ParcelRow&) const = default;
};
