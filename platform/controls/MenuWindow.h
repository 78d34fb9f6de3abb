#pragma once
// The popup menu's window ("#32768"): a top-level popup that never takes the activation,
// painting the rows of the MenuView its creator hands it in CREATESTRUCT::lpCreateParams, in
// the classic look: the menu colour inside a raised frame, the highlighted row in the
// highlight colours, disabled text greyed, separators as etched lines. TrackPopupMenu makes,
// drives and destroys it; the view outlives the window.

#include "platform/controls/ControlBase.h"
#include "platform/user/MenuView.h"

namespace plat {

class MenuWindow : public ControlBase {
public:
    static constexpr const char* ClassName = "#32768";

    using ControlBase::ControlBase;
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    void OnPaint();
    void DrawItem(HDC dc, int row);

    const MenuView* view = nullptr;
};

} // namespace plat
