#pragma once
// The window manager's services under the names programs of the real system use: windows and
// their classes, messages and the queue, focus, capture, painting, timers, input and dialogs;
// menus and bitmap resources have headers of their own, included here.
// One thread owns everything; there are no locks.

#include <cstddef>
#include <string>

#include "platform/base/Messages.h"
#include "platform/base/Rect.h"
#include "platform/base/WinTypes.h"
#include "platform/user/BitmapResources.h"
#include "platform/user/Menu.h"

struct WNDCLASS {
    UINT style = 0;
    WNDPROC lpfnWndProc = nullptr;
    int cbClsExtra = 0;
    int cbWndExtra = 0;
    HINSTANCE hInstance = nullptr;
    HICON hIcon = nullptr;
    HCURSOR hCursor = nullptr;
    HBRUSH hbrBackground = nullptr;
    const char* lpszMenuName = nullptr;
    const char* lpszClassName = nullptr;
};

struct CREATESTRUCT {
    void* lpCreateParams = nullptr;
    HINSTANCE hInstance = nullptr;
    HMENU hMenu = nullptr;
    HWND hwndParent = nullptr;
    int cy = 0, cx = 0, y = 0, x = 0;
    LONG style = 0;
    const char* lpszName = nullptr;
    const char* lpszClass = nullptr;
    DWORD dwExStyle = 0;
};

struct PAINTSTRUCT {
    HDC hdc = nullptr;
    BOOL fErase = FALSE;
    RECT rcPaint;
};

struct WINDOWPOS {
    HWND hwnd = nullptr;
    HWND hwndInsertAfter = nullptr;
    int x = 0, y = 0, cx = 0, cy = 0;
    UINT flags = 0;
};

constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000);

// Classes and windows.
ATOM RegisterClass(const WNDCLASS* wc);
BOOL UnregisterClass(const char* name, HINSTANCE instance);
BOOL GetClassInfo(HINSTANCE instance, const char* name, WNDCLASS* out);
HWND CreateWindowEx(DWORD exStyle, const char* className, const char* text, DWORD style, int x,
                    int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                    void* param);
inline HWND CreateWindow(const char* className, const char* text, DWORD style, int x, int y,
                         int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                         void* param) {
    return CreateWindowEx(0, className, text, style, x, y, width, height, parent, menu, instance,
                          param);
}
BOOL DestroyWindow(HWND hwnd);
BOOL IsWindow(HWND hwnd);
BOOL IsChild(HWND parent, HWND hwnd);
HWND GetParent(HWND hwnd);
HWND SetParent(HWND hwnd, HWND parent);
HWND GetWindow(HWND hwnd, UINT relation);
HWND GetTopWindow(HWND hwnd);
HWND GetAncestorTopLevel(HWND hwnd);
HWND GetDesktopWindow();
HWND GetDlgItem(HWND dialog, int id);
int GetDlgCtrlID(HWND hwnd);
int GetClassName(HWND hwnd, char* out, int size);
LONG_PTR GetWindowLongPtr(HWND hwnd, int index);
LONG_PTR SetWindowLongPtr(HWND hwnd, int index, LONG_PTR value);
inline LONG GetWindowLong(HWND hwnd, int index) {
    return static_cast<LONG>(GetWindowLongPtr(hwnd, index));
}
inline LONG SetWindowLong(HWND hwnd, int index, LONG value) {
    return static_cast<LONG>(SetWindowLongPtr(hwnd, index, value));
}
// Extra per-window storage for classes that ask for cbWndExtra bytes; index in bytes.
LONG_PTR GetWindowExtra(HWND hwnd, int index);
void SetWindowExtra(HWND hwnd, int index, LONG_PTR value);
int GetWindowText(HWND hwnd, char* out, int size);
int GetWindowTextLength(HWND hwnd);
BOOL SetWindowText(HWND hwnd, const char* text);
// The text as a string, through WM_GETTEXT; a convenience of ours.
std::string GetWindowString(HWND hwnd);

// Geometry. Window rectangles are in screen coordinates, client rectangles start at (0,0).
BOOL GetWindowRect(HWND hwnd, RECT* r);
BOOL GetClientRect(HWND hwnd, RECT* r);
BOOL MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND hwnd, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL ClientToScreen(HWND hwnd, POINT* p);
BOOL ScreenToClient(HWND hwnd, POINT* p);
int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count);
BOOL AdjustWindowRectEx(RECT* r, DWORD style, BOOL menu, DWORD exStyle);
HWND WindowFromPoint(POINT screen);
HWND ChildWindowFromPoint(HWND parent, POINT client);

// State.
BOOL ShowWindow(HWND hwnd, int cmd);
BOOL IsWindowVisible(HWND hwnd);
BOOL EnableWindow(HWND hwnd, BOOL enable);
BOOL IsWindowEnabled(HWND hwnd);
BOOL BringWindowToTop(HWND hwnd);

