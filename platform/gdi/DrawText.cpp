// Formatted text in a rectangle.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/TextLayout.h"
#include "platform/gdi/TextRun.h"

#include <cstring>

int DrawText(HDC dc, const char* text, int count, RECT* r, UINT format) {
    DeviceContext* d = gdi::LiveContext(dc);
    auto* font = d ? d->state.font.As<gdi::Font>() : nullptr;
    if (!font || !font->font || !r || !text || count < -1) return 0;
    if (count == -1) count = static_cast<int>(std::strlen(text));

    gdi::TextLayout layout(*font->font, text, count, format, r->right - r->left);
    int lineHeight = font->font->Metrics().tmHeight;
    int height = lineHeight * static_cast<int>(layout.Lines().size());
    if (format & DT_CALCRECT) {
        r->right = r->left + layout.Width();
        r->bottom = r->top + height;
        return height;
    }

    int top = r->top;
    if (format & DT_SINGLELINE) {
        if (format & DT_VCENTER)
            top = r->top + (r->bottom - r->top - lineHeight) / 2;
        else if (format & DT_BOTTOM)
            top = r->bottom - lineHeight;
    }
    RECT clip = d->ToSurface(*r);
    bool opaque = d->state.bkMode == OPAQUE;
    int y = top;
    for (const auto& line : layout.Lines()) {
        int x = r->left;
        if (format & DT_CENTER)
            x = r->left + (r->right - r->left - line.width) / 2;
        else if (format & DT_RIGHT)
            x = r->right - line.width;
        gdi::TextRun run{line.text.data(), static_cast<int>(line.text.size()), line.advances,
                         line.prefixUnderline};
        POINT at = d->ToSurface(POINT{x, y});
        gdi::DrawRun(*d, *font, at.x, at.y, run, (format & DT_NOCLIP) ? nullptr : &clip, opaque);
        y += lineHeight;
    }
    // With the text moved down, the answer is where it ends below the rectangle's top.
    return (format & DT_SINGLELINE) && (format & (DT_VCENTER | DT_BOTTOM)) ? top - r->top + height
                                                                           : height;
}
