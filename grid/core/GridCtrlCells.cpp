// Cell access. GetCell is the raw read of what the source stores; GetEffectiveCell lays the
// layers for display (column or heading default, stored cell, NotifyCellRead, hook, style);
// SetCell writes. The shortcuts read the raw cell, so that no default is written back as if
// it were the cell's own.

#include "grid/cells/CellHook.h"
#include "grid/cells/GridDataSource.h"
#include "grid/core/GridCtrl.h"

int GridCtrl::GetCell(int col, int row, GridCell& cell) {
    if (col >= sheet->colCount) return 1;
    cell.SetProperties(0);
    int sourceCol;
    GridDataSource* source = SourceOf(col, &sourceCol);
    return source->GetCell(sourceCol, row, cell);
}

int GridCtrl::GetEffectiveCell(int col, int row, GridCell& cell) {
    cell.SetProperties(0);
    const bool heading = col < 0 || row < 0 || col >= sheet->colCount;
    if (heading) {
        cell.CopyFrom(sheet->headingDefaultCell);
    } else if (const GridCell* columnDefault =
                   sheet->columns[static_cast<size_t>(col)].defaultCell.get()) {
        cell.CopyFrom(*columnDefault);
    }
    if (row >= sheet->rowCount) return 0;
    // Columns past the table count as headings and go to the sheet's source unchanged.
    int sourceCol = col;
    GridDataSource* source =
        col >= 0 && col < sheet->colCount ? SourceOf(col, &sourceCol) : sheet->dataSource;
    source->GetCell(sourceCol, row, cell);
    NotifyCellRead(sourceCol, row, &cell);
    if (cell.HasProperty(PropCellHook)) cell.GetCellHook()->HookCell(&cell);
    if (cell.HasProperty(PropStyleCell))
        if (const GridCell* style = cell.GetStyleCell()) cell.MergeFrom(*style);
    return 0;
}

int GridCtrl::SetCell(int col, int row, GridCell& cell) {
    // No column record stands behind such a col; the write is refused before anyone hears it.
    if (col >= sheet->colCount) return 1;
    NotifyCellWrite(col, row, &cell);
    int sourceCol;
    GridDataSource* source = SourceOf(col, &sourceCol);
    source->SetCell(sourceCol, row, cell);
    return 0;
}

int GridCtrl::DeleteCell(int col, int row) {
    if (col < 0 || col >= sheet->colCount) return 1;
    int sourceCol;
    GridDataSource* source = SourceOf(col, &sourceCol);
    return source->ClearCell(sourceCol, row);
}

int GridCtrl::SetCellRange(int leftCol, int topRow, int rightCol, int bottomRow, GridCell& cell) {
    for (int row = topRow; row <= bottomRow; ++row)
        for (int col = leftCol; col <= rightCol; ++col) SetCell(col, row, cell);
    return 0;
}

int GridCtrl::GetCellText(int col, int row, std::string& text) {
    text.clear();
    // No column record stands behind such a col, so no cell either.
    if (col >= sheet->colCount) return 0;
    int sourceCol;
    GridDataSource* source = SourceOf(col, &sourceCol);
    // The sheet's own store hands out the text without building the whole cell.
    if (source == &sheet->memoryDataSource) {
        sheet->memoryDataSource.GetText(sourceCol, row, text);
        return 0;
    }
    GetCell(col, row, scratchCell);
    if (const char* stored = scratchCell.GetText())
        text.assign(stored, static_cast<size_t>(scratchCell.GetTextLength()));
    return 0;
}

const char* GridCtrl::GetCellText(int col, int row) {
    GetCell(col, row, scratchCell);
    return scratchCell.GetText();
}

CellType* GridCtrl::GetCellTypeAt(int col, int row) {
    GetEffectiveCell(col, row, scratchCell);
    return TypeOf(scratchCell);
}

CellType* GridCtrl::TypeOf(const GridCell& cell) {
    return cell.HasProperty(PropCellType) ? GetCellType(cell.GetCellType()) : &normalCellType;
}

int GridCtrl::GetColumnDefault(int col, GridCell& cell) {
    if (col < 0 || col >= sheet->colCount) return 1;
    cell.CopyFrom(*sheet->columns[static_cast<size_t>(col)].defaultCell);
    return 0;
}

int GridCtrl::SetColumnDefault(int col, const GridCell& cell) {
    if (col < 0 || col >= sheet->colCount) return 1;
    sheet->columns[static_cast<size_t>(col)].defaultCell->CopyFrom(cell);
    return 0;
}

int GridCtrl::GetGridDefault(GridCell& cell) {
    return cell.CopyFrom(sheet->gridDefaultCell);
}

int GridCtrl::SetGridDefault(const GridCell& cell) {
    return sheet->gridDefaultCell.CopyFrom(cell);
}

int GridCtrl::GetHeadingDefault(GridCell& cell) {
    return cell.CopyFrom(sheet->headingDefaultCell);
}

int GridCtrl::SetHeadingDefault(const GridCell& cell) {
    return sheet->headingDefaultCell.CopyFrom(cell);
}

int GridCtrl::GetTranslatedCol(int col) {
    if (col < 0 || col >= sheet->colCount) return col;
    return sheet->columns[static_cast<size_t>(col)].sourceCol;
}

int GridCtrl::SetTranslatedCol(int col, int sourceCol) {
    if (col < 0 || col >= sheet->colCount) return 1;
    sheet->columns[static_cast<size_t>(col)].sourceCol = sourceCol;
    return 0;
}

int GridCtrl::SetCellText(int col, int row, const std::string& text) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetText(text); });
}
int GridCtrl::SetCellNumber(int col, int row, double value) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetNumber(value); });
}
int GridCtrl::SetCellMask(int col, int row, const std::string& mask) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetMask(mask); });
}
int GridCtrl::SetCellLabel(int col, int row, const std::string& label) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetLabel(label); });
}
int GridCtrl::SetCellTextColor(int col, int row, COLORREF color) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetTextColor(color); });
}
int GridCtrl::SetCellHighlightTextColor(int col, int row, COLORREF color) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetHiliteTextColor(color); });
}
int GridCtrl::SetCellBackColor(int col, int row, COLORREF color) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetBackColor(color); });
}
int GridCtrl::SetCellHighlightBackColor(int col, int row, COLORREF color) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetHiliteBackColor(color); });
}
int GridCtrl::SetCellBitmap(int col, int row, CBitmap* bitmap) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetBitmap(bitmap); });
}
int GridCtrl::SetCellBitmapByIndex(int col, int row, int index) {
    return SetCellBitmap(col, row, GetBitmap(index));
}
int GridCtrl::SetCellFont(int col, int row, CFont* font) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetFont(font); });
}
int GridCtrl::SetCellFontByIndex(int col, int row, int index) {
    return SetCellFont(col, row, GetFont(index));
}
int GridCtrl::SetCellAlignment(int col, int row, WORD flags) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetAlignment(flags); });
}
int GridCtrl::SetCellBorderStyle(int col, int row, WORD flags) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetBorder(flags); });
}
int GridCtrl::SetCellBorderPen(int col, int row, CPen* pen) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetBorderPen(pen); });
}
int GridCtrl::SetCellTypeId(int col, int row, int id) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetCellType(id); });
}
int GridCtrl::SetCellTypeOption(int col, int row, int option) {
    return Shortcut(col, row, [&](GridCell& cell) { cell.SetCellTypeOption(option); });
}
