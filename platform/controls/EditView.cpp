#include "platform/controls/EditView.h"

#include <algorithm>

namespace plat {

EditView::EditView(HWND hwnd) : hwnd(hwnd), meter(GetStockObject(SYSTEM_FONT)) {
    SetFont(GetStockObject(SYSTEM_FONT));
}

void EditView::SetFont(HFONT font) {
    SelectObject(meter.Dc(), font);
    TEXTMETRIC tm;
    GetTextMetrics(meter.Dc(), &tm);
    lineHeight = std::max<int>(1, tm.tmHeight);
    averageWidth = tm.tmAveCharWidth;
    SetMargins(EC_LEFTMARGIN | EC_RIGHTMARGIN, EC_USEFONTINFO, EC_USEFONTINFO);
}

void EditView::SetMargins(UINT which, int left, int right) {
    // The narrow margin the font suggests: a third of an average character.
    int fromFont = averageWidth / 3;
    if (which & EC_LEFTMARGIN) leftMargin = left == EC_USEFONTINFO ? fromFont : std::max(0, left);
    if (which & EC_RIGHTMARGIN)
        rightMargin = right == EC_USEFONTINFO ? fromFont : std::max(0, right);
}

RECT EditView::FormatRect() const {
    RECT client;
    GetClientRect(hwnd, &client);
    RECT r{client.left + leftMargin, client.top, client.right - rightMargin, client.bottom};
    // A line of text keeps a pixel off the top when there is room for it.
    if (client.bottom - client.top >= lineHeight + 2) r.top += 1;
    r.right = std::max(r.right, r.left);
    return r;
}

int EditView::VisibleLines() const {
    RECT f = FormatRect();
    return std::max(1, static_cast<int>(f.bottom - f.top) / lineHeight);
}

int EditView::TextWidth() const {
    RECT f = FormatRect();
    return static_cast<int>(f.right - f.left);
}

bool EditView::Fits(std::string_view text) const {
    SIZE size;
    GetTextExtentPoint32(meter.Dc(), text.data(), static_cast<int>(text.size()), &size);
    return size.cx <= TextWidth();
}

void EditView::Relayout(const EditBuffer& buffer, DWORD newStyle) {
    style = newStyle;
    bool multiLine = (style & ES_MULTILINE) != 0;
    shown = (style & ES_PASSWORD) && !multiLine ? std::string(buffer.Size(), '*') : buffer.Text();
    bool wrap = multiLine && !(style & ES_AUTOHSCROLL);
    layout.Build(meter.Dc(), shown, multiLine, wrap ? std::max(1, TextWidth()) : 0);
    // Text that got shorter or a window that got wider leaves no blank on the right.
    int widest = 0;
    for (int i = 0; i < layout.Count(); ++i) widest = std::max(widest, layout.Width(meter.Dc(), i));
    scrollX = std::clamp(scrollX, 0, std::max(0, widest + 1 - TextWidth()));
    topLine = std::clamp(topLine, 0, std::max(0, layout.Count() - VisibleLines()));
}

void EditView::Reveal(size_t pos) {
    int line = layout.LineOf(pos);
    if (line < topLine)
        topLine = line;
    else if (line >= topLine + VisibleLines())
        topLine = line - VisibleLines() + 1;
    bool wraps = (style & ES_MULTILINE) && !(style & ES_AUTOHSCROLL);
    if (wraps) return;
    int x = LineLeft(line) + scrollX - FormatRect().left + layout.X(meter.Dc(), pos);
    int width = TextWidth();
    if (x < scrollX)
        scrollX = x;
    else if (x > scrollX + width - 1)
        scrollX = x - width + 1;
}

void EditView::ScrollLines(int count) {
    topLine = std::clamp(topLine + count, 0, std::max(0, layout.Count() - VisibleLines()));
}

int EditView::LineLeft(int line) const {
    RECT f = FormatRect();
    int room = static_cast<int>(f.right - f.left) - layout.Width(meter.Dc(), line);
    int align = 0;
    if (room > 0 && (style & ES_CENTER))
        align = room / 2;
    else if (room > 0 && (style & ES_RIGHT))
        align = room;
    return static_cast<int>(f.left) + align - scrollX;
}

POINT EditView::PointOf(size_t pos) const {
    int line = layout.LineOf(pos);
    return POINT{LineLeft(line) + layout.X(meter.Dc(), pos),
                 static_cast<LONG>(FormatRect().top + (line - topLine) * lineHeight)};
}

size_t EditView::PlaceAt(POINT p) const {
    int row = static_cast<int>(p.y - FormatRect().top);
    int line = topLine + (row < 0 ? -1 - (-row - 1) / lineHeight : row / lineHeight);
    line = std::clamp(line, 0, layout.Count() - 1);
    return layout.PlaceAt(meter.Dc(), line, static_cast<int>(p.x) - LineLeft(line));
}

void EditView::Paint(HDC dc, const EditBuffer& buffer, bool showSelection, bool showCaret) const {
    SavedDC saved(dc);
    RECT f = FormatRect();
    IntersectClipRect(dc, f.left, f.top, f.right, f.bottom);
    SelectObject(dc, GetCurrentObject(meter.Dc(), OBJ_FONT));
    SetBkMode(dc, TRANSPARENT);
    size_t selStart = showSelection ? buffer.SelStart() : 0,
           selEnd = showSelection ? buffer.SelEnd() : 0;
    int last = std::min(layout.Count(), topLine + VisibleLines() + 1);
    for (int i = topLine; i < last; ++i) {
        const EditLayout::Line& line = layout.At(i);
        int y = static_cast<int>(f.top) + (i - topLine) * lineHeight;
        int left = LineLeft(i);
        size_t end = line.start + line.length;
        size_t cuts[4] = {line.start, std::clamp(selStart, line.start, end),
                          std::clamp(selEnd, line.start, end), end};
        for (int part = 0; part < 3; ++part) {
            if (cuts[part + 1] <= cuts[part]) continue;
            int x = left + layout.X(meter.Dc(), cuts[part]);
            const char* text = shown.data() + cuts[part];
            auto count = static_cast<UINT>(cuts[part + 1] - cuts[part]);
            if (part != 1) {
                ExtTextOut(dc, x, y, 0, nullptr, text, count, nullptr);
                continue;
            }
            SIZE size;
            GetTextExtentPoint32(dc, text, static_cast<int>(count), &size);
            RECT band{x, y, x + size.cx, y + lineHeight};
            COLORREF ink = SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
            COLORREF paper = SetBkColor(dc, GetSysColor(COLOR_HIGHLIGHT));
            ExtTextOut(dc, x, y, ETO_OPAQUE, &band, text, count, nullptr);
            SetTextColor(dc, ink);
            SetBkColor(dc, paper);
        }
    }
    if (showCaret) {
        POINT at = PointOf(buffer.Caret());
        PatBlt(dc, at.x, at.y, 1, lineHeight, DSTINVERT);
    }
}

} // namespace plat
