#pragma once
// The framework's bitmap object. Loading bitmaps from resources is not offered yet: the
// platform has no resource registry.

#include "platform/afx/CGdiObject.h"

class CDC;

class CBitmap : public CGdiObject {
public:
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
        return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
    }
    int GetBitmap(BITMAP* bm) const { return GetObject(sizeof(BITMAP), bm); }

    static CBitmap* FromHandle(HBITMAP bitmap) { return FromHandleAs<CBitmap>(bitmap); }
};
