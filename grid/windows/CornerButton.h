#pragma once
// The button where the two headings meet (section 4).

#include "grid/windows/HeadingWindow.h"

class CornerButton : public HeadingWindow {
public:
    CornerButton() : HeadingWindow(4) {}
};
