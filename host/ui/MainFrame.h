#pragma once
// The host's windows: the main window, captioned "AutoCAD - [NAME]" after the drawing, and the
// document window of the drawing, a child that fills the main window's client area. Modules
// find them through adsw_acadMainWnd and adsw_acadDocWnd and own their dialogs by them.
//
// The main window ignores a request to close (the window system's close box): the host ends
// when its LISP has run, not when a window goes.

#include "platform/base/Rect.h"
#include "platform/base/WinTypes.h"

#include <string>

namespace host {

class MainFrame {
public:
    // Creates both windows over `area` (screen coordinates), shown and active.
    MainFrame(const std::string& drawingName, const RECT& area);
    ~MainFrame();
    MainFrame(const MainFrame&) = delete;
    MainFrame& operator=(const MainFrame&) = delete;

    HWND Main() const { return main; }
    HWND Document() const { return document; }

    // The id of the document window, the framework's id of a frame's first pane.
    static constexpr int DocumentId = 0xE900;

private:
    static LRESULT MainProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);

    HBRUSH drawingBrush = nullptr;
    HWND main = nullptr;
    HWND document = nullptr;
};

} // namespace host
