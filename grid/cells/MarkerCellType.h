#pragma once
// A navigation arrow in the middle of the cell, chosen by the cell's type option: 0x10 (or no
// option) right, 0x20 left, 0x40 double right, 0x80 double left, tried in that order; any
// other option shows no arrow. It draws no text, takes no input and opens no editor.

#include "grid/cells/NormalCellType.h"

class MarkerCellType : public NormalCellType {
public:
    MarkerCellType() { editable = 0; }

    // The cell's background, selected or current in the highlight colour, and the arrow in the
    // text colour; a cell under 4 pixels wide has no room for it.
    void Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
              int current) override;
};
