#pragma once
// The heading above the cells (section 2). Refresh gives the outermost heading row what is
// left of the heading's height after the other rows.

#include "grid/windows/HeadingWindow.h"

class TopHeading : public HeadingWindow {
public:
    TopHeading() : HeadingWindow(2) {}
    void Refresh() override;
};
