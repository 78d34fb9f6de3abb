#pragma once

#include "platform/afx/CWnd.h"

class CScrollBar : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& r, CWnd* parent, UINT id) { return CWnd::Create("ScrollBar", "", style, r, parent, id); }
    BOOL SetScrollInfo(SCROLLINFO* info, BOOL redraw = TRUE) {
        return SendMessage(SBM_SETSCROLLINFO, redraw, reinterpret_cast<LPARAM>(info)) != 0;
    }
    BOOL GetScrollInfo(SCROLLINFO* info, UINT mask = SIF_ALL) const {
        info->fMask = mask;
        return SendMessage(SBM_GETSCROLLINFO, 0, reinterpret_cast<LPARAM>(info)) != 0;
    }
    int SetScrollPos(int pos, BOOL redraw = TRUE) { return static_cast<int>(SendMessage(SBM_SETPOS, static_cast<WPARAM>(pos), redraw)); }
    int GetScrollPos() const { return static_cast<int>(SendMessage(SBM_GETPOS)); }
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH) { return SendMessage(SBM_ENABLE_ARROWS, arrows) != 0; }
};
