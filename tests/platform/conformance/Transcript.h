#pragma once
// What a conformance test prints, line by line, in the format of the recorded traces, and the
// comparison with a recording.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

class Transcript {
public:
    // printf-style; the text may hold several lines.
    void Print(const char* format, ...) __attribute__((format(printf, 2, 3)));
    const std::string& Text() const { return text; }

private:
    std::string text;
};

// How a recorded line that depends on fonts, colours or configuration is compared.
struct TraceRules {
    // Lines (of the recording) containing one of these are compared by shape: the same line
    // with other numbers.
    std::vector<std::string> shapeOnly;
    // Turns the recording into what this platform must print, for documented differences.
    std::function<std::vector<std::string>(std::vector<std::string>)> adjust;
    // A line the test checks itself; answers whether `actual` is acceptable for `recorded`.
    std::function<bool(size_t index, const std::string& recorded, const std::string& actual)> custom;
};

std::vector<std::string> SplitLines(const std::string& text);
// Fails on the first line that differs from traces/NAME.txt, naming it.
::testing::AssertionResult MatchesTrace(const Transcript& actual, const std::string& name,
                                        const TraceRules& rules = {});
