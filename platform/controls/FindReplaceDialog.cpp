#include "platform/controls/FindReplaceDialog.h"

#include "platform/user/Dialog.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>

namespace plat {

namespace {

constexpr int FindWhatId = 1152;
constexpr int ReplaceWithId = 1153;
constexpr int WholeWordId = 1040;
constexpr int MatchCaseId = 1041;
constexpr int UpId = 1056;
constexpr int DownId = 1057;
constexpr int DirectionId = 1072;
constexpr int ReplaceId = 1024;
constexpr int ReplaceAllId = 1025;
constexpr int LabelId = -1;

// The dialogs that are open, each freed with its window.
std::map<HWND, std::unique_ptr<FindReplaceDialog>>& Open() {
    static std::map<HWND, std::unique_ptr<FindReplaceDialog>> open;
    return open;
}

DialogTemplate FindTemplate() {
    DialogTemplate tpl;
    tpl.style |= WS_VISIBLE;
    tpl.caption = "Find";
    tpl.x = 30, tpl.y = 30, tpl.cx = 236, tpl.cy = 62;
    auto& items = tpl.items;
    items.push_back({SS_LEFT, 0, 4, 8, 42, 8, LabelId, "Static", "Fi&nd what:"});
    items.push_back({WS_BORDER | ES_AUTOHSCROLL | WS_GROUP | WS_TABSTOP, 0, 47, 7, 128, 12,
                     FindWhatId, "Edit", ""});
    items.push_back({BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP, 0, 4, 26, 100, 12, WholeWordId,
                     "Button", "Match &whole word only"});
    items.push_back(
        {BS_AUTOCHECKBOX | WS_TABSTOP, 0, 4, 42, 64, 12, MatchCaseId, "Button", "Match &case"});
    items.push_back(
        {BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 0, 111, 38, 25, 12, UpId, "Button", "&Up"});
    items.push_back({BS_AUTORADIOBUTTON, 0, 138, 38, 35, 12, DownId, "Button", "&Down"});
    // Behind the radio buttons, so that clicks reach them.
    items.push_back(
        {BS_GROUPBOX | WS_GROUP, 0, 107, 26, 68, 28, DirectionId, "Button", "Direction"});
    items.push_back({BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP, 0, 182, 5, 50, 14, IDOK, "Button",
                     "&Find Next"});
    items.push_back({BS_PUSHBUTTON | WS_TABSTOP, 0, 182, 23, 50, 14, IDCANCEL, "Button", "Cancel"});
    for (auto& item : items) item.style |= WS_VISIBLE;
    return tpl;
}

DialogTemplate ReplaceTemplate() {
    DialogTemplate tpl;
    tpl.style |= WS_VISIBLE;
    tpl.caption = "Replace";
    tpl.x = 30, tpl.y = 30, tpl.cx = 230, tpl.cy = 94;
    auto& items = tpl.items;
    items.push_back({SS_LEFT, 0, 4, 9, 48, 8, LabelId, "Static", "Fi&nd what:"});
    items.push_back({WS_BORDER | ES_AUTOHSCROLL | WS_GROUP | WS_TABSTOP, 0, 54, 7, 114, 12,
                     FindWhatId, "Edit", ""});
    items.push_back({SS_LEFT, 0, 4, 26, 48, 8, LabelId, "Static", "Re&place with:"});
    items.push_back({WS_BORDER | ES_AUTOHSCROLL | WS_GROUP | WS_TABSTOP, 0, 54, 24, 114, 12,
                     ReplaceWithId, "Edit", ""});
    items.push_back({BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP, 0, 5, 46, 104, 12, WholeWordId,
                     "Button", "Match &whole word only"});
    items.push_back(
        {BS_AUTOCHECKBOX | WS_TABSTOP, 0, 5, 62, 59, 12, MatchCaseId, "Button", "Match &case"});
    items.push_back({BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP, 0, 174, 4, 50, 14, IDOK, "Button",
                     "&Find Next"});
    items.push_back(
        {BS_PUSHBUTTON | WS_TABSTOP, 0, 174, 21, 50, 14, ReplaceId, "Button", "&Replace"});
    items.push_back(
        {BS_PUSHBUTTON | WS_TABSTOP, 0, 174, 38, 50, 14, ReplaceAllId, "Button", "Replace &All"});
    items.push_back({BS_PUSHBUTTON | WS_TABSTOP, 0, 174, 55, 50, 14, IDCANCEL, "Button", "Cancel"});
    for (auto& item : items) item.style |= WS_VISIBLE;
    return tpl;
}

void CopyText(HWND edit, char* buffer, WORD size) {
    if (!buffer || size == 0) return;
    std::string text = GetWindowString(edit);
    size_t n = std::min<size_t>(text.size(), size - 1u);
    std::memcpy(buffer, text.data(), n);
    buffer[n] = 0;
}

} // namespace

HWND FindReplaceDialog::Create() {
    DialogTemplate tpl = replace ? ReplaceTemplate() : FindTemplate();
    return CreateDialogIndirectParam(nullptr, &tpl, fr->hwndOwner, Proc,
                                     reinterpret_cast<LPARAM>(this));
}

INT_PTR FindReplaceDialog::Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_INITDIALOG) {
        SetWindowLongPtr(dialog, DWLP_USER, lParam);
        reinterpret_cast<FindReplaceDialog*>(lParam)->OnInit(dialog);
        return TRUE;
    }
    auto* self = reinterpret_cast<FindReplaceDialog*>(GetWindowLongPtr(dialog, DWLP_USER));
    if (!self) return FALSE;
    if (msg == WM_NCDESTROY) {
        SetWindowLongPtr(dialog, DWLP_USER, 0);
        Open().erase(dialog);
        return FALSE;
    }
    if (msg != WM_COMMAND) return FALSE;
    self->OnCommand(LOWORD(wParam), HIWORD(wParam));
    return TRUE;
}

