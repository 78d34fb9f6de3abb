#pragma once
// Dialog boxes: templates in dialog units, the dialog manager's keyboard handling, modal runs.
// A template is a plain record here rather than the packed resource format; modules register
// theirs under an id, as a resource script would.

#include <string>
#include <vector>

#include "platform/user/User.h"

struct DialogItemTemplate {
    DWORD style = 0;
    DWORD exStyle = 0;
    short x = 0, y = 0, cx = 0, cy = 0;
    int id = 0;
    std::string className;  // "Button", "Edit", "Static", "ListBox", "ScrollBar" or registered
    std::string text;
};

struct DialogTemplate {
    DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT;
    DWORD exStyle = 0;
    short x = 0, y = 0, cx = 0, cy = 0;
    std::string caption;
    WORD pointSize = 8;
    std::string faceName = "MS Shell Dlg";
    std::vector<DialogItemTemplate> items;
};

inline constexpr int DWLP_DLGPROC = 8;
inline constexpr int DWLP_USER = 16;

// Modules' dialog resources.
void RegisterDialogResource(HINSTANCE module, int id, const DialogTemplate& tpl);
const DialogTemplate* FindDialogResource(HINSTANCE module, const char* name);

HWND CreateDialogIndirectParam(HINSTANCE instance, const DialogTemplate* tpl, HWND parent, DLGPROC proc, LPARAM param);
HWND CreateDialogParam(HINSTANCE instance, const char* name, HWND parent, DLGPROC proc, LPARAM param);
INT_PTR DialogBoxIndirectParam(HINSTANCE instance, const DialogTemplate* tpl, HWND parent, DLGPROC proc, LPARAM param);
INT_PTR DialogBoxParam(HINSTANCE instance, const char* name, HWND parent, DLGPROC proc, LPARAM param);
BOOL EndDialog(HWND dialog, INT_PTR result);
BOOL IsDialogMessage(HWND dialog, MSG* msg);
LRESULT DefDlgProc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
BOOL MapDialogRect(HWND dialog, RECT* r);
LONG GetDialogBaseUnits();
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
BOOL SetDlgItemText(HWND dialog, int id, const char* text);
UINT GetDlgItemText(HWND dialog, int id, char* out, int size);
BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
UINT GetDlgItemInt(HWND dialog, int id, BOOL* ok, BOOL isSigned);
LRESULT SendDlgItemMessage(HWND dialog, int id, UINT msg, WPARAM wParam, LPARAM lParam);
BOOL CheckDlgButton(HWND dialog, int id, UINT check);
UINT IsDlgButtonChecked(HWND dialog, int id);
// How many modal loops run now: of dialogs, message boxes, file dialogs and a popup menu.
int ModalDepth();
// Ends every modal loop with `result`, innermost first: for a program that must stop.
void EndAllModalLoops(INT_PTR result);
