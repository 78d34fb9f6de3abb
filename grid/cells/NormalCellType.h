#pragma once
// The type of every cell that names no other: plain text, drawn as the base class draws it.
// Types that change only the drawing, like the marker, derive from it.

#include "grid/cells/CellType.h"

class NormalCellType : public CellType {};
