#pragma once
// The control's built-in in-place editor: an edit field that an editing session places over a
// cell. It knows nothing of the cell: it takes the keys that end an edit (Tab, Enter, Escape,
// and Up and Down while it has not grown), grows with its text in whole cells, and on losing
// the focus hands its text to the control's EditFinished, which decides the rest. A key ends
// a session by giving the focus to the control; the loss of focus does the rest.

#include "platform/afx/CEdit.h"

class GridCtrl;

class GridEdit : public CEdit {
public:
    // Stores 1 or 0; answers the old value.
    int SetGrowWithText(int flag);
    UINT GetLastKey() const { return lastKey; }

    // Set by the control that owns the editor; not owned.
    GridCtrl* grid = nullptr;

protected:
    void OnSetFocus(CWnd* old);
    void OnKillFocus(CWnd* next);
    void OnKeyDown(UINT key, UINT repeat, UINT flags);
    void OnChar(UINT character, UINT repeat, UINT flags);
    int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    UINT OnGetDlgCode();
    void OnUpdate();
    DECLARE_MESSAGE_MAP()

private:
    // Ends the session through the loss of focus, going on to (col, row) when goOn is set.
    void Leave(int goOn, int col, int row);
    void GrowWithText();

    int cancelled = 0;
    int continueEdit = 0;
    int nextCol = 0;
    int nextRow = 0;
    UINT lastKey = 0;
    int growWithText = 1;
    // The client height plus 4 when the session began; the height after each growth.
    int baseHeight = 0;
    int currentHeight = 0;
};
