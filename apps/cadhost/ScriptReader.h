#pragma once
// Reads a cadhost script whole before any of it runs, so that a mistake on any line stops the
// program before it has done anything.
//
// One command to a line; blank lines and lines whose first non-blank character is "#" are
// skipped. Command words and key names are taken without regard to case:
//   click|dblclick|rclick|press|move|release [@ID] X Y     wheel [@ID] X Y DELTA
//   key K [K]...   type TEXT   button ID   wait MS   dump   screenshot PATH
// Keys are Enter, Escape, Tab, Up, Down, Left, Right, Home, End, PageUp, PageDown, Insert,
// Delete, Backspace, Space, F1 to F12, a letter or a digit, each with any of the prefixes
// shift+, ctrl+ and alt+. `type` types the rest of the line after the one blank that follows
// the word, blanks included; `screenshot` takes the rest of the line as the path.
//
// A script is UTF-8 text, as a keyboard speaks it; `type` types its characters in the code page
// of the host's text (1252), and a character that is not in it as "?".

#include "apps/cadhost/ScriptLine.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ScriptReader {
public:
    // False with "script line N: WHAT" for the first line that is not a command.
    static bool Read(std::string_view text, std::vector<ScriptLine>* lines, std::string* error);
    // A key name with its prefixes ("shift+Tab"); nothing when it names no key.
    static std::optional<KeyStroke> ReadKey(std::string_view name);

private:
    // Nothing when the line is a command; else what is wrong with it.
    static std::optional<std::string> ReadLine(std::string_view line, ScriptLine* out);
    static bool ReadPointer(const std::vector<std::string_view>& words, bool withDelta,
                            ScriptLine* out);
};
