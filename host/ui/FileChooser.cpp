#include "host/ui/FileChooser.h"

#include "host/ads/AdsCodes.h"
#include "platform/controls/FileDialog.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace host {

namespace {

constexpr int WriteFlag = 1;
constexpr std::size_t PathRoom = 4096;

} // namespace

FileChooser::FileChooser(const char* title, const char* defaultName, const char* ext, int flags)
    : title(title ? title : ""), defaultName(defaultName ? defaultName : ""),
      extension(ext ? ext : ""), forWriting((flags & WriteFlag) != 0) {
    if (extension.starts_with('.')) extension.erase(0, 1);
}

int FileChooser::Run(HWND owner, const std::string& drawingFolder, resbuf* result) const {
    result->restype = RTNONE;
    const std::string start =
        defaultName.starts_with('/') ? defaultName : drawingFolder + defaultName;
    std::vector<char> file(std::max(PathRoom, start.size() + 1), '\0');
    std::memcpy(file.data(), start.c_str(), start.size());

    // Pairs of a description and its pattern, ended by an empty string.
    const std::string pattern = extension.empty() ? "*.*" : "*." + extension;
    std::string filter = pattern;
    filter += '\0';
    filter += pattern;
    filter += '\0';

    OPENFILENAME ofn;
    ofn.hwndOwner = owner;
    ofn.lpstrFilter = filter.c_str();
    ofn.lpstrFile = file.data();
    ofn.nMaxFile = static_cast<DWORD>(file.size());
    ofn.lpstrInitialDir = drawingFolder.c_str();
    ofn.lpstrTitle = title.empty() ? nullptr : title.c_str();
    ofn.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
    ofn.Flags = OFN_PATHMUSTEXIST | OFN_HIDEREADONLY |
                (forWriting ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    const BOOL chosen = forWriting ? GetSaveFileName(&ofn) : GetOpenFileName(&ofn);
    // A cancelled dialog is RTERROR, as the host answers it: callers stop on RTERROR (and on
    // anything but RTNORM), and no file is named.
    if (!chosen) return RTERROR;
    result->resval.rstring = strdup(file.data());
    if (!result->resval.rstring) return RTERROR;
    result->restype = RTSTR;
    return RTNORM;
}

} // namespace host
