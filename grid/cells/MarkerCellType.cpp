#include "grid/cells/MarkerCellType.h"

#include "grid/cells/GridCell.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CPen.h"

namespace {

// One arrow with its middle at (mx, my), pointing right (direction 1) or left (-1).
void DrawArrow(CDC* dc, int mx, int my, int direction) {
    const int d = direction;
    dc->MoveTo(mx - d, my - 3);
    dc->LineTo(mx - d, my + 4);
    dc->MoveTo(mx, my - 2);
    dc->LineTo(mx, my + 2);
    dc->LineTo(mx + 2 * d, my);
    dc->LineTo(mx + d, my - 1);
    dc->LineTo(mx + d, my + 1);
}

} // namespace

void MarkerCellType::Draw(CDC* dc, RECT* rect, int, int, GridCell& cell, int selected,
                          int current) {
    RECT inner;
    DrawCellBorder(dc, *rect, &inner, cell);
    dc->SetBkColor(selected || current ? cell.GetHiliteBackColor() : cell.GetBackColor());
    dc->ExtTextOut(inner.left, inner.top, ETO_OPAQUE, &inner, "", 0, nullptr);
    if (inner.right - inner.left < 4) return;

    const int option = cell.GetCellTypeOption();
    int direction;
    bool doubled = false;
    if (option == 0 || option & 0x10) {
        direction = 1;
    } else if (option & 0x20) {
        direction = -1;
    } else if (option & 0xC0) {
        direction = option & 0x40 ? 1 : -1;
        doubled = true;
    } else {
        return;
    }
    CPen pen(PS_SOLID, 1, cell.GetTextColor());
    CPen* entryPen = dc->SelectObject(&pen);
    const int mx = (inner.left + inner.right) / 2, my = (inner.top + inner.bottom) / 2;
    if (doubled) {
        DrawArrow(dc, mx + 3, my, direction);
        DrawArrow(dc, mx - 3, my, direction);
    } else {
        DrawArrow(dc, mx, my, direction);
    }
    dc->SelectObject(entryPen);
}
