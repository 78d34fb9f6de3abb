// Printing goes to the control's printer, which lays the active sheet out on pages.

#include "grid/core/GridCtrl.h"
#include "grid/windows/GridPrinter.h"

int GridCtrl::PrintInit(CDC* printerDC, CDC* secondDC, int startCol, int startRow, int endCol,
                        int endRow) {
    return printer->PrintInit(printerDC, secondDC, startCol, startRow, endCol, endRow);
}

int GridCtrl::PrintPage(CDC* printerDC, int pageNumber) {
    return printer->PrintPage(printerDC, pageNumber);
}

int GridCtrl::SetPrintOption(int option, int value) {
    return printer->SetPrintOption(option, value);
}

int GridCtrl::GetPrintOption(int option, int* value) {
    return printer->GetPrintOption(option, value);
}
