// Setup of the table from its stores, the blank last row, and the writes that the rules use.

#include "parcel/ParcelGrid.h"

#include "parcel/CallState.h"
#include "parcel/NumberChain.h"
#include "parcel/ParcelDialog.h"

#include <cstdlib>
#include <string>

namespace {

constexpr const char* NumberMask = "999999";
constexpr const char* Titles[4] = {"Layer", "Quantity", "Type", "Numbering"};
constexpr int DropListType = 1;

} // namespace

ParcelGrid::ParcelGrid() {
    CancelPressed = 0;
}

void ParcelGrid::NotifyGridCreated() {
    NumberRefused = 0;
    for (int row = GetRowCount() - 1; row >= 0; --row) DeleteRow(row);
    WindowColor = GetSysColor(COLOR_WINDOW);
    EnableDeleteRow(FALSE);
    RecountStock();
    RebuildLayerChoices();

    rowCount = Rows.GetSize();
    if (rowCount == 0) {
        Rows.Add({"*", std::to_string(StockTotal), "", "1"});
        rowCount = 1;
    }
    TableReady = 0;

    RECT client{};
    GetClientRect(&client);
    SetSideHeadingWidth(0);
    if (ColumnWidths[0] == -1) {
        const int w = (client.right - client.left - GetSideHeadingWidth()) / 8;
        ColumnWidths[0] = ColumnWidths[2] = 3 * w;
        ColumnWidths[1] = ColumnWidths[3] = w;
    }
    // A second setup (after a Load) keeps the editor that the first one made.
    if (!NumberEditor.m_hWnd)
        NumberEditor.Create(WS_CHILD | WS_VISIBLE, RECT{}, this, NumberEditorId);

    EnableUpdates(1);
    SetRowCount(rowCount, 1);
    SetColCount(colCount, 1);

    GetCell(0, 0, HeadingCell);
    HeadingCell.SetReadOnly(1);
    GetCell(0, 0, LayerCell);
    LayerCell.SetCellType(DropListType);
    GetCell(1, 0, QuantityCell);
    QuantityCell.SetReadOnly(1);
    GetCell(3, 0, NumberCell);
    GetCell(2, 0, TypeCell);
    TypeCell.SetReadOnly(1);
    TypeCell.SetCellType(DropListType);

    // Stored back with the choices, so the list gains an empty entry at every setup.
    TypeChoices += '\n';
    for (int i = 0; i < rowCount; ++i) {
        LayerCell.SetLabel(LayerChoices);
        LayerCell.SetText(Rows[i].Layer);
        QuantityCell.SetText(Rows[i].Quantity);
        SetCell(1, i, QuantityCell);
        SetCell(0, i, LayerCell);
        TypeCell.SetLabel(TypeChoices);
        SetCell(2, i, TypeCell);
        NumberCell.SetText(Rows[i].Number);
        SetCell(3, i, NumberCell);
        SetCellMask(3, i, NumberMask);
    }
    if (Rows[Rows.GetSize() - 1].Layer != "*") AppendNextRow();

    for (int col = 0; col < colCount; ++col) {
        HeadingCell.SetText(Titles[col]);
        SetCell(col, -1, HeadingCell);
    }
    for (int col = 0; col < colCount; ++col) SetColWidth(col, ColumnWidths[col]);
    for (int i = 0; i < rowCount; ++i) {
        SetCellText(2, i, Rows[i].Type);
        SetCellText(3, i, Rows[i].Number);
    }
    RedrawAll();
    TableReady = 1;
}

void ParcelGrid::AppendNextRow() {
    if (!AppendGuard) return;
    AppendGuard = 0;
    const int last = GetRowCount() - 1;
    const int next = std::atoi(CellText(3, last).c_str()) + std::atoi(CellText(1, last).c_str());
    AppendRow();

    LayerCell.SetText("");
    // With every real layer in a row there is nothing left to offer.
    LayerCell.SetLabel(last + 1 == Layers.GetSize() - 1 ? "" : LayerChoices);
    SetCell(0, last + 1, LayerCell);
    SetCell(2, last + 1, BlankCell);
    NumberCell.SetText(std::to_string(next));
    NumberCell.SetReadOnly(1);
    NumberCell.SetTextColor(BlankNumberColor);
    SetCell(3, last + 1, NumberCell);
    WriteCellMask(3, last + 1, NumberMask);
    RedrawRow(last + 1);
    AppendGuard = 1;
}

std::string ParcelGrid::CellText(int col, int row) {
    std::string text;
    GetCellText(col, row, text);
    return text;
}

int ParcelGrid::WriteCellText(int col, int row, const std::string& text) {
    GetCell(col, row, workCell);
    workCell.SetText(text);
    return SetCell(col, row, workCell);
}

int ParcelGrid::WriteCellLabel(int col, int row, const std::string& label) {
    GetCell(col, row, workCell);
    workCell.SetLabel(label);
    return SetCell(col, row, workCell);
}

int ParcelGrid::WriteCellMask(int col, int row, const std::string& mask) {
    GetCell(col, row, workCell);
    workCell.SetMask(mask);
    return SetCell(col, row, workCell);
}

int ParcelGrid::WriteCellColors(int col, int row, COLORREF back, COLORREF text) {
    GetCell(col, row, workCell);
    workCell.SetBackColor(back);
    workCell.SetTextColor(text);
    return SetCell(col, row, workCell);
}

void ParcelGrid::Renumber() {
    const std::string first = CellText(3, 0);
    NumberChain(this, first.c_str(), 0).Apply();
}

void ParcelGrid::EnableDeleteRow(BOOL enable) {
    if (ActiveDialog) ActiveDialog->EnableDeleteRow(enable);
}

FlashLabel* ParcelGrid::Label() {
    return ActiveDialog ? &ActiveDialog->label : nullptr;
}
