#include "platform/controls/Controls.h"

#include "platform/controls/ButtonControl.h"
#include "platform/controls/EditControl.h"
#include "platform/controls/ListBoxControl.h"
#include "platform/controls/MenuWindow.h"
#include "platform/controls/ScrollBarControl.h"
#include "platform/controls/StaticControl.h"
#include "platform/controls/ToolTipControl.h"

namespace plat {

void RegisterControlClasses() {
    StaticControl::Register();
    ButtonControl::Register();
    EditControl::Register();
    ListBoxControl::Register();
    ScrollBarControl::Register();
    ToolTipControl::Register();
    MenuWindow::Register();
}

} // namespace plat
