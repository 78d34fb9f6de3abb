#include "platform/afx/CFont.h"

#include "platform/afx/CDC.h"
#include "platform/gdi/SurfaceDC.h"

#include <cstdlib>
#include <cstring>

BOOL CFont::CreatePointFont(int pointTenths, const char* face, CDC* dc) {
    LOGFONT lf;
    lf.lfHeight = pointTenths;
    lf.lfCharSet = DEFAULT_CHARSET;
    if (face) std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    return CreatePointFontIndirect(&lf, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lf, CDC* dc) {
    if (!lf) return FALSE;
    int perInch = dc ? dc->GetDeviceCaps(LOGPIXELSY) : ScreenPixelsPerInch;
    LOGFONT sized = *lf;
    // Tenths of a point to pixels, rounded; negative asks for the character height.
    sized.lfHeight = -((std::abs(lf->lfHeight) * perInch + 360) / 720);
    return CreateFontIndirect(&sized);
}
