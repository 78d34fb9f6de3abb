#pragma once
// Runs the cadhost program as a person would and collects what it printed and its exit status.

#include <string>
#include <utility>
#include <vector>

struct CadhostResult {
    int status = -1;
    std::string out;
    std::string err;
};

struct CadhostRun {
    std::vector<std::string> arguments;
    std::string input;                                            // standard input (not a terminal)
    std::string workingDirectory;                                 // empty: the test's own
    std::vector<std::pair<std::string, std::string>> environment; // added to the test's own
};

CadhostResult RunCadhost(const CadhostRun& run);
// The usual run: the echo module, the given arguments, no input.
CadhostResult RunWithEcho(std::vector<std::string> arguments);
