#pragma once
// The control's built-in in-place editor: a hidden multi-line edit field that an editing
// session places over a cell. The session itself is not here yet; the control only owns the
// window and lends it to each new sheet.

#include "platform/afx/CEdit.h"

class GridCtrl;

class GridEdit : public CEdit {
public:
    GridCtrl* owner = nullptr;
};
