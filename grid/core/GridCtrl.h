#pragma once
// The grid control: a spreadsheet-like window that owns a set of child windows and one or more
// sheets. It keeps no cells of its own; they live in data sources, by default the active
// sheet's in-memory store. Everything that belongs to the visible table lies in the active
// GridSheet; the control holds what its sheets share: the child windows, the registries of
// fonts, bitmaps, cell types and data sources, and the editing state.
//
// A client specialises the control by subclassing it and overriding the 62 notifications
// below; their defaults do nothing or permit. Arguments that a handler may change go by
// pointer, and the change takes effect. Those named Can and Query refuse with 0, and the
// operation that asked then reports 2 to its own caller.
//
// Sources of the operations: GridCtrl.cpp (frame, messages), GridCtrlOptions.cpp,
// GridCtrlSheets.cpp, GridCtrlNotify.cpp (notification defaults, context menu items),
// GridCtrlCells.cpp (cell access), GridCtrlLayout.cpp, GridCtrlHitTest.cpp, GridCtrlMoves.cpp
// (current cell and scrolling), GridCtrlPages.cpp, GridCtrlSelection.cpp, GridCtrlFloating.cpp,
// GridCtrlRowsCols.cpp, GridCtrlFit.cpp, GridCtrlSources.cpp (data sources, sort, search),
// GridCtrlJoins.cpp, GridCtrlResources.cpp.
//
// The move protocol, which every way of moving ends in (GotoRow, GotoCol, GotoCell, SetTopRow,
// SetLeftCol): bounds and joins first, then the data source's veto, then CanMoveCurrentCell,
// then, if the view must follow, CanScrollView; only then does state change, and
// CommitCellMove reports column, row, cell, left column and top row in that order, then the
// cell types' NotifyLeave and NotifyEnter, then repaints. A refused move changes nothing.
// Moves return 0 done or nothing to do, 1 refused by the bounds, 2 vetoed.

#include "grid/cells/CellType.h"
#include "grid/cells/CellTypeGrid.h"
#include "grid/cells/CheckBoxCellType.h"
#include "grid/cells/DropListCellType.h"
#include "grid/cells/GridCell.h"
#include "grid/cells/MarkerCellType.h"
#include "grid/cells/NormalCellType.h"
#include "grid/cells/SelectionGrid.h"
#include "grid/cells/SourceGrid.h"
#include "grid/core/GridSheet.h"
#include "grid/core/PtrList.h"
#include "grid/windows/GridEdit.h"
#include "platform/afx/CMenu.h"
#include "platform/afx/CPen.h"
#include "platform/afx/CWnd.h"

#include <memory>
#include <string>
#include <vector>

class CBitmap;
class CFindReplaceDialog;
class CDC;
class CFont;
class CornerButton;
class GridDataSource;
class GridHScroll;
class GridView;
class GridVScroll;
class HintWindow;
class MultiSelect;
class SheetTabs;
class GridPrinter;
class SideHeading;
class TopHeading;

class GridCtrl : public CWnd, public SourceGrid, public CellTypeGrid, public SelectionGrid {
public:
    GridCtrl();
    ~GridCtrl() override;

    // --- Frame ---
    BOOL CreateGrid(DWORD style, const RECT& rect, CWnd* parent, int id);
    // Takes over control `id` of a dialog; 1, or 0 when there is no such control.
    int AttachToControl(CWnd* parent, int id);
    int CreateChildWindows();
    // A client brackets mass changes with 0 and 1, so that they repaint once.
    int EnableUpdates(int flag);
    void RefreshChildren();
    int RedrawAll() override;
    int RedrawCell(int col, int row) override;
    int RedrawRow(int row);
    int RedrawCol(int col);
    int RedrawRange(int leftCol, int topRow, int rightCol, int bottomRow);
    // Marks cells of the view for its next update without painting them now.
    void AddViewRange(int leftCol, int topRow, int rightCol, int bottomRow) override;
    CWnd* GetCellEditor();
    CWnd* GetCellView() override;
    int SetCellEditor(CWnd* editor);
    // Each deletes the present object, takes ownership of the one given and gives it the
    // control and the active sheet; null changes nothing. A client replaces window objects
    // before the windows are made.
    void ReplaceGridView(GridView* replacement);
    void ReplaceTopHeading(TopHeading* replacement);
    void ReplaceSideHeading(SideHeading* replacement);
    void ReplaceVScroll(GridVScroll* replacement);
    void ReplaceHScroll(GridHScroll* replacement);
    void ReplaceSheetTabs(SheetTabs* replacement);
    void ReplaceMultiSelect(MultiSelect* replacement);

