#include "platform/controls/FileDialog.h"

#include "platform/base/MbString.h"
#include "platform/user/Dialog.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fnmatch.h>

namespace fs = std::filesystem;

namespace plat {

namespace {

// The classic dialog's control ids.
constexpr int FolderId = 1088;
constexpr int TypeId = 1089;
constexpr int NameLabelId = 1090;
constexpr int ListId = 1120;
constexpr int NameId = 1152;

constexpr LPARAM FolderItem = 1;

DWORD& LastError() {
    static DWORD error = 0;
    return error;
}

std::string Trim(const std::string& s) {
    size_t start = s.find_first_not_of(" \t");
    if (start == std::string::npos) return {};
    return s.substr(start, s.find_last_not_of(" \t") - start + 1);
}

bool Matches(const std::string& name, const std::vector<std::string>& patterns) {
    for (const std::string& p : patterns)
        if (p == "*" || p == "*.*" || fnmatch(p.c_str(), name.c_str(), FNM_CASEFOLD) == 0)
            return true;
    return false;
}

std::vector<std::string> SplitPatterns(const std::string& list) {
    std::vector<std::string> out;
    size_t start = 0;
    while (start <= list.size()) {
        size_t end = std::min(list.find(';', start), list.size());
        std::string p = Trim(list.substr(start, end - start));
        if (!p.empty()) out.push_back(p);
        start = end + 1;
    }
    return out;
}

} // namespace

FileDialog::FileDialog(OPENFILENAME* ofn, bool save) : ofn(ofn), save(save) {
    title = ofn->lpstrTitle ? ofn->lpstrTitle : save ? "Save As" : "Open";
    // The filter's pairs end at an empty string.
    DWORD wanted = std::max<DWORD>(ofn->nFilterIndex, 1);
    DWORD index = 0;
    for (const char* p = ofn->lpstrFilter; p && *p;) {
        const char* description = p;
        const char* list = p + std::strlen(p) + 1;
        if (!*list) break;
        if (++index == wanted || patterns.empty()) {
            filterName = description;
            patterns = SplitPatterns(list);
        }
        p = list + std::strlen(list) + 1;
    }
    if (patterns.empty()) {
        filterName = "All files (*.*)";
        patterns = {"*.*"};
    }
}

BOOL FileDialog::Run() {
    DialogTemplate tpl;
    tpl.style |= DS_CENTER;
    tpl.caption = title;
    tpl.cx = 280;
    tpl.cy = 162;
    auto item = [&](DWORD style, short x, short y, short cx, short cy, int id, const char* cls,
                    std::string text) {
        tpl.items.push_back(
            DialogItemTemplate{style | WS_VISIBLE, 0, x, y, cx, cy, id, cls, std::move(text)});
    };
    item(SS_LEFT, 7, 127, 50, 8, NameLabelId, "Static", "File &name:");
    item(WS_BORDER | ES_AUTOHSCROLL | WS_TABSTOP | WS_GROUP, 60, 125, 150, 12, NameId, "Edit", "");
    item(WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_TABSTOP, 7, 20, 266, 98,
         ListId, "ListBox", "");
    item(SS_LEFTNOWORDWRAP | SS_NOPREFIX, 7, 145, 203, 8, TypeId, "Static",
         "Files of type: " + filterName);
    item(BS_DEFPUSHBUTTON | WS_TABSTOP | WS_GROUP, 218, 124, 55, 14, IDOK, "Button",
         save ? "&Save" : "&Open");
    item(BS_PUSHBUTTON | WS_TABSTOP, 218, 142, 55, 14, IDCANCEL, "Button", "Cancel");
    item(SS_LEFTNOWORDWRAP | SS_NOPREFIX, 7, 7, 266, 10, FolderId, "Static", "");
    INT_PTR result =
        DialogBoxIndirectParam(nullptr, &tpl, ofn->hwndOwner, Proc, reinterpret_cast<LPARAM>(this));
    if (result == -1) error = CDERR_INITIALIZATION;
    return result == IDOK;
}

INT_PTR FileDialog::Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_INITDIALOG) {
        SetWindowLongPtr(dialog, DWLP_USER, lParam);
        reinterpret_cast<FileDialog*>(lParam)->OnInit(dialog);
        return FALSE;
    }
    auto* self = reinterpret_cast<FileDialog*>(GetWindowLongPtr(dialog, DWLP_USER));
    if (msg != WM_COMMAND || !self) return FALSE;
    self->OnCommand(LOWORD(wParam), HIWORD(wParam));
    return TRUE;
}

