#pragma once
// The "Button" class: push buttons (the default one with a thicker frame), check boxes, radio
// buttons and group boxes.
//
// A click is a press and a release inside: the press takes the focus and the mouse and draws
// the button pushed while the pointer stays over it; the release inside sends BN_CLICKED to the
// parent. Space down and up click the focused button the same way, and BM_CLICK clicks it as
// the mouse would. Automatic check boxes change their mark and automatic radio buttons check
// themselves (clearing the others of their group) before the parent hears of the click.

#include "platform/controls/ControlBase.h"

namespace plat {

class ButtonControl : public ControlBase {
public:
    using ControlBase::ControlBase;
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    DWORD Type() const { return Style() & BS_TYPEMASK; }
    bool IsPushButton() const { return Type() == BS_PUSHBUTTON || Type() == BS_DEFPUSHBUTTON; }
    bool IsRadio() const { return Type() == BS_RADIOBUTTON || Type() == BS_AUTORADIOBUTTON; }
    bool IsCheckBox() const { return Type() == BS_CHECKBOX || Type() == BS_AUTOCHECKBOX; }
    LRESULT DialogCode() const;
    void SetPushed(bool on);
    void SetCheck(UINT state);
    void Click();
    void UncheckGroup();
    void OnPress();
    void OnRelease(LPARAM point);

    void OnPaint();
    void PaintPushButton(HDC dc, RECT r);
    void PaintMarkButton(HDC dc, RECT r);
    void PaintGroupBox(HDC dc, RECT r);

    UINT check = BST_UNCHECKED;
    bool pushed = false;
    bool tracking = false; // a mouse press is being followed
    bool spaceDown = false;
};

} // namespace plat
