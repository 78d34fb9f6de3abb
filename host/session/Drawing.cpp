#include "host/session/Drawing.h"

#include <filesystem>

namespace host {

std::optional<Drawing> Drawing::At(std::string_view path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path given = path.empty() ? fs::path("drawing.dwg") : fs::path(path);
    if (!given.has_filename() || given.filename() == "." || given.filename() == "..")
        return std::nullopt;
    const fs::path full = fs::absolute(given, error).lexically_normal();
    if (error) return std::nullopt;
    std::string prefix = full.parent_path().string();
    if (prefix.empty() || prefix.back() != '/') prefix += '/';
    return Drawing(std::move(prefix), full.filename().string());
}

} // namespace host
