#pragma once
// The options of cadhost:
//   cadhost [--module PATH] [--drawing PATH] [--headless] [--screen WxH]
//           [--script FILE] [-e FORM]... [FILE.lsp]...
// Options that take a value also accept it after "=". Files are read while the line is parsed,
// so that a missing one stops the program before any module is loaded or form evaluated.

#include "apps/cadhost/LispSource.h"

#include <string>
#include <vector>

class CommandLine {
public:
    // False with a message for bad options.
    bool Parse(const std::vector<std::string>& arguments, std::string* error);

    // Where the module built beside the program lives: CADHOST_DEFAULT_MODULE, taken from the
    // program's folder when it is relative.
    static std::string DefaultModule();
    static const char* Usage();

    std::string modulePath;  // empty: DefaultModule()
    std::string drawingPath; // empty: drawing.dwg in the current folder
    bool headless = false;
    int screenWidth = 0; // 0: the backend's default screen
    int screenHeight = 0;
    std::string scriptPath; // empty: no script
    std::string scriptText;
    std::vector<LispSource> sources; // -e forms and files, in the order given
    bool help = false;

private:
    bool ParseScreen(const std::string& value, std::string* error);
};
