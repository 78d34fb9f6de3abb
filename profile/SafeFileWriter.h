#pragma once
// Writes a file so that nobody ever finds it half-written. The bytes go to a new file beside
// the target, which replaces the target in one rename once all of it is on the disk. Until
// Commit succeeds the target is untouched, and a writer that fails or ends uncommitted removes
// its new file.

#include "profile/StdioFile.h"

#include <filesystem>
#include <string>
#include <string_view>

class SafeFileWriter {
public:
    explicit SafeFileWriter(const std::string& target);
    ~SafeFileWriter();
    SafeFileWriter(const SafeFileWriter&) = delete;
    SafeFileWriter& operator=(const SafeFileWriter&) = delete;

    // False when the target couldn't be written: an empty name, something other than a file
    // in its place, a file that refuses writing, or a folder that takes no new file.
    bool IsOpen() const { return file.IsOpen(); }
    // A failed write is remembered and makes Commit fail.
    void Write(std::string_view bytes);
    bool Commit();

private:
    bool TargetWritable();
    bool OpenTemporary();

    std::filesystem::path target;
    std::filesystem::path temporary;
    StdioFile file;
    bool failed = false;
};
