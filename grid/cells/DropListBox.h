#pragma once
// The list window of a drop-list cell, a child of the grid's view under the cell. It takes the
// mouse capture with the focus, so that the release of the press that dropped it lands here;
// that release finds no entry selected and leaves the list open. A release on an entry, or
// Enter with one selected, takes the choice; Escape, Enter on nothing, and any loss of the
// focus close the list without writing. The window is destroyed whenever it loses the focus,
// and the box reports the list's state into its type's dropCol and dropRow.

#include "platform/afx/CListBox.h"

class CellTypeGrid;

class DropListBox : public CListBox {
public:
    // Set each time the list drops.
    CellTypeGrid* grid = nullptr;
    // The window exists and has the focus.
    int showing = 0;
    int* colPtr = nullptr;
    int* rowPtr = nullptr;
    // An entry was taken, so the loss of focus that follows isn't a dismissal.
    int picked = 0;
    int typeId = 0;

protected:
    void OnSetFocus(CWnd* old);
    void OnKillFocus(CWnd* next);
    int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnKeyDown(UINT key, UINT repeat, UINT flags);
    UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    // Writes the selected entry into the cell, unless the grid discards it, and closes the list.
    void TakeChoice();
};
