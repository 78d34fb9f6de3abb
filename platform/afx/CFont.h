#pragma once
// The framework's font object.

#include "platform/afx/CGdiObject.h"

class CDC;

class CFont : public CGdiObject {
public:
    BOOL CreateFontIndirect(const LOGFONT* lf) { return Attach(::CreateFontIndirect(lf)); }
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                    BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily, const char* face) {
        return Attach(::CreateFont(height, width, escapement, orientation, weight, italic,
                                   underline, strikeOut, charSet, outPrecision, clipPrecision,
                                   quality, pitchAndFamily, face));
    }
    // A font of `pointTenths` tenths of a point, at the resolution of `dc` (the screen's
    // without one).
    BOOL CreatePointFont(int pointTenths, const char* face, CDC* dc = nullptr);
    // As CreatePointFont, with lfHeight in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lf, CDC* dc = nullptr);
    int GetLogFont(LOGFONT* lf) const { return GetObject(sizeof(LOGFONT), lf); }

    static CFont* FromHandle(HFONT font) { return FromHandleAs<CFont>(font); }
};
