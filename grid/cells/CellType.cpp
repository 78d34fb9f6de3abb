#include "grid/cells/CellType.h"

#include "grid/cells/CellTypeGrid.h"
#include "grid/cells/GridCell.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CFont.h"

#include <algorithm>
#include <cstring>

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

void CellType::Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
                    int current) {
    RECT inner;
    if (grid->GetDrawSettings().textOverflowEnabled && AllowsOverflow(cell) &&
        cell.GetTextLength() == 0) {
        GridCell source;
        int sourceCol = 0;
        if (int xOffset = FindOverflowSource(dc, col, row, &sourceCol, source)) {
            DrawCellBorder(dc, *rect, &inner, cell);
            DrawCellText(dc, &inner, xOffset, col, row, source, selected, current);
            return;
        }
    }
    DrawCellBorder(dc, *rect, &inner, cell);
    DrawCellText(dc, &inner, 0, col, row, cell, selected, current);
}

void CellType::DrawScaled(CDC* dc, RECT* rect, int col, int row, GridCell& cell) {
    const int rowHeight = row < 0 ? grid->GetHeadingRowHeight(row) : grid->GetRowHeight(row);
    // A row of no height on screen shows nothing, and gives no scale.
    if (rowHeight <= 0) return;
    const int height = rect->bottom - rect->top;
    printScale = static_cast<double>(height) / rowHeight;
    int firstCol = col, firstRow = row, lastCol = 0, lastRow = 0;
    if (cell.HasProperty(PropJoin) &&
        grid->GetJoinedRange(&firstCol, &firstRow, &lastCol, &lastRow) == 0 && lastRow > firstRow)
        printScale = static_cast<double>(height) / (lastRow - firstRow + 1) / rowHeight;

    CFont* font = cell.HasProperty(PropFont) ? cell.GetFont() : nullptr;
    if (!font) font = grid->GetDefaultFont();
    // Without either, the font the context holds is the one that is scaled.
    HGDIOBJ unscaled = font ? font->GetSafeHandle() : GetCurrentObject(*dc, OBJ_FONT);
    LOGFONT lf;
    if (GetObjectA(unscaled, sizeof lf, &lf) != sizeof lf) return;
    lf.lfHeight = static_cast<LONG>(lf.lfHeight * printScale);
    CFont scaled;
    scaled.CreateFontIndirect(&lf);
    CFont* old = dc->SelectObject(&scaled);
    // The cell carries the scaled font into Draw; it gets its own back afterwards, so that it
    // never holds the temporary font.
    const int hadFont = cell.HasProperty(PropFont);
    CFont* cellFont = cell.GetFont();
    cell.SetFont(&scaled);
    Draw(dc, rect, col, row, cell, 0, 0);
    if (hadFont)
        cell.SetFont(cellFont);
    else
        cell.ClearProperty(PropFont);
    dc->SelectObject(old);
}

int CellType::FindOverflowSource(CDC* dc, int col, int row, int* sourceCol, GridCell& sourceCell) {
    const CellTypeGrid::DrawSettings settings = grid->GetDrawSettings();
    if (!settings.textOverflowEnabled) return 0;
    int from = col;
    if (grid->FindTextToLeft(&from, row) != 0) return 0;
    grid->GetEffectiveCell(from, row, sourceCell);
    if (sourceCell.HasProperty(PropFont) && sourceCell.GetFont())
        dc->SelectObject(sourceCell.GetFont());
    const char* text = sourceCell.GetText();
    const int needed =
        dc->GetTextExtent(text ? text : "", sourceCell.GetTextLength()).cx + settings.cellMargin;
    if (needed <= grid->GetColWidth(from)) return 0;
    if (!grid->GetCellType(sourceCell.GetCellType())->AllowsOverflow(sourceCell)) return 0;

    int sum = 0;
    int c = from;
    for (; c < col; ++c) {
        sum += grid->GetColWidth(c);
        if (sum > needed) break;
    }
    if (c != col) return 0; // the text ends before this cell
    *sourceCol = from;
    if (!dc->IsPrinting()) printScale = 1.0;
    return static_cast<int>(-sum * printScale);
}