    // --- Options of the active sheet: 0, or 1 when the value is out of range ---
    int EnableJoins(int flag);
    int EnableTextOverflow(int flag);
    int EnableColumnSwap(int flag);
    int EnableGridLines(int flag);
    int EnablePopupMenu(int flag);
    int SetHighlightMode(int mode);
    int SetAutoScrollMode(int mode);
    int SetBorderWidth(int width);
    int SetDefaultColWidth(int width);
    int SetDefaultRowHeight(int height);
    int SetVScrollWidth(int width);
    int SetHScrollHeight(int height);
    int SetAutoScrollDelay(int ms);
    int SetKeyRepeatRamp(int repeats);
    int SetKeyRepeatDelay(int ms);
    int SetCellMargin(int margin);
    int SetArrowCursor(HCURSOR cursor);
    int SetColResizeCursor(HCURSOR cursor);
    int SetRowResizeCursor(HCURSOR cursor);
    int SetDefaultFont(CFont* font);
    int SetVScrollMode(int mode);
    int SetHScrollMode(int mode);
    int SetUserResizeMode(int mode);
    int SetFloatingDialogPlacement(int placement);
    int SetCancelEditOnFocusLoss(int flag);
    int EnableHints(int flag);
    int EnableVScrollHints(int flag);
    int EnableHScrollHints(int flag);
    int SetDoubleBufferMode(int mode);
    DrawSettings GetDrawSettings() override {
        return {sheet->cellMargin,
                sheet->borderWidth,
                sheet->textOverflowEnabled,
                sheet->gridLinesEnabled,
                sheet->highlightMode,
                &sheet->gridLinePen,
                &highlightPen,
                &shadowPen};
    }

    // --- Sheets ---
    int SetSheetCount(int count);
    int GetSheetCount() const { return sheetCount; }
    // With update 0 the switch doesn't repaint.
    int SelectSheet(int index, int update);
    int GetSheetIndex() const { return sheetIndex; }
    // Stored without a layout.
    int SetTabStripWidth(int width);
    // The tab strip's operations (SheetTabs says what they answer); SelectTab also fires
    // NotifyTabSelected and answers 0, or 1 for an unknown id.
    int AddTab(const std::string& text, int id);
    int InsertTab(int position, const std::string& text, int id);
    int DeleteTab(int id);
    int SelectTab(int id);
    int GetCurrentTab() const;
    int SetTabBackColor(int id, COLORREF color);
    int SetTabTextColor(int id, COLORREF color);

