#pragma once
// A grid that writes down the notifications it receives, in order, as short lines
// ("RowChanged -1 0"), and that can refuse moves and scrolls. Cell reads and writes are
// recorded only when asked for, since every layered read fires one.

#include "grid/cells/NormalCellType.h"
#include "grid/core/GridCtrl.h"

#include <string>
#include <vector>

class RecordingGrid : public GridCtrl {
public:
    void NotifyGridCreated() override;
    void NotifySheetCreated(int index) override;
    int CanMoveCurrentCell(int oldCol, int oldRow, int newCol, int newRow) override;
    int CanScrollView(int a, int b, int c, int d) override;
    void NotifyPastLastRow(int rowCount, int rowsPast, int rowsGained) override;
    void NotifyColumnChanged(int oldCol, int newCol) override;
    void NotifyRowChanged(int oldRow, int newRow) override;
    void NotifyCellChanged(int oldCol, int newCol, int oldRow, int newRow) override;
    void NotifyLeftColumnChanged(int oldLeft, int newLeft) override;
    void NotifyTopRowChanged(int oldTop, int newTop) override;
    void NotifyCellRead(int sourceCol, int row, GridCell* cell) override;
    void NotifyCellWrite(int col, int row, GridCell* cell) override;
    void NotifyMenuCommand(int col, int row, int section, int id) override;
    int QueryMenuStart(int col, int row, int section) override;
    void NotifyTabSelected(int id) override;
    int QueryEditStart(int col, int row, CWnd** editor) override;
    int QueryEditFinish(int col, int row, CWnd* editor, const std::string& text,
                        int cancelled) override;
    int QueryEditContinue(int col, int row, int* nextCol, int* nextRow) override;
    void AdjustChildRects(RECT* view, RECT* topHeading, RECT* sideHeading, RECT* corner,
                          RECT* vScroll, RECT* hScroll, RECT* tabs) override;
    void NotifyFloatingDialogMoved(RECT* oldRect, RECT* newRect) override;

    void Record(const std::string& line) { log.push_back(line); }
    // The log since the last call, emptied.
    std::vector<std::string> Take();

    std::vector<std::string> log;
    bool recordReads = false;
    int allowMove = 1;
    int allowScroll = 1;
    int allowMenu = 1;
    int allowEditStart = 1;
    int allowEditFinish = 1;
    int allowEditContinue = 1;
    // Put in place of the editor by QueryEditStart when set.
    CWnd* lentEditor = nullptr;
    // Runs inside QueryEditContinue, to steer the walk.
    void (*onContinue)(int* nextCol, int* nextRow) = nullptr;
    // Rows that NotifyPastLastRow adds, as a client that grows its table on demand would.
    int rowsToAdd = 0;
    // Runs inside NotifyCellRead, to change the cell as a layer of its own.
    void (*onRead)(GridCell* cell) = nullptr;
    // Runs inside NotifyCellWrite.
    void (*onWrite)(GridCell* cell) = nullptr;
    // Runs inside AdjustChildRects.
    void (*onAdjust)(RECT* view) = nullptr;
    // Runs inside NotifyFloatingDialogMoved.
    void (*onFloatingMoved)(RECT* newRect) = nullptr;
};

// A cell type that tells the grid's log when its cells become current and stop being so.
class RecordingCellType : public NormalCellType {
public:
    explicit RecordingCellType(RecordingGrid& grid) : log(grid) {}
    void NotifyEnter(int col, int row, GridCell* cell) override;
    void NotifyLeave(int col, int row, GridCell* cell) override;

private:
    RecordingGrid& log;
};
