#pragma once
// Host services that modules call, under the host's names: messages to the user, system
// variables and the host's windows.

#include "host/ads/Resbuf.h"
#include "platform/base/WinTypes.h"

extern "C" {

// Tells the user `text` in a modal box captioned "AutoCAD" with an OK button, and returns when
// the user has closed it.
int acedAlert(const char* text);

// Reads a system variable. DWGPREFIX (the drawing's folder, ending in "/") and DWGNAME (its
// file name) come as RTSTR; the string is the caller's, freed with free(). RTERROR for any
// other name, with the result's restype RTNONE.
int acedGetVar(const char* name, resbuf* result);

// Asks the user for a file in the host's file dialog (see host/ui/FileChooser.h): flags 1 for
// a file to write, 0 for one to read. RTNORM with the full path as RTSTR in `result` (the
// caller frees it with free()); RTERROR when the user cancelled.
int acedGetFileD(const char* title, const char* defaultName, const char* ext, int flags,
                 resbuf* result);

// The database's report of an internal failure: shows the text and returns.
void acdbFail(const char* text);
}

// The host's main window and the window of the open drawing; null until the host has windows.
HWND adsw_acadMainWnd();
HWND adsw_acadDocWnd();
