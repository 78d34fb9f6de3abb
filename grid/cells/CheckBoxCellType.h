#pragma once
// A small box at the left of the cell with the cell's label as its caption. The state is the
// number in the cell's text: checked above 0. A release of the left button in the box, or the
// space bar on the current cell, toggles it and reports event 53 with the new state, 0 or 1.
// Cells of this type open no editor and keep their text to themselves.
//
// Known debt: the box and its mark aren't drawn yet; the type draws as the base class does.

#include "grid/cells/CellType.h"
#include "grid/cells/GridCell.h"

class CheckBoxCellType : public CellType {
public:
    static constexpr int EventChanged = 53;

    CheckBoxCellType();

    const char* GetName() override;
    const unsigned char* GetTypeTag() override;
    int LeftClick(int col, int row, int isDown, RECT* rect, POINT* point) override;
    // A press, so it toggles nothing: the two releases of a double click each toggle.
    int DoubleClick(int col, int row, RECT* rect, POINT* point) override;
    int CharInput(int col, int row, UINT* character) override;

    // The box inside a cell's rectangle, all four edges inclusive.
    static RECT BoxOf(const RECT& cell);

private:
    GridCell workCell;
};
