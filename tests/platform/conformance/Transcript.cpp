#include "Transcript.h"

#include <cstdarg>
#include <fstream>
#include <cctype>
#include <sstream>

void Transcript::Print(const char* format, ...) {
    char buffer[1024];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    // Written as the recording platform's C runtime writes text: each line feed as CR LF.
    for (const char* c = buffer; *c; ++c) {
        if (*c == '\n') text += '\r';
        text += *c;
    }
}

std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::string line;
    std::istringstream in(text);
    while (std::getline(in, line)) {
        // Both sides end their lines in CR LF, as the recording platform's C runtime writes them.
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

namespace {

// The line with every number (decimal, or hexadecimal after 0x) replaced by N.
std::string Shape(const std::string& line) {
    std::string out;
    for (size_t i = 0; i < line.size();) {
        auto digit = [&](size_t k) { return k < line.size() && std::isdigit(static_cast<unsigned char>(line[k])); };
        auto hex = [&](size_t k) { return k < line.size() && std::isxdigit(static_cast<unsigned char>(line[k])); };
        if (line.compare(i, 2, "0x") == 0 && hex(i + 2)) {
            for (i += 2; hex(i); ++i) {}
            out += 'N';
        } else if (digit(i) || (line[i] == '-' && digit(i + 1))) {
            for (++i; digit(i); ++i) {}
            out += 'N';
        } else {
            out += line[i++];
        }
    }
    return out;
}

}  // namespace

::testing::AssertionResult MatchesTrace(const Transcript& actual, const std::string& name, const TraceRules& rules) {
    std::ifstream file(std::string(TRACE_DIR) + "/" + name + ".txt", std::ios::binary);
    if (!file) return ::testing::AssertionFailure() << "no recording " << name << ".txt";
    std::stringstream content;
    content << file.rdbuf();
    std::vector<std::string> expected = SplitLines(content.str());
    if (rules.adjust) expected = rules.adjust(expected);
    std::vector<std::string> got = SplitLines(actual.Text());
    for (size_t i = 0; i < std::max(expected.size(), got.size()); ++i) {
        std::string want = i < expected.size() ? expected[i] : "<end of recording>";
        std::string have = i < got.size() ? got[i] : "<end of transcript>";
        bool ok = want == have;
        if (!ok && i < expected.size() && i < got.size()) {
            if (rules.custom && rules.custom(i, want, have)) ok = true;
            for (const std::string& key : rules.shapeOnly)
                if (want.find(key) != std::string::npos && Shape(want) == Shape(have)) ok = true;
        }
        if (!ok)
            return ::testing::AssertionFailure() << name << ".txt line " << (i + 1) << " differs\n  recorded: "
                                                 << want << "\n  printed:  " << have << "\nwhole transcript:\n"
                                                 << actual.Text();
    }
    return ::testing::AssertionSuccess();
}