void FileDialog::OnInit(HWND dlg) {
    dialog = dlg;
    std::string initial;
    if (ofn->lpstrFile && ofn->nMaxFile)
        initial.assign(ofn->lpstrFile, strnlen(ofn->lpstrFile, ofn->nMaxFile));
    std::string start = ofn->lpstrInitialDir ? ofn->lpstrInitialDir : "";
    std::string name = initial;
    // A path in lpstrFile wins over lpstrInitialDir.
    if (size_t slash = initial.rfind('/'); slash != std::string::npos) {
        start = slash == 0 ? "/" : initial.substr(0, slash);
        name = initial.substr(slash + 1);
    }
    std::error_code ec;
    if (start.empty() || !fs::is_directory(start, ec)) start = fs::current_path(ec).string();
    Enter(start);
    SetDlgItemText(dialog, NameId, name.c_str());
    HWND edit = GetDlgItem(dialog, NameId);
    SetFocus(edit);
    SendMessage(edit, EM_SETSEL, 0, -1);
}

void FileDialog::OnCommand(WORD id, WORD code) {
    HWND list = GetDlgItem(dialog, ListId);
    int selected = static_cast<int>(SendMessage(list, LB_GETCURSEL, 0, 0));
    bool onFolder = selected >= 0 && SendMessage(list, LB_GETITEMDATA,
                                                 static_cast<WPARAM>(selected), 0) == FolderItem;
    std::string entry;
    if (selected >= 0) {
        entry.resize(static_cast<size_t>(
                         SendMessage(list, LB_GETTEXTLEN, static_cast<WPARAM>(selected), 0)) +
                     1);
        entry.resize(
            static_cast<size_t>(SendMessage(list, LB_GETTEXT, static_cast<WPARAM>(selected),
                                            reinterpret_cast<LPARAM>(entry.data()))));
    }
    // Folders show as "[name]".
    std::string folderName = onFolder && entry.size() >= 2 ? entry.substr(1, entry.size() - 2) : "";
    switch (id) {
    case ListId:
        if (selected < 0) return;
        if (code == LBN_SELCHANGE && !onFolder) SetDlgItemText(dialog, NameId, entry.c_str());
        if (code == LBN_DBLCLK) {
            if (onFolder)
                Enter((fs::path(folder) / folderName).string());
            else
                Accept(entry);
        }
        return;
    case IDOK:
        if (GetFocus() == list && onFolder)
            Enter((fs::path(folder) / folderName).string());
        else
            Accept(GetWindowString(GetDlgItem(dialog, NameId)));
        return;
    case IDCANCEL: EndDialog(dialog, IDCANCEL); return;
    default: return;
    }
}

void FileDialog::Enter(const std::string& path) {
    std::error_code ec;
    fs::path canonical = fs::weakly_canonical(path, ec);
    folder = ec ? path : canonical.string();
    SetDlgItemText(dialog, FolderId, folder.c_str());
    Fill();
}

