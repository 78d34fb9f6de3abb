#pragma once
// The parcel table: a grid of four fixed columns (Layer, Quantity, Type, Numbering) in which
// each row gives one layer of the stock, or "*" for all layers that no row above names, a
// parcel type and a first parcel number. Quantity follows from the layer and is never typed;
// numbers chain from row to row. The table ends in a blank row with the next number in grey,
// unless its last row is "*".
//
// The stores are filled while the grid has no windows; NotifyGridCreated turns them into rows.
// From then on the cells are the truth, kept consistent by the notifications, and
// CollectResult reads them back into Rows.
//
// Re-entry: setting a cell fires NotifyCellWrite on the same call stack, so the handlers'
// own writes must not start the rules over. The flags TableReady, CellGuard, AppendGuard,
// RemoveGuard, CollapseGuard and TimerBusy say which routine may run now.
//
// Sources: ParcelGrid.cpp (setup), ParcelGridLayers.cpp (free layers and drop-downs),
// ParcelGridResult.cpp (the result), ParcelGridEvents.cpp (the notifications).

#include "grid/cells/GridCell.h"
#include "grid/core/GridCtrl.h"
#include "grid/windows/MaskedEdit.h"
#include "shell/TableStore.h"

#include <string>

class FlashLabel;

class ParcelGrid : public GridCtrl {
public:
    ParcelGrid();

    // Setup: rebuilds the whole table from the stores.
    void NotifyGridCreated() override;
    // Adds the blank row behind the last row, showing the number that the next layer would get.
    void AppendNextRow();

    // --- Stock keeping ---
    void MarkUsedLayers();
    void RecountStock();
    // "*" first, then every layer whose flag is 0, each ended by a line feed.
    void RebuildLayerChoices();
    void ShowLayerQuantity(const std::string& layer, int row);
    // Moves the used flag from LayerBeforeEdit to newLayer and refreshes every drop-down.
    void SwapLayerFlags(const std::string& newLayer);
    // Makes `row` the catch-all row: it takes what is left, and the rows below it go.
    void CollapseBelow(int row);
    // Removes SelectedRow and gives its layer back to the stock.
    void RemoveRow(int addBlankRow);

    // Reads the table back into Rows and hands it to LISP; 0 with a flashing message when the
    // table is incomplete.
    int CollectResult();

    // A write of one property through the grid's own write path, with a cell of this table
    // rather than the grid's scratch cell, which the write that a notification reports may
    // still be carrying.
    int WriteCellText(int col, int row, const std::string& text);
    int WriteCellLabel(int col, int row, const std::string& label);
    int WriteCellMask(int col, int row, const std::string& mask);
    int WriteCellColors(int col, int row, COLORREF back, COLORREF text);
    std::string CellText(int col, int row);

    int CanResizeTopHeading() override { return 0; }
    void NotifyCellChanged(int oldCol, int newCol, int oldRow, int newRow) override;
    void NotifyCellLeftMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                             int processed) override;
    void NotifyKeyDown(UINT* key, int processed) override;
    void NotifyCellWrite(int col, int row, GridCell* cell) override;
    int QueryEditStart(int col, int row, CWnd** editor) override;
    int QueryEditFinish(int col, int row, CWnd* editor, const std::string& text,
                        int cancelled) override;

    static constexpr COLORREF BlankNumberColor = 6579300;
    static constexpr COLORREF MarkBackColor = 0xA06464;
    static constexpr COLORREF MarkTextColor = 0xFFFFFF;
    static constexpr int DeleteRowButton = 1004;
    static constexpr int NumberEditorId = 125;

    int colCount = 4;
    int rowCount = 1;
    StringStore Layers{20};
    StringStore Counts{20};
    IntStore UsedFlags{20};
    int StockTotal = 0;
    std::string TypeChoices;
    std::string LayerChoices;
    MaskedEdit NumberEditor;
    RowStore Rows{20};
    int TableReady = 0;
    int NumberRefused = 0;
    int ColumnWidths[4] = {-1, -1, -1, -1};
    GridCell HeadingCell;
    GridCell LayerCell;
    GridCell QuantityCell;
    GridCell TypeCell;
    GridCell NumberCell;
    GridCell BlankCell;
    int SelectedRow = 0;
    std::string LayerBeforeEdit;
    int CellGuard = 0;
    int AppendGuard = 1;
    int RemoveGuard = 1;
    int CollapseGuard = 1;
    int TimerBusy = 0;
    COLORREF WindowColor = 0;

protected:
    void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    enum : UINT_PTR { LabelTimer = 0 };

    // The dialog's parts; none when the grid runs outside a dialog.
    void EnableDeleteRow(BOOL enable);
    FlashLabel* Label();
    // The used flag of a layer; one without an entry counts as free.
    int Flag(int layer) const;
    // Rechains every number from the one in row 0.
    void Renumber();

    // The cell that the Write operations read, change and write back.
    GridCell workCell;
};
