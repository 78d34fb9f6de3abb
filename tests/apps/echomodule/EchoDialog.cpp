#include "tests/apps/echomodule/EchoDialog.h"

namespace {

std::string Point(CPoint p) {
    return std::to_string(p.x) + " " + std::to_string(p.y);
}

} // namespace

BEGIN_MESSAGE_MAP(EchoDialog, CDialog)
ON_BN_CLICKED(IdUpper, OnUpper)
ON_LBN_DBLCLK(IdList, OnListDoubleClick)
ON_WM_RBUTTONUP()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

EchoDialog::EchoDialog(CWnd* parent) : CDialog(TemplateId, parent) {}

DialogTemplate EchoDialog::Template() {
    DialogTemplate t;
    t.style |= DS_CENTER;
    t.cx = 160;
    t.cy = 100;
    t.caption = "Echo dialog";
    auto add = [&](const char* cls, const char* text, int id, DWORD style, short x, short y,
                   short cx, short cy) {
        t.items.push_back(DialogItemTemplate{style | WS_VISIBLE, 0, x, y, cx, cy, id, cls, text});
    };
    add("Static", "&Name:", -1, SS_LEFT, 7, 9, 30, 8);
    add("Edit", "", IdName, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 40, 7, 110, 12);
    add("ListBox", "", IdList, LBS_NOTIFY | WS_BORDER | WS_VSCROLL | WS_TABSTOP, 7, 24, 80, 40);
    add("Button", "&Upper", IdUpper, BS_PUSHBUTTON | WS_TABSTOP, 100, 24, 50, 14);
    add("Static", "", IdStatus, SS_LEFT, 7, 68, 143, 8);
    add("Button", "Later", IdLater, BS_PUSHBUTTON | WS_TABSTOP | WS_DISABLED, 100, 42, 50, 14);
    add("Button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 44, 80, 50, 14);
    add("Button", "Cancel", IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 100, 80, 50, 14);
    return t;
}

void EchoDialog::DoDataExchange(CDataExchange* dx) {
    DDX_Control(dx, IdList, list);
}

BOOL EchoDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    owner = ::GetWindow(m_hWnd, GW_OWNER);
    for (const char* entry : {"Alpha", "Beta", "Gamma"}) list.AddString(entry);
    return TRUE;
}

void EchoDialog::OnOK() {
    name = GetDlgItem(IdName)->GetWindowText();
    choice = ChosenEntry();
    CDialog::OnOK();
}

void EchoDialog::OnUpper() {
    std::string text = GetDlgItem(IdName)->GetWindowText();
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    GetDlgItem(IdName)->SetWindowText(text.c_str());
}

void EchoDialog::OnListDoubleClick() {
    GetDlgItem(IdName)->SetWindowText(ChosenEntry().c_str());
}

void EchoDialog::OnRButtonUp(UINT, CPoint point) {
    Status("rclick " + Point(point));
}

void EchoDialog::OnLButtonDown(UINT, CPoint point) {
    SetCapture();
    dragStart = point;
    Status("press " + Point(point));
}

void EchoDialog::OnMouseMove(UINT, CPoint point) {
    if (GetCapture() == this) Status("dragging " + Point(point));
}

void EchoDialog::OnLButtonUp(UINT, CPoint point) {
    if (GetCapture() != this) return;
    ::ReleaseCapture();
    Status("drag " + Point(dragStart) + " to " + Point(point));
}

BOOL EchoDialog::OnMouseWheel(UINT, short delta, CPoint point) {
    // The point of a wheel message is on the screen.
    ScreenToClient(&point);
    Status("wheel " + std::to_string(delta) + " at " + Point(point));
    return TRUE;
}

void EchoDialog::Status(const std::string& text) {
    GetDlgItem(IdStatus)->SetWindowText(text.c_str());
}

std::string EchoDialog::ChosenEntry() const {
    const int selected = list.GetCurSel();
    return selected < 0 ? std::string() : list.GetText(selected);
}
