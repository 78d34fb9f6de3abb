#pragma once
// Drawing services of the window system under their own names: device contexts over cairo
// surfaces, pens, brushes, fonts, bitmaps and regions. Coordinates are logical pixels with the
// platform's conventions: right and bottom edges exclusive, a line leaves out its last pixel,
// 1-pixel pens land on whole pixels.

#include "platform/base/WinTypes.h"

#include <cstddef>

// Object kinds and stock objects.
inline constexpr int OBJ_PEN = 1;
inline constexpr int OBJ_BRUSH = 2;
inline constexpr int OBJ_DC = 3;
inline constexpr int OBJ_FONT = 6;
inline constexpr int OBJ_BITMAP = 7;
inline constexpr int OBJ_REGION = 8;
inline constexpr int OBJ_MEMDC = 10;
inline constexpr int WHITE_BRUSH = 0;
inline constexpr int LTGRAY_BRUSH = 1;
inline constexpr int GRAY_BRUSH = 2;
inline constexpr int DKGRAY_BRUSH = 3;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int HOLLOW_BRUSH = NULL_BRUSH;
inline constexpr int WHITE_PEN = 6;
inline constexpr int BLACK_PEN = 7;
inline constexpr int NULL_PEN = 8;
inline constexpr int ANSI_FIXED_FONT = 11;
inline constexpr int ANSI_VAR_FONT = 12;
inline constexpr int SYSTEM_FONT = 13;
inline constexpr int DEFAULT_GUI_FONT = 17;

// Pens and brushes.
inline constexpr int PS_SOLID = 0;
inline constexpr int PS_DASH = 1;
inline constexpr int PS_DOT = 2;
inline constexpr int PS_DASHDOT = 3;
inline constexpr int PS_NULL = 5;
inline constexpr int PS_INSIDEFRAME = 6;
inline constexpr int BS_SOLID = 0;
inline constexpr int BS_NULL = 1;
inline constexpr int BS_HATCHED = 2;
inline constexpr int BS_PATTERN = 3;

// Fonts.
inline constexpr int LF_FACESIZE = 32;
inline constexpr int FW_DONTCARE = 0;
inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;
inline constexpr int ANSI_CHARSET = 0;
inline constexpr int DEFAULT_CHARSET = 1;
inline constexpr int OUT_DEFAULT_PRECIS = 0;
inline constexpr int CLIP_DEFAULT_PRECIS = 0;
inline constexpr int DEFAULT_QUALITY = 0;
inline constexpr int DEFAULT_PITCH = 0;
inline constexpr int FIXED_PITCH = 1;
inline constexpr int VARIABLE_PITCH = 2;
inline constexpr int FF_DONTCARE = 0;
inline constexpr int FF_ROMAN = 0x10;
inline constexpr int FF_SWISS = 0x20;
inline constexpr int FF_MODERN = 0x30;
struct LOGFONT {
    LONG lfHeight = 0;
    LONG lfWidth = 0;
    LONG lfEscapement = 0;
    LONG lfOrientation = 0;
    LONG lfWeight = 0;
    BYTE lfItalic = 0;
    BYTE lfUnderline = 0;
    BYTE lfStrikeOut = 0;
    BYTE lfCharSet = 0;
    BYTE lfOutPrecision = 0;
    BYTE lfClipPrecision = 0;
    BYTE lfQuality = 0;
    BYTE lfPitchAndFamily = 0;
    char lfFaceName[LF_FACESIZE] = {};
};
struct TEXTMETRIC {
    LONG tmHeight = 0;
    LONG tmAscent = 0;
    LONG tmDescent = 0;
    LONG tmInternalLeading = 0;
    LONG tmExternalLeading = 0;
    LONG tmAveCharWidth = 0;
    LONG tmMaxCharWidth = 0;
    LONG tmWeight = 0;
    BYTE tmItalic = 0;
    BYTE tmUnderlined = 0;
    BYTE tmStruckOut = 0;
    BYTE tmPitchAndFamily = 0;
    BYTE tmCharSet = 0;
};

