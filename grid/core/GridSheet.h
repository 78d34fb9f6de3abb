#pragma once
// One table of a grid control: its counts, sizes, current cell, scroll position, locks, data
// source, selection and options. The control shows one sheet at a time through the same child
// windows, which read these fields directly; every setter of the control acts on the active
// sheet. RecalcLayout writes the rectangles and view sizes, the view's paint writes rightCol
// and bottomRow; the rest belongs to the operations that name them.

#include "grid/cells/GridCell.h"
#include "grid/cells/MemoryDataSource.h"
#include "grid/cells/MultiSelect.h"
#include "grid/cells/SelectionSheet.h"
#include "grid/core/ColumnInfo.h"
#include "platform/afx/CFont.h"
#include "platform/afx/CObject.h"
#include "platform/afx/CPen.h"

#include <memory>
#include <vector>

class CWnd;
class GridDataSource;

class GridSheet : public CObject, public SelectionSheet {
public:
    GridSheet();
    ~GridSheet() override;
    GridSheet(const GridSheet&) = delete;
    GridSheet& operator=(const GridSheet&) = delete;

    int GetCurrentCol() const override { return currentCol; }
    int GetCurrentRow() const override { return currentRow; }
    int GetColCount() const override { return colCount; }

    // Height of a data row; 0 outside the table. The innermost call of every walk.
    int RowHeight(int row) const {
        if (row < 0 || row >= rowCount) return 0;
        return uniformRowHeight ? defaultRowHeight : rowHeights[static_cast<size_t>(row)];
    }
    // Width of a data column; 1 outside the table, so that walks past the end still move.
    int ColWidth(int col) const {
        return col >= 0 && col < colCount ? columns[static_cast<size_t>(col)].width : 1;
    }

    int colCount = 0;
    int currentCol = -1;
    int previousCol = -1;
    int leftCol = 0;
    int previousLeftCol = 0;
    int maxLeftCol = 0;
    int defaultColWidth = 75;
    int rightCol = 0;
    int pendingCol = -1;
    std::vector<ColumnInfo> columns;

    int rowCount = 0;
    int currentRow = -1;
    int previousRow = -1;
    int topRow = 0;
    int previousTopRow = 0;
    int maxTopRow = 0;
    // Empty while uniformRowHeight is set.
    std::vector<int> rowHeights;
    int defaultRowHeight = 20;
    int uniformRowHeight = 0;
    int bottomRow = 0;
    int pendingRow = -1;

    int topHeadingRows = 1;
    // Relative heights: only their shares matter.
    std::vector<int> topHeadingRowHeights{20};
    int sideHeadingCols = 1;
    std::vector<int> sideHeadingColWidths{25};
    GridCell gridDefaultCell;
    GridCell headingDefaultCell;
    int topHeadingHeight = 20;
    int sideHeadingWidth = 40;
    int vScrollWidth;
    int hScrollHeight;
    int tabStripWidth = 0;
    int viewWidth = 0;
    int viewHeight = 0;
    RECT viewRect{};
    RECT topHeadingRect{};
    RECT sideHeadingRect{};
    RECT cornerRect{};
    RECT tabsRect{};
    RECT vScrollRect{};
    RECT hScrollRect{};

    int wholeRowMode = 0;
    int selectionMode = 0;
    int highlightMode = 1;
    int borderWidth = 1;
    int popupMenuEnabled = 0;
    int hintsEnabled = 0;
    int vScrollHintsEnabled = 0;
    int hScrollHintsEnabled = 0;
    int userResizeMode = 1;
    int bestFitOnDoubleClick = 1;
    int joinsEnabled = 1;
    int columnSwapEnabled = 0;
    int textOverflowEnabled = 1;
    int gridLinesEnabled = 1;
    int vScrollMode = 0;
    int hScrollMode = 0;
    int autoScrollMode = 0;
    int autoScrollDelay = 200;
    int keyRepeatRamp = 0;
    int keyRepeatDelay = 0;
    int doubleBufferMode = 0;
    int lockedCols = 0;
    int lockedRows = 0;
    int lockedWidth = 0;
    int lockedHeight = 0;
    // Not owned.
    CFont* defaultFont = nullptr;
    int dataSourceIndex = 0;
    GridDataSource* dataSource;
    MemoryDataSource memoryDataSource;
    // What caused the present move: 0 keys or code, 1 left press, 2 right press, 3 drag,
    // 4 scroll bar.
    int moveSource = 0;
    UINT moveKeyFlags = 0;
    std::unique_ptr<MultiSelect> selection;
    HCURSOR arrowCursor;
    HCURSOR colResizeCursor;
    HCURSOR rowResizeCursor;
    // Not owned; the control gives a new sheet its built-in editor.
    CWnd* cellEditor = nullptr;
    int cellMargin = 4;
    CPen gridLinePen;
    int floatingDialogPlacement = 0;
    int cancelEditOnFocusLoss = 1;
};
