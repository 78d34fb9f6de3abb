#pragma once
// Drawing services of the window system under their own names: device contexts over cairo
// surfaces, pens, brushes, fonts, bitmaps and regions. Coordinates are logical pixels with the
// platform's conventions: right and bottom edges exclusive, a line leaves out its last pixel,
// 1-pixel pens land on whole pixels.

#include "platform/base/WinTypes.h"

// Object kinds and stock objects.
enum : int {
    OBJ_PEN = 1,
    OBJ_BRUSH = 2,
    OBJ_DC = 3,
    OBJ_FONT = 6,
    OBJ_BITMAP = 7,
    OBJ_REGION = 8,
    OBJ_MEMDC = 10,
};
enum : int {
    WHITE_BRUSH = 0,
    LTGRAY_BRUSH = 1,
    GRAY_BRUSH = 2,
    DKGRAY_BRUSH = 3,
    BLACK_BRUSH = 4,
    NULL_BRUSH = 5,
    HOLLOW_BRUSH = NULL_BRUSH,
    WHITE_PEN = 6,
    BLACK_PEN = 7,
    NULL_PEN = 8,
    ANSI_FIXED_FONT = 11,
    ANSI_VAR_FONT = 12,
    SYSTEM_FONT = 13,
    DEFAULT_GUI_FONT = 17,
};

// Pens and brushes.
enum : int {
    PS_SOLID = 0,
    PS_DASH = 1,
    PS_DOT = 2,
    PS_DASHDOT = 3,
    PS_NULL = 5,
    PS_INSIDEFRAME = 6,
    BS_SOLID = 0,
    BS_NULL = 1,
    BS_HATCHED = 2,
    BS_PATTERN = 3,
};

// Fonts.
enum : int {
    LF_FACESIZE = 32,
    FW_DONTCARE = 0,
    FW_NORMAL = 400,
    FW_BOLD = 700,
    ANSI_CHARSET = 0,
    DEFAULT_CHARSET = 1,
    OUT_DEFAULT_PRECIS = 0,
    CLIP_DEFAULT_PRECIS = 0,
    DEFAULT_QUALITY = 0,
    DEFAULT_PITCH = 0,
    FIXED_PITCH = 1,
    VARIABLE_PITCH = 2,
    FF_DONTCARE = 0,
    FF_ROMAN = 0x10,
    FF_SWISS = 0x20,
    FF_MODERN = 0x30,
};
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
enum : UINT {
    ETO_OPAQUE = 0x0002,
    ETO_CLIPPED = 0x0004,
    TA_LEFT = 0,
    TA_TOP = 0,
    TA_RIGHT = 2,
    TA_CENTER = 6,
    TA_BOTTOM = 8,
    TA_BASELINE = 24,
    DT_TOP = 0x0000,
    DT_LEFT = 0x0000,
    DT_CENTER = 0x0001,
    DT_RIGHT = 0x0002,
    DT_VCENTER = 0x0004,
    DT_BOTTOM = 0x0008,
    DT_WORDBREAK = 0x0010,
    DT_SINGLELINE = 0x0020,
    DT_EXPANDTABS = 0x0040,
    DT_NOCLIP = 0x0100,
    DT_CALCRECT = 0x0400,
    DT_NOPREFIX = 0x0800,
    DT_END_ELLIPSIS = 0x8000,
};
enum : int {
    TRANSPARENT = 1,
    OPAQUE = 2,
};

// Raster operations.
enum : DWORD {
    SRCCOPY = 0x00CC0020,
    SRCPAINT = 0x00EE0086,
    SRCAND = 0x008800C6,
    SRCINVERT = 0x00660046,
    NOTSRCCOPY = 0x00330008,
    PATCOPY = 0x00F00021,
    PATINVERT = 0x005A0049,
    DSTINVERT = 0x00550009,
    BLACKNESS = 0x00000042,
    WHITENESS = 0x00FF0062,
};
enum : int {
    R2_BLACK = 1,
    R2_NOT = 6,
    R2_XORPEN = 7,
    R2_COPYPEN = 13,
    R2_WHITE = 16,
};

// Device capabilities.
enum : int {
    HORZSIZE = 4,
    VERTSIZE = 6,
    HORZRES = 8,
    VERTRES = 10,
    BITSPIXEL = 12,
    LOGPIXELSX = 88,
    LOGPIXELSY = 90,
    PHYSICALWIDTH = 110,
    PHYSICALHEIGHT = 111,
    PHYSICALOFFSETX = 112,
    PHYSICALOFFSETY = 113,
};

// Regions and clipping.
enum : int {
    ERROR = 0,
    NULLREGION = 1,
    SIMPLEREGION = 2,
    COMPLEXREGION = 3,
    RGN_AND = 1,
    RGN_OR = 2,
    RGN_XOR = 3,
    RGN_DIFF = 4,
    RGN_COPY = 5,
};

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
