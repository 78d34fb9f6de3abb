// The editing session: an editor window put over a cell, and what happens when it closes. The
// editor is lent: the session moves it to the cell's window and hides it again at the end, but
// never destroys it. The data source and the control each have a veto at both ends.

#include "grid/cells/GridDataSource.h"
#include "grid/cells/MultiSelect.h"
#include "grid/core/GridCtrl.h"
#include "grid/windows/GridView.h"
#include "grid/windows/SideHeading.h"
#include "grid/windows/TopHeading.h"

int GridCtrl::StartEdit() {
    return StartEdit(0);
}

int GridCtrl::StartEdit(UINT key) {
    return StartEdit(sheet->currentCol, sheet->currentRow, key);
}

int GridCtrl::StartEdit(int col, int row, UINT key) {
    GridSheet& s = *sheet;
    // Set first, so that the move below leaves the selection to this function.
    editing = 1;
    int left = s.currentCol, top = s.currentRow, right = s.currentCol, bottom = s.currentRow;
    s.selection->GetBounds(&left, &top, &right, &bottom);
    ClearSelection();
    if (left != right || top != bottom || left != col || top != row)
        RedrawRange(left, top, right, bottom);
    if ((col != s.currentCol || row != s.currentRow) && GotoCell(col, row) != 0) {
        editing = 0;
        return 2;
    }

    editCol = col;
    editRow = row;
    editCell.ClearAll();
    GetEffectiveCell(col, row, editCell);
    if (!TypeOf(editCell)->GetEditable()) {
        editing = 0;
        return 1;
    }
    RECT rect{};
    if (col >= 0 && row >= 0) {
        GetJoinedCellRect(col, row, &rect);
        editParent = view.get();
    } else if (col < 0 && row >= 0) {
        sideHeading->GetHeadingCellRect(col, row, &rect);
        editParent = sideHeading.get();
    } else if (col >= 0) {
        topHeading->GetHeadingCellRect(col, row, &rect);
        editParent = topHeading.get();
    } else {
        // The corner cell has no place to edit in.
        editing = 0;
        return 1;
    }
    // The grid lines at the right and the bottom stay in sight.
    --rect.right;
    --rect.bottom;
    TypeOf(editCell)->PrepareEditRect(&rect);
    if (editCell.HasProperty(PropReadOnly)) {
        editing = 0;
        return 1;
    }

    const char* text = editCell.GetText() ? editCell.GetText() : "";
    s.cellEditor->SetWindowText(text);
    activeEditor = s.cellEditor;
    if (s.dataSource->QueryEditStart(editCol, editRow, &activeEditor) == 0 ||
        QueryEditStart(editCol, editRow, &activeEditor) == 0) {
        editing = 0;
        return 1;
    }
    editing = 1;
    // Again: a handler may have put another window in.
    activeEditor->SetWindowText(text);
    if (CFont* font = editCell.HasProperty(PropFont) ? editCell.GetFont() : s.defaultFont)
        activeEditor->SetFont(font, TRUE);

    activeEditor->SetParent(editParent);
    // No window to follow: the top of its siblings.
    activeEditor->SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left,
                               rect.bottom - rect.top, 0);
    activeEditor->ShowWindow(SW_SHOW);
    activeEditor->SetActiveWindow();
    activeEditor->SetFocus();
    if (key > 0) activeEditor->SendMessage(WM_CHAR, key, 0);
    return 0;
}

int GridCtrl::EditFinished(const std::string& text, int cancelled, int goOn, int nextCol,
                           int nextRow) {
    if (!editing) cancelled = 1;
    if (sheet->dataSource->QueryEditFinish(editCol, editRow, activeEditor, text, cancelled) != 1 ||
        QueryEditFinish(editCol, editRow, activeEditor, text, cancelled) == 0)
        return editing ? 0 : 1;
    activeEditor->ShowWindow(SW_HIDE);
    // A plain write: the cell type's formatting does not come in here.
    if (!cancelled) SetCellText(editCol, editRow, text);

    if (goOn && editParent == view.get()) {
        StepOverJoin(&nextCol, &nextRow);
        // Only the axis that ran over the table's edge comes round.
        if (nextCol < 0)
            nextCol = sheet->colCount - 1;
        else if (nextCol >= sheet->colCount)
            nextCol = 0;
        if (nextRow < 0)
            nextRow = sheet->rowCount - 1;
        else if (nextRow >= sheet->rowCount)
            nextRow = 0;
        if (sheet->dataSource->QueryEditContinue(editCol, editRow, &nextCol, &nextRow) == 1 &&
            QueryEditContinue(editCol, editRow, &nextCol, &nextRow) != 0) {
            StartEdit(nextCol, nextRow, 0);
            return 1;
        }
    }
    editing = 0;
    return 1;
}

// The next cell of a walk that lands inside a join: a step from the join's start on into it
// goes past its end; any other cell of the join gives way to the start. Each axis alone.
void GridCtrl::StepOverJoin(int* nextCol, int* nextRow) {
    if (*nextCol < 0 || *nextCol >= sheet->colCount || *nextRow < 0 || *nextRow >= sheet->rowCount)
        return;
    int c1 = *nextCol, r1 = *nextRow, c2 = *nextCol, r2 = *nextRow;
    if (GetJoinedRange(&c1, &r1, &c2, &r2) != 0) return;
    if (editCol == c1 && *nextCol > c1)
        *nextCol += c2 - c1;
    else if (*nextCol != c1)
        *nextCol = c1;
    if (editRow == r1 && *nextRow > r1)
        *nextRow += r2 - r1;
    else if (*nextRow != r1)
        *nextRow = r1;
}

int GridCtrl::CancelEdit() {
    if (!editing) return 0;
    editing = 0;
    if (GetFocus() == sheet->cellEditor) view->SetFocus();
    sheet->cellEditor->ShowWindow(SW_HIDE);
    return 0;
}

int GridCtrl::GetCancelEditOnFocusLoss() const {
    return sheet->cancelEditOnFocusLoss;
}
