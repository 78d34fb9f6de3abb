#include "apps/cadhost/WindowDump.h"

#include "host/lisp/LispPrinter.h"
#include "platform/user/User.h"

void WindowDump::Print(HWND topLevel, host::EventLog& events) {
    events.Window(Describe(topLevel, 0));
    for (HWND child = GetWindow(topLevel, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        events.Window(Describe(child, GetDlgCtrlID(child)));
}

std::string WindowDump::Describe(HWND window, int id) {
    char className[256] = {};
    GetClassName(window, className, sizeof className);
    std::string line = std::to_string(id) + ' ' + className + ' ';
    line += host::LispPrinter::Print(host::LispValue::String(GetWindowString(window)));
    line += IsWindowEnabled(window) ? " enabled" : " disabled";
    line += IsWindowVisible(window) ? " visible" : " hidden";
    return line;
}
