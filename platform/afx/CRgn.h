#pragma once
// The framework's region object.

#include "platform/afx/CGdiObject.h"

class CRgn : public CGdiObject {
public:
    BOOL CreateRectRgn(int left, int top, int right, int bottom) {
        return Attach(::CreateRectRgn(left, top, right, bottom));
    }
    BOOL CreateRectRgnIndirect(const RECT* r) { return Attach(::CreateRectRgnIndirect(r)); }
    int CombineRgn(CRgn* a, CRgn* b, int mode) {
        return ::CombineRgn(m_hObject, a ? a->m_hObject : nullptr, b ? b->m_hObject : nullptr,
                            mode);
    }
    int GetRgnBox(RECT* box) const { return ::GetRgnBox(m_hObject, box); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(m_hObject, x, y); }
    int OffsetRgn(int dx, int dy) { return ::OffsetRgn(m_hObject, dx, dy); }
    void SetRectRgn(int left, int top, int right, int bottom) {
        ::SetRectRgn(m_hObject, left, top, right, bottom);
    }
    BOOL EqualRgn(CRgn* other) const { return other && ::EqualRgn(m_hObject, other->m_hObject); }

    static CRgn* FromHandle(HRGN rgn) { return FromHandleAs<CRgn>(rgn); }
};
