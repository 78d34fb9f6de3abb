#include "grid/cells/CellType.h"

#include "grid/cells/GridCell.h"

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
