#pragma once
// What the grid's two editor windows share: the end of a session through the loss of focus,
// the way back after a veto, and the keys they keep from the dialog manager. A key ends a
// session by giving the focus to the grid; the editor's loss of focus hands the text on.

#include "platform/afx/CEdit.h"

class GridCtrl;

class CellEditor : public CEdit {
public:
    GridCtrl* grid = nullptr;

protected:
    // Leaves the cell, going on to (col, row) after it when goOn is set.
    void Leave(int goOn, int col, int row);
    // Hands the text to the grid's EditFinished. A veto keeps the session: the cell becomes
    // current again and the focus returns here, with the text as the user left it.
    void Finish();
    // All of the text selected and in sight, so that a first typed character replaces it.
    void SelectAll();
    // A focus that goes to no window, or to one outside the grid.
    bool LeavesGrid(CWnd* next) const;

    int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

    int cancelled = 0;
    int continueEdit = 0;
    int nextCol = 0;
    int nextRow = 0;
};
