// The framework's window contexts on real windows of the platform.

#include "platform/afx/CClientDC.h"
#include "platform/afx/CPaintDC.h"
#include "platform/afx/CWindowDC.h"
#include "platform/user/Screen.h"
#include "tests/platform/gdi/TestCanvas.h"

#include <gtest/gtest.h>

namespace {

RECT lastPaint;

LRESULT PaintsRed(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_PAINT) {
        CPaintDC dc(hwnd);
        lastPaint = dc.m_ps.rcPaint;
        RECT everything{-100, -100, 500, 500};
        dc.FillSolidRect(&everything, Red); // the paint's clip keeps it inside
        return 0;
    }
    if (msg == WM_ERASEBKGND) return 1;
    return DefWindowProc(hwnd, msg, wParam, lParam);
}

COLORREF OnScreen(HWND top, int x, int y) {
    cairo_surface_t* s = plat::WindowSurface(top);
    cairo_surface_flush(s);
    auto* row = reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(s) +
                                                       y * cairo_image_surface_get_stride(s));
    return RGB(static_cast<BYTE>(row[x] >> 16), static_cast<BYTE>(row[x] >> 8),
               static_cast<BYTE>(row[x]));
}

void Pump() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessage(&msg);
}

class WindowDcTest : public ::testing::Test {
protected:
    WindowDcTest() {
        WNDCLASS wc;
        wc.lpfnWndProc = PaintsRed;
        wc.lpszClassName = "GdiPaintsRed";
        RegisterClass(&wc);
        top = CreateWindow("GdiPaintsRed", "", WS_POPUP | WS_VISIBLE | WS_BORDER, 0, 0, 60, 40,
                           nullptr, nullptr, nullptr, nullptr);
        Pump();
    }
    ~WindowDcTest() override { DestroyWindow(top); }

    HWND top;
};

TEST_F(WindowDcTest, PaintContextEndsThePaintAndStaysInTheInvalidArea) {
    RECT client;
    GetClientRect(top, &client);
    CClientDC(top).FillSolidRect(&client, Blue);
    RECT part{5, 5, 10, 10};
    InvalidateRect(top, &part, FALSE);
    Pump();
    EXPECT_EQ(lastPaint, part);
    EXPECT_EQ(OnScreen(top, 1 + 5, 1 + 5), Red); // the border is one pixel
    EXPECT_EQ(OnScreen(top, 1 + 10, 1 + 10), Blue);
    RECT update;
    EXPECT_FALSE(GetUpdateRect(top, &update, FALSE));
}

TEST_F(WindowDcTest, ClientContextStartsAtTheClientAreaWindowContextAtTheFrame) {
    {
        CClientDC dc(top);
        dc.SetPixel(0, 0, Blue);
        EXPECT_EQ(dc.GetPixel(0, 0), Blue);
        EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSX), 96);
    }
    EXPECT_EQ(OnScreen(top, 1, 1), Blue);
    {
        CWindowDC dc(top);
        dc.SetPixel(0, 0, Red);
    }
    EXPECT_EQ(OnScreen(top, 0, 0), Red);
}

} // namespace
