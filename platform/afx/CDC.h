#pragma once
// The framework's device context: a thin owner of an HDC with the drawing calls as members.
// A CDC deletes the context it holds when it goes (contexts it made with CreateCompatibleDC,
// or attached); CPaintDC, CClientDC and CWindowDC give theirs back to the window instead.
// SelectObject answers the wrapper of the object that was selected before (see
// CGdiObject::FromHandle), so that it can be selected again.

#include "platform/afx/CBitmap.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CFont.h"
#include "platform/afx/CObject.h"
#include "platform/afx/CPen.h"
#include "platform/afx/CPoint.h"
#include "platform/afx/CRgn.h"
#include "platform/afx/CSize.h"
#include "platform/gdi/Gdi.h"
#include "platform/gdi/Printing.h"

class CDC : public CObject {
public:
    CDC() = default;
    ~CDC() override;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC m_hDC = nullptr;

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    // The CDC of a context made elsewhere: a temporary that never deletes it.
    static CDC* FromHandle(HDC dc);

    BOOL Attach(HDC dc);
    HDC Detach();
    BOOL DeleteDC();
    BOOL CreateCompatibleDC(CDC* dc);
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }
    BOOL IsPrinting() const { return GetDeviceCaps(TECHNOLOGY) == DT_RASPRINTER; }

    // Objects.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    CGdiObject* SelectObject(CGdiObject* object);
    int SelectObject(CRgn* rgn) { return SelectClipRgn(rgn); }
    HGDIOBJ SelectObject(HGDIOBJ object) { return ::SelectObject(m_hDC, object); }
    CGdiObject* SelectStockObject(int which);

    // Attributes.
    COLORREF SetTextColor(COLORREF c) { return ::SetTextColor(m_hDC, c); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hDC); }
    COLORREF SetBkColor(COLORREF c) { return ::SetBkColor(m_hDC, c); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    int GetBkMode() const { return ::GetBkMode(m_hDC); }
    UINT SetTextAlign(UINT align) { return ::SetTextAlign(m_hDC, align); }
    int SetROP2(int mode) { return ::SetROP2(m_hDC, mode); }
    CPoint SetViewportOrg(int x, int y);
    CPoint GetViewportOrg() const;
    CPoint OffsetViewportOrg(int dx, int dy);
    CPoint SetBrushOrg(int x, int y);

    // Clipping.
    int SelectClipRgn(CRgn* rgn) {
        return ::SelectClipRgn(m_hDC, rgn ? rgn->GetSafeHandle() : nullptr);
    }
    int IntersectClipRect(int left, int top, int right, int bottom) {
        return ::IntersectClipRect(m_hDC, left, top, right, bottom);
    }
    int IntersectClipRect(const RECT* r) {
        return IntersectClipRect(r->left, r->top, r->right, r->bottom);
    }
    int ExcludeClipRect(int left, int top, int right, int bottom) {
        return ::ExcludeClipRect(m_hDC, left, top, right, bottom);
    }
    int ExcludeClipRect(const RECT* r) {
        return ExcludeClipRect(r->left, r->top, r->right, r->bottom);
    }
    int GetClipBox(RECT* box) const { return ::GetClipBox(m_hDC, box); }
    BOOL RectVisible(const RECT* r) const { return ::RectVisible(m_hDC, r); }
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }

    // Lines and shapes.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT p) { return MoveTo(p.x, p.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT p) { return LineTo(p.x, p.y); }
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL Rectangle(int left, int top, int right, int bottom) {
        return ::Rectangle(m_hDC, left, top, right, bottom);
    }
    BOOL Rectangle(const RECT* r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL Ellipse(int left, int top, int right, int bottom) {
        return ::Ellipse(m_hDC, left, top, right, bottom);
    }
    void FillRect(const RECT* r, CBrush* brush) {
        ::FillRect(m_hDC, r, brush ? brush->GetSafeHandle() : nullptr);
    }
    void FrameRect(const RECT* r, CBrush* brush) {
        ::FrameRect(m_hDC, r, brush ? brush->GetSafeHandle() : nullptr);
    }
    void InvertRect(const RECT* r) { ::InvertRect(m_hDC, r); }
    void DrawFocusRect(const RECT* r) { ::DrawFocusRect(m_hDC, r); }
    // Both leave the background colour set to `color`, as the framework's do.
    void FillSolidRect(const RECT* r, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    // A one-pixel frame: `topLeft` on the left and top, `bottomRight` on the right and bottom.
    void Draw3dRect(const RECT* r, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    COLORREF SetPixel(int x, int y, COLORREF c) { return ::SetPixel(m_hDC, x, y, c); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

    // Bits.
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop) {
        return ::PatBlt(m_hDC, x, y, width, height, rop);
    }
    BOOL BitBlt(int x, int y, int width, int height, CDC* src, int sx, int sy, DWORD rop) {
        return ::BitBlt(m_hDC, x, y, width, height, src ? src->m_hDC : nullptr, sx, sy, rop);
    }
    BOOL StretchBlt(int x, int y, int width, int height, CDC* src, int sx, int sy, int sw, int sh,
                    DWORD rop) {
        return ::StretchBlt(m_hDC, x, y, width, height, src ? src->m_hDC : nullptr, sx, sy, sw, sh,
                            rop);
    }
    BOOL ScrollDC(int dx, int dy, const RECT* scroll, const RECT* clip, CRgn* update,
                  RECT* updateRect) {
        return ::ScrollDC(m_hDC, dx, dy, scroll, clip, update ? update->GetSafeHandle() : nullptr,
                          updateRect);
    }

    // Text.
    BOOL TextOut(int x, int y, const char* text, int count) {
        return ::TextOut(m_hDC, x, y, text, count);
    }
    BOOL ExtTextOut(int x, int y, UINT options, const RECT* r, const char* text, UINT count,
                    const int* dx) {
        return ::ExtTextOut(m_hDC, x, y, options, r, text, count, dx);
    }
    int DrawText(const char* text, int count, RECT* r, UINT format) {
        return ::DrawText(m_hDC, text, count, r, format);
    }
    CSize GetTextExtent(const char* text, int count) const;
    BOOL GetTextMetrics(TEXTMETRIC* tm) const { return ::GetTextMetrics(m_hDC, tm); }
    int GetTextFace(int count, char* face) const { return ::GetTextFace(m_hDC, count, face); }

    // Printing.
    int StartDoc(const DOCINFO* info) { return ::StartDoc(m_hDC, info); }
    int StartDoc(const char* documentName);
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }

private:
    bool temporary_ = false;
};
