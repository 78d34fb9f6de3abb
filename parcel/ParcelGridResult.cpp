// The finished table, read back out of the cells and handed to LISP as a list of rows, each a
// list of four strings. A table with at most two grid rows is wrapped in one more list, so
// that LISP sees a list of rows either way.

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/ads/AdsLisp.h"
#include "parcel/FlashLabel.h"
#include "parcel/ParcelGrid.h"
#include "shell/ads_list_user.h"

#include <cstdio>
#include <string>

namespace {

constexpr int BlinkPeriod = 200;

} // namespace

int ParcelGrid::CollectResult() {
    ads_list_user list;
    Rows.SetSize(0);
    // The first faulty row stops the scan; nothing below it is looked at.
    auto refuse = [&](const char* message, bool beep, int col, int row) {
        if (FlashLabel* label = Label()) label->Start(0, BlinkPeriod, message);
        if (beep) Beep(1000, 50);
        if (col >= 0) StartEdit(col, row, 0);
        return 0;
    };

    const bool wrapped = GetRowCount() <= 2;
    if (wrapped) list + acutBuildList(RTLB, 0);
    for (int r = 0; r < GetRowCount(); ++r) {
        const std::string layer = CellText(0, r);
        if (layer.empty()) break;
        const std::string quantity = CellText(1, r);
        const std::string type = CellText(2, r);
        const std::string number = CellText(3, r);
        // A layer without parcels needs no type; the comparison is on the text.
        if (type.empty() && quantity != "0") return refuse("Type is absent", true, 2, r);
        if (number.empty()) return refuse("Number is absent", true, 3, r);
        // A text that isn't a number at all counts as 0.
        double value = 0.0;
        std::sscanf(number.c_str(), "%lf", &value);
        if (value == 0.0) return refuse("Number cannot to be '0'", false, 3, r);

        list + acutBuildList(RTLB, 0);
        list + layer.c_str() + quantity.c_str() + type.c_str() + number.c_str();
        list + acutBuildList(RTLE, 0);
        Rows.Add({layer, quantity, type, number});
    }
    if (Rows.GetSize() == 0) return refuse("Input is empty", false, -1, -1);

    for (int col = 0; col < 4; ++col) ColumnWidths[col] = GetColWidth(col);
    if (wrapped) list + acutBuildList(RTLE, 0);
    acedRetList(list.first);
    return 1;
}
