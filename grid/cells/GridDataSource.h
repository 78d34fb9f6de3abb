#pragma once
// The interface through which a grid reads and writes its cells. Every operation has a default
// body, so a source implements only what it can: an operation it leaves out answers -1, and its
// questions answer 1, which lets the grid proceed. Otherwise 0 means done and any other value
// failed or refused.
//
// A source sees source columns only: the grid translates its columns through its column table
// before each call (InsertCol of the memory store is the one exception). Negative columns and
// rows address heading cells and come through unchanged.
//
// The grid calls GetRowCount and GetColCount only when it shapes itself to the source. It asks
// CanMoveCurrentCell, NotifyPastLastRow and the four QueryEdit questions before it fires its
// own notification of the same name, and reports NotifyColumnChanged and NotifyRowChanged after
// the current cell moved. FindTextToLeft serves the drawing of text that runs over empty cells.

#include "platform/base/WinTypes.h"

#include <string>

class CWnd;
class GridCell;
class SourceGrid;

class GridDataSource {
public:
    GridDataSource() = default;
    GridDataSource(const GridDataSource&) = delete;
    GridDataSource& operator=(const GridDataSource&) = delete;
    virtual ~GridDataSource() = default;

    virtual int GetRowCount();
    virtual int GetColCount();
    virtual int AppendRow();
    virtual int InsertRow(int row);
    virtual int AppendCol();
    virtual int InsertCol(int col);
    virtual int DeleteRow(int row);
    virtual int DeleteCol(int col);
    virtual int ClearCell(int col, int row);
    virtual int DeleteAll();
    // Lays the stored cell over `cell`; 1 leaves `cell` alone, so the layers read before stay.
    virtual int GetCell(int col, int row, GridCell& cell);
    virtual int SetCell(int col, int row, const GridCell& cell);
    // Flags: 0x1 part of the text is enough, 0x2 ignore case, 0x4 backward, 0x8 all columns row
    // by row rather than down the one column. On 0, col and row hold the place found.
    virtual int FindFirst(const std::string& text, int* col, int* row, int flags);
    virtual int FindNext(const std::string& text, int* col, int* row, int flags);
    // Flags go to the grid's CompareCells unread.
    virtual int SortRows(const int* keyCols, int keyCount, int flags);
    virtual int SortRowsByCol(int col, int flags);
    virtual int NotifyPastLastRow(int rowCount, int rowsPast, int* rowsGained);
    virtual void NotifyRowChanged(int oldRow, int newRow);
    virtual void NotifyColumnChanged(int oldCol, int newCol);
    virtual int CanMoveCurrentCell(int oldCol, int oldRow, int newCol, int newRow);
    virtual int QueryEditStart(int col, int row, CWnd** editor);
    virtual int QueryEditKey(int col, int row, CWnd* editor, UINT* key);
    virtual int QueryEditFinish(int col, int row, CWnd* editor, const std::string& text,
                                int cancelled);
    virtual int QueryEditContinue(int col, int row, int* nextCol, int* nextRow);
    // The nearest cell left of col with a text; on 0, col holds its number.
    virtual int FindTextToLeft(int* col, int row);

    int GetSourceId() const { return sourceId; }
    void SetSourceId(int id) { sourceId = id; }

    // Set by the sheet that attaches the source; null until then. Not owned.
    SourceGrid* grid = nullptr;

private:
    // The number under which the grid registered the source, 1 or more; -1 until then.
    int sourceId = -1;
};
