#include "parcel/NumberChain.h"

#include "host/ads/AdsServices.h"
#include "parcel/ParcelGrid.h"

#include <cstdio>
#include <cstdlib>
#include <string>

bool NumberChain::Check() {
    if (!grid || !text || row < 0) return false;
    const std::string old = grid->CellText(3, row);
    const int number = std::atoi(text);
    char message[512];
    if (number <= 0) {
        std::snprintf(message, sizeof message,
                      "Value '%s' is not correct\nNumber can't be equal or less than '0'", text);
        return Refuse(message, old.c_str());
    }
    if (row > 0) {
        const int minimum = std::atoi(grid->CellText(3, row - 1).c_str()) +
                            std::atoi(grid->CellText(1, row - 1).c_str());
        if (number < minimum) {
            std::snprintf(message, sizeof message,
                          "Value '%s' is not correct\nYou must enter Number great or equal than "
                          "'%d'",
                          text, minimum);
            return Refuse(message, old.c_str());
        }
    }
    const int rowCount = grid->GetRowCount();
    for (int r = row; r < rowCount; ++r) {
        const std::string numberText = grid->CellText(3, r);
        if (numberText.empty()) continue;
        quantities.push_back(std::atoi(grid->CellText(1, r).c_str()));
        starts.push_back(r == row ? number : std::atoi(numberText.c_str()));
    }
    return true;
}

bool NumberChain::Refuse(const char* message, const char* old) {
    grid->NumberRefused = 1;
    grid->WriteCellText(3, row, old);
    acedAlert(message);
    grid->StartEdit(3, row, 0);
    return false;
}

bool NumberChain::Apply() {
    if (!Check()) return false;
    for (std::size_t i = 0; i + 1 < starts.size(); ++i) starts[i + 1] = starts[i] + quantities[i];
    // Every row of the table holds a number, so the rows that took part are consecutive.
    for (std::size_t i = 0; i < starts.size(); ++i)
        grid->WriteCellText(3, row + static_cast<int>(i), std::to_string(starts[i]));
    grid->RedrawCol(3);
    return true;
}
