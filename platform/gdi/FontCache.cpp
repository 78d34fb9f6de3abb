#include "platform/gdi/FontCache.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include "platform/gdi/RealizedFont.h"

#include <array>
#include <cairo-ft.h>
#include <cstdlib>
#include <cstring>
#include <fontconfig/fontconfig.h>
#include <strings.h>

namespace gdi {

namespace {

constexpr const char* SansFamily = "DejaVu Sans";
constexpr const char* MonoFamily = "DejaVu Sans Mono";

constexpr std::array<const char*, 6> MonospaceNames = {
    "Courier", "Courier New", "Fixedsys", "Terminal", "Lucida Console", "Consolas",
};

cairo_user_data_key_t FtFaceKey;

void DoneFace(void* face) {
    FT_Done_Face(static_cast<FT_Face>(face));
}

} // namespace

std::string MapFaceName(const char* faceName, BYTE pitchAndFamily) {
    std::string name(faceName, strnlen(faceName, LF_FACESIZE));
    if (name.empty())
        return (pitchAndFamily & 0x3) == FIXED_PITCH || (pitchAndFamily & 0xF0) == FF_MODERN
                   ? MonoFamily
                   : SansFamily;
    for (const char* mono : MonospaceNames)
        if (strcasecmp(name.c_str(), mono) == 0) return MonoFamily;
    if (strcasecmp(name.c_str(), MonoFamily) == 0) return MonoFamily;
    return SansFamily;
}

FontCache& FontCache::Get() {
    static FontCache* cache = new FontCache;
    return *cache;
}

const FaceInfo* FontCache::Face(const std::string& family, bool bold, bool italic) {
    auto key = std::make_tuple(family, bold, italic);
    if (auto it = faces_.find(key); it != faces_.end()) return it->second.get();
    if (!library_) {
        if (FT_Init_FreeType(&library_) != 0) return nullptr;
        // Fontconfig keeps its configuration until FcFini; nothing else of the process asks it
        // for fonts, so it can let go at exit.
        std::atexit(FcFini);
    }

    FcPattern* want = FcPatternCreate();
    FcPatternAddString(want, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(want, FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(want, FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcConfigSubstitute(nullptr, want, FcMatchPattern);
    FcDefaultSubstitute(want);
    FcResult result;
    FcPattern* match = FcFontMatch(nullptr, want, &result);
    FcPatternDestroy(want);
    if (!match) return nullptr;

    FcChar8* file = nullptr;
    int index = 0, weight = FC_WEIGHT_REGULAR, slant = FC_SLANT_ROMAN;
    FcPatternGetString(match, FC_FILE, 0, &file);
    FcPatternGetInteger(match, FC_INDEX, 0, &index);
    FcPatternGetInteger(match, FC_WEIGHT, 0, &weight);
    FcPatternGetInteger(match, FC_SLANT, 0, &slant);
    FT_Face ft = nullptr;
    bool opened =
        file && FT_New_Face(library_, reinterpret_cast<const char*>(file), index, &ft) == 0;
    FcPatternDestroy(match);
    if (!opened) return nullptr;

    // Faces are opened from their files, not through the matched pattern, so that the system's
    // rendering settings (sub-pixel colour, hinting) cannot change what the platform draws.
    auto face = std::make_unique<FaceInfo>();
    face->family = ft->family_name ? ft->family_name : family;
    face->ft = ft;
    face->cairo = cairo_ft_font_face_create_for_ft_face(ft, 0);
    cairo_font_face_set_user_data(face->cairo, &FtFaceKey, ft, DoneFace);
    unsigned synthesize = 0;
    if (bold && weight < FC_WEIGHT_DEMIBOLD) synthesize |= CAIRO_FT_SYNTHESIZE_BOLD;
    if (italic && slant == FC_SLANT_ROMAN) synthesize |= CAIRO_FT_SYNTHESIZE_OBLIQUE;
    cairo_ft_font_face_set_synthesize(face->cairo, synthesize);
    return faces_.emplace(key, std::move(face)).first->second.get();
}

std::shared_ptr<const RealizedFont> FontCache::Realize(const LOGFONT& lf) {
    std::string family = MapFaceName(lf.lfFaceName, lf.lfPitchAndFamily);
    const FaceInfo* face = Face(family, lf.lfWeight >= 600, lf.lfItalic != 0);
    if (!face) return nullptr;
    auto key = std::make_tuple(face, lf.lfHeight, lf.lfWidth);
    if (auto it = fonts_.find(key); it != fonts_.end()) return it->second;
    auto font = std::make_shared<const RealizedFont>(*face, lf);
    if (cairo_scaled_font_status(font->ScaledFont()) != CAIRO_STATUS_SUCCESS) return nullptr;
    fonts_.emplace(key, font);
    return font;
}

} // namespace gdi
