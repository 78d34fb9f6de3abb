#pragma once
// State of the module that spans or outlives one KERVDIALOG call. Only the host's main thread
// touches it, so nothing guards it.

#include "shell/TableCopy.h"

#include <string>

class ParcelDialog;

// The dialog of the running call: the table reaches the dialog's buttons, its status line and
// its cancel path through it. Null outside a call.
extern ParcelDialog* ActiveDialog;
// 1 from the moment the user presses Cancel until the question is declined, so that a number
// edit that closes meanwhile skips its check.
extern int CancelPressed;
// The last accepted table; empty at process start.
extern TableCopy LastTable;
// The module's own file name, set when the library is attached; the settings file lives beside it.
extern std::string ModulePath;
