#pragma once
// The control's built-in in-place editor: an edit field that an editing session places over a
// cell. It knows nothing of the cell: it takes the keys that end an edit (Tab, Enter, Escape,
// and Up and Down while it has not grown), grows with its text in whole cells, and on losing
// the focus hands its text to the control's EditFinished, which decides the rest. A key ends
// a session by giving the focus to the control; the loss of focus does the rest.

#include "grid/windows/CellEditor.h"

class GridEdit : public CellEditor {
public:
    // Stores 1 or 0; answers the old value.
    int SetGrowWithText(int flag);
    UINT GetLastKey() const { return lastKey; }

protected:
    void OnSetFocus(CWnd* old);
    void OnKillFocus(CWnd* next);
    void OnKeyDown(UINT key, UINT repeat, UINT flags);
    void OnChar(UINT character, UINT repeat, UINT flags);
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    void OnUpdate();
    DECLARE_MESSAGE_MAP()

private:
    void GrowWithText();

    UINT lastKey = 0;
    int growWithText = 1;
    // The client height plus 4 when the session began; the height after each growth.
    int baseHeight = 0;
    int currentHeight = 0;
};
