#pragma once
// A font at one size, ready to measure and draw code page 1252 text: its cairo font, the glyph
// and the whole-pixel advance of each of the 256 bytes, and its metrics in the platform's
// terms. Advances are rounded as a hinted bitmap font's are, so that a string measures exactly
// what it draws.

#include "platform/gdi/Gdi.h"

#include <array>
#include <cairo.h>
#include <string>

namespace gdi {

struct FaceInfo;

class RealizedFont {
public:
    // `lf` gives height and width in the platform's convention: a negative height is the
    // character height (the em) in pixels, a positive one the cell height, 0 the default.
    RealizedFont(const FaceInfo& face, const LOGFONT& lf);
    ~RealizedFont();
    RealizedFont(const RealizedFont&) = delete;
    RealizedFont& operator=(const RealizedFont&) = delete;

    cairo_scaled_font_t* ScaledFont() const { return scaled_; }
    unsigned long Glyph(unsigned char c) const { return glyphs_[c]; }
    int Advance(unsigned char c) const { return advances_[c]; }
    int Width(const char* text, int count) const;
    const TEXTMETRIC& Metrics() const { return metrics_; }
    const std::string& FaceName() const { return faceName_; }

    // Below the baseline (positive down) and thickness of the underline and strike-out bars.
    int UnderlineOffset() const { return underlineOffset_; }
    int UnderlineThickness() const { return underlineThickness_; }
    int StrikeOffset() const { return strikeOffset_; }
    int StrikeThickness() const { return strikeThickness_; }

private:
    cairo_scaled_font_t* scaled_ = nullptr;
    std::array<unsigned long, 256> glyphs_{};
    std::array<int, 256> advances_{};
    TEXTMETRIC metrics_;
    std::string faceName_;
    int underlineOffset_ = 1, underlineThickness_ = 1;
    int strikeOffset_ = 0, strikeThickness_ = 1;
};

} // namespace gdi
