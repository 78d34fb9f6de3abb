#pragma once
// The "Static" class: a text, left, centred or right, broken into words, in the colours the
// parent answers to WM_CTLCOLORSTATIC; grey when disabled. SS_SUNKEN draws a sunken frame
// inside the window, SS_BLACKFRAME a black one. With SS_NOTIFY a click reports STN_CLICKED
// (without it the window manager lets the mouse through to the parent).

#include "platform/controls/ControlBase.h"

namespace plat {

class StaticControl : public ControlBase {
public:
    using ControlBase::ControlBase;
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    void OnPaint();
};

} // namespace plat
