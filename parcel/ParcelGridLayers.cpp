// The books on the stock: which layers are taken, what is left for the catch-all row, and what
// the Layer drop-down of each row offers. Names compare exactly, byte for byte.

#include "parcel/NumberChain.h"
#include "parcel/ParcelGrid.h"

#include <cstdlib>
#include <string>

namespace {

constexpr UINT LabelTimerPeriod = 100;

} // namespace

void ParcelGrid::MarkUsedLayers() {
    UsedFlags.SetSize(0);
    UsedFlags.SetSize(Layers.GetSize());
    // Every match counts, so duplicate names are all flagged.
    for (int r = 0; r < Rows.GetSize(); ++r)
        for (int i = 0; i < Layers.GetSize(); ++i)
            if (Rows[r].Layer == Layers[i]) UsedFlags[i] = 1;
}

int ParcelGrid::Flag(int layer) const {
    return layer < UsedFlags.GetSize() ? UsedFlags[layer] : 0;
}

void ParcelGrid::RecountStock() {
    StockTotal = 0;
    for (int i = 0; i < Counts.GetSize(); ++i) StockTotal += std::atoi(Counts[i].c_str());
}

void ParcelGrid::RebuildLayerChoices() {
    LayerChoices.clear();
    for (int i = 0; i < Layers.GetSize(); ++i)
        if (Flag(i) == 0) LayerChoices += Layers[i] + '\n';
    // "*" is always offered first: back in front when it is taken, or when a name sorts before
    // it (then it stands twice).
    if (LayerChoices.starts_with("*")) return;
    LayerChoices.insert(0, "*\n");
}

void ParcelGrid::ShowLayerQuantity(const std::string& layer, int row) {
    for (int i = 0; i < Layers.GetSize(); ++i) {
        if (Layers[i] != layer) continue;
        if (i < Counts.GetSize()) WriteCellText(1, row, Counts[i]);
        return;
    }
}

void ParcelGrid::SwapLayerFlags(const std::string& newLayer) {
    if (newLayer == LayerBeforeEdit) return;
    auto flag = [this](const std::string& layer, int value) {
        for (int i = 0; i < Layers.GetSize(); ++i) {
            if (Layers[i] != layer) continue;
            UsedFlags.SetAt(i, value);
            return;
        }
    };
    flag(LayerBeforeEdit, 0);
    flag(newLayer, 1);
    RebuildLayerChoices();
    for (int row = 0; row < GetRowCount(); ++row) {
        WriteCellLabel(0, row, "");
        WriteCellLabel(0, row, LayerChoices);
        RedrawCell(0, row);
    }
}

void ParcelGrid::CollapseBelow(int row) {
    if (!CollapseGuard) return;
    CollapseGuard = 0;
    int taken = 0;
    for (int r = 0; r < row; ++r)
        if (!CellText(0, r).empty()) taken += std::atoi(CellText(1, r).c_str());
    WriteCellText(1, row, std::to_string(StockTotal - taken));

    SelectedRow = GetRowCount() - 1;
    if (SelectedRow != 0) {
        // Last first, the blank row included.
        for (; SelectedRow > row && SelectedRow > 0; --SelectedRow) RemoveRow(0);
        if (SelectedRow == 0) EnableDeleteRow(FALSE);
        // The picked cell's label can only be set after the grid has stored the pick.
        SetTimer(LabelTimer, LabelTimerPeriod);
    }
    CollapseGuard = 1;
}

void ParcelGrid::RemoveRow(int addBlankRow) {
    TableReady = 0;
    if (!RemoveGuard) return;
    RemoveGuard = 0;
    const std::string gone = CellText(0, SelectedRow);
    DeleteRow(SelectedRow);

    int taken = 0;
    for (int i = 0; i < Layers.GetSize(); ++i) {
        if (Layers[i] == gone) UsedFlags.SetAt(i, 0);
        if (Flag(i) == 1 && i < Counts.GetSize()) taken += std::atoi(Counts[i].c_str());
    }
    // The catch-all row takes the parcels of the removed layer back.
    const int last = GetRowCount() - 1;
    if (CellText(0, last) == "*") {
        WriteCellText(1, last, std::to_string(StockTotal - taken));
        RedrawCell(1, last);
    }
    RebuildLayerChoices();
    // A filled row also offers the layer that it holds.
    for (int row = 0; row < GetRowCount(); ++row) {
        const std::string layer = CellText(0, row);
        WriteCellLabel(0, row, layer.empty() ? LayerChoices : layer + '\n' + LayerChoices);
    }
    // The table ended in "*", so it had no blank row.
    if (gone == "*" && addBlankRow) AppendNextRow();
    Renumber();
    RemoveGuard = 1;
    TableReady = 1;
}
