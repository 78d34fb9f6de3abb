#pragma once

#include "platform/afx/CWnd.h"

class CStatic : public CWnd {
public:
    BOOL Create(const char* text, DWORD style, const RECT& r, CWnd* parent, UINT id = 0xFFFF) {
        return CWnd::Create("Static", text, style, r, parent, id);
    }
};
