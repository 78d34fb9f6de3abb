#pragma once
// A parcel dialog opened without its own loop, under a running host, with the stores that a
// test gives it: the table's rules can be driven through the grid's notifications, and what
// the user would see (alerts, boxes, the status line, Delete Row) can be read back.
//
// Boxes are answered as they open: Enter by default (OK for an alert, the default Cancel for
// the question on Cancel), or OK when answerOk is set.

#include "host/session/Host.h"
#include "parcel/ParcelDialog.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

class ParcelTable {
public:
    ParcelTable();
    ~ParcelTable();

    // Fills the stock: layer names with their counts, "*" with none, as the call stores them.
    void Stock(const std::vector<std::pair<std::string, int>>& layers, std::string types);
    // Creates the dialog's windows, which runs the table's setup.
    void Open();
    // Runs the messages that are waiting.
    static void Pump();

    // Each row as "Layer|Quantity|Type|Numbering".
    std::vector<std::string> Table();
    // A click on a cell: the view moves there first, then tells the grid.
    void Click(int col, int row);
    // A pick in a Layer cell as the drop list makes it.
    void Pick(int row, const std::string& layer);
    // Types a number into the Numbering cell of `row` and ends with Enter.
    void TypeNumber(int row, const std::string& digits);
    // The alerts and boxes shown since the last call, one line each.
    std::vector<std::string> TakeEvents();
    bool DeleteRowEnabled() const;

    std::ostringstream transcript;
    host::EventLog events{transcript};
    std::unique_ptr<host::Host> session;
    std::unique_ptr<ParcelDialog> dialog;
    ParcelGrid* grid = nullptr;
    bool answerOk = false;
    std::string folder;
};