// Text drawing.
inline constexpr UINT ETO_OPAQUE = 0x0002;
inline constexpr UINT ETO_CLIPPED = 0x0004;
inline constexpr UINT TA_LEFT = 0;
inline constexpr UINT TA_TOP = 0;
inline constexpr UINT TA_RIGHT = 2;
inline constexpr UINT TA_CENTER = 6;
inline constexpr UINT TA_BOTTOM = 8;
inline constexpr UINT TA_BASELINE = 24;
inline constexpr UINT DT_TOP = 0x0000;
inline constexpr UINT DT_LEFT = 0x0000;
inline constexpr UINT DT_CENTER = 0x0001;
inline constexpr UINT DT_RIGHT = 0x0002;
inline constexpr UINT DT_VCENTER = 0x0004;
inline constexpr UINT DT_BOTTOM = 0x0008;
inline constexpr UINT DT_WORDBREAK = 0x0010;
inline constexpr UINT DT_SINGLELINE = 0x0020;
inline constexpr UINT DT_EXPANDTABS = 0x0040;
inline constexpr UINT DT_NOCLIP = 0x0100;
inline constexpr UINT DT_CALCRECT = 0x0400;
inline constexpr UINT DT_NOPREFIX = 0x0800;
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

// Raster operations.
inline constexpr DWORD SRCCOPY = 0x00CC0020;
inline constexpr DWORD SRCPAINT = 0x00EE0086;
inline constexpr DWORD SRCAND = 0x008800C6;
inline constexpr DWORD SRCINVERT = 0x00660046;
inline constexpr DWORD NOTSRCCOPY = 0x00330008;
inline constexpr DWORD PATCOPY = 0x00F00021;
inline constexpr DWORD PATINVERT = 0x005A0049;
inline constexpr DWORD DSTINVERT = 0x00550009;
inline constexpr DWORD BLACKNESS = 0x00000042;
inline constexpr DWORD WHITENESS = 0x00FF0062;
inline constexpr int R2_BLACK = 1;
inline constexpr int R2_NOT = 6;
inline constexpr int R2_XORPEN = 7;
inline constexpr int R2_COPYPEN = 13;
inline constexpr int R2_WHITE = 16;

// Device capabilities.
inline constexpr int TECHNOLOGY = 2;
inline constexpr int HORZSIZE = 4;
inline constexpr int VERTSIZE = 6;
inline constexpr int HORZRES = 8;
inline constexpr int VERTRES = 10;
inline constexpr int BITSPIXEL = 12;
inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;
inline constexpr int PHYSICALWIDTH = 110;
inline constexpr int PHYSICALHEIGHT = 111;
inline constexpr int PHYSICALOFFSETX = 112;
inline constexpr int PHYSICALOFFSETY = 113;
inline constexpr int DT_RASDISPLAY = 1;
inline constexpr int DT_RASPRINTER = 2;

// Regions and clipping.
inline constexpr int ERROR = 0;
inline constexpr int NULLREGION = 1;
inline constexpr int SIMPLEREGION = 2;
inline constexpr int COMPLEXREGION = 3;
inline constexpr int RGN_AND = 1;
inline constexpr int RGN_OR = 2;
inline constexpr int RGN_XOR = 3;
inline constexpr int RGN_DIFF = 4;
inline constexpr int RGN_COPY = 5;

struct LOGPEN {
    UINT lopnStyle = 0;
    POINT lopnWidth;
    COLORREF lopnColor = 0;
};
struct LOGBRUSH {
    UINT lbStyle = 0;
    COLORREF lbColor = 0;
    UINT_PTR lbHatch = 0;
};
struct BITMAP {
    LONG bmType = 0;
    LONG bmWidth = 0;
    LONG bmHeight = 0;
    LONG bmWidthBytes = 0;
    WORD bmPlanes = 1;
    WORD bmBitsPixel = 32;
    void* bmBits = nullptr;
};

// Objects.
HPEN CreatePen(int style, int width, COLORREF color);
HPEN CreatePenIndirect(const LOGPEN* lp);
HBRUSH CreateSolidBrush(COLORREF color);
HBRUSH CreateBrushIndirect(const LOGBRUSH* lb);
HBRUSH CreatePatternBrush(HBITMAP bitmap);
HFONT CreateFontIndirect(const LOGFONT* lf);
HFONT CreateFont(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                 DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                 DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, const char* face);
HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
HRGN CreateRectRgn(int left, int top, int right, int bottom);
HRGN CreateRectRgnIndirect(const RECT* r);
int CombineRgn(HRGN dst, HRGN a, HRGN b, int mode);
int GetRgnBox(HRGN rgn, RECT* box);
BOOL PtInRegion(HRGN rgn, int x, int y);
HGDIOBJ GetStockObject(int which);
BOOL DeleteObject(HGDIOBJ object);
// Fills a LOGPEN, LOGBRUSH, LOGFONT or BITMAP; answers the bytes written, 0 on a wrong size.
int GetObject(HGDIOBJ object, int size, void* out);
DWORD GetObjectType(HGDIOBJ object);
// OBJ_DC or OBJ_MEMDC; 0 for a context that is gone.
DWORD GetObjectType(HDC dc);

