#include "grid/cells/CheckBoxCellType.h"

#include "grid/cells/CellTypeGrid.h"
#include "platform/afx/CDC.h"
#include "platform/user/User.h"

#include <algorithm>

CheckBoxCellType::CheckBoxCellType()
    : boxShadowPen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW)),
      boxLightPen(PS_SOLID, 1, RGB(225, 225, 225)),
      boxFacePen(PS_SOLID, 1, GetSysColor(COLOR_BTNFACE)) {
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

void CheckBoxCellType::Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
                            int current) {
    RECT inner;
    DrawCellBorder(dc, *rect, &inner, cell);
    RECT box = BoxOf(inner);
    const int size = box.right - box.left;

    const bool highlight = selected || (current && grid->GetDrawSettings().highlightMode & 0x2);
    dc->SetBkColor(highlight ? cell.GetHiliteBackColor() : cell.GetBackColor());
    const RECT strip{inner.left, inner.top, inner.left + size + 6, inner.bottom};
    dc->ExtTextOut(strip.left, strip.top, ETO_OPAQUE, &strip, "", 0, nullptr);

    if (size >= 6) {
        const int option = cell.GetCellTypeOption();
        const HGDIOBJ black = GetStockObject(BLACK_PEN);
        const HGDIOBJ entryPen = dc->SelectObject(black);
        if (option & OptionSunken) {
            DrawBoxEdge(dc, &box, boxShadowPen.GetSafeHandle(), boxLightPen.GetSafeHandle(),
                        boxFacePen.GetSafeHandle(), black);
        } else if (option & OptionRaised) {
            DrawBoxEdge(dc, &box, boxLightPen.GetSafeHandle(), black,
                        boxShadowPen.GetSafeHandle(), boxFacePen.GetSafeHandle());
        } else {
            dc->MoveTo(box.left, box.top);
            dc->LineTo(box.right, box.top);
            dc->LineTo(box.right, box.bottom);
            dc->LineTo(box.left, box.bottom);
            dc->LineTo(box.left, box.top);
            ++box.left;
            ++box.top;
        }
        dc->SelectObject(entryPen);
        // The inside is a window's, whatever the cell's colours.
        dc->SetBkColor(GetSysColor(COLOR_WINDOW));
        dc->ExtTextOut(box.left, box.top, ETO_OPAQUE, &box, "", 0, nullptr);
        if (cell.GetNumber() > 0) DrawMark(dc, box, size, option & OptionTick);
    }

    RECT caption{inner.left + size + 6, inner.top, inner.right, inner.bottom};
    showLabel = 1;
    DrawCellText(dc, &caption, 0, col, row, cell, selected, current);
}

void CheckBoxCellType::DrawBoxEdge(CDC* dc, RECT* box, HGDIOBJ outerTopLeft,
                                   HGDIOBJ outerBottomRight, HGDIOBJ innerBottomRight,
                                   HGDIOBJ innerTopLeft) {
    dc->MoveTo(box->left, box->bottom);
    dc->SelectObject(outerTopLeft);
    dc->LineTo(box->left, box->top);
    dc->LineTo(box->right, box->top);
    dc->SelectObject(outerBottomRight);
    dc->LineTo(box->right, box->bottom);
    dc->LineTo(box->left, box->bottom);
    InflateRect(box, -1, -1);
    dc->MoveTo(box->left, box->bottom);
    dc->SelectObject(innerBottomRight);
    dc->LineTo(box->right, box->bottom);
    dc->LineTo(box->right, box->top);
    dc->SelectObject(innerTopLeft);
    dc->LineTo(box->left, box->top);
    dc->LineTo(box->left, box->bottom);
    ++box->left;
    ++box->top;
}

// `box` is the inside of the edge, its right and bottom the edge's own.
void CheckBoxCellType::DrawMark(CDC* dc, const RECT& box, int size, int tick) {
    struct Stroke {
        int count;
        POINT points[3];
        bool thick;
    };
    const HGDIOBJ entryPen = dc->SelectObject(GetStockObject(BLACK_PEN));
    const bool thick = size > 9;
    if (tick) {
        const int l = box.left, t = box.top, r = box.right, b = box.bottom;
        const Stroke strokes[] = {
            {3, {{l + 2, b - 4}, {l + 4, b - 2}, {r + 3, t - 1}}, false},
            {3, {{l + 2, b - 5}, {l + 4, b - 3}, {r + 3, t - 2}}, true},
            {2, {{l + 5, b - 2}, {r + 4, t - 1}}, true},
            {2, {{l + 2, b - 6}, {l + 5, b - 3}}, true},
        };
        for (const Stroke& s : strokes)
            if (!s.thick || thick) dc->Polyline(s.points, s.count);
    } else {
        const int l = box.left + 1, t = box.top + 1, r = box.right - 2, b = box.bottom - 2;
        const Stroke strokes[] = {
            {2, {{l, t}, {r + 1, b + 1}}, false},     {2, {{l, b}, {r + 1, t - 1}}, false},
            {2, {{l + 1, t}, {r + 1, b}}, true},      {2, {{l, b - 1}, {r, t - 1}}, true},
            {2, {{l, t + 1}, {r, b + 1}}, true},      {2, {{l + 1, b}, {r + 1, t}}, true},
        };
        for (const Stroke& s : strokes)
            if (!s.thick || thick) dc->Polyline(s.points, s.count);
    }
    dc->SelectObject(entryPen);
}