// Focus, activation, capture. Focus moves synchronously: the old window hears WM_KILLFOCUS
// and the new one WM_SETFOCUS inside the call, and a handler may move it on again.
HWND SetFocus(HWND hwnd);
HWND GetFocus();
HWND SetActiveWindow(HWND hwnd);
HWND GetActiveWindow();
BOOL SetForegroundWindow(HWND hwnd);
HWND GetForegroundWindow();
HWND SetCapture(HWND hwnd);
BOOL ReleaseCapture();
HWND GetCapture();

// Messages.
LRESULT SendMessage(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
BOOL PostMessage(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);
BOOL GetMessage(MSG* msg, HWND hwnd, UINT first, UINT last);
BOOL PeekMessage(MSG* msg, HWND hwnd, UINT first, UINT last, UINT remove);
BOOL TranslateMessage(const MSG* msg);
LRESULT DispatchMessage(const MSG* msg);
BOOL WaitMessage();
LRESULT DefWindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProc(WNDPROC proc, HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
UINT RegisterWindowMessage(const char* name);
DWORD GetMessageTime();
DWORD GetMessagePos();
// The names the module uses for the queue functions.
inline BOOL PeekMessageA(MSG* m, HWND h, UINT f, UINT l, UINT r) { return PeekMessage(m, h, f, l, r); }
inline BOOL GetMessageA(MSG* m, HWND h, UINT f, UINT l) { return GetMessage(m, h, f, l); }
inline LRESULT DispatchMessageA(const MSG* m) { return DispatchMessage(m); }

// Painting.
BOOL InvalidateRect(HWND hwnd, const RECT* r, BOOL erase);
BOOL InvalidateRgn(HWND hwnd, HRGN rgn, BOOL erase);
BOOL ValidateRect(HWND hwnd, const RECT* r);
BOOL UpdateWindow(HWND hwnd);
BOOL RedrawWindow(HWND hwnd, const RECT* r, HRGN rgn, UINT flags);
BOOL GetUpdateRect(HWND hwnd, RECT* r, BOOL erase);
int GetUpdateRgn(HWND hwnd, HRGN rgn, BOOL erase);
HDC BeginPaint(HWND hwnd, PAINTSTRUCT* ps);
BOOL EndPaint(HWND hwnd, const PAINTSTRUCT* ps);
HDC GetDC(HWND hwnd);
HDC GetWindowDC(HWND hwnd);
int ReleaseDC(HWND hwnd, HDC dc);
int ScrollWindowEx(HWND hwnd, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN update,
                   RECT* updateRect, UINT flags);
BOOL ScrollWindow(HWND hwnd, int dx, int dy, const RECT* scroll, const RECT* clip);

// Timers. Time is the backend's clock: virtual and deterministic when headless.
UINT_PTR SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc);
BOOL KillTimer(HWND hwnd, UINT_PTR id);
DWORD GetTickCount();
void Sleep(DWORD ms);

// Input.
// Key state as of the input message being handled: the high bit for down, the low bit toggles.
short GetKeyState(int vk);
short GetAsyncKeyState(int vk);
BOOL GetKeyboardState(BYTE* keys);
BOOL SetKeyboardState(const BYTE* keys);
UINT SendInput(UINT count, const INPUT* inputs, int size);
BOOL GetCursorPos(POINT* p);
BOOL SetCursorPos(int x, int y);
UINT GetDoubleClickTime();
HCURSOR SetCursor(HCURSOR cursor);
HCURSOR GetCursor();
// Standard cursors by their numbers (IDC_ARROW, ...).
HCURSOR LoadCursor(HINSTANCE instance, const char* name);
inline const char* MAKEINTRESOURCE(int id) {
    return reinterpret_cast<const char*>(static_cast<std::uintptr_t>(static_cast<WORD>(id)));
}
inline bool IS_INTRESOURCE(const char* p) {
    return (reinterpret_cast<std::uintptr_t>(p) >> 16) == 0;
}
inline const char* const IDC_ARROW = MAKEINTRESOURCE(32512);
inline const char* const IDC_IBEAM = MAKEINTRESOURCE(32513);
inline const char* const IDC_WAIT = MAKEINTRESOURCE(32514);
inline const char* const IDC_CROSS = MAKEINTRESOURCE(32515);
inline const char* const IDC_SIZEWE = MAKEINTRESOURCE(32644);
inline const char* const IDC_SIZENS = MAKEINTRESOURCE(32645);
inline const char* const IDC_SIZEALL = MAKEINTRESOURCE(32646);
inline const char* const IDC_NO = MAKEINTRESOURCE(32648);
inline const char* const IDC_HAND = MAKEINTRESOURCE(32649);

// System colours and metrics.
inline constexpr int COLOR_SCROLLBAR = 0;
inline constexpr int COLOR_BACKGROUND = 1;
inline constexpr int COLOR_ACTIVECAPTION = 2;
inline constexpr int COLOR_INACTIVECAPTION = 3;
inline constexpr int COLOR_MENU = 4;
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWFRAME = 6;
inline constexpr int COLOR_MENUTEXT = 7;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_CAPTIONTEXT = 9;
inline constexpr int COLOR_ACTIVEBORDER = 10;
inline constexpr int COLOR_INACTIVEBORDER = 11;
inline constexpr int COLOR_APPWORKSPACE = 12;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_BTNSHADOW = 16;
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_INACTIVECAPTIONTEXT = 19;
inline constexpr int COLOR_BTNHIGHLIGHT = 20;
inline constexpr int COLOR_3DDKSHADOW = 21;
inline constexpr int COLOR_3DLIGHT = 22;
inline constexpr int COLOR_INFOTEXT = 23;
inline constexpr int COLOR_INFOBK = 24;
inline constexpr int COLOR_3DFACE = COLOR_BTNFACE;
inline constexpr int COLOR_3DSHADOW = COLOR_BTNSHADOW;
inline constexpr int COLOR_3DHILIGHT = COLOR_BTNHIGHLIGHT;
DWORD GetSysColor(int index);
HBRUSH GetSysColorBrush(int index);
// Changes the scheme (as the control panel would) and tells every top-level window.
void SetSysColors(int count, const int* indexes, const COLORREF* colors);
inline constexpr int SM_CXSCREEN = 0;
inline constexpr int SM_CYSCREEN = 1;
inline constexpr int SM_CXVSCROLL = 2;
inline constexpr int SM_CYHSCROLL = 3;
inline constexpr int SM_CYCAPTION = 4;
inline constexpr int SM_CXBORDER = 5;
inline constexpr int SM_CYBORDER = 6;
inline constexpr int SM_CXDLGFRAME = 7;
inline constexpr int SM_CYDLGFRAME = 8;
inline constexpr int SM_CYVTHUMB = 9;
inline constexpr int SM_CXHTHUMB = 10;
inline constexpr int SM_CXICON = 11;
inline constexpr int SM_CYICON = 12;
inline constexpr int SM_CXCURSOR = 13;
inline constexpr int SM_CYCURSOR = 14;
inline constexpr int SM_CYMENU = 15;
inline constexpr int SM_CYVSCROLL = 20;
inline constexpr int SM_CXHSCROLL = 21;
inline constexpr int SM_CXDOUBLECLK = 36;
inline constexpr int SM_CYDOUBLECLK = 37;
inline constexpr int SM_CXEDGE = 45;
inline constexpr int SM_CXDRAG = 68;
inline constexpr int SM_CYDRAG = 69;
inline constexpr int SM_CYEDGE = 46;
inline constexpr int SM_CXFIXEDFRAME = SM_CXDLGFRAME;
inline constexpr int SM_CYFIXEDFRAME = SM_CYDLGFRAME;
int GetSystemMetrics(int index);

// Every descendant of `parent`, depth first, until `proc` answers FALSE.
using WNDENUMPROC = BOOL (*)(HWND, LPARAM);
BOOL EnumChildWindows(HWND parent, WNDENUMPROC proc, LPARAM lParam);

// Movable memory blocks, as the clipboard takes them.
struct HGLOBAL__;
using HGLOBAL = HGLOBAL__*;
using HANDLE = void*;
inline constexpr UINT GMEM_FIXED = 0x0000;
inline constexpr UINT GMEM_MOVEABLE = 0x0002;
inline constexpr UINT GMEM_ZEROINIT = 0x0040;
inline constexpr UINT GHND = 0x0042;
HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes);
void* GlobalLock(HGLOBAL block);
BOOL GlobalUnlock(HGLOBAL block);
HGLOBAL GlobalFree(HGLOBAL block);
std::size_t GlobalSize(HGLOBAL block);

// The clipboard: text only (CF_TEXT), kept by the backend (the system's clipboard under SDL).
inline constexpr UINT CF_TEXT = 1;
BOOL OpenClipboard(HWND owner);
BOOL CloseClipboard();
BOOL EmptyClipboard();
// The clipboard owns `data` from then on.
HANDLE SetClipboardData(UINT format, HANDLE data);
// The clipboard's own block; valid until the clipboard changes.
HANDLE GetClipboardData(UINT format);
BOOL IsClipboardFormatAvailable(UINT format);

// Sound and messages to the user.
BOOL Beep(DWORD frequency, DWORD ms);
BOOL MessageBeep(UINT type);
int MessageBox(HWND owner, const char* text, const char* caption, UINT type);
