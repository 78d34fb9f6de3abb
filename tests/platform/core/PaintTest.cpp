// What a paint may touch: only the invalid region of its window, inside its parent, and
// never the children of a window that clips them.

#include <gtest/gtest.h>

#include "platform/gdi/Gdi.h"
#include "platform/user/Screen.h"
#include "platform/user/User.h"

namespace {

COLORREF paintColor = RGB(255, 0, 0);

LRESULT Painter(HWND h, UINT m, WPARAM w, LPARAM l) {
    if (m == WM_PAINT) {
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(h, &ps);
        RECT all{-1000, -1000, 1000, 1000};
        HBRUSH b = CreateSolidBrush(paintColor);
        FillRect(dc, &all, b);  // deliberately everything: the clip must hold
        DeleteObject(b);
        EndPaint(h, &ps);
        return 0;
    }
    if (m == WM_ERASEBKGND) return 1;
    return DefWindowProc(h, m, w, l);
}

COLORREF Pixel(HWND top, int x, int y) {
    cairo_surface_t* s = plat::WindowSurface(top);
    cairo_surface_flush(s);
    auto* row = reinterpret_cast<const uint32_t*>(cairo_image_surface_get_data(s) + y * cairo_image_surface_get_stride(s));
    uint32_t p = row[x];
    return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
}

void Pump() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessage(&msg);
}

struct Windows {
    HWND top, child;
    Windows(DWORD topStyle) {
        WNDCLASS wc;
        wc.lpfnWndProc = Painter;
        wc.lpszClassName = "Painter";
        RegisterClass(&wc);
        top = CreateWindow("Painter", "", WS_POPUP | WS_VISIBLE | topStyle, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
        child = CreateWindow("Painter", "", WS_CHILD | WS_VISIBLE, 40, 40, 20, 20, top, nullptr, nullptr, nullptr);
        paintColor = RGB(255, 0, 0);
        Pump();
    }
    ~Windows() { DestroyWindow(top); }
};

}  // namespace

TEST(Paint, DrawingStaysInsideTheInvalidRegion) {
    Windows w(0);
    paintColor = RGB(0, 0, 255);
    RECT a{0, 0, 10, 10}, b{80, 80, 90, 90};
    InvalidateRect(w.top, &a, FALSE);
    InvalidateRect(w.top, &b, FALSE);
    Pump();
    EXPECT_EQ(Pixel(w.top, 5, 5), RGB(0, 0, 255));
    EXPECT_EQ(Pixel(w.top, 85, 85), RGB(0, 0, 255));
    // Inside the bounding box of both, but in neither: the region is not just its box.
    EXPECT_EQ(Pixel(w.top, 50, 20), RGB(255, 0, 0));
    EXPECT_EQ(Pixel(w.top, 10, 10), RGB(255, 0, 0));
}

TEST(Paint, ChildPaintsOnlyItsOwnArea) {
    Windows w(0);
    paintColor = RGB(0, 255, 0);
    InvalidateRect(w.child, nullptr, FALSE);
    Pump();
    EXPECT_EQ(Pixel(w.top, 40, 40), RGB(0, 255, 0));
    EXPECT_EQ(Pixel(w.top, 59, 59), RGB(0, 255, 0));
    EXPECT_EQ(Pixel(w.top, 60, 60), RGB(255, 0, 0));
    EXPECT_EQ(Pixel(w.top, 39, 39), RGB(255, 0, 0));
}

TEST(Paint, ParentWithClipChildrenLeavesChildAlone) {
    Windows w(WS_CLIPCHILDREN);
    paintColor = RGB(0, 0, 255);
    RedrawWindow(w.top, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    ValidateRect(w.child, nullptr);
    UpdateWindow(w.top);
    EXPECT_EQ(Pixel(w.top, 10, 10), RGB(0, 0, 255));
    EXPECT_EQ(Pixel(w.top, 50, 50), RGB(255, 0, 0));
}

TEST(Paint, HiddenChildUncoversItsParent) {
    Windows w(0);
    paintColor = RGB(0, 0, 255);
    ShowWindow(w.child, SW_HIDE);
    RECT u;
    EXPECT_TRUE(GetUpdateRect(w.top, &u, FALSE));
    EXPECT_EQ(u, (RECT{40, 40, 60, 60}));
    Pump();
    EXPECT_EQ(Pixel(w.top, 50, 50), RGB(0, 0, 255));
}

TEST(Paint, ShrunkWindowIsValidatedWhole) {
    Windows w(0);
    InvalidateRect(w.child, nullptr, FALSE);
    MoveWindow(w.child, 40, 40, 10, 10, FALSE);
    ValidateRect(w.child, nullptr);
    MSG msg;
    EXPECT_FALSE(PeekMessage(&msg, w.child, WM_PAINT, WM_PAINT, PM_NOREMOVE));
    // And a region left from before the shrink does not outlive it either.
    RECT wide{0, 0, 20, 20};
    MoveWindow(w.child, 40, 40, 20, 20, FALSE);
    ValidateRect(w.child, nullptr);
    InvalidateRect(w.child, &wide, FALSE);
    MoveWindow(w.child, 40, 40, 10, 10, FALSE);
    RECT left{0, 0, 10, 10};
    ValidateRect(w.child, &left);
    EXPECT_FALSE(PeekMessage(&msg, w.child, WM_PAINT, WM_PAINT, PM_NOREMOVE));
}
