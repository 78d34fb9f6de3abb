#pragma once

#include "platform/base/WinTypes.h"

class CSize : public SIZE {
public:
    CSize() = default;
    CSize(int w, int h) { cx = w, cy = h; }
    CSize(SIZE s) : SIZE(s) {}
};
