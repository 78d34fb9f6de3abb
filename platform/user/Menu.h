#pragma once
// Menus: lists of string items and separators behind HMENU handles, and the popup that
// TrackPopupMenu shows for one of them. Items take no bitmaps, owner drawing or submenus
// (MF_POPUP is refused); a menu from CreateMenu is kept like a popup one, as there is no menu
// bar to show it in.
//
// A tracked popup runs its own modal loop (MenuTracker.cpp says how); the owner hears
// WM_ENTERMENULOOP, WM_INITMENU, WM_INITMENUPOPUP, WM_MENUSELECT as the highlight moves, a last
// WM_MENUSELECT with 0xFFFF flags and no menu when it closes, and WM_EXITMENULOOP, none of
// them with TPM_NONOTIFY. The item chosen arrives as a posted WM_COMMAND (id, 0) once
// TrackPopupMenu has returned, unless TPM_RETURNCMD makes it the result instead.

#include "platform/base/Messages.h"
#include "platform/base/WinTypes.h"

// Item types and states, and how an item is named: by its command id or its position.
inline constexpr UINT MF_STRING = 0x0000;
inline constexpr UINT MF_ENABLED = 0x0000;
inline constexpr UINT MF_UNCHECKED = 0x0000;
inline constexpr UINT MF_BYCOMMAND = 0x0000;
inline constexpr UINT MF_GRAYED = 0x0001;
inline constexpr UINT MF_DISABLED = 0x0002;
inline constexpr UINT MF_BITMAP = 0x0004;
inline constexpr UINT MF_CHECKED = 0x0008;
inline constexpr UINT MF_POPUP = 0x0010;
inline constexpr UINT MF_HILITE = 0x0080;
inline constexpr UINT MF_OWNERDRAW = 0x0100;
inline constexpr UINT MF_BYPOSITION = 0x0400;
inline constexpr UINT MF_SEPARATOR = 0x0800;
inline constexpr UINT MF_MOUSESELECT = 0x8000;

// TrackPopupMenu's flags.
inline constexpr UINT TPM_LEFTBUTTON = 0x0000;
inline constexpr UINT TPM_RIGHTBUTTON = 0x0002;
inline constexpr UINT TPM_LEFTALIGN = 0x0000;
inline constexpr UINT TPM_CENTERALIGN = 0x0004;
inline constexpr UINT TPM_RIGHTALIGN = 0x0008;
inline constexpr UINT TPM_TOPALIGN = 0x0000;
inline constexpr UINT TPM_VCENTERALIGN = 0x0010;
inline constexpr UINT TPM_BOTTOMALIGN = 0x0020;
inline constexpr UINT TPM_NONOTIFY = 0x0080;
inline constexpr UINT TPM_RETURNCMD = 0x0100;

HMENU CreateMenu();
HMENU CreatePopupMenu();
BOOL DestroyMenu(HMENU menu);
BOOL IsMenu(HMENU menu);

// A separator ignores `text`; a string item with no text shows empty.
BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR id, const char* text);
// Before the item `position` names; by position, one past the end (or -1) appends.
BOOL InsertMenuA(HMENU menu, UINT position, UINT flags, UINT_PTR id, const char* text);
// Both take the item out; FALSE when no item matches. With no submenus they do the same.
BOOL DeleteMenu(HMENU menu, UINT position, UINT flags);
BOOL RemoveMenu(HMENU menu, UINT position, UINT flags);

// -1 for a menu that does not exist.
int GetMenuItemCount(HMENU menu);
// The command id at `position`; 0 for a separator, 0xFFFFFFFF where there is no item.
UINT GetMenuItemID(HMENU menu, int position);
// Copies the item's text, cut to `max` - 1 characters; answers the characters copied, or the
// text's length when `out` is null; 0 where there is no item.
int GetMenuStringA(HMENU menu, UINT item, char* out, int max, UINT flags);
// Each answers the item's state before the change (MF_ENABLED, MF_GRAYED, MF_DISABLED;
// MF_CHECKED, MF_UNCHECKED), or -1 where there is no item.
BOOL EnableMenuItem(HMENU menu, UINT item, UINT flags);
DWORD CheckMenuItem(HMENU menu, UINT item, UINT flags);
// The item's type and state flags; 0xFFFFFFFF where there is no item.
UINT GetMenuState(HMENU menu, UINT item, UINT flags);

// Shows the popup with its corner at (x, y) on the screen, as the alignment flags say, flipped
// or moved to stay on the screen, and returns when it closes. FALSE for a bad menu or owner or
// while another menu is open; else TRUE (dismissed too) or, with TPM_RETURNCMD, the id chosen
// or 0. `reserved` and `rect` are ignored, as on the real system.
BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner, const RECT* rect);
// Closes the open popup as if dismissed; FALSE when none is open.
BOOL EndMenu();
// The screen rectangle of the item at `position` while the menu's popup is open; FALSE
// otherwise. `hwnd` is ignored, as it is for popups on the real system.
BOOL GetMenuItemRect(HWND hwnd, HMENU menu, UINT position, RECT* r);

inline BOOL AppendMenu(HMENU menu, UINT flags, UINT_PTR id, const char* text) {
    return AppendMenuA(menu, flags, id, text);
}
inline BOOL InsertMenu(HMENU menu, UINT position, UINT flags, UINT_PTR id, const char* text) {
    return InsertMenuA(menu, position, flags, id, text);
}
inline int GetMenuString(HMENU menu, UINT item, char* out, int max, UINT flags) {
    return GetMenuStringA(menu, item, out, max, flags);
}
