#pragma once
// How the host drives the module: its application messages, the table of LISP functions (the
// one place that knows the name KERVDIALOG) and their dispatch, and the module's resources,
// which the call hands to the host while its dialog runs.

#include "host/rx/AcRx.h"
#include "platform/base/WinTypes.h"

struct ModuleResourceRecord {
    int attached = 0;
    // The framework's resource module as it was when the module attached.
    HINSTANCE defaultResources = nullptr;
    // The module's own: its dialog template lives here.
    HINSTANCE moduleResources = nullptr;
};

extern ModuleResourceRecord ModuleResources;

// The message switch of acrxEntryPoint; answers kRetOK whatever happens.
AcRx::AppRetCode EntryPoint(AcRx::AppMsgCode message, void* appId);
// Defines each function of the table under its index; RTERROR at the first refusal.
int RegisterFunctions();
int UnregisterFunctions();
// Runs the function LISP called: RSRSLT when its handler answered RTNORM, RSERR otherwise,
// RTERROR for a code that names no function.
int DispatchFunction();

// 0 when already attached; otherwise the module's instance becomes its resources.
int AttachModule(HINSTANCE instance);
void DetachModule();
