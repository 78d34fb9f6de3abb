#pragma once
// Printing: a printer context writes each page into a PDF file through cairo's PDF surface,
// with vector text. Its logical units are printer pixels at the resolution it was made with,
// and GetDeviceCaps reports the paper as the printable area (no unprintable margins).

#include "platform/base/WinTypes.h"

struct DOCINFO {
    int cbSize = sizeof(DOCINFO);
    const char* lpszDocName = nullptr;
    // Where the PDF goes; null keeps the path the context was made with.
    const char* lpszOutput = nullptr;
    const char* lpszDatatype = nullptr;
    DWORD fwType = 0;
};

constexpr int SP_ERROR = -1;

// A printer of `dotsPerInch` on paper of the size given in millimetres, printing into
// `pdfPath`. nullptr for a resolution or paper size outside 1..10000.
HDC CreatePrinterDC(const char* pdfPath, int dotsPerInch, int paperWidthMm, int paperHeightMm);

// Each answers SP_ERROR on a context that is not a printer or is in the wrong state
// (a page outside a document, a document inside another); StartDoc also when the file cannot
// be written. StartDoc answers a positive job number, the others a positive number.
int StartDoc(HDC dc, const DOCINFO* info);
int StartPage(HDC dc);
int EndPage(HDC dc);
int EndDoc(HDC dc);
// Ends the document and removes the file.
int AbortDoc(HDC dc);
