// Text output and measurement with the context's font.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/Paint.h"
#include "platform/gdi/TextRun.h"

#include <algorithm>
#include <cstring>

using gdi::LiveContext;

namespace {

const gdi::Font* FontOf(const DeviceContext& d) {
    auto* font = d.state.font.As<gdi::Font>();
    return font && font->font ? font : nullptr;
}

} // namespace

BOOL ExtTextOut(HDC dc, int x, int y, UINT options, const RECT* r, const char* text, UINT count,
                const int* dx) {
    DeviceContext* d = LiveContext(dc);
    if (!d || (count > 0 && !text)) return FALSE;
    // The rectangle's corners may come in any order.
    RECT box = r ? d->ToSurface(RECT{std::min(r->left, r->right), std::min(r->top, r->bottom),
                                     std::max(r->left, r->right), std::max(r->top, r->bottom)})
                 : RECT{};
    if ((options & ETO_OPAQUE) && r) gdi::FillRects(*d, std::span(&box, 1), d->state.bkColor);
    if (count == 0) return TRUE;
    const gdi::Font* font = FontOf(*d);
    if (!font) return FALSE;

    gdi::TextRun run;
    run.text = text;
    run.count = static_cast<int>(count);
    if (dx) run.advances = std::span(dx, count);
    const TEXTMETRIC& tm = font->font->Metrics();
    int width = gdi::RunWidth(*font->font, run);
    UINT align = d->state.textAlign;
    if ((align & TA_CENTER) == TA_CENTER)
        x -= width / 2;
    else if ((align & TA_CENTER) == TA_RIGHT)
        x -= width;
    int top = y;
    if ((align & TA_BASELINE) == TA_BASELINE)
        top = y - tm.tmAscent;
    else if ((align & TA_BASELINE) == TA_BOTTOM)
        top = y - tm.tmHeight;

    POINT at = d->ToSurface(POINT{x, top});
    const RECT* clip = (options & ETO_CLIPPED) && r ? &box : nullptr;
    return gdi::DrawRun(*d, *font, at.x, at.y, run, clip, d->state.bkMode == OPAQUE);
}

BOOL TextOut(HDC dc, int x, int y, const char* text, int count) {
    if (count < 0) return FALSE;
    return ExtTextOut(dc, x, y, 0, nullptr, text, static_cast<UINT>(count), nullptr);
}

BOOL GetTextExtentPoint32(HDC dc, const char* text, int count, SIZE* size) {
    DeviceContext* d = LiveContext(dc);
    const gdi::Font* font = d ? FontOf(*d) : nullptr;
    if (!font || !size || count < 0 || (count > 0 && !text)) return FALSE;
    *size = SIZE{font->font->Width(text, count), font->font->Metrics().tmHeight};
    return TRUE;
}

BOOL GetTextMetrics(HDC dc, TEXTMETRIC* tm) {
    DeviceContext* d = LiveContext(dc);
    const gdi::Font* font = d ? FontOf(*d) : nullptr;
    if (!font || !tm) return FALSE;
    *tm = font->font->Metrics();
    return TRUE;
}

int GetTextFace(HDC dc, int count, char* face) {
    DeviceContext* d = LiveContext(dc);
    const gdi::Font* font = d ? FontOf(*d) : nullptr;
    if (!font) return 0;
    // The face actually drawn with, which for a mapped name is the installed family.
    const std::string& name = font->font->FaceName();
    if (!face) return static_cast<int>(name.size()) + 1;
    if (count <= 0) return 0;
    size_t n = std::min(name.size(), static_cast<size_t>(count - 1));
    std::memcpy(face, name.data(), n);
    face[n] = '\0';
    return static_cast<int>(n);
}
