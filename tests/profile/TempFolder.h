#pragma once
// A folder of its own for one test, under the test program's temporary folder, removed with
// everything in it when the test ends.

#include <string>
#include <vector>

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path(const std::string& name) const;
    void Write(const std::string& name, const std::string& bytes) const;
    // The file's bytes, or "<missing>" when it can't be read.
    std::string Read(const std::string& name) const;
    // Names in the folder, sorted.
    std::vector<std::string> Names() const;

private:
    std::string root;
};