void FindReplaceDialog::OnInit(HWND dlg) {
    dialog = dlg;
    DWORD flags = fr->Flags;
    SetDlgItemText(dialog, FindWhatId, fr->lpstrFindWhat ? fr->lpstrFindWhat : "");
    if (replace)
        SetDlgItemText(dialog, ReplaceWithId, fr->lpstrReplaceWith ? fr->lpstrReplaceWith : "");
    CheckDlgButton(dialog, WholeWordId, (flags & FR_WHOLEWORD) ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(dialog, MatchCaseId, (flags & FR_MATCHCASE) ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(dialog, (flags & FR_DOWN) ? DownId : UpId, BST_CHECKED);
    const struct {
        DWORD hide, disable;
        int ids[3];
    } options[] = {{FR_HIDEWHOLEWORD, FR_NOWHOLEWORD, {WholeWordId, 0, 0}},
                   {FR_HIDEMATCHCASE, FR_NOMATCHCASE, {MatchCaseId, 0, 0}},
                   {FR_HIDEUPDOWN, FR_NOUPDOWN, {UpId, DownId, DirectionId}}};
    for (const auto& option : options)
        for (int id : option.ids) {
            HWND control = id ? GetDlgItem(dialog, id) : nullptr;
            if (!control) continue;
            if (flags & option.hide)
                ShowWindow(control, SW_HIDE);
            else if (flags & option.disable)
                EnableWindow(control, FALSE);
        }
    UpdateButtons();
}

void FindReplaceDialog::OnCommand(WORD id, WORD code) {
    switch (id) {
    case FindWhatId:
        if (code == EN_CHANGE) UpdateButtons();
        return;
    case IDOK: Request(FR_FINDNEXT); return;
    case ReplaceId: Request(FR_REPLACE); return;
    case ReplaceAllId: Request(FR_REPLACEALL); return;
    case IDCANCEL: {
        HWND window = dialog; // the owner may close the dialog itself, freeing this object
        Request(FR_DIALOGTERM);
        if (IsWindow(window)) DestroyWindow(window);
        return;
    }
    default: return;
    }
}

void FindReplaceDialog::UpdateButtons() const {
    BOOL any = GetWindowTextLength(GetDlgItem(dialog, FindWhatId)) > 0;
    for (int id : {IDOK, ReplaceId, ReplaceAllId})
        if (HWND button = GetDlgItem(dialog, id)) EnableWindow(button, any);
}

void FindReplaceDialog::Request(DWORD what) {
    CopyText(GetDlgItem(dialog, FindWhatId), fr->lpstrFindWhat, fr->wFindWhatLen);
    if (replace)
        CopyText(GetDlgItem(dialog, ReplaceWithId), fr->lpstrReplaceWith, fr->wReplaceWithLen);
    DWORD flags = fr->Flags & ~(FR_DOWN | FR_WHOLEWORD | FR_MATCHCASE | FR_FINDNEXT | FR_REPLACE |
                                FR_REPLACEALL | FR_DIALOGTERM);
    if (IsDlgButtonChecked(dialog, WholeWordId)) flags |= FR_WHOLEWORD;
    if (IsDlgButtonChecked(dialog, MatchCaseId)) flags |= FR_MATCHCASE;
    // The replace dialog has no direction: it always searches down.
    if (replace || IsDlgButtonChecked(dialog, DownId)) flags |= FR_DOWN;
    fr->Flags = flags | what;
    SendMessage(fr->hwndOwner, RegisterWindowMessage(FINDMSGSTRING), 0,
                reinterpret_cast<LPARAM>(fr));
}

} // namespace plat

namespace {

HWND OpenFindReplace(FINDREPLACE* fr, bool replace) {
    if (!fr || !IsWindow(fr->hwndOwner) || !fr->lpstrFindWhat || !fr->wFindWhatLen) return nullptr;
    if (replace && (!fr->lpstrReplaceWith || !fr->wReplaceWithLen)) return nullptr;
    auto dialog = std::make_unique<plat::FindReplaceDialog>(fr, replace);
    HWND window = dialog->Create();
    if (window) plat::Open()[window] = std::move(dialog);
    return window;
}

} // namespace

HWND FindText(FINDREPLACE* fr) {
    return OpenFindReplace(fr, false);
}

HWND ReplaceText(FINDREPLACE* fr) {
    return OpenFindReplace(fr, true);
}
