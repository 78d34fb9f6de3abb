#pragma once
// The scroll bar functions of the platform. Here they serve scroll bar controls (SB_CTL);
// windows have no scroll bars of their own (a control that needs one makes a child "ScrollBar",
// as the list box does), so SB_HORZ and SB_VERT fail with 0.

#include "platform/user/User.h"

// The new position.
int SetScrollInfo(HWND hwnd, int bar, const SCROLLINFO* info, BOOL redraw);
BOOL GetScrollInfo(HWND hwnd, int bar, SCROLLINFO* info);
// The previous position.
int SetScrollPos(HWND hwnd, int bar, int pos, BOOL redraw);
int GetScrollPos(HWND hwnd, int bar);
BOOL SetScrollRange(HWND hwnd, int bar, int min, int max, BOOL redraw);
BOOL GetScrollRange(HWND hwnd, int bar, int* min, int* max);
// ESB_ENABLE_BOTH, ESB_DISABLE_LTUP, ESB_DISABLE_RTDN or ESB_DISABLE_BOTH; TRUE when the
// arrows changed.
BOOL EnableScrollBar(HWND hwnd, UINT bar, UINT arrows);
BOOL ShowScrollBar(HWND hwnd, int bar, BOOL show);
