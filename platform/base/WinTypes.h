#pragma once
// The window system's basic types, under the names its programs use. Handles are opaque
// pointers: a window handle is a number that stays safe to pass after the window is gone,
// the drawing handles point at their objects.

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using INT = int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using BOOL = int;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using COLORREF = DWORD;
using ATOM = WORD;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

struct RECT {
    LONG left = 0, top = 0, right = 0, bottom = 0;
    bool operator==(const RECT&) const = default;
};
struct POINT {
    LONG x = 0, y = 0;
    bool operator==(const POINT&) const = default;
};
struct SIZE {
    LONG cx = 0, cy = 0;
    bool operator==(const SIZE&) const = default;
};
using LPRECT = RECT*;
using LPPOINT = POINT*;

struct HWND__;
using HWND = HWND__*;
struct HINSTANCE__;
using HINSTANCE = HINSTANCE__*;
using HMODULE = HINSTANCE;
struct HMENU__;
using HMENU = HMENU__*;
struct HCURSOR__;
using HCURSOR = HCURSOR__*;
using HICON = HCURSOR;

// Drawing objects share one base so that SelectObject and DeleteObject take any of them; as
// on the real system, a handle of one kind converts to the generic one without a cast. The
// drawing layer defines the object kinds (PenObject, BrushObject, ...) on that base.
struct GdiObject;
using HGDIOBJ = GdiObject*;
using HPEN = GdiObject*;
using HBRUSH = GdiObject*;
using HFONT = GdiObject*;
using HBITMAP = GdiObject*;
using HRGN = GdiObject*;
struct DeviceContext;
using HDC = DeviceContext*;

struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    DWORD time = 0;
    POINT pt;
};

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using DLGPROC = INT_PTR (*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);

constexpr WORD LOWORD(std::uintptr_t v) { return static_cast<WORD>(v & 0xFFFF); }
constexpr WORD HIWORD(std::uintptr_t v) { return static_cast<WORD>((v >> 16) & 0xFFFF); }
constexpr LONG MAKELONG(WORD lo, WORD hi) {
    return static_cast<LONG>(static_cast<DWORD>(lo) | (static_cast<DWORD>(hi) << 16));
}
constexpr WPARAM MAKEWPARAM(WORD lo, WORD hi) { return static_cast<DWORD>(MAKELONG(lo, hi)); }
constexpr LPARAM MAKELPARAM(WORD lo, WORD hi) { return MAKELONG(lo, hi); }
// Signed coordinates packed in an lParam, as mouse messages carry them.
constexpr int GET_X_LPARAM(LPARAM l) { return static_cast<short>(LOWORD(static_cast<std::uintptr_t>(l))); }
constexpr int GET_Y_LPARAM(LPARAM l) { return static_cast<short>(HIWORD(static_cast<std::uintptr_t>(l))); }
constexpr LPARAM MakePointLParam(int x, int y) {
    return MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y));
}
constexpr short GET_WHEEL_DELTA_WPARAM(WPARAM w) { return static_cast<short>(HIWORD(w)); }

constexpr COLORREF RGB(BYTE r, BYTE g, BYTE b) {
    return static_cast<COLORREF>(r) | (static_cast<COLORREF>(g) << 8) | (static_cast<COLORREF>(b) << 16);
}
constexpr BYTE GetRValue(COLORREF c) { return static_cast<BYTE>(c & 0xFF); }
constexpr BYTE GetGValue(COLORREF c) { return static_cast<BYTE>((c >> 8) & 0xFF); }
constexpr BYTE GetBValue(COLORREF c) { return static_cast<BYTE>((c >> 16) & 0xFF); }

// Control ids travel in the menu argument of CreateWindowEx, as on the real system.
inline HMENU MenuFromId(int id) {
    return reinterpret_cast<HMENU>(static_cast<std::uintptr_t>(static_cast<unsigned>(id)));
}
