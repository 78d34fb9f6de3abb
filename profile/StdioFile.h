#pragma once
// A C stream owned by one object, closed when the object ends on whatever path it ends.
// Streams are opened in binary mode: readers cut the carriage return of either line end
// themselves, and writers put out the line end they mean.

#include <cstdio>
#include <string>
#include <string_view>

class StdioFile {
public:
    StdioFile() = default;
    ~StdioFile();
    StdioFile(const StdioFile&) = delete;
    StdioFile& operator=(const StdioFile&) = delete;

    // `mode` as for fopen; errno tells why it failed.
    bool Open(const std::string& name, const char* mode);
    bool IsOpen() const { return file != nullptr; }
    // Appends the rest of the stream to `out`; false on a read error.
    bool ReadAll(std::string& out);
    bool Write(std::string_view bytes);
    // Hands what was written to the disk itself, not only to the system's cache.
    bool Sync();
    // False when the stream had failed before or fails to close.
    bool Close();

private:
    std::FILE* file = nullptr;
};