void FileDialog::Fill() {
    std::vector<std::string> folders, files;
    std::error_code ec;
    for (fs::directory_iterator it(folder, fs::directory_options::skip_permission_denied, ec), end;
         !ec && it != end; it.increment(ec)) {
        std::string name = it->path().filename().string();
        if (name.empty() || name[0] == '.')
            continue; // hidden, as the system hides its hidden files
        std::error_code typeError;
        if (it->is_directory(typeError))
            folders.push_back(name);
        else if (Matches(name, patterns))
            files.push_back(name);
    }
    auto byName = [](const std::string& a, const std::string& b) {
        return _mbsicmp(a.c_str(), b.c_str()) < 0;
    };
    std::sort(folders.begin(), folders.end(), byName);
    std::sort(files.begin(), files.end(), byName);
    if (fs::path(folder) != fs::path(folder).root_path()) folders.insert(folders.begin(), "..");

    HWND list = GetDlgItem(dialog, ListId);
    SendMessage(list, LB_RESETCONTENT, 0, 0);
    for (const std::string& name : folders) {
        std::string shown = "[" + name + "]";
        auto at = static_cast<WPARAM>(
            SendMessage(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(shown.c_str())));
        SendMessage(list, LB_SETITEMDATA, at, FolderItem);
    }
    for (const std::string& name : files)
        SendMessage(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
}

void FileDialog::Accept(std::string name) {
    name = Trim(name);
    if (name.empty()) return;
    fs::path path = name[0] == '/' ? fs::path(name) : fs::path(folder) / name;
    path = path.lexically_normal();
    std::error_code ec;
    if (fs::is_directory(path, ec)) {
        Enter(path.string());
        SetDlgItemText(dialog, NameId, "");
        return;
    }
    if (name.find_first_of("*?") != std::string::npos) {
        patterns = {path.filename().string()};
        filterName = patterns[0];
        SetDlgItemText(dialog, TypeId, ("Files of type: " + filterName).c_str());
        Enter(path.parent_path().string());
        return;
    }
    if (!path.has_extension() && ofn->lpstrDefExt && *ofn->lpstrDefExt)
        path += std::string(".") + ofn->lpstrDefExt;
    std::string shown = path.filename().string();
    if ((ofn->Flags & OFN_PATHMUSTEXIST) && !fs::is_directory(path.parent_path(), ec)) {
        Ask(shown + "\nPath does not exist.\nPlease verify the correct path was given.",
            MB_OK | MB_ICONWARNING);
        return;
    }
    bool exists = fs::exists(path, ec);
    if (!save && (ofn->Flags & OFN_FILEMUSTEXIST) && !exists) {
        Ask(shown + "\nFile not found.\nPlease verify the correct file name was given.",
            MB_OK | MB_ICONWARNING);
        return;
    }
    if (save && (ofn->Flags & OFN_OVERWRITEPROMPT) && exists &&
        Ask(shown + " already exists.\nDo you want to replace it?",
            MB_YESNO | MB_DEFBUTTON2 | MB_ICONWARNING) != IDYES)
        return;
    EndDialog(dialog, Store(path.string()) ? IDOK : IDABORT);
}

bool FileDialog::Store(const std::string& path) {
    if (path.size() + 1 > ofn->nMaxFile) {
        error = FNERR_BUFFERTOOSMALL;
        // As on the real system, the first two bytes tell the size needed.
        if (ofn->nMaxFile >= 2) {
            auto needed = static_cast<WORD>(std::min<size_t>(path.size() + 1, 0xFFFF));
            std::memcpy(ofn->lpstrFile, &needed, sizeof needed);
        }
        return false;
    }
    std::memcpy(ofn->lpstrFile, path.c_str(), path.size() + 1);
    size_t nameAt = path.rfind('/') + 1;
    size_t dot = path.rfind('.');
    ofn->nFileOffset = static_cast<WORD>(nameAt);
    if (dot == std::string::npos || dot < nameAt)
        ofn->nFileExtension = static_cast<WORD>(path.size());
    else
        ofn->nFileExtension = static_cast<WORD>(dot + 1 == path.size() ? 0 : dot + 1);
    if (ofn->lpstrFileTitle && ofn->nMaxFileTitle) {
        std::string name = path.substr(nameAt);
        size_t n = std::min<size_t>(name.size(), ofn->nMaxFileTitle - 1);
        std::memcpy(ofn->lpstrFileTitle, name.data(), n);
        ofn->lpstrFileTitle[n] = 0;
    }
    return true;
}

int FileDialog::Ask(const std::string& text, UINT type) const {
    return MessageBox(dialog, text.c_str(), title.c_str(), type);
}

} // namespace plat

namespace {

BOOL RunFileDialog(OPENFILENAME* ofn, bool save) {
    plat::LastError() = 0;
    if (!ofn || !ofn->lpstrFile || ofn->nMaxFile == 0) {
        plat::LastError() = CDERR_INITIALIZATION;
        return FALSE;
    }
    plat::FileDialog dialog(ofn, save);
    BOOL ok = dialog.Run();
    plat::LastError() = dialog.Error();
    return ok;
}

} // namespace

BOOL GetOpenFileName(OPENFILENAME* ofn) {
    return RunFileDialog(ofn, false);
}

BOOL GetSaveFileName(OPENFILENAME* ofn) {
    return RunFileDialog(ofn, true);
}

DWORD CommDlgExtendedError() {
    return plat::LastError();
}
