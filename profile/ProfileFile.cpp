#include "profile/ProfileFile.h"

#include "profile/ProfileText.h"
#include "profile/SafeFileWriter.h"
#include "profile/StdioFile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

ProfileFile::MessageHook& Hook() {
    static ProfileFile::MessageHook hook;
    return hook;
}

void ShowMessage(const std::string& text) {
    if (Hook()) Hook()(text);
}

// The names that the pattern `base` followed by "*.*" matches are those beginning with the
// base's last part, in the base's folder ("*.*" takes names without a point as well). Of each,
// the last three characters count as a decimal number.
int HighestBackupNumber(const std::string& base) {
    size_t slash = base.rfind('/');
    fs::path folder = slash == std::string::npos ? "." : base.substr(0, slash + 1);
    std::string prefix = slash == std::string::npos ? base : base.substr(slash + 1);
    int highest = 0;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        std::string name = it->path().filename().string();
        if (name.compare(0, prefix.size(), prefix) != 0) continue;
        std::string last = name.substr(name.size() > 3 ? name.size() - 3 : 0);
        highest = std::max(highest, std::atoi(last.c_str()));
    }
    return highest;
}

} // namespace

void ProfileFile::SetMessageHook(MessageHook hook) {
    Hook() = std::move(hook);
}

ProfileFile::~ProfileFile() {
    if (saveOnClose) Save(backupOnSave);
    CloseProfile();
}

BOOL ProfileFile::Open(const std::string& name, BOOL save, BOOL createIfMissing, BOOL ignore,
                       BOOL backup) {
    if (!fileName.empty()) Save(FALSE);
    // Also drops a model that a failed Open left, or that was filled before any Open: the model
    // is the file's.
    CloseProfile();
    ignoreCase = ignore;
    saveOnClose = save;
    backupOnSave = backup;
    AppendSection(" ");

    // "a+" creates a missing file and leaves an existing one whole; both modes need the right to
    // write, so a file that couldn't be saved is refused now.
    StdioFile file;
    std::string text;
    if (!file.Open(name, createIfMissing ? "a+b" : "r+b") || !file.ReadAll(text)) return FALSE;
    file.Close();
    fileName = name;

    std::string_view rest = text;
    while (!rest.empty()) {
        size_t end = rest.find('\n');
        ReadLine(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return TRUE;
}

void ProfileFile::AppendSection(std::string_view name) {
    sectionNames.emplace_back(name);
    sectionKeys.emplace_back();
    sectionValues.emplace_back();
    ++lastSection;
}

// The trim also takes the carriage return of a CR LF line end. Blank lines are dropped and
// don't come back on writing.
void ProfileFile::ReadLine(std::string_view line) {
    line = ProfileText::TrimRight(line);
    if (line.empty()) return;
    if (line.size() >= 2 && line.front() == '[' && line.back() == ']') {
        AppendSection(line.substr(1, line.size() - 2));
        return;
    }
    // Leading blanks stay part of the key, and a line starting with ";" is a key like any other.
    size_t equals = line.find('=');
    sectionKeys[lastSection].emplace_back(line.substr(0, equals));
    sectionValues[lastSection].emplace_back(
        equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1));
}

std::string ProfileFile::GetValue(std::string_view section, std::string_view key,
                                  std::string_view defaultValue) const {
    int s = FindSection(section);
    int k = s < 0 ? -1 : FindKey(s, key);
    if (k < 0) return std::string(defaultValue);
    std::string value = sectionValues[s][k];
    size_t comment = value.rfind(';');
    if (comment != std::string::npos) value.resize(comment);
    return value;
}

void ProfileFile::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    int s = FindSection(section);
    if (s < 0) {
        dirty = 1;
        AppendSection(section);
        s = lastSection;
    }
    int k = FindKey(s, key);
    if (k < 0) {
        dirty = 1;
        sectionKeys[s].emplace_back(key);
        sectionValues[s].emplace_back(value);
        return;
    }
    std::string& old = sectionValues[s][k];
    if (CompareNames(old, value) != 0) dirty = 1;
    old = value;
}

void ProfileFile::GetSectionNames(std::vector<std::string>& list) const {
    list.insert(list.end(), sectionNames.begin(), sectionNames.end());
}

void ProfileFile::GetSectionKeys(std::string_view section, std::vector<std::string>& list) const {
    int s = FindSection(section);
    if (s >= 0) list.insert(list.end(), sectionKeys[s].begin(), sectionKeys[s].end());
}

int ProfileFile::FindSection(std::string_view name) const {
    for (int s = 0; s <= lastSection; ++s)
        if (CompareNames(sectionNames[s], name) == 0) return s;
    return -1;
}

int ProfileFile::FindKey(int sectionIndex, std::string_view key) const {
    if (sectionIndex < 0 || sectionIndex > lastSection) return -1;
    const std::vector<std::string>& keys = sectionKeys[sectionIndex];
    for (int k = static_cast<int>(keys.size()) - 1; k >= 0; --k)
        if (CompareNames(keys[k], key) == 0) return k;
    return -1;
}

int ProfileFile::CompareNames(std::string_view a, std::string_view b) const {
    return ignoreCase ? ProfileText::CompareNoCase(a, b) : ProfileText::Compare(a, b);
}

void ProfileFile::CloseProfile() {
    sectionNames.clear();
    sectionKeys.clear();
    sectionValues.clear();
    lastSection = -1;
    dirty = 0;
}

std::string ProfileFile::Save(BOOL makeBackup) {
    if (!dirty) return {};
    // The name is fixed and the old file copied before anything is written.
    if (makeBackup) {
        if (backupName.empty()) MakeBackupName();
        std::error_code ec;
        fs::copy_file(fileName, backupName, fs::copy_options::overwrite_existing, ec);
        if (ec) ShowMessage("Can't create backup copy!");
    }
    SafeFileWriter out(fileName);
    if (!out.IsOpen()) return {};
    // Line ends are CR LF, as text files of the host's platform have them.
    for (int s = 0; s <= lastSection; ++s) {
        const std::string& name = sectionNames[s];
        // The test is on the name, not the index: after CloseProfile the first section made is
        // a real one and needs its header.
        if (!name.empty() && name != " ") {
            out.Write("[");
            out.Write(name);
            out.Write("]\r\n");
        }
        for (size_t k = 0; k < sectionKeys[s].size(); ++k) {
            const std::string& key = sectionKeys[s][k];
            out.Write(key);
            if (!key.empty()) out.Write("=");
            out.Write(sectionValues[s][k]);
            out.Write("\r\n");
        }
    }
    if (!out.Commit()) return {};
    return backupName;
}

void ProfileFile::MakeBackupName() {
    size_t point = fileName.rfind('.');
    int highest = HighestBackupNumber(fileName.substr(0, point));
    // "%.3d": three digits at least, so that the 1000th backup is ".1000".
    char number[16];
    std::snprintf(number, sizeof number, ".%.3d", highest + 1);
    backupName = fileName + number;
}
