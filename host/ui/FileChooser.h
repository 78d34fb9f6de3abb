#pragma once
// The file dialog behind acedGetFileD: the host's arguments turned into the window system's
// open or save dialog.
//
// Of the flags, bit 1 asks for a file to write: a save dialog that asks before it replaces a
// file that exists. Without it the dialog asks for an existing file to read. The other bits
// (no "Type it" button, any extension, ...) change nothing here. The default name stands in
// the name field; a default without a folder, or with a relative one, is taken from the
// drawing's folder, so the dialog opens there. A name typed without an extension gets `ext`,
// and the list shows the files with that extension (all files when it is empty).

#include "host/ads/Resbuf.h"
#include "platform/base/WinTypes.h"

#include <string>

namespace host {

class FileChooser {
public:
    FileChooser(const char* title, const char* defaultName, const char* ext, int flags);

    // Runs the dialog owned by `owner`, starting in `drawingFolder` (ends in "/"). RTNORM with
    // the full path as RTSTR in `result` (the caller frees the string with free()); RTERROR
    // with RTNONE when the user cancelled or the dialog could not run.
    int Run(HWND owner, const std::string& drawingFolder, resbuf* result) const;

private:
    std::string title;
    std::string defaultName;
    std::string extension; // without the dot
    bool forWriting;
};

} // namespace host
