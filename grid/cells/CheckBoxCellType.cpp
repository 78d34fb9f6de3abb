#include "grid/cells/CheckBoxCellType.h"

#include "grid/cells/CellTypeGrid.h"

#include <algorithm>

CheckBoxCellType::CheckBoxCellType() {
    editable = 0;
    overflowAllowed = 0;
}

const char* CheckBoxCellType::GetName() {
    return "Standard CheckBox Type";
}

const unsigned char* CheckBoxCellType::GetTypeTag() {
    static constexpr unsigned char tag[16] = {'K', 'G', 'C', 'T', 'c', 'h', 'e', 'c',
                                              'k', 'b', 'o', 'x', 0,   0,   0,   1};
    return tag;
}

RECT CheckBoxCellType::BoxOf(const RECT& cell) {
    int height = cell.bottom - cell.top;
    int size = std::min(height - 6, 12);
    int gap = (height - size) / 2;
    return {cell.left + 3, cell.top + gap, cell.left + 3 + size, cell.top + gap + size};
}

int CheckBoxCellType::LeftClick(int col, int row, int isDown, RECT* rect, POINT* point) {
    // The toggle comes with the release, wherever the press was.
    RECT box = BoxOf(*rect);
    bool inBox = point->x >= box.left && point->x <= box.right && point->y >= box.top &&
                 point->y <= box.bottom;
    if (isDown || !inBox) return 0;

    workCell.ClearAll();
    grid->GetEffectiveCell(col, row, workCell);
    if (workCell.GetReadOnly()) return 0;
    workCell.SetNumber(workCell.GetNumber() == 0 ? 1.0 : 0.0);
    // The merged cell goes back whole: its defaults become stored properties.
    grid->SetCell(col, row, workCell);
    grid->RedrawCell(col, row);
    grid->NotifyCellTypeEvent(GetTypeId(), col, row, EventChanged,
                              static_cast<LPARAM>(workCell.GetNumber()));
    return 1;
}

int CheckBoxCellType::DoubleClick(int col, int row, RECT* rect, POINT* point) {
    return LeftClick(col, row, 1, rect, point);
}

int CheckBoxCellType::CharInput(int, int, UINT* character) {
    if (*character != ' ') return 0;
    // The space bar acts on the current cell and changes only the stored value.
    int col = grid->GetCurrentCol(), row = grid->GetCurrentRow();
    workCell.ClearAll();
    grid->GetCell(col, row, workCell);
    if (workCell.GetReadOnly()) return 0;
    int checked = !workCell.GetBool();
    workCell.SetNumber(checked);
    grid->SetCell(col, row, workCell);
    grid->RedrawCell(col, row);
    grid->NotifyCellTypeEvent(GetTypeId(), col, row, EventChanged, checked);
    return 1;
}
