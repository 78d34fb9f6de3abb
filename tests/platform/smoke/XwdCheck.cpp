// Reads an X window dump of the screen and says whether the example dialog is on it: an
// active caption, a button face, white fields, dark text and some greyed text.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

uint32_t Big(const std::vector<unsigned char>& d, size_t at) {
    return (uint32_t{d[at]} << 24) | (uint32_t{d[at + 1]} << 16) | (uint32_t{d[at + 2]} << 8) | d[at + 3];
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    std::ifstream in(argv[1], std::ios::binary);
    std::vector<unsigned char> d((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (d.size() < 100) {
        std::fprintf(stderr, "xwd: file too short\n");
        return 1;
    }
    uint32_t headerSize = Big(d, 0), width = Big(d, 16), height = Big(d, 20), byteOrder = Big(d, 28);
    uint32_t bpp = Big(d, 44), stride = Big(d, 48), colors = Big(d, 76);
    size_t start = headerSize + static_cast<size_t>(colors) * 12;
    if ((bpp != 24 && bpp != 32) || start + static_cast<size_t>(stride) * height > d.size()) {
        std::fprintf(stderr, "xwd: unexpected layout (bpp %u)\n", bpp);
        return 1;
    }
    long caption = 0, face = 0, white = 0, dark = 0, grey = 0;
    for (uint32_t y = 0; y < height; ++y) {
        for (uint32_t x = 0; x < width; ++x) {
            const unsigned char* p = &d[start + static_cast<size_t>(y) * stride + x * (bpp / 8)];
            // Least significant byte first: blue, green, red; else the other way round.
            int r = byteOrder == 0 ? p[2] : p[bpp / 8 - 3], g = byteOrder == 0 ? p[1] : p[bpp / 8 - 2],
                b = byteOrder == 0 ? p[0] : p[bpp / 8 - 1];
            if (r == 10 && g == 36 && b == 106) ++caption;
            else if (r == 212 && g == 208 && b == 200) ++face;
            else if (r == 255 && g == 255 && b == 255) ++white;
            else if (r < 60 && g < 60 && b < 60) ++dark;
            else if (r == 128 && g == 128 && b == 128) ++grey;
        }
    }
    std::printf("caption %ld face %ld white %ld dark %ld grey %ld\n", caption, face, white, dark, grey);
    bool ok = caption > 2000 && face > 20000 && white > 5000 && dark > 300 && grey > 20;
    std::printf(ok ? "the dialog is on the screen\n" : "no dialog to be seen\n");
    return ok ? 0 : 1;
}
