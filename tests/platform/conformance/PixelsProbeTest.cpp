// Drawing on known pixels, replayed from the recorded probe on a 32-bit memory bitmap.

#include "Transcript.h"
#include "platform/gdi/Gdi.h"

namespace {

constexpr int W = 16, H = 12;
HDC dc;
DWORD* bits;
Transcript out;

void Clear() {
    for (int i = 0; i < W * H; ++i) bits[i] = 0xFFFFFF;
}

void Grid(const char* what) {
    GdiFlush();
    out.Print("%s\n", what);
    for (int y = 0; y < H; ++y) {
        out.Print("  %2d ", y);
        for (int x = 0; x < W; ++x) {
            DWORD p = bits[y * W + x] & 0xFFFFFF;
            char c = p == 0xFFFFFF ? '.' : p == 0 ? '#' : p == 0x0000FF ? 'b' : p == 0xFF0000 ? 'r' : p == 0x00FF00 ? 'g' : '?';
            out.Print("%c", c);
        }
        out.Print("\n");
    }
}

// Which pixels inside the text's rectangle the glyphs cover follows the font; outside it
// nothing may change, and inside it a pixel is background or ink.
bool TextGridRow(const std::string& recorded, const std::string& printed) {
    if (recorded.size() != printed.size() || recorded.size() < 5 + W) return false;
    for (int x = 0; x < W; ++x) {
        char want = recorded[5 + static_cast<size_t>(x)], have = printed[5 + static_cast<size_t>(x)];
        bool inside = x >= 2 && x < 12;
        if (inside ? (have != 'b' && have != '#' && have != '?') : have != want) return false;
    }
    return true;
}

}  // namespace

