// The clipboard: the selected cells as 8-bit text, fields separated by tabs and rows by line
// feeds, and such a text pasted from the current cell on. Only texts travel; the client calls
// these, no key of the grid does.

#include "grid/core/GridCtrl.h"

#include <algorithm>
#include <cstring>

int GridCtrl::CopySelection() {
    return CopyOrCutSelection(0);
}

int GridCtrl::CutSelection() {
    return CopyOrCutSelection(1);
}

int GridCtrl::CopyOrCutSelection(int cut) {
    std::string text;
    BuildSelectionText(text, cut);
    WriteClipboardText(text);
    ClearSelection();
    RedrawAll();
    return 0;
}

void GridCtrl::BuildSelectionText(std::string& text, int cut) {
    text.clear();
    int col, row;
    for (int more = FirstSelectedCell(&col, &row); more == 0;) {
        // The cell as shown, so that a column default's text counts.
        GetEffectiveCell(col, row, scratchCell);
        if (const char* cellText = scratchCell.GetText())
            text.append(cellText, static_cast<size_t>(scratchCell.GetTextLength()));
        if (cut) {
            GridCell empty;
            SetCell(col, row, empty);
        }
        const int lastRow = row;
        more = NextSelectedCell(&col, &row);
        if (more == 0) text += row != lastRow ? '\n' : '\t';
    }
}

int GridCtrl::WriteClipboardText(const std::string& text) {
    if (!OpenClipboard()) return 0;
    EmptyClipboard();
    if (HGLOBAL memory = GlobalAlloc(GMEM_ZEROINIT, text.size() + 1)) {
        std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
        GlobalUnlock(memory);
        SetClipboardData(CF_TEXT, memory);
    }
    CloseClipboard();
    return 0;
}

int GridCtrl::ReadClipboardText(std::string& text) {
    if (!OpenClipboard()) return 1;
    HANDLE data = GetClipboardData(CF_TEXT);
    if (!data) {
        CloseClipboard();
        return 1;
    }
    HGLOBAL memory = static_cast<HGLOBAL>(data);
    text = static_cast<const char*>(GlobalLock(memory));
    GlobalUnlock(memory);
    CloseClipboard();
    return 0;
}

int GridCtrl::PasteClipboard() {
    std::string text;
    if (ReadClipboardText(text)) return 1;
    PasteText(text);
    return 0;
}

int GridCtrl::PasteText(const std::string& text) {
    const int startCol = sheet->currentCol, startRow = sheet->currentRow;
    int col = startCol, row = startRow, maxCol = col, maxRow = row;
    auto inTable = [this](int c, int r) {
        return c >= 0 && c < sheet->colCount && r >= 0 && r < sheet->rowCount;
    };
    // Cells keep their other properties: only the text changes.
    auto write = [&](const std::string& field) {
        if (!inTable(col, row)) return;
        GetCell(col, row, scratchCell);
        scratchCell.SetText(field);
        SetCell(col, row, scratchCell);
    };
    size_t at = 0;
    while (at < text.size()) {
        size_t end = text.find_first_of("\t\r\n", at);
        if (end == std::string::npos) end = text.size();
        // A delimiter where a field would start is an empty field.
        write(text.substr(at, end - at));
        if (end > at) {
            maxCol = std::max(maxCol, col);
            maxRow = std::max(maxRow, row);
        }
        if (end == text.size()) break;
        if (text[end] == '\t') {
            ++col;
        } else {
            col = startCol;
            ++row;
            // CR LF is one line end.
            if (text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n') ++end;
        }
        at = end + 1;
    }
    ClearSelection();
    SelectRange(startCol, startRow, maxCol, maxRow);
    RedrawAll();
    return 0;
}
