#pragma once
// The dialog's Cancel button acts on the press, not on the release: it first marks the call
// as cancelling, so that a number edit that the press closes skips its check, and then asks
// the dialog's question. The press never reaches the button itself.

#include "platform/afx/CButton.h"

class CancelButton : public CButton {
protected:
    void OnLButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()
};
