#include "platform/gdi/TextRun.h"

#include "platform/base/Codepage.h"
#include "platform/gdi/Paint.h"

#include <string>
#include <vector>

namespace gdi {

namespace {

int AdvanceOf(const RealizedFont& font, const TextRun& run, int i) {
    return run.advances.empty() ? font.Advance(static_cast<unsigned char>(run.text[i]))
                                : run.advances[i];
}

// A printer's PDF gets the text as well as the glyphs, so that it can be searched and copied.
void ShowWithText(cairo_t* cr, const TextRun& run, const std::vector<cairo_glyph_t>& glyphs) {
    static std::string utf8;
    static std::vector<cairo_text_cluster_t> clusters;
    utf8.clear();
    clusters.clear();
    for (int i = 0; i < run.count; ++i) {
        std::string_view c = ::Cp1252ByteToUtf8(static_cast<unsigned char>(run.text[i]));
        utf8.append(c);
        clusters.push_back(cairo_text_cluster_t{static_cast<int>(c.size()), 1});
    }
    cairo_show_text_glyphs(cr, utf8.data(), static_cast<int>(utf8.size()), glyphs.data(),
                           static_cast<int>(glyphs.size()), clusters.data(),
                           static_cast<int>(clusters.size()), cairo_text_cluster_flags_t{});
}

} // namespace

int RunWidth(const RealizedFont& font, const TextRun& run) {
    int width = 0;
    for (int i = 0; i < run.count; ++i) width += AdvanceOf(font, run, i);
    return width;
}

bool DrawRun(DeviceContext& dc, const Font& fontObject, int x, int top, const TextRun& run,
             const RECT* clip, bool opaqueBox) {
    cairo_t* cr = dc.Canvas();
    if (!cr) return false;
    if (clip && (clip->right <= clip->left || clip->bottom <= clip->top)) return true;
    const RealizedFont& font = *fontObject.font;
    const TEXTMETRIC& tm = font.Metrics();
    int width = RunWidth(font, run);
    int baseline = top + tm.tmAscent;

    cairo_save(cr);
    if (clip) {
        cairo_new_path(cr);
        cairo_rectangle(cr, clip->left, clip->top, clip->right - clip->left,
                        clip->bottom - clip->top);
        cairo_clip(cr);
    }
    if (opaqueBox) {
        RECT box{x, top, x + width, top + tm.tmHeight};
        FillRects(dc, std::span(&box, 1), dc.state.bkColor);
    }

    // Underline, strike-out and the prefix mark, drawn after the glyphs.
    std::vector<RECT> bars;
    static std::vector<cairo_glyph_t> glyphs;
    glyphs.clear();
    int pen = x;
    for (int i = 0; i < run.count; ++i) {
        auto c = static_cast<unsigned char>(run.text[i]);
        int advance = AdvanceOf(font, run, i);
        glyphs.push_back(
            cairo_glyph_t{font.Glyph(c), static_cast<double>(pen), static_cast<double>(baseline)});
        if (i == run.prefixUnderline) {
            int y = baseline + font.UnderlineOffset();
            bars.push_back(RECT{pen, y, pen + advance, y + font.UnderlineThickness()});
        }
        pen += advance;
    }
    if (fontObject.logFont.lfUnderline) {
        int y = baseline + font.UnderlineOffset();
        bars.push_back(RECT{x, y, x + width, y + font.UnderlineThickness()});
    }
    if (fontObject.logFont.lfStrikeOut) {
        int y = baseline + font.StrikeOffset();
        bars.push_back(RECT{x, y, x + width, y + font.StrikeThickness()});
    }

    cairo_set_scaled_font(cr, font.ScaledFont());
    SetSourceColor(cr, dc.state.textColor);
    if (cairo_surface_has_show_text_glyphs(dc.Surface()))
        ShowWithText(cr, run, glyphs);
    else
        cairo_show_glyphs(cr, glyphs.data(), static_cast<int>(glyphs.size()));
    if (!bars.empty()) FillRects(dc, bars, dc.state.textColor);
    cairo_restore(cr);
    return true;
}

} // namespace gdi
