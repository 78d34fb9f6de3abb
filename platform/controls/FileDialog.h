#pragma once
// The file open and save dialogs: GetOpenFileName and GetSaveFileName with an OPENFILENAME.
//
// A modal dialog with the folder's path on top, a list of its folders ("[name]", "[..]" for
// the one above) and of its files that match the first filter, a file-name field (1152) and
// OK (1) and Cancel (2). It opens in the folder of the name in lpstrFile (else
// lpstrInitialDir, else the current folder) with the focus in the field, which holds the name
// without its folder, all of it selected. A click on a file in the list copies its name into
// the field; a double click picks the file or enters the folder. OK takes the field: a folder
// is entered, a pattern ("*.txt") filters the list, a name without an extension gets
// lpstrDefExt. OFN_PATHMUSTEXIST refuses a name in a folder that does not exist,
// OFN_FILEMUSTEXIST (open) one that does not exist, and OFN_OVERWRITEPROMPT (save) asks before
// replacing one that does, "NAME already exists.\nDo you want to replace it?" with No as the
// default; each returns to the dialog. The result is TRUE with the full path in lpstrFile, or
// FALSE after Cancel or an error (CommDlgExtendedError tells which).
//
// Unlike the real dialog, a successful call never changes the current folder (as if
// OFN_NOCHANGEDIR were always given), and hooks and templates are not supported.

#include "platform/user/User.h"

#include <string>
#include <vector>

struct OPENFILENAME {
    DWORD lStructSize = sizeof(OPENFILENAME);
    HWND hwndOwner = nullptr;
    HINSTANCE hInstance = nullptr;
    // Pairs of a description and its patterns ("Tables\0*.tab\0All files\0*.*\0\0").
    const char* lpstrFilter = nullptr;
    char* lpstrCustomFilter = nullptr;
    DWORD nMaxCustFilter = 0;
    DWORD nFilterIndex = 0; // 1 for the first pair; 0 counts as 1
    char* lpstrFile = nullptr;
    DWORD nMaxFile = 0;
    char* lpstrFileTitle = nullptr;
    DWORD nMaxFileTitle = 0;
    const char* lpstrInitialDir = nullptr;
    const char* lpstrTitle = nullptr;
    DWORD Flags = 0;
    WORD nFileOffset = 0;
    WORD nFileExtension = 0;
    const char* lpstrDefExt = nullptr; // without the dot
    LPARAM lCustData = 0;
};

enum : DWORD {
    OFN_READONLY = 0x00000001,
    OFN_OVERWRITEPROMPT = 0x00000002,
    OFN_HIDEREADONLY = 0x00000004,
    OFN_NOCHANGEDIR = 0x00000008,
    OFN_PATHMUSTEXIST = 0x00000800,
    OFN_FILEMUSTEXIST = 0x00001000,
    OFN_EXPLORER = 0x00080000,
};

enum : DWORD {
    CDERR_INITIALIZATION = 0x0002,
    FNERR_BUFFERTOOSMALL = 0x3003,
};

BOOL GetOpenFileName(OPENFILENAME* ofn);
BOOL GetSaveFileName(OPENFILENAME* ofn);
// Why the last dialog returned FALSE: 0 when the user cancelled.
DWORD CommDlgExtendedError();

namespace plat {

class FileDialog {
public:
    FileDialog(OPENFILENAME* ofn, bool save);
    BOOL Run();
    DWORD Error() const { return error; }

private:
    static INT_PTR Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    void OnInit(HWND dialog);
    void OnCommand(WORD id, WORD code);
    void Enter(const std::string& path);
    void Fill();
    void Accept(std::string name);
    bool Store(const std::string& path);
    int Ask(const std::string& text, UINT type) const;

    OPENFILENAME* ofn;
    bool save;
    HWND dialog = nullptr;
    std::string title;
    std::string folder;
    std::string filterName;
    std::vector<std::string> patterns;
    DWORD error = 0;
};

} // namespace plat
