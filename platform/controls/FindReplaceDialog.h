#pragma once
// The modeless find and replace dialogs: FindText and ReplaceText with a FINDREPLACE.
//
// The dialog sends its requests to hwndOwner as the registered message FINDMSGSTRING with a
// pointer to the caller's FINDREPLACE in lParam: Find Next (IDOK) as FR_FINDNEXT, Replace
// (1024) as FR_REPLACE, Replace All (1025) as FR_REPLACEALL, each with FR_DOWN, FR_WHOLEWORD and
// FR_MATCHCASE as the controls say and the texts copied into lpstrFindWhat and
// lpstrReplaceWith; Cancel (or the close box) sends FR_DIALOGTERM and then destroys the
// dialog. The buttons that send requests are disabled while the find text is empty.
//
// Controls, with the classic ids: the find text 1152, the replace text 1153, the check boxes
// "Match &whole word only" 1040 and "Match &case" 1041, the direction radio buttons "&Up" 1056
// and "&Down" 1057 (find dialog only), Find Next IDOK, Replace 1024, Replace All 1025, Cancel
// IDCANCEL.
//
// Being modeless, the dialog gets its keys (Tab, Enter, Escape) only if the loop that runs
// passes its messages through IsDialogMessage. Hooks and templates are not supported.

#include "platform/user/User.h"

#include <string>

inline const char* const FINDMSGSTRING = "commdlg_FindReplace";

struct FINDREPLACE {
    DWORD lStructSize = sizeof(FINDREPLACE);
    HWND hwndOwner = nullptr;
    HINSTANCE hInstance = nullptr;
    DWORD Flags = 0;
    char* lpstrFindWhat = nullptr;
    char* lpstrReplaceWith = nullptr;
    WORD wFindWhatLen = 0;
    WORD wReplaceWithLen = 0;
    LPARAM lCustData = 0;
    void* lpfnHook = nullptr;
    const char* lpTemplateName = nullptr;
};

enum : DWORD {
    FR_DOWN = 0x00000001,
    FR_WHOLEWORD = 0x00000002,
    FR_MATCHCASE = 0x00000004,
    FR_FINDNEXT = 0x00000008,
    FR_REPLACE = 0x00000010,
    FR_REPLACEALL = 0x00000020,
    FR_DIALOGTERM = 0x00000040,
    FR_NOUPDOWN = 0x00000400,
    FR_NOMATCHCASE = 0x00000800,
    FR_NOWHOLEWORD = 0x00001000,
    FR_HIDEUPDOWN = 0x00004000,
    FR_HIDEMATCHCASE = 0x00008000,
    FR_HIDEWHOLEWORD = 0x00010000,
};

// The dialog's window, or null when the record is unusable (no owner, no find buffer).
HWND FindText(FINDREPLACE* fr);
HWND ReplaceText(FINDREPLACE* fr);

namespace plat {

class FindReplaceDialog {
public:
    FindReplaceDialog(FINDREPLACE* fr, bool replace) : fr(fr), replace(replace) {}
    // Creates the dialog; it frees this object when its window goes.
    HWND Create();

private:
    static INT_PTR Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    void OnInit(HWND dialog);
    void OnCommand(WORD id, WORD code);
    void UpdateButtons() const;
    void Request(DWORD what);

    FINDREPLACE* fr;
    bool replace;
    HWND dialog = nullptr;
};

} // namespace plat
