#include "platform/user/SystemClasses.h"

#include "platform/controls/Controls.h"
#include "platform/user/Dialog.h"

namespace plat {

void RegisterSystemClasses() {
    WNDCLASS dialog;
    dialog.style = CS_DBLCLKS | CS_SAVEBITS;
    dialog.lpfnWndProc = DefDlgProc;
    dialog.cbWndExtra = 30;
    dialog.lpszClassName = "#32770";
    RegisterClass(&dialog);
    RegisterControlClasses();
}

}  // namespace plat
