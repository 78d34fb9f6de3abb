#pragma once
// The column widths of the table, kept between runs in "kervgrid.set" beside the module: four
// integers, each followed by a blank, with no line end. Every failure is silent: a missing,
// unreadable or unwritable file only costs the saved widths.

#include <string>

class WindowSettings {
public:
    // The module's path in lower case with every occurrence of its file name replaced by
    // "kervgrid.set"; so a folder whose name holds the module's name changes too.
    explicit WindowSettings(const std::string& modulePath);

    const std::string& Path() const { return path; }
    // Reads up to four widths; a width that can't be read leaves its entry as it was.
    void Read(int widths[4]) const;
    // Replaces the file's content with the four widths.
    void Write(const int widths[4]) const;

private:
    std::string path;
};
