#pragma once
// The drawing the host was started with. Only its place matters: the file need not exist, and
// the module reads the folder and the name through the system variables DWGPREFIX and DWGNAME.

#include <optional>
#include <string>
#include <string_view>

namespace host {

class Drawing {
public:
    // A relative path is taken from the current folder; an empty one names drawing.dwg there.
    // Nothing when the path names no file (it ends in a separator, "." or "..").
    static std::optional<Drawing> At(std::string_view path);

    // The absolute folder, ending in "/".
    const std::string& Prefix() const { return prefix; }
    const std::string& Name() const { return name; }

private:
    Drawing(std::string prefix, std::string name)
        : prefix(std::move(prefix)), name(std::move(name)) {}

    std::string prefix;
    std::string name;
};

} // namespace host
