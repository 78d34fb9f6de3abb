#pragma once
// The message box behind MessageBox (User.h): a modal dialog built at run time, with the text
// broken into lines above a centred row of buttons, no icon. It runs the dialog manager's modal
// loop, so the owner is disabled meanwhile and timers keep firing.
//
// The buttons carry the platform's ids (OK 1, Cancel 2, Abort 3, Retry 4, Ignore 5, Yes 6,
// No 7). MB_DEFBUTTONn picks the default button, which has the focus at first; Enter presses
// the focused button. Escape (and the close box) presses Cancel where there is one, answers OK
// in a box with only OK, and does nothing otherwise.

#include "platform/user/Dialog.h"

#include <string>
#include <vector>

namespace plat {

class MessageBoxDialog {
public:
    MessageBoxDialog(const char* text, const char* caption, UINT type);
    // Runs the box; the id of the button pressed, 0 when no box could be made.
    int Run(HWND owner);

private:
    static INT_PTR Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    void Layout(HWND dialog) const;
    bool Has(int id) const;

    std::string text;
    std::string caption;
    std::vector<int> buttons;
    int defaultButton = 0; // index into buttons
};

} // namespace plat
