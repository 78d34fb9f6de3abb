#include "grid/windows/GridPrinter.h"

#include "grid/cells/CellType.h"
#include "grid/core/GridCtrl.h"
#include "platform/afx/CDC.h"

#include <algorithm>

int* GridPrinter::OptionField(int option) {
    switch (option) {
    case 1: return &printTopHeading;
    case 2: return &printSideHeading;
    case 3: return &leftMargin;
    case 4: return &topMargin;
    case 5: return &rightMargin;
    case 6: return &bottomMargin;
    case 10: return &printFrame;
    default: return nullptr;
    }
}

int GridPrinter::SetPrintOption(int option, int value) {
    if (int* field = OptionField(option)) *field = option == 10 ? (value ? 1 : 0) : value;
    return 0;
}

int GridPrinter::GetPrintOption(int option, int* value) const {
    const int* field = const_cast<GridPrinter*>(this)->OptionField(option);
    *value = field ? *field : 0;
    return field ? 0 : 1;
}

void GridPrinter::SetPage(int number, int startCol, int endCol, int startRow, int endRow) {
    const Page page{number, startCol, endCol, startRow, endRow};
    for (Page& p : pages)
        if (p.pageNumber == number) {
            p = page;
            return;
        }
    pages.push_back(page);
}

int GridPrinter::GetPage(int number, int* startCol, int* endCol, int* startRow, int* endRow) const {
    for (const Page& p : pages)
        if (p.pageNumber == number) {
            *startCol = p.startCol, *endCol = p.endCol;
            *startRow = p.startRow, *endRow = p.endRow;
            return 1;
        }
    return 0;
}

namespace {

// Closes bands of items first..last whose sizes add up past `room`, starting each band at
// `initial`; `close(start, end)` hears each band. A narrower item that overflows opens the
// next band; one at least as wide as the room stays alone in its band, cut at the edge.
template <typename Size, typename Close>
int Bands(int first, int last, int room, int initial, Size size, Close close) {
    int bands = 0, start = first, running = initial;
    for (int i = first; i <= last; ++i) {
        running += size(i);
        if (running <= room) continue;
        ++bands;
        running = initial;
        // Not back past the band's start: a heading that leaves no room for the item would
        // otherwise close empty bands for ever.
        if (size(i) < room && i > start) --i;
        close(bands, start, i);
        start = i + 1;
    }
    if (running > 0) close(++bands, start, last);
    return bands;
}

} // namespace

int GridPrinter::PrintInit(CDC* dc, CDC*, int startCol, int startRow, int endCol, int endRow) {
    const float horzRes = static_cast<float>(dc->GetDeviceCaps(HORZRES));
    const float vertRes = static_cast<float>(dc->GetDeviceCaps(VERTRES));
    const float horzSize = static_cast<float>(dc->GetDeviceCaps(HORZSIZE));
    const float vertSize = static_cast<float>(dc->GetDeviceCaps(VERTSIZE));
    // Screen pixels per millimetre: 3.79 across, 3.78 down.
    int pageWidth = static_cast<int>((horzSize - leftMargin - rightMargin) * 3.79f);
    int pageHeight = static_cast<int>((vertSize - topMargin - bottomMargin) * 3.78f);
    // Each heading takes its room from the other axis.
    if (printTopHeading) pageWidth -= sheet->sideHeadingWidth;
    if (printSideHeading) pageHeight -= sheet->topHeadingHeight;
    scaleY = (vertRes / vertSize) * (vertSize - topMargin - bottomMargin) / pageHeight;
    scaleX = (horzRes / horzSize) * (horzSize - leftMargin - rightMargin) / pageWidth;
    leftPixels = static_cast<int>(horzRes / horzSize * leftMargin);
    topPixels = static_cast<int>(vertRes / vertSize * topMargin);

    pagesWide = Bands(
        startCol, endCol, pageWidth, printSideHeading ? grid->GetSideHeadingWidth() : 0,
        [this](int col) { return grid->GetColWidth(col); },
        [this](int band, int first, int last) { SetPage(band, first, last, 0, 0); });
    pagesHigh = Bands(
        startRow, endRow, pageHeight, printTopHeading ? grid->GetTopHeadingHeight() : 0,
        [this](int row) { return grid->GetRowHeight(row); },
        [this](int band, int first, int last) {
            for (int i = 1; i <= pagesWide; ++i) {
                int bandStart = 0, bandEnd = 0, ignored;
                GetPage(i, &bandStart, &bandEnd, &ignored, &ignored);
                SetPage((band - 1) * pagesWide + i, bandStart, bandEnd, first, last);
            }
        });
    return pagesWide * pagesHigh;
}

int GridPrinter::ScaledWidth(int col) const {
    const int width = col < 0 ? sheet->sideHeadingColWidths[static_cast<size_t>(-col - 1)]
                              : grid->GetColWidth(col);
    return static_cast<int>(width * scaleX);
}

