#pragma once
// Fonts come from fontconfig and FreeType. The face names programs of the platform ask for are
// mapped to faces that are always installed: the Courier family to DejaVu Sans Mono, everything
// else to DejaVu Sans. Faces and sized fonts are made once and shared, so creating a font that
// was asked for before costs a map lookup.

#include "platform/gdi/Gdi.h"

#include <cairo.h>
#include <map>
#include <memory>
#include <string>
#include <tuple>

// FreeType's handles, as its own header declares them.
typedef struct FT_FaceRec_* FT_Face;
typedef struct FT_LibraryRec_* FT_Library;

namespace gdi {

class RealizedFont;

// An opened face: the FreeType face for its tables and the cairo face for drawing.
struct FaceInfo {
    std::string family;
    FT_Face ft = nullptr;
    cairo_font_face_t* cairo = nullptr;
};

// The installed family that stands for a face name of the platform.
std::string MapFaceName(const char* faceName, BYTE pitchAndFamily);

// Lives as long as the process: fonts of stock objects and of contexts still use its faces
// while the program exits.
class FontCache {
public:
    static FontCache& Get();

    // Null when no face can be found or opened.
    std::shared_ptr<const RealizedFont> Realize(const LOGFONT& lf);

private:
    FontCache() = default;
    const FaceInfo* Face(const std::string& family, bool bold, bool italic);

    FT_Library library_ = nullptr;
    std::map<std::tuple<std::string, bool, bool>, std::unique_ptr<FaceInfo>> faces_;
    std::map<std::tuple<const FaceInfo*, LONG, LONG>, std::shared_ptr<const RealizedFont>> fonts_;
};

} // namespace gdi
