#pragma once
// Process-wide state of the framework: the module whose resources are looked up now, the
// application's name for message boxes, and the framework's message box.

#include "platform/base/WinTypes.h"

class CWnd;

HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);
const char* AfxGetAppName();
void AfxSetAppName(const char* name);
// A message box owned by the active window, captioned with the application's name.
int AfxMessageBox(const char* text, UINT type = 0);
// The next window created is bound to `wnd` before its first message.
void BindNextWindow(CWnd* wnd);
