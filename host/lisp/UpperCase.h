#pragma once
// Symbol and function names compare without regard to case; the host keeps them in upper case.
// Only ASCII letters change: other bytes of the code page stay as they are.

#include <string>
#include <string_view>

namespace host {

inline std::string UpperCase(std::string_view name) {
    std::string upper(name);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

} // namespace host
