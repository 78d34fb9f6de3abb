#pragma once
// The paired drawing calls the controls make, as objects that undo themselves.

#include "platform/gdi/Gdi.h"
#include "platform/user/User.h"

namespace plat {

// BeginPaint ... EndPaint.
class PaintScope {
public:
    explicit PaintScope(HWND hwnd) : hwnd(hwnd) { BeginPaint(hwnd, &ps); }
    ~PaintScope() { EndPaint(hwnd, &ps); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;
    HDC Dc() const { return ps.hdc; }

private:
    HWND hwnd;
    PAINTSTRUCT ps;
};

// A context for measuring text, with a font selected: a memory context, independent of any
// window's visibility.
class MeasureDC {
public:
    explicit MeasureDC(HFONT font) : dc(CreateCompatibleDC(nullptr)) { SelectObject(dc, font); }
    ~MeasureDC() { DeleteDC(dc); }
    MeasureDC(const MeasureDC&) = delete;
    MeasureDC& operator=(const MeasureDC&) = delete;
    HDC Dc() const { return dc; }

private:
    HDC dc;
};

// SaveDC ... RestoreDC: whatever is selected or clipped in between is undone.
class SavedDC {
public:
    explicit SavedDC(HDC dc) : dc(dc), saved(SaveDC(dc)) {}
    ~SavedDC() { RestoreDC(dc, saved); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC dc;
    int saved;
};

// A brush of one colour for the life of the object.
class SolidBrush {
public:
    explicit SolidBrush(COLORREF color) : brush(CreateSolidBrush(color)) {}
    ~SolidBrush() { DeleteObject(brush); }
    SolidBrush(const SolidBrush&) = delete;
    SolidBrush& operator=(const SolidBrush&) = delete;
    HBRUSH Get() const { return brush; }

private:
    HBRUSH brush;
};

// A solid pen for the life of the object.
class SolidPen {
public:
    SolidPen(int width, COLORREF color) : pen(CreatePen(PS_SOLID, width, color)) {}
    ~SolidPen() { DeleteObject(pen); }
    SolidPen(const SolidPen&) = delete;
    SolidPen& operator=(const SolidPen&) = delete;
    HPEN Get() const { return pen; }

private:
    HPEN pen;
};

} // namespace plat
