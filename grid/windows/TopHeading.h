#pragma once
// The heading above the cells (section 2). Refresh gives the outermost heading row what is
// left of the heading's height after the other rows.

#include "grid/windows/HeadingWindow.h"

class TopHeading : public HeadingWindow {
public:
    TopHeading() : HeadingWindow(2) {}
    void Refresh() override;
    // Pixel rectangle of a heading cell in this window, of the whole join if it has one.
    void GetHeadingCellRect(int col, int row, RECT* rect);
};
