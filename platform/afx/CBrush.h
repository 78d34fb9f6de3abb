#pragma once
// The framework's brush object.

#include "platform/afx/CBitmap.h"
#include "platform/afx/CGdiObject.h"

class CBrush : public CGdiObject {
public:
    CBrush() = default;
    // Leaves the object empty when the brush cannot be made.
    explicit CBrush(COLORREF color) { CreateSolidBrush(color); }

    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* lb) { return Attach(::CreateBrushIndirect(lb)); }
    BOOL CreatePatternBrush(CBitmap* bitmap) {
        return bitmap && Attach(::CreatePatternBrush(bitmap->GetSafeHandle()));
    }
    int GetLogBrush(LOGBRUSH* lb) const { return GetObject(sizeof(LOGBRUSH), lb); }

    static CBrush* FromHandle(HBRUSH brush) { return FromHandleAs<CBrush>(brush); }
};
