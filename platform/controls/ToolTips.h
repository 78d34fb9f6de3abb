#pragma once
// Tool tips ("tooltips_class32"): the messages, flags and records, with the real system's
// values. A program registers tools (a window, or a rectangle of one) with TTM_ADDTOOL and
// relays its mouse messages with TTM_RELAYEVENT; the tip shows after the pointer has rested
// on a tool, below the pointer, and goes at a press, when the pointer leaves the tool or after
// a while. A tool with TTF_TRACK shows only through TTM_TRACKACTIVATE, where TTM_TRACKPOSITION
// puts it. A tool whose text is LPSTR_TEXTCALLBACK is asked for it each time it shows, with a
// WM_NOTIFY TTN_GETDISPINFO to its window.

#include "platform/user/User.h"

inline const char* const TOOLTIPS_CLASS = "tooltips_class32";

enum : DWORD {
    TTS_ALWAYSTIP = 0x01,
    TTS_NOPREFIX = 0x02,
};

enum : UINT {
    TTF_IDISHWND = 0x0001,
    TTF_CENTERTIP = 0x0002,
    TTF_RTLREADING = 0x0004,
    TTF_SUBCLASS = 0x0010,
    TTF_TRACK = 0x0020,
    TTF_ABSOLUTE = 0x0080,
    TTF_TRANSPARENT = 0x0100,
    TTF_DI_SETITEM = 0x8000,
};

enum : UINT {
    TTM_ACTIVATE = WM_USER + 1,
    TTM_SETDELAYTIME = WM_USER + 3,
    TTM_ADDTOOL = WM_USER + 4,
    TTM_DELTOOL = WM_USER + 5,
    TTM_NEWTOOLRECT = WM_USER + 6,
    TTM_RELAYEVENT = WM_USER + 7,
    TTM_GETTOOLINFO = WM_USER + 8,
    TTM_UPDATETIPTEXT = WM_USER + 12,
    TTM_GETTOOLCOUNT = WM_USER + 13,
    TTM_TRACKACTIVATE = WM_USER + 17,
    TTM_TRACKPOSITION = WM_USER + 18,
    TTM_GETDELAYTIME = WM_USER + 21,
    TTM_SETMAXTIPWIDTH = WM_USER + 24,
    TTM_GETMAXTIPWIDTH = WM_USER + 25,
    TTM_POP = WM_USER + 28,
    TTM_UPDATE = WM_USER + 29,
};

// TTM_SETDELAYTIME and TTM_GETDELAYTIME.
enum : WPARAM {
    TTDT_AUTOMATIC = 0,
    TTDT_RESHOW = 1,
    TTDT_AUTOPOP = 2,
    TTDT_INITIAL = 3,
};

enum : UINT {
    TTN_FIRST = static_cast<UINT>(-520),
    TTN_GETDISPINFO = TTN_FIRST - 0,
    TTN_NEEDTEXT = TTN_GETDISPINFO,
};

// The text of a tool that is asked for each time the tip shows.
inline char* const LPSTR_TEXTCALLBACK = reinterpret_cast<char*>(static_cast<std::intptr_t>(-1));

// A tool: `hwnd` and `uId` name it (with TTF_IDISHWND, `uId` is a window handle and the tool
// is that whole window; otherwise it is `rect` in `hwnd`'s client coordinates).
struct TOOLINFO {
    UINT cbSize = sizeof(TOOLINFO);
    UINT uFlags = 0;
    HWND hwnd = nullptr;
    UINT_PTR uId = 0;
    RECT rect;
    HINSTANCE hinst = nullptr;
    char* lpszText = nullptr;
    LPARAM lParam = 0;
    void* lpReserved = nullptr;
};
using TTTOOLINFO = TOOLINFO;

// TTN_GETDISPINFO: the window fills in `szText` or points `lpszText` at its text.
struct NMTTDISPINFO {
    NMHDR hdr;
    char* lpszText = nullptr;
    char szText[80] = {};
    HINSTANCE hinst = nullptr;
    UINT uFlags = 0;
    LPARAM lParam = 0;
};
