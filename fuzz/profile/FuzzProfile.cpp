// Feeds bytes to ProfileFile as a file: Open, every lookup, a change, and saves. The model must
// keep its shape, a change must read back, a save must write the whole model, and the written
// file must settle after one round trip. The first write may merge the keys of headerless
// sections into the section before and give lone keys their "="; those are stable. An entry with
// an empty key is written as its value alone, which reads back as another line, one "=" less
// with every trip; so the settling is checked only for input with no line that begins with "=".

#include "profile/ProfileFile.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace {

class CheckedProfile : public ProfileFile {
public:
    void CheckShape() const {
        if (lastSection < -1) std::abort();
        size_t count = static_cast<size_t>(lastSection) + 1;
        if (sectionNames.size() != count || sectionKeys.size() != count ||
            sectionValues.size() != count)
            std::abort();
        for (size_t s = 0; s < count; ++s)
            if (sectionKeys[s].size() != sectionValues[s].size()) std::abort();
    }
    bool Dirty() const { return dirty != 0; }
    // The file as a save writes it, told once more.
    std::string Render() const {
        std::string out;
        for (int s = 0; s <= lastSection; ++s) {
            if (!sectionNames[s].empty() && sectionNames[s] != " ")
                out += "[" + sectionNames[s] + "]\r\n";
            for (size_t k = 0; k < sectionKeys[s].size(); ++k)
                out += sectionKeys[s][k] + (sectionKeys[s][k].empty() ? "" : "=") +
                       sectionValues[s][k] + "\r\n";
        }
        return out;
    }
};

// One folder for the whole run, removed when the process ends. In memory where there is such a
// file system: every save syncs its file to the disk, which on a real disk costs more than the
// rest of a run.
class ScratchFolder {
public:
    ScratchFolder() {
        std::error_code ec;
        fs::path parent = fs::is_directory("/dev/shm", ec) ? "/dev/shm" : fs::temp_directory_path();
        std::string pattern = (parent / "fuzz_profile_XXXXXX").string();
        if (!mkdtemp(pattern.data())) std::abort();
        path = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    fs::path path;
};

const fs::path& Folder() {
    static const ScratchFolder folder;
    return folder.path;
}

std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// Opens the file, changes a value and back so that it is written with the model as read, and
// answers the written bytes.
std::string RoundTrip(const std::string& path, int ignoreCase) {
    {
        CheckedProfile profile;
        if (!profile.Open(path, 1, 0, ignoreCase, 0)) std::abort();
        profile.SetValue("zz", "touched", "0");
        profile.SetValue("zz", "touched", "1");
        profile.CheckShape();
    }
    return ReadFile(path);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const int ignoreCase = data[0] & 1;
    const int backup = data[0] & 2;
    const std::string path = (Folder() / "f.tab").string();
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data + 1), static_cast<std::streamsize>(size - 1));

    {
        CheckedProfile profile;
        if (!profile.Open(path, 0, 0, ignoreCase, backup)) std::abort();
        profile.CheckShape();
        std::vector<std::string> sections;
        profile.GetSectionNames(sections);
        std::string lastKey;
        for (const std::string& section : sections) {
            std::vector<std::string> keys;
            profile.GetSectionKeys(section, keys);
            for (const std::string& key : keys) {
                profile.GetValue(section, key, "");
                lastKey = key;
            }
        }
        // A change to the first section of the last name, under a key that the file has;
        // names made by parsing hold no line feed, and so the change writes one line.
        profile.SetValue(sections.back(), lastKey, lastKey + ";c");
        if (profile.GetValue(sections.back(), lastKey, "<none>") != lastKey) std::abort();
        profile.CheckShape();
        profile.Save(backup);
        if (profile.Dirty() && ReadFile(path) != profile.Render()) std::abort();
    }
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    if (!text.starts_with('=') && text.find("\n=") == std::string_view::npos) {
        std::string settled = RoundTrip(path, ignoreCase);
        if (RoundTrip(path, ignoreCase) != settled) std::abort();
    }

    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(Folder(), ignored))
        fs::remove(entry.path(), ignored);
    return 0;
}
