#pragma once
// A ProfileFile whose model the tests can see: every section in order, repeats included.

#include "profile/ProfileFile.h"

#include <string>

class ProfileProbe : public ProfileFile {
public:
    // "[name]" lines, then "key|value" lines, one per entry; section 0 shows as "[ ]".
    std::string Dump() const {
        std::string out;
        for (int s = 0; s <= lastSection; ++s) {
            out += "[" + sectionNames[s] + "]\n";
            for (size_t k = 0; k < sectionKeys[s].size(); ++k)
                out += sectionKeys[s][k] + "|" + sectionValues[s][k] + "\n";
        }
        return out;
    }
    bool Dirty() const { return dirty != 0; }
    const std::string& FileName() const { return fileName; }
    const std::string& BackupName() const { return backupName; }
};