// Contexts.
HDC CreateCompatibleDC(HDC dc);
BOOL DeleteDC(HDC dc);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
HGDIOBJ GetCurrentObject(HDC dc, UINT kind);
int SaveDC(HDC dc);
BOOL RestoreDC(HDC dc, int saved);
int GetDeviceCaps(HDC dc, int index);
COLORREF SetTextColor(HDC dc, COLORREF color);
COLORREF GetTextColor(HDC dc);
COLORREF SetBkColor(HDC dc, COLORREF color);
COLORREF GetBkColor(HDC dc);
int SetBkMode(HDC dc, int mode);
int GetBkMode(HDC dc);
UINT SetTextAlign(HDC dc, UINT align);
int SetROP2(HDC dc, int mode);
BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old);
BOOL GetViewportOrgEx(HDC dc, POINT* org);
BOOL OffsetViewportOrgEx(HDC dc, int dx, int dy, POINT* old);
BOOL SetBrushOrgEx(HDC dc, int x, int y, POINT* old);

// Clipping.
int SelectClipRgn(HDC dc, HRGN rgn);
int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
int GetClipBox(HDC dc, RECT* box);
BOOL RectVisible(HDC dc, const RECT* r);
BOOL PtVisible(HDC dc, int x, int y);

// Pixels, lines and shapes.
COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);
// CLR_INVALID outside the context's bitmap or clip.
COLORREF GetPixel(HDC dc, int x, int y);
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;
BOOL MoveToEx(HDC dc, int x, int y, POINT* old);
BOOL LineTo(HDC dc, int x, int y);
BOOL Polyline(HDC dc, const POINT* points, int count);
BOOL Polygon(HDC dc, const POINT* points, int count);
BOOL Rectangle(HDC dc, int left, int top, int right, int bottom);
BOOL Ellipse(HDC dc, int left, int top, int right, int bottom);
int FillRect(HDC dc, const RECT* r, HBRUSH brush);
int FrameRect(HDC dc, const RECT* r, HBRUSH brush);
BOOL InvertRect(HDC dc, const RECT* r);
BOOL DrawFocusRect(HDC dc, const RECT* r);
BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD rop);
BOOL BitBlt(HDC dst, int x, int y, int width, int height, HDC src, int sx, int sy, DWORD rop);
BOOL StretchBlt(HDC dst, int x, int y, int width, int height, HDC src, int sx, int sy, int sw,
                int sh, DWORD rop);
// Copies the pixels of `scroll` within `clip` by (dx, dy); the uncovered band goes to `update`
// (the region and/or its bounding box), which the caller must repaint.
BOOL ScrollDC(HDC dc, int dx, int dy, const RECT* scroll, const RECT* clip, HRGN update,
              RECT* updateRect);

// Text.
BOOL ExtTextOut(HDC dc, int x, int y, UINT options, const RECT* r, const char* text, UINT count,
                const int* dx);
BOOL TextOut(HDC dc, int x, int y, const char* text, int count);
int DrawText(HDC dc, const char* text, int count, RECT* r, UINT format);
BOOL GetTextExtentPoint32(HDC dc, const char* text, int count, SIZE* size);
BOOL GetTextMetrics(HDC dc, TEXTMETRIC* tm);
int GetTextFace(HDC dc, int count, char* face);
// The 8-bit names the module's code uses.
inline BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size) {
    return GetTextExtentPoint32(dc, text, count, size);
}
// The older measure, which the platform keeps for compatibility, answers the same.
inline BOOL GetTextExtentPoint(HDC dc, const char* text, int count, SIZE* size) {
    return GetTextExtentPoint32(dc, text, count, size);
}
inline BOOL GetTextExtentPointA(HDC dc, const char* text, int count, SIZE* size) {
    return GetTextExtentPoint32(dc, text, count, size);
}
inline BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* r, const char* text,
                        UINT count, const int* dx) {
    return ExtTextOut(dc, x, y, options, r, text, count, dx);
}
inline BOOL TextOutA(HDC dc, int x, int y, const char* text, int count) {
    return TextOut(dc, x, y, text, count);
}
inline int DrawTextA(HDC dc, const char* text, int count, RECT* r, UINT format) {
    return DrawText(dc, text, count, r, format);
}
inline int GetObjectA(HGDIOBJ object, int size, void* out) {
    return GetObject(object, size, out);
}
inline HFONT CreateFontIndirectA(const LOGFONT* lf) {
    return CreateFontIndirect(lf);
}
inline HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight,
                         DWORD italic, DWORD underline, DWORD strikeOut, DWORD charSet,
                         DWORD outPrecision, DWORD clipPrecision, DWORD quality,
                         DWORD pitchAndFamily, const char* face) {
    return CreateFont(height, width, escapement, orientation, weight, italic, underline, strikeOut,
                      charSet, outPrecision, clipPrecision, quality, pitchAndFamily, face);
}

