#include "platform/gdi/RealizedFont.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

#include "platform/base/Codepage.h"
#include "platform/gdi/FontCache.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace gdi {

namespace {

// A height of 0 asks for the default: 8 points at 96 dpi, the size of the dialog font.
constexpr LONG DefaultHeight = -11;
// Heights beyond this are taken as this; no display or page needs more.
constexpr LONG MaxHeight = 4096;

int Round(double v) {
    return static_cast<int>(std::lround(v));
}

cairo_font_options_t* DrawingOptions() {
    static cairo_font_options_t* options = [] {
        cairo_font_options_t* o = cairo_font_options_create();
        cairo_font_options_set_antialias(o, CAIRO_ANTIALIAS_GRAY);
        cairo_font_options_set_hint_style(o, CAIRO_HINT_STYLE_SLIGHT);
        cairo_font_options_set_hint_metrics(o, CAIRO_HINT_METRICS_ON);
        return o;
    }();
    return options;
}

} // namespace

RealizedFont::RealizedFont(const FaceInfo& face, const LOGFONT& lf) : faceName_(face.family) {
    FT_Face ft = face.ft;
    const double units = ft->units_per_EM > 0 ? ft->units_per_EM : 2048;
    auto* os2 = static_cast<TT_OS2*>(FT_Get_Sfnt_Table(ft, FT_SFNT_OS2));
    // The platform measures cells by the face's Windows ascent and descent.
    double ascent = os2 && os2->usWinAscent ? os2->usWinAscent : ft->ascender;
    double descent = os2 && os2->usWinDescent ? os2->usWinDescent : -ft->descender;
    if (ascent + descent <= 0) ascent = units, descent = 0;
    double average = os2 && os2->xAvgCharWidth > 0 ? os2->xAvgCharWidth : units / 2;

    LONG height = lf.lfHeight == 0 ? DefaultHeight : lf.lfHeight;
    height = std::clamp<LONG>(height, -MaxHeight, MaxHeight);
    double em;
    int asc, desc;
    if (height < 0) {
        em = -height;
        asc = Round(em * ascent / units);
        desc = Round(em * descent / units);
    } else {
        em = height * units / (ascent + descent);
        asc = Round(height * ascent / (ascent + descent));
        desc = height - asc;
    }
    LONG width = std::min<LONG>(std::labs(lf.lfWidth), MaxHeight);
    double emX = width > 0 ? width * units / average : em;

    cairo_matrix_t fontMatrix, ctm;
    cairo_matrix_init_scale(&fontMatrix, emX, em);
    cairo_matrix_init_identity(&ctm);
    scaled_ = cairo_scaled_font_create(face.cairo, &fontMatrix, &ctm, DrawingOptions());

    int widest = 0;
    for (int b = 0; b < 256; ++b) {
        glyphs_[b] = FT_Get_Char_Index(ft, ::Cp1252ToCodePoint(static_cast<unsigned char>(b)));
        cairo_glyph_t glyph{glyphs_[b], 0, 0};
        cairo_text_extents_t extents;
        cairo_scaled_font_glyph_extents(scaled_, &glyph, 1, &extents);
        advances_[b] = std::max(0, Round(extents.x_advance));
        widest = std::max(widest, advances_[b]);
    }

    metrics_.tmHeight = asc + desc;
    metrics_.tmAscent = asc;
    metrics_.tmDescent = desc;
    metrics_.tmInternalLeading = std::max(0, asc + desc - Round(em));
    metrics_.tmAveCharWidth = std::max(1, Round(average * emX / units));
    metrics_.tmMaxCharWidth = widest;
    metrics_.tmWeight = lf.lfWeight != 0 ? lf.lfWeight : FW_NORMAL;
    metrics_.tmItalic = lf.lfItalic ? 1 : 0;
    metrics_.tmUnderlined = lf.lfUnderline ? 1 : 0;
    metrics_.tmStruckOut = lf.lfStrikeOut ? 1 : 0;
    metrics_.tmPitchAndFamily = FT_IS_FIXED_WIDTH(ft)
                                    ? FF_MODERN | TMPF_VECTOR | TMPF_TRUETYPE
                                    : FF_SWISS | TMPF_FIXED_PITCH | TMPF_VECTOR | TMPF_TRUETYPE;
    metrics_.tmCharSet = ANSI_CHARSET;

    double scale = em / units;
    underlineThickness_ = std::max(1, Round(ft->underline_thickness * scale));
    underlineOffset_ =
        std::max(1, Round(-ft->underline_position * scale) - underlineThickness_ / 2);
    if (os2 && os2->yStrikeoutSize > 0) {
        strikeThickness_ = std::max(1, Round(os2->yStrikeoutSize * scale));
        strikeOffset_ = -Round(os2->yStrikeoutPosition * scale);
    } else {
        strikeThickness_ = underlineThickness_;
        strikeOffset_ = -asc / 3;
    }
}

RealizedFont::~RealizedFont() {
    cairo_scaled_font_destroy(scaled_);
}

int RealizedFont::Width(const char* text, int count) const {
    int width = 0;
    for (int i = 0; i < count; ++i) width += advances_[static_cast<unsigned char>(text[i])];
    return width;
}

} // namespace gdi