    // --- Notifications, in slot order ---
    virtual void NotifyFocusGained(int section);
    virtual void NotifyGridCreated();
    virtual void NotifySheetCreated(int index);
    // From GotoCell the first two are leftCol and topRow.
    virtual int CanMoveCurrentCell(int oldCol, int oldRow, int newCol, int newRow);
    // SetTopRow and SetLeftCol pass (oldLeft, oldTop, newLeft, newTop); moves of the cell pass
    // (oldLeft, targetCol, oldTop, targetRow).
    virtual int CanScrollView(int a, int b, int c, int d);
    virtual void NotifyPastLastRow(int rowCount, int rowsPast, int rowsGained);
    virtual void NotifyReservedA(int a, int b);
    virtual int CanResizeColumn(int col);
    virtual void NotifyColumnResizing(int col, int* width);
    virtual void NotifyColumnResized(int col, int* width);
    virtual int CanResizeRow(int row);
    virtual void NotifyRowResizing(int row, int* height);
    virtual void NotifyRowResized(int row, int* height);
    virtual int CanResizeTopHeading();
    virtual int CanResizeSideHeading();
    virtual int NotifyTopHeadingResizing(int* height);
    virtual int NotifySideHeadingResizing(int* width);
    virtual int NotifyTopHeadingResized(int* height);
    virtual int NotifySideHeadingResized(int* width);
    virtual void NotifyColumnChanged(int oldCol, int newCol);
    virtual void NotifyRowChanged(int oldRow, int newRow);
    virtual void NotifyCellChanged(int oldCol, int newCol, int oldRow, int newRow);
    virtual void NotifyLeftColumnChanged(int oldLeft, int newLeft);
    virtual void NotifyTopRowChanged(int oldTop, int newTop);
    virtual void NotifyCellLeftMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                                     int processed);
    virtual void NotifyCellRightMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                                      int processed);
    virtual void NotifyCellDoubleClick(int col, int row, RECT* rect, POINT* point, int processed);
    virtual void NotifyCellMouseMove(int col, int row, POINT* point, UINT keyFlags, int processed);
    virtual void NotifyTopHeadingLeftMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                                           int processed);
    virtual void NotifyTopHeadingRightMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                                            int processed);
    virtual void NotifyTopHeadingDoubleClick(int col, int row, RECT* rect, POINT* point,
                                             int processed);
    virtual void NotifySideHeadingLeftMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                                            int processed);
    virtual void NotifySideHeadingRightMouse(int col, int row, int isDown, RECT* rect, POINT* point,
                                             int processed);
    virtual void NotifySideHeadingDoubleClick(int col, int row, RECT* rect, POINT* point,
                                              int processed);
    virtual void NotifyCornerLeftMouse(int isDown, RECT* rect, POINT* point, int processed);
    virtual void NotifyCornerRightMouse(int isDown, RECT* rect, POINT* point, int processed);
    virtual void NotifyCornerDoubleClick(RECT* rect, POINT* point, int processed);
    virtual void NotifyKeyDown(UINT* key, int processed);
    virtual void NotifyCharacter(UINT* character, int processed);
    // The col is the data source's column, not the grid's.
    virtual void NotifyCellRead(int sourceCol, int row, GridCell* cell);
    virtual void NotifyCellWrite(int col, int row, GridCell* cell);
    virtual void NotifyReservedB(int a, int b, int c);
    int NotifyCellTypeEvent(int typeId, int col, int row, int event, LPARAM parameter) override;
    virtual int QueryEditStart(int col, int row, CWnd** editor);
    virtual int QueryEditKey(int col, int row, CWnd* editor, UINT* key);
    virtual int QueryEditFinish(int col, int row, CWnd* editor, const std::string& text,
                                int cancelled);
    virtual int QueryEditContinue(int col, int row, int* nextCol, int* nextRow);
    virtual void NotifyMenuCommand(int col, int row, int section, int id);
    virtual int QueryMenuStart(int col, int row, int section);
    virtual int GetHintText(int col, int row, int section, std::string* text);
    virtual int GetVScrollHintText(int row, std::string* text);
    virtual int GetHScrollHintText(int col, std::string* text);
    int CompareCells(const GridCell* first, const GridCell* second, int flags) override;
    virtual void PrepareDrawContext(CDC* dc, CDC* bufferDC, int section);
    virtual void AdjustChildRects(RECT* view, RECT* topHeading, RECT* sideHeading, RECT* corner,
                                  RECT* vScroll, RECT* hScroll, RECT* tabs);
    virtual void NotifyTabSelected(int id);
    virtual COLORREF GetBackColor(int section);
    virtual void DrawCurrentCellFrame(CDC* dc, RECT* rect);
    virtual void NotifyFocusLost(int section);
    virtual int CanDragColumn(int col);
    virtual int CanDropColumn(int col, int targetCol);
    virtual void NotifyFloatingDialogMoved(RECT* oldRect, RECT* newRect);

    // --- Context menu ---
    CMenu* GetPopupMenu() { return &popupMenu; }
    int ClearPopupMenu();
    // An empty text or the id -1 appends a separator. Client ids start at 1000.
    int AddPopupItem(int id, const std::string& text);
    int RemovePopupItem(int id);
    // Opens the menu at a point in screen coordinates for a press on a cell (section 1),
    // a heading (2, 3), the corner (4), a scroll bar (5, 6) or a tab (7). 1 while the menu
    // is off, 2 when QueryMenuStart refused, 3 when the menu could not be shown.
    int ShowContextMenu(int col, int row, POINT* point, int section);

    // --- Editing session ---
    // On the current cell, with no key, or with a key that the editor then receives as a
    // typed character. 0 opened; 1 refused (by the cell type, the read-only property, the
    // source or QueryEditStart); 2 the move to the cell was refused.
    int StartEdit();
    int StartEdit(UINT key);
    int StartEdit(int col, int row, UINT key);
    // Called by the editor as it closes: 1 the session ended or went on to the next cell,
    // 0 it stays open (a veto). goOn asks for a session on (nextCol, nextRow) after this one.
    int EditFinished(const std::string& text, int cancelled, int goOn, int nextCol, int nextRow);
    // Ends a session without writing and without asking anyone.
    int CancelEdit();
    int GetCancelEditOnFocusLoss() const;

    // --- Clipboard: cell texts only, tab between fields, line feed between rows ---
    int CopySelection();
    int CutSelection();
    // A cut writes an empty cell, all properties gone, over each cell it took.
    int CopyOrCutSelection(int cut);
    // The selected cells in rows, only those selected, in their bounding box.
    void BuildSelectionText(std::string& text, int cut);
    int WriteClipboardText(const std::string& text);
    // 1 when the clipboard holds no text.
    int ReadClipboardText(std::string& text);
    int PasteClipboard();
    // From the current cell on, over cells of the table only; takes CR, LF and CR LF as line
    // ends, keeps the cells' other properties and selects the block written.
    int PasteText(const std::string& text);

    // --- Find and replace dialog: one per control, modeless ---
    // 0 opened; 1 one is open already.
    int OpenFindDialog();
    int OpenReplaceDialog();
    // A request of the dialog: 1 when it is closing, else 0.
    LRESULT OnFindReplaceMessage(WPARAM wParam, LPARAM lParam);

    // --- Printing: the client opens the printer and runs the job ---
    // Lays the range out on pages and answers their number.
    int PrintInit(CDC* printerDC, CDC* secondDC, int startCol, int startRow, int endCol,
                  int endRow);
    int PrintPage(CDC* printerDC, int pageNumber);
    int SetPrintOption(int option, int value);
    int GetPrintOption(int option, int* value);

    // --- Cell access ---
    // What the source stores, with no layer: 1 for a col at or past colCount.
    int GetCell(int col, int row, GridCell& cell) override;
    // The cell as painted: column or heading default, stored cell, NotifyCellRead, hook, style.
    int GetEffectiveCell(int col, int row, GridCell& cell) override;
    // 0; 1 for a col at or past colCount, which has no column to write to.
    int SetCell(int col, int row, GridCell& cell) override;
    // The source's ClearCell; 1 for a col that is no data column.
    int DeleteCell(int col, int row);
    int SetCellRange(int leftCol, int topRow, int rightCol, int bottomRow, GridCell& cell);
    int GetCellText(int col, int row, std::string& text);
    // Null when the cell holds no text; valid until the next shortcut operation.
    const char* GetCellText(int col, int row);
    CellType* GetCellTypeAt(int col, int row);
    int GetColumnDefault(int col, GridCell& cell);
    int SetColumnDefault(int col, const GridCell& cell);
    int GetGridDefault(GridCell& cell);
    int SetGridDefault(const GridCell& cell);
    int GetHeadingDefault(GridCell& cell);
    int SetHeadingDefault(const GridCell& cell);
    int GetTranslatedCol(int col) override;
    int SetTranslatedCol(int col, int sourceCol) override;
    // The shortcuts read the stored cell into scratchCell, change one property and write it
    // back; none may be called from a notification of another while that one is running.
    int SetCellText(int col, int row, const std::string& text);
    int SetCellNumber(int col, int row, double value);
    int SetCellMask(int col, int row, const std::string& mask);
    int SetCellLabel(int col, int row, const std::string& label);
    int SetCellTextColor(int col, int row, COLORREF color);
    int SetCellHighlightTextColor(int col, int row, COLORREF color);
    int SetCellBackColor(int col, int row, COLORREF color);
    int SetCellHighlightBackColor(int col, int row, COLORREF color);
    int SetCellBitmap(int col, int row, CBitmap* bitmap);
    int SetCellBitmapByIndex(int col, int row, int index);
    int SetCellFont(int col, int row, CFont* font);
    int SetCellFontByIndex(int col, int row, int index);
    int SetCellAlignment(int col, int row, WORD flags);
    int SetCellBorderStyle(int col, int row, WORD flags);
    int SetCellBorderPen(int col, int row, CPen* pen);
    int SetCellTypeId(int col, int row, int id);
    int SetCellTypeOption(int col, int row, int option);

    // --- Layout ---
    void RecalcLayout();
    void UpdateMaxTopRow();
    void UpdateMaxLeftCol();
    int LockCols(int count);
    int LockRows(int count);
    void RecalcLockedWidth();
    void RecalcLockedHeight();
    int SetTopHeadingHeight(int height);
    int SetSideHeadingWidth(int width);
    int GetTopHeadingHeight() const { return sheet->topHeadingHeight; }
    int GetSideHeadingWidth() const { return sheet->sideHeadingWidth; }
    int GetVScrollWidth() const { return sheet->vScrollWidth; }
    int GetHScrollHeight() const { return sheet->hScrollHeight; }
    int SetTopHeadingRows(int count);
    int SetSideHeadingCols(int count);
    int SetTopHeadingRowHeight(int row, int height);
    int GetHeadingRowHeight(int row) const override {
        if (row > -1 || row < -sheet->topHeadingRows) return 0;
        return sheet->topHeadingRowHeights[static_cast<size_t>(-row - 1)];
    }
    int SetSideHeadingColWidth(int col, int width);
    // Points are in the view's client coordinates: 0 on a cell, 1 elsewhere.
    int HitTest(int x, int y, int* col, int* row);
    int HitTestRect(int x, int y, int* col, int* row, RECT* rect);
    int GetJoinedCellRect(int col, int row, RECT* rect) override;
    int GetJoinedCellRectByRef(int* col, int* row, RECT* rect);
    int GetRangeRect(int leftCol, int topRow, int rightCol, int bottomRow, RECT* rect);

    // --- Current cell and scrolling ---
    int GotoRow(int row);
    int GotoCol(int col);
    int GotoCell(int col, int row);
    int SetTopRow(int row);
    int SetLeftCol(int col);
    // where: 0 one back, 1 one on, 2 a page back, 3 a page on, 4 the first, 5 the last.
    int StepRow(int where);
    int StepCol(int where);
    int ScrollRows(int where);
    int ScrollCols(int where);
    int StepRowBy(int count) { return GotoRow(sheet->pendingRow + count); }
    int StepColBy(int count) { return GotoCol(sheet->pendingCol + count); }
    int ScrollRowsBy(int count) { return SetTopRow(sheet->topRow + count); }
    int ScrollColsBy(int count) { return SetLeftCol(sheet->leftCol + count); }
    int ResetCurrentCell();
    int GetCurrentCol() const override { return sheet->currentCol; }
    int GetCurrentRow() const override { return sheet->currentRow; }
    CFont* GetDefaultFont() const override { return sheet->defaultFont; }
    int GetLeftCol() const { return sheet->leftCol; }
    int GetRightCol() const { return sheet->rightCol; }
    int GetTopRow() const { return sheet->topRow; }
    int GetBottomRow() const { return sheet->bottomRow; }
    int SetFloatingDialog(CWnd* dialog);
    // Clamps a wanted row into the table and over joins; 1 when there is nowhere to go.
    int ValidateRow(int* row);
    int ValidateCol(int* col);
    int ValidateTopRow(int* row);
    int ValidateLeftCol(int* col);
    void KeepPendingRowVisible();
    void KeepPendingColVisible();
    void CommitCellMove();
    void KeepFloatingDialogClear();

    // --- Selection ---
    int ClearSelection();
    int SelectCell(int col, int row);
    int SelectRange(int leftCol, int topRow, int rightCol, int bottomRow);
    int IsCellSelected(int col, int row, int* block);
    int FirstSelectedCell(int* col, int* row);
    int NextSelectedCell(int* col, int* row);
    int SetSelectionMode(int flag);
    int SetWholeRowMode(int flag);

    // --- Rows, columns and data sources ---
    int SetRowCount(int count, int redraw);
    int GetRowCount() override { return sheet->rowCount; }
    int SetColCount(int count, int redraw);
    int GetColCount() override { return sheet->colCount; }
    int SetColWidth(int col, int width);
    int GetColWidth(int col) const override { return sheet->ColWidth(col); }
    int GetColWidth(int col, int* width) const;
    int SetRowHeight(int row, int height);
    int GetRowHeight(int row) const override { return sheet->RowHeight(row); }
    int GetRowHeight(int row, int* height) const;
    int SetUniformRowHeight(int flag);
    int AppendRow();
    int InsertRow(int row);
    int DeleteRow(int row);
    int AppendCol();
    int InsertCol(int col);
    int DeleteCol(int col);
    int MoveColTo(int col, int target, int before);
    // Flag 0x1 also measures the top heading; rowsToScan 0 scans all rows.
    int BestFitCols(int firstCol, int lastCol, int rowsToScan, int flags);
    int FitColsToView(int firstCol, int lastCol);
    int SortByCol(int col, int flags);
    // Replaces the grid columns in `cols` by their source columns, in place.
    int SortByCols(int* cols, int count, int flags);
    int AddDataSource(GridDataSource* source);
    GridDataSource* GetDataSource(int index);
    int SelectDataSource(int index);
    int GetDataSourceIndex() const { return sheet->dataSourceIndex; }
    int RemoveDataSource(int index);
    int ShapeToDataSource(int index);
    int SetColDataSource(int col, GridDataSource* source);
    int SetColDataSourceByIndex(int col, int index);

    // --- Joined cells ---
    int JoinCells(int leftCol, int topRow, int rightCol, int bottomRow);
    int UnjoinCells(int col, int row);
    int GetJoinedMain(int* col, int* row) { return GetJoinedMainCell(col, row, scratchCell); }
    // 0 with col and row moved to the join's first cell; 1 joins are off; 2 in no join.
    int GetJoinedMainCell(int* col, int* row, GridCell& cell);
    int GetJoinedRange(int* col, int* row, int* endCol, int* endRow) override;

    // --- Search in the sheet's data source ---
    int SetFindInAllCols(int flag);
    // 0 found, with col and row set to the source's column and the row.
    int FindInDataSource(const std::string& text, int* col, int* row, int flags);
    int FindNextInDataSource(const std::string& text, int* col, int* row, int flags);
    int FindTextToLeft(int* col, int row) override {
        return sheet->dataSource->FindTextToLeft(col, row);
    }

    // --- Registries of cell types, fonts and bitmaps ---
    int AddCellType(CellType* type);
    int RemoveCellType(int id);
    CellType* GetCellType(int id) override;
    int GetCellTypeId(CellType* type);
    int AddFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                BYTE quality, BYTE pitchAndFamily, const std::string& face);
    int AddFontByFace(const std::string& face, int height, int weight);
    int ReleaseFont(int index);
    int ClearFonts();
    CFont* GetFont(int index);
    int SetDefaultFontByIndex(int index);
    // -1 when the file cannot be read as an uncompressed BMP.
    // From the resources of the module the framework looks in: by name when one is given,
    // else by the low 16 bits of id. -1 when there is no such bitmap.
    int AddBitmapResource(UINT id, const char* name = nullptr);
    int AddBitmapFile(const std::string& path);
    int RemoveBitmap(int index);
    int ClearBitmaps();
    CBitmap* GetBitmap(int index);

    // --- Fields; the child windows read them directly ---
    std::vector<GridDataSource*> dataSources;
    int dataSourceCount = 0;
    int dataSourceCapacity = 0;
    PtrList fonts;
    PtrList bitmaps;
    PtrList cellTypes;
    NormalCellType normalCellType;
    DropListCellType dropListCellType;
    CheckBoxCellType checkBoxCellType;
    MarkerCellType markerCellType;
    CMenu popupMenu;
    int menuCol = 0;
    int menuRow = 0;
    int menuSection = 0;
    GridCell scratchCell;
    std::vector<std::unique_ptr<GridSheet>> sheets;
    int sheetIndex = 0;
    int sheetCount = 0;
    int updatesEnabled = 1;
    GridSheet* sheet = nullptr;
    std::unique_ptr<GridView> view;
    std::unique_ptr<TopHeading> topHeading;
    std::unique_ptr<SideHeading> sideHeading;
    std::unique_ptr<CornerButton> cornerButton;
    std::unique_ptr<GridVScroll> vScroll;
    std::unique_ptr<GridHScroll> hScroll;
    std::unique_ptr<HintWindow> hintWindow;
    std::unique_ptr<SheetTabs> tabs;
    std::unique_ptr<GridPrinter> printer;
    int tabResizing = 0;
    // Not owned.
    CWnd* floatingDialog = nullptr;
    GridEdit builtInEditor;
    int editing = 0;
    int editRow = -1;
    int editCol = -1;
    CWnd* activeEditor = nullptr;
    GridCell editCell;
    CWnd* editParent = nullptr;
    CPen highlightPen;
    CPen shadowPen;
    // Deletes itself when its window goes.
    CFindReplaceDialog* findDialog = nullptr;
    int findDialogOpen = 0;
    int findAllColumns = 0;
    // Fonts and bitmaps that left their list: a cell may still hold one, so they live as long
    // as the control.
    std::vector<std::unique_ptr<CObject>> retired;