namespace {

// A line from (x1, y1) up to, not including, (x2, y2).
void Line(CDC* dc, int x1, int y1, int x2, int y2) {
    dc->MoveTo(x1, y1);
    dc->LineTo(x2, y2);
}

// One frame of `width` lines: `dark` on the left and top, `light` on the right and bottom.
void DrawFrame(CDC* dc, const RECT& r, int width, CPen* dark, CPen* light) {
    dc->SelectObject(dark);
    for (int i = 0; i < width; ++i) {
        dc->MoveTo(r.left + i, r.bottom - i - 1);
        dc->LineTo(r.left + i, r.top + i);
        dc->LineTo(r.right - i - 1, r.top + i);
    }
    dc->SelectObject(light);
    for (int i = 0; i < width; ++i) {
        dc->MoveTo(r.right - i - 1, r.top + i);
        dc->LineTo(r.right - i - 1, r.bottom - i - 1);
        dc->LineTo(r.left + i, r.bottom - i - 1);
    }
}

} // namespace

void CellType::DrawCellBorder(CDC* dc, const RECT& rect, RECT* inner, const GridCell& cell) {
    const CellTypeGrid::DrawSettings settings = grid->GetDrawSettings();
    const WORD border = cell.GetBorder();
    const int gridLines = border & 0x3000 ? 0 : settings.gridLinesEnabled;
    const int l = rect.left, t = rect.top, r = rect.right, b = rect.bottom;
    int left = 0, top = 0, right = 0, bottom = 0;

    CPen* pen = cell.HasProperty(PropBorderPen) && cell.GetBorderPen() ? cell.GetBorderPen()
                                                                       : settings.gridLinePen;
    CPen* entryPen = dc->SelectObject(pen);
    if (border & 0xF || gridLines) {
        if (border & 0x1) {
            Line(dc, l, t, l, b);
            left = 1;
        }
        if (border & 0x2) {
            Line(dc, l, t, r, t);
            top = 1;
        }
        // Grid lines are always drawn in the grid's pen, even beside a cell's own border pen.
        if (border & 0x4 || gridLines) {
            CPen* previous = border & 0x4 ? nullptr : dc->SelectObject(settings.gridLinePen);
            Line(dc, r - 1, t, r - 1, b);
            if (previous) dc->SelectObject(previous);
            right = 1;
        }
        if (border & 0x8 || gridLines) {
            CPen* previous = border & 0x8 ? nullptr : dc->SelectObject(settings.gridLinePen);
            Line(dc, l, b - 1, r, b - 1);
            if (previous) dc->SelectObject(previous);
            bottom = 1;
        }
    }
    // The thick lines: bits 0x10 to 0x80 twice, 0x100 to 0x800 three times, each further in.
    for (int lines = 2; lines <= 3; ++lines) {
        const WORD bits = static_cast<WORD>(border >> (4 * (lines - 1)));
        for (int i = 0; i < lines; ++i) {
            if (bits & 0x1) Line(dc, l + i, t, l + i, b);
            if (bits & 0x2) Line(dc, l, t + i, r, t + i);
            if (bits & 0x4) Line(dc, r - 1 - i, t, r - 1 - i, b);
            if (bits & 0x8) Line(dc, l, b - 1 - i, r, b - 1 - i);
        }
        if (bits & 0x1) left = lines;
        if (bits & 0x2) top = lines;
        if (bits & 0x4) right = lines;
        if (bits & 0x8) bottom = lines;
    }
    if (border & 0x3000) {
        left = top = right = bottom = settings.borderWidth;
        if (border & 0x1000)
            DrawFrame(dc, rect, settings.borderWidth, settings.shadowPen, settings.highlightPen);
        if (border & 0x2000)
            DrawFrame(dc, rect, settings.borderWidth, settings.highlightPen, settings.shadowPen);
    }
    dc->SelectObject(entryPen);
    *inner = RECT{l + left, t + top, r - right, b - bottom};
}

