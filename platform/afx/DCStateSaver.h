#pragma once
// Saves a device context's state for a scope: SaveDC when made, RestoreDC to that level when
// it goes, so that fonts, pens, colours and clip a drawing step selects never leak out of it.

#include "platform/gdi/Gdi.h"

class DCStateSaver {
public:
    explicit DCStateSaver(HDC dc) : dc_(dc), level_(SaveDC(dc)) {}
    ~DCStateSaver() {
        if (level_ > 0) RestoreDC(dc_, level_);
    }
    DCStateSaver(const DCStateSaver&) = delete;
    DCStateSaver& operator=(const DCStateSaver&) = delete;

private:
    HDC dc_;
    int level_;
};