TEST(PixelsProbe, MatchesRecording) {
    BITMAPINFO bi;
    bi.bmiHeader.biSize = sizeof bi.bmiHeader;
    bi.bmiHeader.biWidth = W;
    bi.bmiHeader.biHeight = -H;
    bi.bmiHeader.biPlanes = 1;
    bi.bmiHeader.biBitCount = 32;
    bi.bmiHeader.biCompression = BI_RGB;
    dc = CreateCompatibleDC(nullptr);
    HBITMAP bmp = CreateDIBSection(dc, &bi, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
    ASSERT_NE(bmp, nullptr);
    SelectObject(dc, bmp);
    HPEN black = CreatePen(PS_SOLID, 1, RGB(0, 0, 0));
    SelectObject(dc, black);
    HBRUSH blue = CreateSolidBrush(RGB(0, 0, 255));
    out.Print("legend: . white  # black  b blue  r red  ? other\n");
    Clear();
    MoveToEx(dc, 2, 1, nullptr);
    LineTo(dc, 8, 1);
    MoveToEx(dc, 1, 2, nullptr);
    LineTo(dc, 1, 7);
    MoveToEx(dc, 3, 3, nullptr);
    LineTo(dc, 7, 7);
    MoveToEx(dc, 14, 2, nullptr);
    LineTo(dc, 10, 2);
    Grid("LineTo (2,1)-(8,1); (1,2)-(1,7); (3,3)-(7,7); (14,2)-(10,2)");
    Clear();
    SelectObject(dc, blue);
    Rectangle(dc, 1, 1, 7, 5);
    SelectObject(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, 9, 1, 10, 2);
    Rectangle(dc, 11, 1, 13, 3);
    Grid("Rectangle (1,1,7,5) black pen blue brush; (9,1,10,2) and (11,1,13,3) hollow");
    Clear();
    RECT fill{2, 2, 6, 5}, empty{8, 2, 8, 5};
    FillRect(dc, &fill, blue);
    FillRect(dc, &empty, blue);
    Grid("FillRect (2,2,6,5); empty (8,2,8,5)");
    Clear();
    POINT pts[4] = {{1, 1}, {5, 1}, {5, 4}, {1, 4}};
    Polyline(dc, pts, 4);
    Grid("Polyline (1,1)(5,1)(5,4)(1,4)");
    Clear();
    RECT f1{1, 1, 9, 6}, f2{10, 1, 15, 8};
    DrawFocusRect(dc, &f1);
    DrawFocusRect(dc, &f2);
    Grid("DrawFocusRect (1,1,9,6) and (10,1,15,8)");
    DrawFocusRect(dc, &f1);
    DrawFocusRect(dc, &f2);
    Grid("the same DrawFocusRect calls again");
    Clear();
    FillRect(dc, &f1, blue);
    RECT big{0, 0, 12, 8};
    DrawFocusRect(dc, &big);
    Grid("DrawFocusRect (0,0,12,8) over a blue block (1,1,9,6)");
    Clear();
    {
        RECT all{0, 0, W, H};
        IntersectClipRect(dc, 2, 2, 6, 6);
        int s = SaveDC(dc);
        IntersectClipRect(dc, 4, 0, 16, 16);
        FillRect(dc, &all, blue);
        RestoreDC(dc, s);
        HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
        RECT q{0, 0, 3, 3};
        FillRect(dc, &q, red);
        DeleteObject(red);
        SelectClipRgn(dc, nullptr);
    }
    Grid("clip (2,2,6,6); SaveDC; clip (4,0,16,16); fill all blue; RestoreDC; fill (0,0,3,3) red");
    Clear();
    {
        RECT r{2, 2, 12, 8};
        SetBkColor(dc, RGB(0, 0, 255));
        SetTextColor(dc, RGB(0, 0, 0));
        ExtTextOut(dc, 0, 0, ETO_OPAQUE | ETO_CLIPPED, &r, "WWWWWWWW", 8, nullptr);
    }
    Grid("ExtTextOut ETO_OPAQUE|ETO_CLIPPED rect (2,2,12,8) bk blue, text WWWWWWWW at (0,0)");
    Clear();
    {
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) bits[y * W + x] = (x + y) % 3 == 0 ? 0 : 0xFFFFFF;
        RECT sc{0, 0, W, H}, upd;
        HRGN rg = CreateRectRgn(0, 0, 0, 0);
        ScrollDC(dc, 0, 3, &sc, &sc, rg, &upd);
        out.Print("ScrollDC dy=3 update rect (%d,%d,%d,%d)\n", upd.left, upd.top, upd.right, upd.bottom);
        DeleteObject(rg);
    }
    Grid("after ScrollDC by (0,3) of a diagonal pattern (x+y)%3==0");
    Clear();
    {
        HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
        RECT r{0, 0, 8, 6};
        FillRect(dc, &r, red);
        DeleteObject(red);
        PatBlt(dc, 4, 0, 8, 6, DSTINVERT);
    }
    Grid("red (0,0,8,6) then PatBlt DSTINVERT (4,0,+8,+6)");
    out.Print("GetDeviceCaps of a memory DC: LOGPIXELSX %d LOGPIXELSY %d BITSPIXEL %d\n", GetDeviceCaps(dc, LOGPIXELSX),
              GetDeviceCaps(dc, LOGPIXELSY), GetDeviceCaps(dc, BITSPIXEL));
    DeleteDC(dc);
    DeleteObject(bmp);
    DeleteObject(black);
    DeleteObject(blue);

    // Rows 2..7 of the text's grid are where the glyphs land.
    size_t textGrid = 0;
    std::vector<std::string> lines = SplitLines(out.Text());
    for (size_t i = 0; i < lines.size(); ++i)
        if (lines[i].rfind("ExtTextOut", 0) == 0) textGrid = i;
    TraceRules rules;
    rules.custom = [textGrid](size_t i, const std::string& want, const std::string& have) {
        return i >= textGrid + 3 && i <= textGrid + 8 && TextGridRow(want, have);
    };
    EXPECT_TRUE(MatchesTrace(out, "pixels", rules));
}
