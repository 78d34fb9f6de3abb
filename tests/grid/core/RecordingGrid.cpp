#include "tests/grid/core/RecordingGrid.h"

namespace {

std::string Line(const char* name, std::initializer_list<int> values) {
    std::string line = name;
    for (int v : values) line += " " + std::to_string(v);
    return line;
}

} // namespace

std::vector<std::string> RecordingGrid::Take() {
    std::vector<std::string> taken;
    taken.swap(log);
    return taken;
}

void RecordingGrid::NotifyGridCreated() {
    Record("GridCreated");
}

void RecordingGrid::NotifySheetCreated(int index) {
    Record(Line("SheetCreated", {index, GetSheetIndex(), sheet == sheets.back().get()}));
}

int RecordingGrid::CanMoveCurrentCell(int oldCol, int oldRow, int newCol, int newRow) {
    Record(Line("CanMove", {oldCol, oldRow, newCol, newRow}));
    return allowMove;
}

int RecordingGrid::CanScrollView(int a, int b, int c, int d) {
    Record(Line("CanScroll", {a, b, c, d}));
    return allowScroll;
}

void RecordingGrid::NotifyPastLastRow(int rowCount, int rowsPast, int rowsGained) {
    Record(Line("PastLastRow", {rowCount, rowsPast, rowsGained}));
    if (rowsToAdd > 0) {
        int adding = rowsToAdd;
        rowsToAdd = 0;
        SetRowCount(GetRowCount() + adding, 0);
    }
}

void RecordingGrid::NotifyColumnChanged(int oldCol, int newCol) {
    Record(Line("ColumnChanged", {oldCol, newCol}));
}

void RecordingGrid::NotifyRowChanged(int oldRow, int newRow) {
    Record(Line("RowChanged", {oldRow, newRow}));
}

void RecordingGrid::NotifyCellChanged(int oldCol, int newCol, int oldRow, int newRow) {
    Record(Line("CellChanged", {oldCol, newCol, oldRow, newRow}));
}

void RecordingGrid::NotifyLeftColumnChanged(int oldLeft, int newLeft) {
    Record(Line("LeftColumnChanged", {oldLeft, newLeft}));
}

void RecordingGrid::NotifyTopRowChanged(int oldTop, int newTop) {
    Record(Line("TopRowChanged", {oldTop, newTop}));
}

void RecordingGrid::NotifyCellRead(int sourceCol, int row, GridCell* cell) {
    if (recordReads) Record(Line("Read", {sourceCol, row}));
    if (onRead) onRead(cell);
}

void RecordingGrid::NotifyCellWrite(int col, int row, GridCell* cell) {
    if (recordReads) Record(Line("Write", {col, row}));
    if (onWrite) onWrite(cell);
}

void RecordingGrid::NotifyMenuCommand(int col, int row, int section, int id) {
    Record(Line("MenuCommand", {col, row, section, id}));
}

int RecordingGrid::QueryMenuStart(int col, int row, int section) {
    Record(Line("MenuStart", {col, row, section}));
    return allowMenu;
}

void RecordingGrid::AdjustChildRects(RECT* view, RECT*, RECT*, RECT*, RECT*, RECT*, RECT*) {
    if (onAdjust) onAdjust(view);
}

void RecordingGrid::NotifyFloatingDialogMoved(RECT* oldRect, RECT* newRect) {
    Record(Line("FloatingMoved", {oldRect->left, oldRect->top, newRect->left, newRect->top}));
    if (onFloatingMoved) onFloatingMoved(newRect);
}

void RecordingCellType::NotifyEnter(int col, int row, GridCell*) {
    log.Record(Line("Enter", {col, row}));
}

void RecordingCellType::NotifyLeave(int col, int row, GridCell*) {
    log.Record(Line("Leave", {col, row}));
}

int RecordingGrid::QueryEditStart(int col, int row, CWnd** editor) {
    Record(Line("EditStart", {col, row}));
    if (lentEditor) *editor = lentEditor;
    return allowEditStart;
}

int RecordingGrid::QueryEditFinish(int col, int row, CWnd*, const std::string& text,
                                   int cancelled) {
    Record(Line("EditFinish", {col, row, cancelled}) + " " + text);
    return allowEditFinish;
}

int RecordingGrid::QueryEditContinue(int col, int row, int* nextCol, int* nextRow) {
    Record(Line("EditContinue", {col, row, *nextCol, *nextRow}));
    if (onContinue) onContinue(nextCol, nextRow);
    return allowEditContinue;
}

void RecordingGrid::NotifyTabSelected(int id) {
    Record(Line("TabSelected", {id}));
}
