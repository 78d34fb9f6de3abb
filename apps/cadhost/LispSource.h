#pragma once
// A text of LISP forms and the name under which its problems are reported.

#include <string>

struct LispSource {
    std::string name; // "-e form 2", a file's path, or "standard input"
    std::string text;
};
