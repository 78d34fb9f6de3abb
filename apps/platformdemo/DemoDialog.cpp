#include "apps/platformdemo/DemoDialog.h"

namespace {

DialogTemplate Layout() {
    DialogTemplate t;
    t.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT | DS_CENTER;
    t.cx = 220, t.cy = 140;
    t.caption = "Platform demo";
    auto add = [&](const char* cls, const char* text, int id, DWORD style, short x, short y, short cx, short cy) {
        t.items.push_back(DialogItemTemplate{style | WS_VISIBLE, 0, x, y, cx, cy, id, cls, text});
    };
    add("Static", "&Name:", -1, SS_LEFT, 8, 10, 30, 10);
    add("Edit", "", DemoDialog::IdName, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 40, 8, 110, 13);
    add("Button", "&Add", DemoDialog::IdAdd, BS_PUSHBUTTON | WS_TABSTOP, 160, 7, 50, 14);
    add("ListBox", "", DemoDialog::IdList, LBS_NOTIFY | WS_BORDER | WS_VSCROLL | WS_TABSTOP, 8, 28, 142, 72);
    add("Button", "&Remove", DemoDialog::IdRemove, BS_PUSHBUTTON | WS_TABSTOP | WS_DISABLED, 160, 28, 50, 14);
    add("Static", "Pick an entry, then OK.", DemoDialog::IdGreyed, SS_LEFT | WS_DISABLED, 8, 104, 142, 10);
    add("Button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 104, 120, 50, 14);
    add("Button", "Cancel", IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 160, 120, 50, 14);
    return t;
}

}  // namespace

BEGIN_MESSAGE_MAP(DemoDialog, CDialog)
    ON_BN_CLICKED(IdAdd, OnAdd)
    ON_BN_CLICKED(IdRemove, OnRemove)
    ON_LBN_SELCHANGE(IdList, OnSelChange)
END_MESSAGE_MAP()

DemoDialog::DemoDialog(CWnd* parent) : CDialog(Layout(), parent) {}

void DemoDialog::DoDataExchange(CDataExchange* dx) {
    DDX_Control(dx, IdName, name);
    DDX_Control(dx, IdList, list);
    DDX_Control(dx, IdRemove, remove);
}

BOOL DemoDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    for (const char* s : {"Layer 1", "Layer 2", "Roads"}) list.AddString(s);
    return TRUE;
}

void DemoDialog::OnAdd() {
    std::string text = name.GetWindowText();
    if (text.empty()) {
        MessageBeep(0);
        return;
    }
    list.SetCurSel(list.AddString(text.c_str()));
    name.SetWindowText("");
    OnSelChange();
    name.SetFocus();
}

void DemoDialog::OnRemove() {
    int sel = list.GetCurSel();
    if (sel >= 0) list.DeleteString(sel);
    OnSelChange();
}

void DemoDialog::OnSelChange() { remove.EnableWindow(list.GetCurSel() >= 0); }

void DemoDialog::OnOK() {
    int sel = list.GetCurSel();
    if (sel < 0) {
        MessageBox("Pick an entry first.", "Platform demo", MB_OK | MB_ICONINFORMATION);
        return;
    }
    choice = list.GetText(sel);
    std::string question = "Take \"" + choice + "\"?";
    if (MessageBox(question.c_str(), "Platform demo", MB_OKCANCEL) != IDOK) return;
    CDialog::OnOK();
}
