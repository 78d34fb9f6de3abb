#include "parcel/WindowSettings.h"

#include "platform/base/MbString.h"

#include <cstdio>
#include <vector>

namespace {

constexpr char FileName[] = "kervgrid.set";

} // namespace

WindowSettings::WindowSettings(const std::string& modulePath) {
    std::vector<char> lower(modulePath.begin(), modulePath.end());
    lower.push_back('\0');
    _mbslwr(lower.data());
    const std::string folded(lower.data());
    const char* slash = _mbsrchr(folded.c_str(), '/');
    if (!slash) slash = _mbsrchr(folded.c_str(), '\\');
    if (!slash) {
        path = FileName;
        return;
    }
    const std::string moduleName(slash + 1);
    // An empty name would match everywhere; such a path names a folder, and the file goes in it.
    if (moduleName.empty()) {
        path = folded + FileName;
        return;
    }
    for (std::size_t at = 0; at < folded.size();) {
        const char* found = _mbsstr(folded.c_str() + at, moduleName.c_str());
        if (!found) {
            path.append(folded, at);
            break;
        }
        const std::size_t offset = static_cast<std::size_t>(found - folded.c_str());
        path.append(folded, at, offset - at).append(FileName);
        at = offset + moduleName.size();
    }
}

void WindowSettings::Read(int widths[4]) const {
    std::FILE* file = std::fopen(path.c_str(), "r");
    if (!file) return;
    // "%i" also takes 0x and a leading 0 as hexadecimal and octal, as the file's writer never does.
    for (int i = 0; i < 4; ++i)
        if (std::fscanf(file, "%i ", &widths[i]) != 1) break;
    std::fclose(file);
}

void WindowSettings::Write(const int widths[4]) const {
    std::FILE* file = std::fopen(path.c_str(), "w");
    if (!file) return;
    for (int i = 0; i < 4; ++i) std::fprintf(file, "%i ", widths[i]);
    std::fclose(file);
}
