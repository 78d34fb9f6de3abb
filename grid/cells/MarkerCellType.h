#pragma once
// A navigation arrow in the middle of the cell, chosen by the cell's type option: 0x10 (or no
// option) right, 0x20 left, 0x40 double right, 0x80 double left. It takes no input and opens
// no editor; only its drawing differs from plain text. Known debt: the arrow isn't drawn yet;
// the type draws as plain text.

#include "grid/cells/NormalCellType.h"

class MarkerCellType : public NormalCellType {
public:
    MarkerCellType() { editable = 0; }
};
