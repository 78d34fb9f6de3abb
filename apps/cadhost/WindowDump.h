#pragma once
// The `dump` of a script: one line for a top-level window and one for each of its controls,
//   ;; window ID CLASS "TEXT" enabled|disabled visible|hidden
// the window itself first with id 0, then its direct children in z order, which is a dialog's
// tab order. CLASS is the name of the window's class ("#32770" for dialogs, "Button", "Edit",
// ...). TEXT is written as a LISP string: a quote as \", a backslash as \\, a line feed as \n.

#include "host/session/EventLog.h"
#include "platform/base/WinTypes.h"

#include <string>

class WindowDump {
public:
    static void Print(HWND topLevel, host::EventLog& events);
    // The part of a line after "window ".
    static std::string Describe(HWND window, int id);
};
