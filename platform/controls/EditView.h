#pragma once
// What an edit control shows of its text: the formatting rectangle inside the margins, the
// lines of the layout, how far the text is scrolled, and where each place of the text lies on
// the window. The control tells it when the text, the size, the font or the style change.

#include "platform/controls/EditBuffer.h"
#include "platform/controls/EditLayout.h"
#include "platform/controls/GdiScope.h"

#include <string>

namespace plat {

class EditView {
public:
    explicit EditView(HWND hwnd);

    // The font also gives the margins, as EC_USEFONTINFO asks.
    void SetFont(HFONT font);
    void SetMargins(UINT which, int left, int right);
    int LeftMargin() const { return leftMargin; }
    int RightMargin() const { return rightMargin; }

    // Lays the text out anew with the window's present size and style.
    void Relayout(const EditBuffer& buffer, DWORD style);
    // Scrolls the least that shows the place `pos`.
    void Reveal(size_t pos);
    void ScrollLines(int count);

    RECT FormatRect() const;
    const EditLayout& Layout() const { return layout; }
    int LineHeight() const { return lineHeight; }
    int VisibleLines() const;
    int TextWidth() const;
    // Whether a single line of `text` fits between the margins.
    bool Fits(std::string_view text) const;
    // The top left of the place `pos` and the place nearest a point, in client coordinates.
    POINT PointOf(size_t pos) const;
    size_t PlaceAt(POINT p) const;

    // Draws the text in the context's text colour, the selection highlighted, and a caret.
    void Paint(HDC dc, const EditBuffer& buffer, bool showSelection, bool showCaret) const;

private:
    int LineLeft(int line) const; // where a line's text starts on the window

    HWND hwnd;
    MeasureDC meter;
    int lineHeight = 0;
    int averageWidth = 0;
    int leftMargin = 0;
    int rightMargin = 0;
    DWORD style = 0;
    std::string shown; // the text, or its mask of a password
    EditLayout layout;
    int scrollX = 0; // pixels scrolled off to the left
    int topLine = 0; // first line shown
};

} // namespace plat
