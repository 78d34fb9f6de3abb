#pragma once
// The framework's bitmap object. Bitmaps load from the resources of the module the framework
// looks in now (AfxGetResourceHandle).

#include "platform/afx/CGdiObject.h"

class CDC;

class CBitmap : public CGdiObject {
public:
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
        return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
    }
    // Each fails when the object holds a bitmap already or the module has no such bitmap.
    BOOL LoadBitmap(UINT id);
    BOOL LoadBitmap(const char* name);
    int GetBitmap(BITMAP* bm) const { return GetObject(sizeof(BITMAP), bm); }

    static CBitmap* FromHandle(HBITMAP bitmap) { return FromHandleAs<CBitmap>(bitmap); }
};
