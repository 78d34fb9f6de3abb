#pragma once
// The strip of sheet tabs beside the horizontal scroll bar (section 7). Its tabs come with
// the strip's own drawing and input; here it takes its place in the layout.

#include "grid/windows/HeadingWindow.h"

class SheetTabs : public HeadingWindow {
public:
    SheetTabs() : HeadingWindow(7) {}
};
