#include "apps/cadhost/CommandLine.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

bool ReadFile(const std::string& path, std::string* text) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream content;
    content << in.rdbuf();
    *text = content.str();
    return !in.bad();
}

// A side of the screen: digits only, 1 to 16384 pixels.
bool ParseSide(std::string_view digits, int* side) {
    if (digits.empty()) return false;
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), *side);
    return error == std::errc() && end == digits.data() + digits.size() && *side >= 1 &&
           *side <= 16384;
}

} // namespace

bool CommandLine::Parse(const std::vector<std::string>& arguments, std::string* error) {
    int forms = 0;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string option = arguments[i];
        std::string value;
        bool hasValue = false;
        if (option.starts_with("--") && option.find('=') != std::string::npos) {
            value = option.substr(option.find('=') + 1);
            option.resize(option.find('='));
            hasValue = true;
        }
        const bool takesValue = option == "--module" || option == "--drawing" ||
                                option == "--screen" || option == "--script" || option == "-e";
        if (takesValue && !hasValue) {
            if (i + 1 == arguments.size()) {
                *error = option + " needs a value";
                return false;
            }
            value = arguments[++i];
        } else if (!takesValue && hasValue) {
            *error = option + " takes no value";
            return false;
        }

        if (option == "--module") {
            modulePath = value;
        } else if (option == "--drawing") {
            drawingPath = value;
        } else if (option == "--headless") {
            headless = true;
        } else if (option == "--screen") {
            if (!ParseScreen(value, error)) return false;
        } else if (option == "--script") {
            scriptPath = value;
            if (!ReadFile(value, &scriptText)) {
                *error = "cannot read script " + value;
                return false;
            }
        } else if (option == "-e") {
            sources.push_back({"-e form " + std::to_string(++forms), value});
        } else if (option == "--help" || option == "-h") {
            help = true;
        } else if (option.size() > 1 && option.front() == '-') {
            *error = "unknown option " + option;
            return false;
        } else {
            LispSource file{option, {}};
            if (!ReadFile(option, &file.text)) {
                *error = "cannot read " + option;
                return false;
            }
            sources.push_back(std::move(file));
        }
    }
    return true;
}

bool CommandLine::ParseScreen(const std::string& value, std::string* error) {
    const std::size_t x = value.find('x');
    if (x == std::string::npos || !ParseSide(std::string_view(value).substr(0, x), &screenWidth) ||
        !ParseSide(std::string_view(value).substr(x + 1), &screenHeight)) {
        *error = "--screen wants WIDTHxHEIGHT in pixels, 1 to 16384 each, not " + value;
        return false;
    }
    return true;
}

std::string CommandLine::DefaultModule() {
    const std::filesystem::path configured = CADHOST_DEFAULT_MODULE;
    if (configured.is_absolute()) return configured.string();
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return configured.string();
    return (program.parent_path() / configured).lexically_normal().string();
}

const char* CommandLine::Usage() {
    return "usage: cadhost [--module PATH] [--drawing PATH] [--headless] [--screen WxH]\n"
           "               [--script FILE] [-e FORM]... [FILE.lsp]...\n"
           "Loads the module, evaluates the forms and files in order and prints each result.\n"
           "Without forms or files it reads forms from standard input.\n"
           "Windows are real when there is a display; --headless, or a script for input,\n"
           "puts them on a virtual screen.\n";
}
