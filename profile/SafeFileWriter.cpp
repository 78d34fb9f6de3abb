#include "profile/SafeFileWriter.h"

#include <cerrno>
#include <chrono>
#include <random>

namespace fs = std::filesystem;

SafeFileWriter::SafeFileWriter(const std::string& name) : target(name) {
    if (!name.empty() && TargetWritable()) OpenTemporary();
}

SafeFileWriter::~SafeFileWriter() {
    file.Close();
    std::error_code ignored;
    if (!temporary.empty()) fs::remove(temporary, ignored);
}

bool SafeFileWriter::TargetWritable() {
    std::error_code ec;
    // Through a link to the file it names, so that the link stays a link.
    if (fs::is_symlink(target, ec)) {
        target = fs::weakly_canonical(target, ec);
        if (ec) return false;
    }
    fs::file_status status = fs::status(target, ec);
    if (!fs::exists(status)) return true;
    // The rename would replace a device or a folder as readily as a file, and would write
    // over a file that its owner made read-only.
    if (!fs::is_regular_file(status)) return false;
    StdioFile probe;
    return probe.Open(target.string(), "r+b");
}

bool SafeFileWriter::OpenTemporary() {
    static std::minstd_rand random(
        static_cast<unsigned>(std::chrono::steady_clock::now().time_since_epoch().count()));
    // Letters only: a backup scan reads the last three characters of the names beside the
    // file as a number, and a left-over new file must count 0 there.
    for (int attempt = 0; attempt < 16; ++attempt) {
        std::string suffix = ".~";
        for (int i = 0; i < 6; ++i) suffix += static_cast<char>('a' + random() % 26);
        temporary = target;
        temporary += suffix;
        // "x" never takes over a file that is already there.
        if (file.Open(temporary.string(), "wbx")) return true;
        if (errno != EEXIST) break;
    }
    temporary.clear();
    return false;
}

void SafeFileWriter::Write(std::string_view bytes) {
    if (!failed && !file.Write(bytes)) failed = true;
}

bool SafeFileWriter::Commit() {
    if (!file.IsOpen()) return false;
    bool written = !failed && file.Sync();
    if (!file.Close() || !written) return false;
    std::error_code ec;
    fs::file_status old = fs::status(target, ec);
    // The new file keeps who may read and write the old one.
    if (fs::exists(old)) fs::permissions(temporary, old.permissions(), ec);
    fs::rename(temporary, target, ec);
    if (ec) return false;
    temporary.clear();
    return true;
}
