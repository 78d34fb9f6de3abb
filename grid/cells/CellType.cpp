#include "grid/cells/CellType.h"

#include "grid/cells/CellTypeGrid.h"
#include "grid/cells/GridCell.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CFont.h"

const char* CellType::GetName() {
    return "Normal Cell Type (default)";
}

const unsigned char* CellType::GetTypeTag() {
    static constexpr unsigned char tag[16] = {'K', 'G', 'C', 'T', 'n', 'o', 'r', 'm',
                                              'a', 'l', 0,   0,   0,   0,   0,   1};
    return tag;
}

int CellType::PrepareEditRect(RECT*) {
    return 0;
}
int CellType::NotifySysColorChange() {
    return 0;
}
int CellType::LeftClick(int, int, int, RECT*, POINT*) {
    return 0;
}
int CellType::RightClick(int, int, int, RECT*, POINT*) {
    return 0;
}
int CellType::DoubleClick(int, int, RECT*, POINT*) {
    return 0;
}
int CellType::KeyDown(int, int, UINT*) {
    return 0;
}
int CellType::CharInput(int, int, UINT*) {
    return 0;
}
int CellType::MouseMove(int, int, POINT*, UINT) {
    return 0;
}
void CellType::NotifyEnter(int, int, GridCell*) {}
void CellType::NotifyLeave(int, int, GridCell*) {}

int CellType::AllowsOverflow(const GridCell& cell) const {
    if (cell.HasProperty(PropAlignment)) return cell.GetAlignment() & 0x1 ? overflowAllowed : 0;
    bool hasOption = cell.HasProperty(PropCellTypeOption) && cell.GetCellTypeOption() != 0;
    return hasOption || cell.HasProperty(PropJoin) ? 0 : overflowAllowed;
}

void CellType::GetBestSize(CDC* dc, SIZE* size, const GridCell& cell) {
    CFont* font = cell.HasProperty(PropFont) ? cell.GetFont() : nullptr;
    if (!font && grid) font = grid->GetDefaultFont();
    HGDIOBJ old = font ? dc->SelectObject(font->GetSafeHandle()) : nullptr;
    *size = SIZE{3, 3};
    if (cell.HasProperty(PropText))
        GetTextExtentPoint32(*dc, cell.GetText() ? cell.GetText() : "", cell.GetTextLength(), size);
    size->cx += 6;
    size->cy += 2;
    if (old) dc->SelectObject(old);
}
