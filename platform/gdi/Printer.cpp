// Printer contexts: each page becomes a page of a PDF file. Logical units are the printer's
// pixels; cairo's device scale turns them into the PDF's points, so text and shapes stay
// vectors at any resolution.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/Printing.h"

#include <cairo-pdf.h>
#include <cmath>
#include <cstdio>

namespace {

constexpr double PointsPerInch = 72.0;
constexpr double MmPerInch = 25.4;

gdi::PrintJob* JobOf(HDC dc) {
    DeviceContext* d = gdi::LiveContext(dc);
    return d ? d->print.get() : nullptr;
}

// Ends the PDF; answers whether it was written completely.
bool FinishDocument(DeviceContext& d) {
    cairo_surface_t* surface = d.Surface();
    if (d.print->inPage) cairo_show_page(d.Canvas());
    cairo_surface_finish(surface);
    bool ok = cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
    d.SetSurface(nullptr, SIZE{});
    d.print->inDocument = false;
    d.print->inPage = false;
    return ok;
}

} // namespace

HDC CreatePrinterDC(const char* pdfPath, int dotsPerInch, int paperWidthMm, int paperHeightMm) {
    auto inRange = [](int v) { return v >= 1 && v <= 10000; };
    if (!pdfPath || !inRange(dotsPerInch) || !inRange(paperWidthMm) || !inRange(paperHeightMm))
        return nullptr;
    DeviceContext* d =
        gdi::NewContext(DeviceContext::Kind::Printer, nullptr, POINT{}, gdi::Region());
    d->print = std::make_unique<gdi::PrintJob>();
    gdi::PrintJob& job = *d->print;
    job.path = pdfPath;
    job.dotsPerInch = dotsPerInch;
    job.widthMm = paperWidthMm;
    job.heightMm = paperHeightMm;
    job.pixels = SIZE{static_cast<LONG>(std::lround(paperWidthMm * dotsPerInch / MmPerInch)),
                      static_cast<LONG>(std::lround(paperHeightMm * dotsPerInch / MmPerInch))};
    return d;
}

int StartDoc(HDC dc, const DOCINFO* info) {
    gdi::PrintJob* job = JobOf(dc);
    if (!job || job->inDocument) return SP_ERROR;
    job->output = info && info->lpszOutput ? info->lpszOutput : job->path;
    double width = job->widthMm / MmPerInch * PointsPerInch;
    double height = job->heightMm / MmPerInch * PointsPerInch;
    cairo_surface_t* pdf = cairo_pdf_surface_create(job->output.c_str(), width, height);
    if (cairo_surface_status(pdf) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(pdf);
        return SP_ERROR;
    }
    double scale = PointsPerInch / job->dotsPerInch;
    cairo_surface_set_device_scale(pdf, scale, scale);
    if (info && info->lpszDocName)
        cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_TITLE, info->lpszDocName);
    dc->SetSurface(pdf, job->pixels);
    cairo_surface_destroy(pdf);
    job->inDocument = true;
    static int jobs = 0;
    return ++jobs;
}

int StartPage(HDC dc) {
    gdi::PrintJob* job = JobOf(dc);
    if (!job || !job->inDocument || job->inPage) return SP_ERROR;
    job->inPage = true;
    return 1;
}

int EndPage(HDC dc) {
    gdi::PrintJob* job = JobOf(dc);
    if (!job || !job->inPage) return SP_ERROR;
    cairo_show_page(dc->Canvas());
    job->inPage = false;
    return 1;
}

int EndDoc(HDC dc) {
    gdi::PrintJob* job = JobOf(dc);
    if (!job || !job->inDocument) return SP_ERROR;
    return FinishDocument(*dc) ? 1 : SP_ERROR;
}

int AbortDoc(HDC dc) {
    gdi::PrintJob* job = JobOf(dc);
    if (!job || !job->inDocument) return SP_ERROR;
    FinishDocument(*dc);
    std::remove(job->output.c_str());
    return 1;
}
