// The range selection of the active sheet, over its MultiSelect store.

#include "grid/core/GridCtrl.h"

int GridCtrl::ClearSelection() {
    sheet->selection->Clear();
    sheet->pendingCol = sheet->currentCol;
    sheet->pendingRow = sheet->currentRow;
    return 0;
}

int GridCtrl::SelectCell(int col, int row) {
    sheet->selection->StartBlock(col, row);
    RedrawCell(col, row);
    return 0;
}

int GridCtrl::SelectRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    if (sheet->selectionMode) {
        sheet->selection->StartBlock(leftCol, topRow);
        sheet->selection->ExtendBlock(rightCol, bottomRow);
    }
    sheet->pendingCol = rightCol;
    sheet->pendingRow = bottomRow;
    RedrawRange(leftCol, topRow, rightCol, bottomRow);
    return 0;
}

int GridCtrl::IsCellSelected(int col, int row, int* block) {
    return sheet->selection->IsSelected(col, row, block);
}

int GridCtrl::FirstSelectedCell(int* col, int* row) {
    return sheet->selection->FirstCell(col, row);
}

int GridCtrl::NextSelectedCell(int* col, int* row) {
    return sheet->selection->NextCell(col, row);
}

int GridCtrl::SetSelectionMode(int flag) {
    sheet->selectionMode = flag;
    int mode = 0;
    if (flag) mode = sheet->wholeRowMode ? MultiSelect::ModeWholeRows : MultiSelect::ModeBlocks;
    sheet->selection->SetMode(mode);
    return 0;
}

int GridCtrl::SetWholeRowMode(int flag) {
    sheet->wholeRowMode = flag;
    int mode = sheet->selection->GetMode();
    if (flag)
        mode = (mode & ~MultiSelect::ModeBlocks) | MultiSelect::ModeWholeRows;
    else
        mode = (mode & ~MultiSelect::ModeWholeRows) | MultiSelect::ModeBlocks;
    sheet->selection->SetMode(mode);
    return 0;
}
