#pragma once
// Host services that modules call, under the host's names: messages to the user, system
// variables and the host's windows.

#include "host/ads/Resbuf.h"
#include "platform/base/WinTypes.h"

extern "C" {

// Tells the user `text` and returns when the user has read it.
int acedAlert(const char* text);

// Reads a system variable. DWGPREFIX (the drawing's folder, ending in "/") and DWGNAME (its
// file name) come as RTSTR; the string is the caller's, freed with free(). RTERROR for any
// other name, with the result's restype RTNONE.
int acedGetVar(const char* name, resbuf* result);

// The database's report of an internal failure: shows the text and returns.
void acdbFail(const char* text);
}

// The host's main window and the window of the open drawing; null until the host has windows.
HWND adsw_acadMainWnd();
HWND adsw_acadDocWnd();
