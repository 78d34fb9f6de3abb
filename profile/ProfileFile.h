#pragma once
// ProfileFile holds a sectioned text file ("[section]" lines, "key=value" lines) wholly in
// memory: Open reads it, lookups answer with defaults, SetValue changes it, and Save writes the
// whole model back, optionally after a numbered backup copy of the old file.
//
// The model keeps the file's order and its repeats. Of sections with one name the first counts
// for lookups and changes; of keys with one name in a section, the last. Section 0, named " ",
// takes the keys in front of the first header and is written without a header. A ";" in a value
// starts a comment: GetValue leaves it out, but the model keeps it, so it is written back.
//
// Names are byte strings in code page 1252. Failures are results: Open answers 0, lookups answer
// their default, Save answers the empty string.

#include "platform/base/WinTypes.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class ProfileFile {
public:
    // The profile store doesn't know the window system; the module routes the store's one
    // message, "Can't create backup copy!", to the framework's message box. By default it is
    // dropped.
    using MessageHook = std::function<void(const std::string& text)>;
    static void SetMessageHook(MessageHook hook);

    ProfileFile() = default;
    // Writes the file when `saveOnClose` was set (with the backup that Open asked for), then
    // frees the model.
    virtual ~ProfileFile();
    ProfileFile(const ProfileFile&) = delete;
    ProfileFile& operator=(const ProfileFile&) = delete;

    // An object that has a file already saves it without backup and closes it first. The file
    // is opened for reading and writing, so a read-only file fails. With `createIfMissing` a
    // missing file is created on disk, empty. Nonzero on success; on failure `fileName` stays as
    // it was and the model holds only section 0.
    BOOL Open(const std::string& name, BOOL saveOnClose, BOOL createIfMissing, BOOL ignoreCase,
              BOOL backupOnSave);
    // The value without its comment, or `defaultValue` when section or key is missing.
    std::string GetValue(std::string_view section, std::string_view key,
                         std::string_view defaultValue) const;
    // Replaces the value, comment and all, making section and key as needed. The model turns
    // dirty only when something differs by CompareNames, so with `ignoreCase` a change of case
    // alone is stored but isn't written unless something else changes.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);
    // Appends every section's name, section 0's " " and repeats among them.
    void GetSectionNames(std::vector<std::string>& list) const;
    // Appends the keys of the first section of that name, in order.
    void GetSectionKeys(std::string_view section, std::vector<std::string>& list) const;
    int FindSection(std::string_view name) const;
    int FindKey(int sectionIndex, std::string_view key) const;
    int CompareNames(std::string_view a, std::string_view b) const;
    // Drops all sections and the dirty state; keeps the file's name, the backup's and the flags.
    void CloseProfile();

    // Writes the file when the model is dirty, and answers `backupName`, or the empty string
    // when nothing was written. It leaves `dirty` set, so a second Save writes again.
    std::string Save(BOOL makeBackup);
    // The backup's number is one above the highest that the files beside the file carry, so
    // that backups accumulate over runs.
    void MakeBackupName();

protected:
    // Open to subclasses, which may walk the model in file order, repeats included.
    std::vector<std::string> sectionNames;
    std::vector<std::vector<std::string>> sectionKeys;
    std::vector<std::vector<std::string>> sectionValues;
    int lastSection = -1;
    BOOL ignoreCase = 1;
    BOOL saveOnClose = 0;
    std::string backupName;
    std::string fileName;
    BOOL backupOnSave = 0;
    BOOL dirty = 0;

private:
    void AppendSection(std::string_view name);
    void ReadLine(std::string_view line);
};
