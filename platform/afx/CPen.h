#pragma once
// The framework's pen object.

#include "platform/afx/CGdiObject.h"

class CPen : public CGdiObject {
public:
    CPen() = default;
    // Leaves the object empty when the pen cannot be made.
    CPen(int style, int width, COLORREF color) { CreatePen(style, width, color); }

    BOOL CreatePen(int style, int width, COLORREF color) {
        return Attach(::CreatePen(style, width, color));
    }
    BOOL CreatePenIndirect(const LOGPEN* lp) { return Attach(::CreatePenIndirect(lp)); }
    int GetLogPen(LOGPEN* lp) const { return GetObject(sizeof(LOGPEN), lp); }

    static CPen* FromHandle(HPEN pen) { return FromHandleAs<CPen>(pen); }
};
