#include "tests/profile/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stdlib.h>

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    std::string pattern = (fs::path(testing::TempDir()) / "profile_XXXXXX").string();
    if (!mkdtemp(pattern.data())) ADD_FAILURE() << "no temporary folder at " << pattern;
    root = pattern;
    // Others may enter: some tests work in it as an unprivileged user.
    fs::permissions(root, fs::perms::all);
}

TempFolder::~TempFolder() {
    std::error_code ec;
    fs::permissions(root, fs::perms::all, ec);
    fs::remove_all(root, ec);
}

std::string TempFolder::Path(const std::string& name) const {
    return root + "/" + name;
}

void TempFolder::Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
}

std::string TempFolder::Read(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    if (!in) return "<missing>";
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::vector<std::string> TempFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(root))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}
