// Printer contexts write PDF pages; poppler's tools render them and read their text back.

#include "platform/gdi/Printing.h"
#include "tests/platform/gdi/TestCanvas.h"

#include <cairo.h>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string Shell(const std::string& command) {
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return out;
    char buffer[4096];
    size_t n;
    while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0) out.append(buffer, n);
    pclose(pipe);
    return out;
}

int PageCount(const std::string& pdf) {
    std::string info = Shell("pdfinfo '" + pdf + "'");
    size_t at = info.find("Pages:");
    return at == std::string::npos ? -1 : std::stoi(info.substr(at + 6));
}

class PrinterTest : public ::testing::Test {
protected:
    PrinterTest() {
        std::string pattern = (fs::path(::testing::TempDir()) / "gdi_printer_XXXXXX").string();
        dir = mkdtemp(pattern.data());
        pdf = (dir / "out.pdf").string();
    }
    ~PrinterTest() override { fs::remove_all(dir); }

    // The colour at (x, y) of a page rendered at `dpi`.
    COLORREF RenderedAt(int page, int dpi, int x, int y) {
        std::string prefix = (dir / "page").string();
        Shell("pdftoppm -r " + std::to_string(dpi) + " -png -f " + std::to_string(page) + " -l " +
              std::to_string(page) + " '" + pdf + "' '" + prefix + "'");
        for (const auto& entry : fs::directory_iterator(dir)) {
            std::string name = entry.path().filename().string();
            if (name.rfind("page-", 0) != 0) continue;
            cairo_surface_t* png = cairo_image_surface_create_from_png(entry.path().c_str());
            fs::remove(entry.path());
            if (cairo_surface_status(png) != CAIRO_STATUS_SUCCESS) break;
            cairo_surface_flush(png);
            auto* row = reinterpret_cast<const std::uint32_t*>(
                cairo_image_surface_get_data(png) + y * cairo_image_surface_get_stride(png));
            std::uint32_t p = row[x];
            cairo_surface_destroy(png);
            return RGB(static_cast<BYTE>(p >> 16), static_cast<BYTE>(p >> 8), static_cast<BYTE>(p));
        }
        return CLR_INVALID;
    }

    fs::path dir;
    std::string pdf;
};

TEST_F(PrinterTest, ReportsThePaperInPrinterPixels) {
    HDC dc = CreatePrinterDC(pdf.c_str(), 300, 210, 297);
    ASSERT_NE(dc, nullptr);
    EXPECT_EQ(GetDeviceCaps(dc, TECHNOLOGY), DT_RASPRINTER);
    EXPECT_EQ(GetDeviceCaps(dc, HORZRES), 2480);
    EXPECT_EQ(GetDeviceCaps(dc, VERTRES), 3508);
    EXPECT_EQ(GetDeviceCaps(dc, HORZSIZE), 210);
    EXPECT_EQ(GetDeviceCaps(dc, VERTSIZE), 297);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 300);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSY), 300);
    EXPECT_EQ(GetDeviceCaps(dc, PHYSICALWIDTH), 2480);
    EXPECT_EQ(GetDeviceCaps(dc, PHYSICALHEIGHT), 3508);
    EXPECT_EQ(GetDeviceCaps(dc, PHYSICALOFFSETX), 0);
    // Fonts are sized in printer pixels.
    HFONT font = CreateFont(-50, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    SelectObject(dc, font);
    TEXTMETRIC tm;
    GetTextMetrics(dc, &tm);
    EXPECT_EQ(tm.tmHeight - tm.tmInternalLeading, 50);
    SelectObject(dc, GetStockObject(SYSTEM_FONT));
    DeleteObject(font);
    DeleteDC(dc);
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(PrinterTest, WritesPagesThatRenderAndHoldTheirText) {
    HDC dc = CreatePrinterDC(pdf.c_str(), 300, 210, 297);
    DOCINFO info;
    info.lpszDocName = "Kerv area table";
    EXPECT_GT(StartDoc(dc, &info), 0);
    HFONT font = CreateFont(-60, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Courier");
    SelectObject(dc, font);

    EXPECT_GT(StartPage(dc), 0);
    TextOut(dc, 300, 300, "Parcel table, page one", 22);
    RECT block{300, 600, 900, 900};
    FillRect(dc, &block, GetStockObject(BLACK_BRUSH));
    EXPECT_GT(EndPage(dc), 0);

    EXPECT_GT(StartPage(dc), 0);
    TextOut(dc, 300, 300, "Second page \x80 12", 16);
    // A bitmap stretched onto the page.
    TestCanvas picture(2, 2);
    picture.Clear(Red);
    EXPECT_TRUE(StretchBlt(dc, 600, 1200, 300, 300, picture.Dc(), 0, 0, 2, 2, SRCCOPY));
    EXPECT_GT(EndPage(dc), 0);
    EXPECT_GT(EndDoc(dc), 0);
    SelectObject(dc, GetStockObject(SYSTEM_FONT));
    DeleteObject(font);
    DeleteDC(dc);

    ASSERT_TRUE(fs::exists(pdf));
    std::string text = Shell("pdftotext '" + pdf + "' -");
    EXPECT_NE(text.find("Parcel table, page one"), std::string::npos) << text;
    EXPECT_NE(text.find("Second page \u20AC 12"), std::string::npos) << text;
    EXPECT_EQ(PageCount(pdf), 2);
    // At 30 dpi the printer's pixels shrink tenfold.
    EXPECT_EQ(RenderedAt(1, 30, 60, 75), Black);
    EXPECT_EQ(RenderedAt(1, 30, 100, 75), White);
    EXPECT_EQ(RenderedAt(2, 30, 75, 135), Red);
}

TEST_F(PrinterTest, CallsOutOfOrderAreRefused) {
    HDC dc = CreatePrinterDC(pdf.c_str(), 100, 100, 100);
    EXPECT_EQ(StartPage(dc), SP_ERROR);
    EXPECT_EQ(EndPage(dc), SP_ERROR);
    EXPECT_EQ(EndDoc(dc), SP_ERROR);
    EXPECT_GT(StartDoc(dc, nullptr), 0);
    EXPECT_EQ(StartDoc(dc, nullptr), SP_ERROR);
    EXPECT_EQ(EndPage(dc), SP_ERROR);
    EXPECT_GT(StartPage(dc), 0);
    EXPECT_EQ(StartPage(dc), SP_ERROR);
    // Ending the document ends the open page.
    EXPECT_GT(EndDoc(dc), 0);
    DeleteDC(dc);
    EXPECT_EQ(PageCount(pdf), 1);

    TestCanvas screen(1, 1);
    EXPECT_EQ(StartDoc(screen.Dc(), nullptr), SP_ERROR);
    EXPECT_EQ(CreatePrinterDC(pdf.c_str(), 0, 210, 297), nullptr);
    EXPECT_EQ(CreatePrinterDC(nullptr, 300, 210, 297), nullptr);
}

TEST_F(PrinterTest, AbortDocRemovesTheFileAndABadPathFailsAtStart) {
    HDC dc = CreatePrinterDC(pdf.c_str(), 100, 100, 100);
    StartDoc(dc, nullptr);
    StartPage(dc);
    TextOut(dc, 10, 10, "gone", 4);
    EXPECT_GT(AbortDoc(dc), 0);
    EXPECT_FALSE(fs::exists(pdf));

    DOCINFO elsewhere;
    std::string bad = (dir / "missing" / "x.pdf").string();
    elsewhere.lpszOutput = bad.c_str();
    EXPECT_EQ(StartDoc(dc, &elsewhere), SP_ERROR);
    DeleteDC(dc);
}

} // namespace
