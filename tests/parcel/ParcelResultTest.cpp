// The table read back for LISP: the list of rows of four strings, the wrapping of short
// tables, and the refusals of an incomplete table in the status line.

#include "host/lisp/LispPrinter.h"
#include "tests/host/TestModule.h"
#include "tests/parcel/ParcelTable.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

class ParcelResult : public ::testing::Test {
protected:
    void SetUp() override {
        table.Stock({{"*", 0}, {"A", 12}, {"B", 7}, {"C", 30}}, "T1\nT2\n");
        module.Define("COLLECT", 1, [this] { passed = grid.CollectResult(); });
        module.Start(*table.session);
    }
    void Open(const std::vector<ParcelRow>& rows) {
        for (const ParcelRow& row : rows) grid.Rows.Add(row);
        grid.MarkUsedLayers();
        table.Open();
    }
    // What LISP gets from a collection, or "refused: " and the status line.
    std::string Collect() {
        const host::LispOutcome outcome = table.session->Call("COLLECT", {});
        if (!passed) return "refused: " + table.dialog->label.GetWindowText();
        return host::LispPrinter::Print(outcome.value);
    }
    std::vector<ParcelRow> Stored() {
        std::vector<ParcelRow> rows;
        for (int i = 0; i < grid.Rows.GetSize(); ++i) rows.push_back(grid.Rows[i]);
        return rows;
    }

    // The module outlives the host, which talks to it while it shuts down.
    TestModule module;
    ParcelTable table;
    ParcelGrid& grid = *table.grid;
    int passed = -1;
};

} // namespace

TEST_F(ParcelResult, ThreeRowsOrMoreAreTheRowListsOneBehindTheOther) {
    Open({{"A", "12", "T1", "1"}, {"B", "7", "T2", "13"}, {"*", "30", "T1", "20"}});
    EXPECT_EQ(Collect(), "((\"A\" \"12\" \"T1\" \"1\") (\"B\" \"7\" \"T2\" \"13\") "
                         "(\"*\" \"30\" \"T1\" \"20\"))");
    EXPECT_EQ(Stored(),
              (std::vector<ParcelRow>{
                  {"A", "12", "T1", "1"}, {"B", "7", "T2", "13"}, {"*", "30", "T1", "20"}}));
    for (int col = 0; col < 4; ++col) EXPECT_EQ(grid.ColumnWidths[col], grid.GetColWidth(col));
}

TEST_F(ParcelResult, ShortTablesAreWrappedSoLispStillSeesAListOfRows) {
    grid.Rows.Add({"*", "49", "T2", "1"});
    table.Open();
    EXPECT_EQ(Collect(), "((\"*\" \"49\" \"T2\" \"1\"))");

    // One filled row and the blank row: two grid rows, wrapped; the blank row is left out.
    grid.Rows.SetSize(0);
    grid.Rows.Add({"A", "12", "T1", "1"});
    grid.NotifyGridCreated();
    ASSERT_EQ(grid.GetRowCount(), 2);
    EXPECT_EQ(Collect(), "((\"A\" \"12\" \"T1\" \"1\"))");
    EXPECT_EQ(grid.Rows.GetSize(), 1);
}

TEST_F(ParcelResult, ARowWithoutParcelsNeedsNoType) {
    Open({{"B", "0", "", "1"}, {"A", "12", "T1", "1"}, {"*", "37", "T2", "13"}});
    EXPECT_EQ(Collect(), "((\"B\" \"0\" \"\" \"1\") (\"A\" \"12\" \"T1\" \"1\") "
                         "(\"*\" \"37\" \"T2\" \"13\"))");
}

TEST_F(ParcelResult, TheFirstFaultyRowIsRefusedInTheStatusLine) {
    Open({{"A", "12", "T1", "1"}, {"B", "00", "", "13"}, {"C", "30", "", "0"}});
    const int widths = grid.ColumnWidths[0];
    grid.SetColWidth(0, widths + 10);
    // The text "00" isn't "0".
    EXPECT_EQ(Collect(), "refused: Type is absent");
    EXPECT_EQ(grid.GetCurrentCol(), 2);
    EXPECT_EQ(grid.GetCurrentRow(), 1);
    EXPECT_EQ(Stored(), (std::vector<ParcelRow>{{"A", "12", "T1", "1"}}));
    EXPECT_EQ(grid.ColumnWidths[0], widths);
    EXPECT_NE(table.transcript.str().find(";; beep 1000 50"), std::string::npos);

    grid.SetCellText(2, 1, "T2");
    EXPECT_EQ(Collect(), "refused: Type is absent");
    EXPECT_EQ(grid.GetCurrentRow(), 2);

    grid.SetCellText(2, 2, "T2");
    table.transcript.str("");
    EXPECT_EQ(Collect(), "refused: Number cannot to be '0'");
    EXPECT_EQ(CWnd::GetFocus(), &grid.NumberEditor);
    EXPECT_EQ(table.transcript.str().find(";; beep 1000"), std::string::npos);
    grid.CancelEdit();

    grid.SetCellText(3, 2, "000");
    EXPECT_EQ(Collect(), "refused: Number cannot to be '0'");
    grid.CancelEdit();
    grid.SetCellText(3, 2, "");
    EXPECT_EQ(Collect(), "refused: Number is absent");
    grid.CancelEdit();
}

TEST_F(ParcelResult, AnEmptyFirstLayerIsAnEmptyInput) {
    Open({{"", "0", "", "1"}, {"A", "12", "T1", "1"}});
    EXPECT_EQ(Collect(), "refused: Input is empty");
}
