#include "profile/StdioFile.h"

#include <unistd.h>

StdioFile::~StdioFile() {
    Close();
}

bool StdioFile::Open(const std::string& name, const char* mode) {
    Close();
    file = std::fopen(name.c_str(), mode);
    return file != nullptr;
}

bool StdioFile::ReadAll(std::string& out) {
    if (!file) return false;
    char chunk[65536];
    size_t got;
    while ((got = std::fread(chunk, 1, sizeof chunk, file)) > 0) out.append(chunk, got);
    return std::ferror(file) == 0;
}

bool StdioFile::Write(std::string_view bytes) {
    if (!file) return false;
    return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

bool StdioFile::Sync() {
    if (!file || std::fflush(file) != 0) return false;
    return ::fsync(::fileno(file)) == 0;
}

bool StdioFile::Close() {
    if (!file) return true;
    bool good = std::ferror(file) == 0;
    good = std::fclose(file) == 0 && good;
    file = nullptr;
    return good;
}
