#pragma once
// A cell with a button at its right edge that drops a list of choices under the cell; the
// choice becomes the cell's text. The choices are the cell's label, each ended by a line
// feed. The text stays editable in the ordinary editor, and the editor leaves the button free.
//
// The state of the list: dropCol and dropRow are -1 while it is closed, the cell's address
// while it is open, and -2 just after a press elsewhere dismissed it, so that this very press
// doesn't open it again.
//
// Known debt: the list window (DropListBox) is not written yet, and with it the operations
// that open it (LeftClick, KeyDown) and the drawing of the button.

#include "grid/cells/CellType.h"

class DropListCellType : public CellType {
public:
    DropListCellType();

    const char* GetName() override;
    const unsigned char* GetTypeTag() override;
    // Narrows the editor by the button; answers 1.
    int PrepareEditRect(RECT* rect) override;
    // A double click on the button counts as a press on it.
    int DoubleClick(int col, int row, RECT* rect, POINT* point) override;
    int CharInput(int col, int row, UINT* character) override;
    // While the left button is held, the pressed button pops up when the mouse leaves it and
    // goes down again when it comes back.
    int MouseMove(int col, int row, POINT* point, UINT flags) override;
    void NotifyLeave(int col, int row, GridCell* cell) override;

protected:
    int arrowWidth;
    int buttonDown = 0;
    // The button at the last press.
    RECT buttonRect{};
    int dropCol = -1;
    int dropRow = -1;
};
