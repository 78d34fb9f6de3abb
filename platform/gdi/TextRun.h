#pragma once
// Drawing one line of code page 1252 text with a realized font, shared by ExtTextOut and
// DrawText. Glyphs stand on whole pixels at the font's integer advances (or the caller's), so
// what is drawn matches what was measured.

#include "platform/gdi/DeviceContext.h"
#include "platform/gdi/RealizedFont.h"

#include <span>

namespace gdi {

struct TextRun {
    const char* text = nullptr;
    int count = 0;
    // Each character's advance; empty for the font's own.
    std::span<const int> advances;
    // The character DrawText underlines for a '&' prefix; -1 for none.
    int prefixUnderline = -1;
};

// The run's width in pixels.
int RunWidth(const RealizedFont& font, const TextRun& run);

// Draws the run with the top left of its cell at (x, top), in surface coordinates, in the
// context's text colour and with its font's underline and strike-out. `opaqueBox` fills the
// run's cell with the background colour first. `clip` (surface coordinates) limits everything.
bool DrawRun(DeviceContext& dc, const Font& font, int x, int top, const TextRun& run,
             const RECT* clip, bool opaqueBox);

} // namespace gdi
