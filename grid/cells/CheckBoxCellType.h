#pragma once
// A small box at the left of the cell with the cell's label as its caption. The state is the
// number in the cell's text: checked above 0. A release of the left button in the box, or the
// space bar on the current cell, toggles it and reports event 53 with the new state, 0 or 1.
// Cells of this type open no editor and keep their text to themselves.
//
// The box is flat with a black edge, or sunken (option 0x100) or raised (0x200); its mark is a
// cross, or a tick with option 0x1000, drawn thicker in a box larger than 9 pixels. A row too
// low for a box of 6 pixels shows only the caption.

#include "grid/cells/CellType.h"
#include "grid/cells/GridCell.h"
#include "platform/afx/CPen.h"

class CheckBoxCellType : public CellType {
public:
    static constexpr int EventChanged = 53;
    static constexpr int OptionSunken = 0x100;
    static constexpr int OptionRaised = 0x200;
    static constexpr int OptionTick = 0x1000;

    CheckBoxCellType();

    const char* GetName() override;
    const unsigned char* GetTypeTag() override;
    int LeftClick(int col, int row, int isDown, RECT* rect, POINT* point) override;
    // A press, so it toggles nothing: the two releases of a double click each toggle.
    int DoubleClick(int col, int row, RECT* rect, POINT* point) override;
    int CharInput(int col, int row, UINT* character) override;
    // The box at the left, the label as its caption to the right.
    void Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
              int current) override;

    // The box inside a cell's rectangle, all four edges inclusive.
    static RECT BoxOf(const RECT& cell);

private:
    // The sunken or raised edge: two walks round the square, the second one pixel in. The
    // outer walk goes up the left and along the top in outerTopLeft; the inner one along the
    // bottom and up the right in innerBottomRight; each ends in its other pen. `box` ends
    // inside both.
    void DrawBoxEdge(CDC* dc, RECT* box, HGDIOBJ outerTopLeft, HGDIOBJ outerBottomRight,
                     HGDIOBJ innerBottomRight, HGDIOBJ innerTopLeft);
    void DrawMark(CDC* dc, const RECT& box, int size, int tick);

    CPen boxShadowPen;
    CPen boxLightPen;
    CPen boxFacePen;
    GridCell workCell;
};