void CellType::DrawCellText(CDC* dc, RECT* rect, int xOffset, int, int, const GridCell& cell,
                            int selected, int current) {
    const CellTypeGrid::DrawSettings settings = grid->GetDrawSettings();
    const int option = cell.HasProperty(PropCellTypeOption) ? cell.GetCellTypeOption() : 0;
    const char* shown = showLabel || option == 8 ? cell.GetLabel() : cell.GetText();
    if (!shown) shown = "";
    const int length = static_cast<int>(std::strlen(shown));
    const WORD align = cell.GetAlignment();
    const LONG entryLeft = rect->left;

    if (cell.HasProperty(PropFont) && cell.GetFont()) dc->SelectObject(cell.GetFont());
    const bool highlight = selected || (current && settings.highlightMode & 0x2);
    const COLORREF back = highlight ? cell.GetHiliteBackColor() : cell.GetBackColor();
    dc->SetTextColor(highlight ? cell.GetHiliteTextColor() : cell.GetTextColor());
    dc->SetBkColor(back);
    if (cell.HasProperty(PropBitmap) && cell.GetBitmap())
        rect->left += DrawCellBitmap(dc, cell.GetBitmap(), *rect, back);

    const CSize extent = dc->GetTextExtent(shown, length);
    int x = rect->left + settings.cellMargin + xOffset;
    if (align & 0x4)
        x = (rect->right - rect->left - extent.cx) / 2 + rect->left;
    else if (align & 0x2)
        x = rect->right - extent.cx - settings.cellMargin;
    int y = rect->top + 1;
    if (align & 0x20)
        y = (rect->bottom - rect->top - extent.cy) / 2 + rect->top;
    else if (align & 0x10)
        y = rect->bottom - extent.cy - 1;
    // A neighbour's text also covers the grid line between it and this cell.
    if (xOffset < 0) rect->left -= 1;

    const UINT clippedOpaque = ETO_OPAQUE | ETO_CLIPPED;
    if (option & 0x2) {
        dc->ExtTextOut(x, y, ETO_OPAQUE, rect, "", 0, nullptr);
        RECT wrapped = *rect;
        UINT format = DT_WORDBREAK | DT_NOPREFIX;
        if (align & 0x4) {
            format |= DT_CENTER;
        } else if (align & 0x2) {
            format |= DT_RIGHT;
            wrapped.right -= settings.cellMargin + xOffset;
        } else if (align & 0x1 || align == 0) {
            wrapped.left += settings.cellMargin + xOffset;
        }
        dc->DrawText(shown, length, &wrapped, format);
    } else if (option & 0x4 && extent.cx + 6 > rect->right - rect->left) {
        // The cut text starts 3 pixels in whatever the alignment, and "..." fills the rest.
        const LONG right = rect->right;
        const LONG left = rect->left;
        rect->right -= dc->GetTextExtent("...", 3).cx + 3;
        if (rect->right > rect->left)
            dc->ExtTextOut(rect->left + 3, y, clippedOpaque, rect, shown, length, nullptr);
        rect->left = std::max(rect->right, left + 1);
        rect->right = right;
        dc->ExtTextOut(rect->left + 1, y, clippedOpaque, rect, "...", 3, nullptr);
    } else {
        dc->ExtTextOut(x, y, clippedOpaque, rect, shown, length, nullptr);
    }
    rect->left = entryLeft;
}

int CellType::DrawCellBitmap(CDC* dc, CBitmap* bitmap, const RECT& rect, COLORREF backColor) {
    BITMAP bm{};
    bitmap->GetBitmap(&bm);
    const int w = bm.bmWidth, h = bm.bmHeight;
    const int rw = rect.right - rect.left, rh = rect.bottom - rect.top;
    // A picture of no size has no scale, and a rectangle of 4 pixels or less leaves no room
    // inside the margins: the picture is left out and the text keeps the whole cell.
    if (w <= 0 || h <= 0 || rw <= 4 || rh <= 4) return 0;

    // The ratios are whole percentages, so the scale is rounded down to one.
    const int bitmapRatio = h * 100 / w;
    const int rectRatio = (rh - 4) * 100 / (rw - 4);
    int drawW, drawH;
    if (bitmapRatio < rectRatio) {
        const int t = (rw - 4) * 100;
        drawW = t / 100;
        drawH = h * (t / w) / 100;
    } else {
        const int t = (rh - 4) * 100;
        drawH = t / 100;
        drawW = w * (t / h) / 100;
    }
    // Half the spare width on either side puts the picture in the middle of the cell, so that
    // text after it is pushed to the cell's right edge.
    const int xGap = drawW < rw - 4 ? (rw - drawW) / 2 : 2;
    const int yGap = drawH < rh - 4 ? (rh - drawH) / 2 : 2;

    CDC memory;
    memory.CreateCompatibleDC(dc);
    CBitmap* old = memory.SelectObject(bitmap);
    dc->SetBkColor(backColor);
    const RECT strip{rect.left, rect.top, rect.left + drawW + 2 * xGap, rect.bottom};
    dc->ExtTextOut(rect.left, rect.top, ETO_OPAQUE, &strip, "", 0, nullptr);
    dc->StretchBlt(rect.left + xGap, rect.top + yGap, drawW, drawH, &memory, 0, 0, w, h, SRCCOPY);
    memory.SelectObject(old);
    return drawW + 2 * xGap;
}