protected:
    int OnCreate(CREATESTRUCT* create);
    void OnSize(UINT type, int cx, int cy);
    void OnPaint();
    void OnSetFocus(CWnd* old);
    void OnSysColorChange();
    void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    UINT OnGetDlgCode();
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    // Adds a bitmap to the list, which then owns it; -1 when the list cannot grow.
    int KeepBitmap(std::unique_ptr<CBitmap> bitmap);
    // Moves the next cell of an editing walk that lands in a join to where the walk goes on.
    void StepOverJoin(int* nextCol, int* nextRow);
    int OpenFindReplaceDialog(BOOL findOnly);
    // The message of the find dialog's requests, registered once.
    static UINT FindReplaceMessage();
    // The registered type that a merged cell names, or the normal type.
    CellType* TypeOf(const GridCell& cell);
    // Reads the stored cell into scratchCell, lets `change` set one property, writes it back.
    template <typename Change> int Shortcut(int col, int row, Change change) {
        GetCell(col, row, scratchCell);
        change(scratchCell);
        SetCell(col, row, scratchCell);
        return 0;
    }
    // The source and column under which the source knows grid column col.
    GridDataSource* SourceOf(int col, int* sourceCol) const {
        if (col < 0) {
            *sourceCol = col;
            return sheet->dataSource;
        }
        const ColumnInfo& info = sheet->columns[static_cast<size_t>(col)];
        *sourceCol = info.sourceCol;
        return info.dataSource ? info.dataSource : sheet->dataSource;
    }
    void GiveChildrenSheet();
    void Retire(PtrList& list, int index);
    void RetireAll(PtrList& list);
    void RebuildPens();
    // The next column or row on view after c, jumping from the locks to the scroll position.
    int NextColOnView(int c) const { return c + 1 == sheet->lockedCols ? sheet->leftCol : c + 1; }
    int NextRowOnView(int r) const { return r + 1 == sheet->lockedRows ? sheet->topRow : r + 1; }
    int FirstColOnView() const { return sheet->lockedCols > 0 ? 0 : sheet->leftCol; }
    int FirstRowOnView() const { return sheet->lockedRows > 0 ? 0 : sheet->topRow; }
    // Page steps: the row or column a page away from `from`.
    int PageRowBack(int from, int sizeLimit);
    int PageRowOn(int from, int sizeLimit);
    int PageCol(int from, int step);
};
