#pragma once
// Runs the cadhost program as a person would and collects what it printed and its exit status.
// The program gets no display, so it runs headless.

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
// A usual run with a script of the given lines.
CadhostResult RunWithScript(const std::string& script, std::vector<std::string> arguments);

// A fresh folder for a test's files, removed afterwards.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    // Writes a file in the folder and answers its path.
    std::string Write(const std::string& name, const std::string& content) const;
    std::string Read(const std::string& name) const;

    std::string path;
};
