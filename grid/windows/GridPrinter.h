#pragma once
// Lays a range of the active sheet out on printer pages and prints one page at a time. The
// client owns the print job: it opens the printer context, asks PrintInit for the number of
// pages and calls PrintPage for each page it wants between its own page calls.
//
// A page is worked out in screen pixels, at a fixed number of them per millimetre of paper,
// and every size is then scaled to printer pixels: the printed table keeps the screen's
// proportions, fills the printable area and breaks between columns and rows. Pages run
// across first, then down.

#include "grid/windows/GridChild.h"
#include "platform/base/WinTypes.h"

#include <vector>

class CDC;

class GridPrinter : public GridChild {
public:
    // Answers the number of pages. The second context plays no part.
    int PrintInit(CDC* printerDC, CDC* secondDC, int startCol, int startRow, int endCol,
                  int endRow);
    // Prints nothing for an unknown page number; answers 0.
    int PrintPage(CDC* printerDC, int pageNumber);
    // Options: 1 top heading, 2 side heading, 3 to 6 the left, top, right and bottom margins in
    // millimetres, 10 the frame. Others are ignored by Set and answer 1 from Get.
    int SetPrintOption(int option, int value);
    int GetPrintOption(int option, int* value) const;

    // Overwrites the record of that number or adds one; Get answers 1, or 0 when unknown.
    void SetPage(int number, int startCol, int endCol, int startRow, int endRow);
    int GetPage(int number, int* startCol, int* endCol, int* startRow, int* endRow) const;

private:
    struct Page {
        int pageNumber, startCol, endCol, startRow, endRow;
    };

    int* OptionField(int option);
    void PrintJoinedCell(CDC* dc, const RECT& rect, int col, int row, const Page& page);
    void PrintCell(CDC* dc, RECT rect, int col, int row);
    int ScaledWidth(int col) const;
    int ScaledHeight(int row) const;

    // Kept in the order they were first stored; a shorter layout leaves the old ones behind.
    std::vector<Page> pages;
    int pagesWide = 0;
    int pagesHigh = 0;
    float scaleY = 1;
    float scaleX = 1;
    int leftPixels = 0;
    int topPixels = 0;
    int leftMargin = 25;
    int topMargin = 25;
    int rightMargin = 25;
    int bottomMargin = 25;
    int printFrame = 1;
    int printTopHeading = 0;
    int printSideHeading = 0;
};
