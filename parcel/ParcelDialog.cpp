#include "parcel/ParcelDialog.h"

#include "host/ads/AdsCodes.h"
#include "host/ads/AdsServices.h"
#include "parcel/CallState.h"
#include "parcel/TableFile.h"
#include "parcel/WindowSettings.h"
#include "platform/afx/AfxApp.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CFont.h"

#include <cstdlib>
#include <cstring>

namespace {

constexpr int SaveButton = 1002;
constexpr int LoadButton = 1003;

DialogTemplate Layout() {
    DialogTemplate t;
    t.style = 0x80C000C0;
    t.x = 0, t.y = 0, t.cx = 432, t.cy = 282;
    t.caption = "Kerv area table";
    t.pointSize = 8;
    t.faceName = "MS Sans Serif";
    auto add = [&](const char* cls, const char* text, int id, DWORD style, DWORD exStyle, short x,
                   short y, short cx, short cy) {
        t.items.push_back(DialogItemTemplate{WS_CHILD | WS_VISIBLE | style, exStyle, x, y, cx, cy,
                                             id, cls, text});
    };
    // In tab order; Cancel stands left of OK.
    add("Button", "&OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 0, 63, 261, 50, 14);
    add("Button", "&Cancel", IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 0, 8, 261, 45, 14);
    add("Static", "Static", ParcelDialog::GridControl, SS_LEFT, WS_EX_STATICEDGE, 7, 7, 418, 228);
    add("Static", "", ParcelDialog::LabelControl, SS_LEFT, 0, 10, 242, 238, 13);
    add("Button", "&Save", SaveButton, BS_PUSHBUTTON | WS_TABSTOP, 0, 123, 261, 50, 14);
    add("Button", "&Load", LoadButton, BS_PUSHBUTTON | WS_TABSTOP, 0, 183, 261, 50, 14);
    add("Button", "&Delete Row ", ParcelGrid::DeleteRowButton, BS_PUSHBUTTON | WS_TABSTOP, 0, 243,
        261, 50, 14);
    return t;
}

// The table file the user picks in the host's file dialog, for writing (flags 3) or reading
// (0); false when the user cancelled.
bool ChooseTableFile(int flags, std::string& path) {
    const std::string name = TableFile::DefaultName();
    resbuf chosen{};
    if (acedGetFileD("Kerv table area", name.c_str(), "tab", flags, &chosen) != RTNORM)
        return false;
    if (chosen.restype == RTSTR && chosen.resval.rstring) path = chosen.resval.rstring;
    std::free(chosen.resval.rstring);
    return !path.empty();
}

// The shrink factor of FitToScreen, cut towards zero.
int Shrunk(LONG v) {
    return static_cast<int>(0.4 * v);
}

} // namespace

BEGIN_MESSAGE_MAP(ParcelDialog, CDialog)
ON_BN_CLICKED(SaveButton, OnSaveTable)
ON_BN_CLICKED(LoadButton, OnLoadTable)
ON_BN_CLICKED(ParcelGrid::DeleteRowButton, OnDeleteRow)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

ParcelDialog::ParcelDialog(CWnd* parent) : CDialog(TemplateId, parent) {}

ParcelDialog::~ParcelDialog() = default;

void ParcelDialog::RegisterTemplate(HINSTANCE module) {
    RegisterDialogResource(module, static_cast<int>(TemplateId), Layout());
}

void ParcelDialog::DoDataExchange(CDataExchange* dx) {
    DDX_Control(dx, LabelControl, label);
    DDX_Control(dx, IDCANCEL, cancelButton);
}

// The template's size in a fixed-pitch face, so that the table's columns line up.
void ParcelDialog::OnSetFont(CFont* font) {
    LOGFONT lf{};
    font->GetLogFont(&lf);
    std::strncpy(lf.lfFaceName, "Courier", LF_FACESIZE - 1);
    HFONT courier = ::CreateFontIndirect(&lf);
    font->Detach();
    font->Attach(courier);
    CDialog::OnSetFont(font);
}

BOOL ParcelDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    CDC* dc = GetDC();
    const int screenWidth = dc->GetDeviceCaps(HORZRES);
    const int screenHeight = dc->GetDeviceCaps(VERTRES);
    ReleaseDC(dc);
    RECT window{};
    GetWindowRect(&window);
    if (window.bottom - window.top >= screenHeight - 10 ||
        window.right - window.left >= screenWidth - 10)
        FitToScreen();
    WindowSettings(ModulePath).Read(grid.ColumnWidths);
    grid.AttachToControl(this, GridControl);
    return TRUE;
}

void ParcelDialog::FitToScreen() {
    RECT r{};
    GetWindowRect(&r);
    MapDialogRect(&r);
    RECT moved{Shrunk(r.left), Shrunk(r.top), 5 + Shrunk(r.right), 30 + Shrunk(r.bottom)};
    MoveWindow(&moved, TRUE);
    // Delete Row is not among them: it stays where it is.
    const struct {
        int id, a, b;
    } controls[] = {{GridControl, 0, 0}, {IDCANCEL, 5, 5},   {LabelControl, 0, 0},
                    {IDOK, 5, 5},        {SaveButton, 5, 5}, {LoadButton, 5, 5}};
    for (const auto& c : controls) {
        CWnd* control = GetDlgItem(c.id);
        if (!control) continue;
        control->GetWindowRect(&r);
        MapDialogRect(&r);
        moved = RECT{Shrunk(r.left), Shrunk(r.top), c.b + Shrunk(r.right), c.a + Shrunk(r.bottom)};
        control->MoveWindow(&moved, TRUE);
    }
}

void ParcelDialog::OnOK() {
    if (!grid.CollectResult()) return;
    WindowSettings(ModulePath).Write(grid.ColumnWidths);
    CDialog::OnOK();
}

void ParcelDialog::OnCancel() {
    if (AfxMessageBox("Do your really want to cancel dialog?", MB_OKCANCEL | MB_DEFBUTTON2) !=
        IDOK) {
        CancelPressed = 0;
        return;
    }
    CancelPressed = 1;
    CDialog::OnCancel();
}

void ParcelDialog::OnDeleteRow() {
    grid.RedrawAll();
    grid.RemoveRow(1);
    EnableDeleteRow(FALSE);
}

void ParcelDialog::OnSaveTable() {
    // A table that OK would refuse can't be saved; the label has told why.
    if (!grid.CollectResult()) return;
    std::string path;
    if (!ChooseTableFile(3, path)) return;
    if (!TableFile(grid.Layers, grid.UsedFlags, grid.Rows, grid.TypeChoices).Save(path))
        acedAlert("Can't open file for writing!");
}

void ParcelDialog::OnLoadTable() {
    // The click on Load ended a number edit that was refused, and its alert has just been
    // seen: this click does nothing more.
    if (grid.NumberRefused) {
        grid.NumberRefused = 0;
        return;
    }
    std::string path;
    if (!ChooseTableFile(0, path)) return;
    SetFocus();
    if (!TableFile(grid.Layers, grid.UsedFlags, grid.Rows, grid.TypeChoices).Load(path)) {
        acedAlert("Can't open file for reading!");
        return;
    }
    grid.NotifyGridCreated();
}

void ParcelDialog::EnableDeleteRow(BOOL enable) {
    if (CWnd* button = GetDlgItem(ParcelGrid::DeleteRowButton)) button->EnableWindow(enable);
}

HBRUSH ParcelDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    HBRUSH brush = CDialog::OnCtlColor(dc, control, kind);
    // The status line's text is red.
    if (kind == CTLCOLOR_STATIC) dc->SetTextColor(0xFF);
    return brush;
}
