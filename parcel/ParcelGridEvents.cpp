// What the table does when the user acts: clicks, keys, a pick in a Layer cell, the start and
// end of a number edit, and the timer that finishes a pick of "*".
//
// A pick of a layer runs: the click (SelectedRow, LayerBeforeEdit, the mark), the drop list's
// write, which NotifyCellWrite sees before the grid stores it (quantity, flags, drop-downs, a
// new blank row, the collapse under "*", the renumbering), then the grid's store.

#include "parcel/CallState.h"
#include "parcel/FlashLabel.h"
#include "parcel/NumberChain.h"
#include "parcel/ParcelDialog.h"
#include "parcel/ParcelGrid.h"
#include "platform/base/MbString.h"

BEGIN_MESSAGE_MAP(ParcelGrid, GridCtrl)
ON_WM_TIMER()
END_MESSAGE_MAP()

void ParcelGrid::NotifyCellLeftMouse(int col, int row, int isDown, RECT*, POINT*, int) {
    // Any click in a cell ends a flashing message.
    if (FlashLabel* label = Label()) label->Stop();
    if (!isDown || row < 0) return;
    SelectedRow = row;
    if (col == 0)
        LayerBeforeEdit = CellText(0, row);
    else if (col == 3)
        StartEdit();
    // Taken as a move from column 0 of the last row.
    NotifyCellChanged(0, col, GetRowCount() - 1, row);
}

void ParcelGrid::NotifyCellChanged(int oldCol, int newCol, int oldRow, int newRow) {
    if (!TableReady) return;
    CellGuard = 0;
    std::string layer = CellText(0, newRow);
    if (newCol >= 0 && newRow >= 0) {
        if (GetRowCount() > 1 && !layer.empty()) {
            WriteCellColors(newCol, newRow, MarkBackColor, MarkTextColor);
            EnableDeleteRow(TRUE);
            SelectedRow = newRow;
        } else {
            WriteCellColors(newCol, newRow, WindowColor, 0);
            EnableDeleteRow(FALSE);
        }
    }
    RedrawRow(newRow);
    if (oldCol == newCol && oldRow == newRow) {
        CellGuard = 1;
        return;
    }
    layer = CellText(0, oldRow);
    // The blank row keeps its grey.
    if (oldCol >= 0 && oldRow >= 0 && !layer.empty())
        WriteCellColors(oldCol, oldRow, WindowColor, 0);
    else if (oldRow >= 0)
        WriteCellColors(oldCol, oldRow, WindowColor, BlankNumberColor);
    RedrawRow(oldRow);
    CellGuard = 1;
}

void ParcelGrid::NotifyKeyDown(UINT* key, int) {
    if (*key == VK_ESCAPE && ActiveDialog) ActiveDialog->OnCancel();
}

void ParcelGrid::NotifyCellWrite(int col, int row, GridCell* cell) {
    if (!TableReady || !CellGuard || TimerBusy) return;
    CellGuard = 0;
    // The grid still holds the old value; the new one is the cell's.
    const std::string text = cell->GetText() ? cell->GetText() : "";
    if (col == 0 && row >= 0) {
        // A typed name comes in the grid's scratch cell, which the grid's own operations below
        // (a redraw looks for joins) borrow as well; it goes back to the grid as it came.
        GridCell incoming;
        incoming.CopyFrom(*cell);
        ShowLayerQuantity(text, row);
        RedrawCell(1, row);
        SwapLayerFlags(text);
        if (row == GetRowCount() - 1) {
            // The blank row was filled in: it gets its type list and a number of its own.
            AppendNextRow();
            SetCell(2, row, TypeCell);
            RedrawCell(2, row);
            GetCell(3, row, NumberCell);
            NumberCell.ClearProperty(PropReadOnly);
            NumberCell.SetTextColor(0);
            SetCell(3, row, NumberCell);
            RedrawCell(3, row);
        }
        if (text == "*") CollapseBelow(row);
        Renumber();
        cell->CopyFrom(incoming);
    }
    CellGuard = 1;
}

int ParcelGrid::QueryEditStart(int col, int, CWnd** editor) {
    if (col == 3) *editor = &NumberEditor;
    return 1;
}

int ParcelGrid::QueryEditFinish(int col, int row, CWnd*, const std::string& text, int cancelled) {
    if (col != 3) return 1;
    NumberRefused = 0;
    // The dialog is going away: the number isn't looked at.
    if (CancelPressed) return 0;
    if (cancelled) return 1;
    if (_mbsicmp(text.c_str(), CellText(3, row).c_str()) == 0) return 1;
    return NumberChain(this, text.c_str(), row).Apply() ? 1 : 0;
}

// The label of a picked "*" cell can't be set while the pick is being written: the grid then
// stores the picked cell as the drop list made it. So it is set here, once, 100 ms later.
void ParcelGrid::OnTimer(UINT_PTR id) {
    if (id == LabelTimer) {
        KillTimer(LabelTimer);
        TimerBusy = 1;
        WriteCellLabel(0, SelectedRow, LayerChoices);
        if (GetRowCount() < 2) {
            WriteCellColors(0, GetRowCount() - 1, WindowColor, 0);
            EnableDeleteRow(FALSE);
        }
        TimerBusy = 0;
    }
    GridCtrl::OnTimer(id);
}
