#pragma once
// The heading beside the cells (section 3). Refresh gives the outermost heading column what is
// left of the heading's width after the other columns.

#include "grid/windows/HeadingWindow.h"

class SideHeading : public HeadingWindow {
public:
    SideHeading() : HeadingWindow(3) {}
    void Refresh() override;
    // Pixel rectangle of a heading cell in this window, of the whole join if it has one.
    void GetHeadingCellRect(int col, int row, RECT* rect);
};