int GridPrinter::ScaledHeight(int row) const {
    const int height = row < 0 ? sheet->topHeadingRowHeights[static_cast<size_t>(-row - 1)]
                               : grid->GetRowHeight(row);
    return static_cast<int>(height * scaleY);
}

int GridPrinter::PrintPage(CDC* dc, int pageNumber) {
    Page page{pageNumber, 0, 0, 0, 0};
    if (!GetPage(pageNumber, &page.startCol, &page.endCol, &page.startRow, &page.endRow)) return 0;
    const int firstRow = printTopHeading ? -sheet->topHeadingRows : page.startRow;
    const int firstCol = printSideHeading ? -sheet->sideHeadingCols : page.startCol;
    RECT rect{0, 0, 0, topPixels};
    for (int row = firstRow; row <= page.endRow; row = row == -1 ? page.startRow : row + 1) {
        const int height = ScaledHeight(row);
        if (height == 0) continue;
        rect.top = rect.bottom;
        rect.bottom += height;
        rect.right = leftPixels;
        for (int col = firstCol; col <= page.endCol; col = col == -1 ? page.startCol : col + 1) {
            const int width = ScaledWidth(col);
            if (width == 0) continue;
            rect.left = rect.right;
            rect.right += width;
            int mainCol = col, mainRow = row;
            if (grid->GetJoinedMain(&mainCol, &mainRow) == 0)
                PrintJoinedCell(dc, rect, col, row, page);
            else
                PrintCell(dc, rect, col, row);
            if (!printFrame) continue;
            // Around the cells of the page, not its headings; inner lines are the cells' own.
            if (row == page.startRow) {
                dc->MoveTo(rect.left, rect.top);
                dc->LineTo(rect.right + 1, rect.top);
            } else if (row == page.endRow) {
                dc->MoveTo(rect.left, rect.bottom);
                dc->LineTo(rect.right + 1, rect.bottom);
            }
            if (col == page.startCol) {
                if (row < 0) {
                    dc->MoveTo(rect.left, rect.top);
                    dc->LineTo(rect.left, topPixels);
                }
                dc->MoveTo(rect.left, rect.top);
                dc->LineTo(rect.left, rect.bottom + 1);
            } else if (col == page.endCol) {
                dc->MoveTo(rect.right, rect.top);
                dc->LineTo(rect.right, rect.bottom + 1);
            }
        }
    }
    return 0;
}

// A join that starts on an earlier page shows first where it enters this one, with the main
// cell's content, and one that runs on is cut at the page's edge. The join is put back as it
// was afterwards; a cell that took the main cell's copy keeps it, hidden in the join again.
void GridPrinter::PrintJoinedCell(CDC* dc, const RECT& rect, int col, int row, const Page& page) {
    int mainCol = col, mainRow = row, endCol = col, endRow = row;
    grid->GetJoinedRange(&mainCol, &mainRow, &endCol, &endRow);
    const int keptCol = mainCol, keptRow = mainRow, keptEndCol = endCol, keptEndRow = endRow;
    const bool entersHere = (row == page.startRow && col == mainCol) ||
                            (col == page.startCol && row == mainRow) ||
                            (col == page.startCol && row == page.startRow);
    if (entersHere) {
        GridCell main;
        grid->GetCell(mainCol, mainRow, main);
        grid->SetCell(col, row, main);
        grid->JoinCells(col, row, endCol, endRow);
        mainCol = col, mainRow = row;
        grid->GetJoinedRange(&mainCol, &mainRow, &endCol, &endRow);
    }
    if (col != mainCol || row != mainRow) return;
    RECT block = rect;
    if (endCol > page.endCol || endRow > page.endRow) {
        endCol = std::min(endCol, page.endCol);
        endRow = std::min(endRow, page.endRow);
        grid->JoinCells(mainCol, mainRow, endCol, endRow);
    }
    for (int c = endCol; c > mainCol; --c) block.right += ScaledWidth(c);
    for (int r = endRow; r > mainRow; --r) block.bottom += ScaledHeight(r);
    PrintCell(dc, block, mainCol, mainRow);
    grid->JoinCells(keptCol, keptRow, keptEndCol, keptEndRow);
}

void GridPrinter::PrintCell(CDC* dc, RECT rect, int col, int row) {
    if (col < 0 && row < 0)
        rect = RECT{leftPixels, topPixels,
                    static_cast<LONG>(leftPixels + sheet->sideHeadingWidth * scaleX),
                    static_cast<LONG>(topPixels + sheet->topHeadingHeight * scaleY)};
    GridCell cell;
    grid->GetEffectiveCell(col, row, cell);
    CellType* type = grid->GetCellType(cell.HasProperty(PropCellType) ? cell.GetCellType() : -1);
    const int saved = dc->SaveDC();
    type->DrawScaled(dc, &rect, col, row, cell);
    dc->RestoreDC(saved);
}