// TEXTMETRIC.tmPitchAndFamily bits; the pitch bit is set for proportional fonts, as on the
// real system.
constexpr int TMPF_FIXED_PITCH = 0x01;
constexpr int TMPF_VECTOR = 0x02;
constexpr int TMPF_TRUETYPE = 0x04;

// Device-independent bitmaps. The structures have the layout of the BMP file format.
#pragma pack(push, 2)
struct BITMAPFILEHEADER {
    WORD bfType = 0;
    DWORD bfSize = 0;
    WORD bfReserved1 = 0;
    WORD bfReserved2 = 0;
    DWORD bfOffBits = 0;
};
#pragma pack(pop)
struct BITMAPINFOHEADER {
    DWORD biSize = 0;
    LONG biWidth = 0;
    LONG biHeight = 0;
    WORD biPlanes = 0;
    WORD biBitCount = 0;
    DWORD biCompression = 0;
    DWORD biSizeImage = 0;
    LONG biXPelsPerMeter = 0;
    LONG biYPelsPerMeter = 0;
    DWORD biClrUsed = 0;
    DWORD biClrImportant = 0;
};
struct RGBQUAD {
    BYTE rgbBlue = 0;
    BYTE rgbGreen = 0;
    BYTE rgbRed = 0;
    BYTE rgbReserved = 0;
};
// The colour table runs on past the one entry declared here, as many entries as the header
// says.
struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};
static_assert(sizeof(BITMAPFILEHEADER) == 14 && sizeof(BITMAPINFOHEADER) == 40 &&
              sizeof(RGBQUAD) == 4);
inline constexpr DWORD BI_RGB = 0;
inline constexpr DWORD CBM_INIT = 4;
inline constexpr UINT DIB_RGB_COLORS = 0;
// Uncompressed bitmaps of 1, 4, 8, 24 and 32 bits per pixel, bottom-up (positive height) or
// top-down. The pixels must hold the rows the header describes (biSizeImage, when set, is taken
// as the size of `bits`); the colour table has biClrUsed entries, or 2^biBitCount when that is
// 0. A header that does not describe such a bitmap is refused with nullptr. Without CBM_INIT
// the bitmap is black.
HBITMAP CreateDIBitmap(HDC dc, const BITMAPINFOHEADER* header, DWORD init, const void* bits,
                       const BITMAPINFO* info, UINT usage);
// The same with the sizes of both buffers stated, for bitmaps read from files: nothing past
// `bitsSize` bytes of `bits` or `infoSize` bytes of `info` is read, and a header whose numbers
// need more is refused.
HBITMAP CreateDIBitmapSized(const BITMAPINFOHEADER* header, DWORD init, const void* bits,
                            std::size_t bitsSize, const BITMAPINFO* info, std::size_t infoSize,
                            UINT usage);
// Copies `lines` rows from `start` (counted from the bottom for a positive biHeight in `info`,
// from the top for a negative one) as 32 bits per pixel (blue, green, red, 0). With `bits`
// null, fills in the header's size fields and answers the bitmap's height. Answers the rows
// copied, 0 on failure. Only 32-bit output is supported.
int GetDIBits(HDC dc, HBITMAP bitmap, UINT start, UINT lines, void* bits, BITMAPINFO* info,
              UINT usage);
// A bitmap whose pixels the program reaches directly through `*bits`: 32 bits per pixel,
// top-down (a negative biHeight), which is the layout of the pixels behind it. Other layouts
// answer null. Call GdiFlush before reading pixels that drawing calls changed.
HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, void* section, DWORD offset);
BOOL GdiFlush();

// More on regions.
int OffsetRgn(HRGN rgn, int dx, int dy);
BOOL SetRectRgn(HRGN rgn, int left, int top, int right, int bottom);
BOOL EqualRgn(HRGN a, HRGN b);
