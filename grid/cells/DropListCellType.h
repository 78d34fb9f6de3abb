#pragma once
// A cell with a button at its right edge that drops a list of choices under the cell; the
// choice becomes the cell's text. The choices are the cell's label, each ended by a line
// feed. The text stays editable in the ordinary editor, and the editor leaves the button free.
// A read-only cell stops the editor only: the list still writes.
//
// The state of the list: dropCol and dropRow are -1 while it is closed, the cell's address
// while it is open, and -2 just after a press elsewhere dismissed it, so that this very press
// doesn't open it again. The list window reports into them itself.
//
// Events to the grid: EventDropping with a pointer to the choices (std::vector<std::string>),
// which the handler may change before the list shows them; EventChosen with a pointer to the
// chosen text (std::string), which the handler may change, or discard by answering 0.

#include "grid/cells/CellType.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CPen.h"

#include <memory>

class DropListBox;

class DropListCellType : public CellType {
public:
    static constexpr int EventDropping = 100;
    static constexpr int EventChosen = 101;
    // Cell type option: only the current cell shows the button.
    static constexpr int OptionButtonOnCurrent = 0x200;

    DropListCellType();
    ~DropListCellType() override;

    const char* GetName() override;
    const unsigned char* GetTypeTag() override;
    // Narrows the editor by the button; answers 1.
    int PrepareEditRect(RECT* rect) override;
    // Any press in the cell drops the list, unless it is the press that just dismissed it or a
    // press on the cell whose list is open: those close it.
    int LeftClick(int col, int row, int isDown, RECT* rect, POINT* point) override;
    // A double click on the button counts as a press on it.
    int DoubleClick(int col, int row, RECT* rect, POINT* point) override;
    // Enter and Ctrl+Down drop the list, and the key is spent.
    int KeyDown(int col, int row, UINT* key) override;
    int CharInput(int col, int row, UINT* character) override;
    // While the left button is held, the pressed button pops up when the mouse leaves it and
    // goes down again when it comes back.
    int MouseMove(int col, int row, POINT* point, UINT flags) override;
    void NotifyLeave(int col, int row, GridCell* cell) override;
    // The text left of the button, which is raised, or sunken while pressed on the current
    // cell.
    void Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
              int current) override;

    // Drops the list under the grid's current cell, with no entry selected, and gives it the
    // focus; answers 1 when it is open already, else 0.
    int ShowList();

protected:
    int arrowWidth;
    int buttonDown = 0;
    // The button at the last press.
    RECT buttonRect{};
    int dropCol = -1;
    int dropRow = -1;
    CPen facePen;
    CBrush faceBrush;
    // The object lives as long as the type; its window only while the list is open.
    std::unique_ptr<DropListBox> box;
};
