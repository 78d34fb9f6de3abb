#include "grid/core/GridCtrl.h"

#include "grid/windows/CornerButton.h"
#include "grid/windows/GridHScroll.h"
#include "grid/windows/GridPrinter.h"
#include "grid/windows/GridVScroll.h"
#include "grid/windows/GridView.h"
#include "grid/windows/HintWindow.h"
#include "grid/windows/SheetTabs.h"
#include "grid/windows/SideHeading.h"
#include "grid/windows/TopHeading.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CPaintDC.h"

GridCtrl::GridCtrl()
    : view(std::make_unique<GridView>()), topHeading(std::make_unique<TopHeading>()),
      sideHeading(std::make_unique<SideHeading>()), cornerButton(std::make_unique<CornerButton>()),
      vScroll(std::make_unique<GridVScroll>()), hScroll(std::make_unique<GridHScroll>()),
      hintWindow(std::make_unique<HintWindow>()), tabs(std::make_unique<SheetTabs>()),
      printer(std::make_unique<GridPrinter>()) {
    RebuildPens();
    popupMenu.CreatePopupMenu();
    // Only the base class hears NotifySheetCreated(0) here; both creation paths fire it again.
    SetSheetCount(1);
    GiveChildrenSheet();
    hintWindow->grid = this;
    builtInEditor.grid = this;
    AddCellType(&normalCellType);
    AddCellType(&dropListCellType);
    AddCellType(&checkBoxCellType);
    AddCellType(&markerCellType);
}

GridCtrl::~GridCtrl() {
    // The windows go first, while the object is whole: the messages of their destruction still
    // reach a complete control.
    if (m_hWnd) DestroyWindow();
    for (int i = 0; i < fonts.GetCapacity(); ++i) delete static_cast<CFont*>(fonts.GetAt(i));
    fonts.RemoveAll();
    for (int i = 0; i < bitmaps.GetCapacity(); ++i) delete static_cast<CBitmap*>(bitmaps.GetAt(i));
    bitmaps.RemoveAll();
    cellTypes.RemoveAll();
    view.reset();
    topHeading.reset();
    sideHeading.reset();
    vScroll.reset();
    hScroll.reset();
    cornerButton.reset();
    hintWindow.reset();
    tabs.reset();
    sheet = nullptr;
    sheets.clear();
}

BEGIN_MESSAGE_MAP(GridCtrl, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_SETFOCUS()
ON_WM_SYSCOLORCHANGE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_GETDLGCODE()
ON_REGISTERED_MESSAGE(FindReplaceMessage(), OnFindReplaceMessage)
END_MESSAGE_MAP()

void GridCtrl::GiveChildrenSheet() {
    for (GridChild* child : std::initializer_list<GridChild*>{
             view.get(), topHeading.get(), sideHeading.get(), cornerButton.get(), vScroll.get(),
             hScroll.get(), tabs.get(), printer.get()}) {
        child->grid = this;
        child->sheet = sheet;
    }
}

void GridCtrl::RebuildPens() {
    highlightPen.DeleteObject();
    shadowPen.DeleteObject();
    highlightPen.CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNHIGHLIGHT));
    shadowPen.CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW));
}

BOOL GridCtrl::CreateGrid(DWORD style, const RECT& rect, CWnd* parent, int id) {
    BOOL created = CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW)), "",
                            style | WS_CLIPCHILDREN, rect, parent, static_cast<UINT>(id));
    if (created) {
        NotifyGridCreated();
        NotifySheetCreated(0);
    }
    return created;
}

int GridCtrl::AttachToControl(CWnd* parent, int id) {
    if (!SubclassDlgItem(static_cast<UINT>(id), parent)) return 0;
    LONG style = GetWindowLong(m_hWnd, GWL_STYLE);
    SetWindowLong(m_hWnd, GWL_STYLE,
                  style | static_cast<LONG>(WS_CLIPCHILDREN | WS_TABSTOP | WS_BORDER));
    CreateChildWindows();
    NotifyGridCreated();
    NotifySheetCreated(0);
    return 1;
}

int GridCtrl::CreateChildWindows() {
    const RECT none{};
    const DWORD childStyle = WS_CHILD | WS_VISIBLE;
    view->Create(childStyle, none, this, 1);
    topHeading->Create(childStyle, none, this, 2);
    sideHeading->Create(childStyle, none, this, 3);
    cornerButton->Create(childStyle, none, this, 4);
    tabs->Create(childStyle, none, this, 5);
    vScroll->Create(childStyle | SBS_VERT, none, this, 6);
    hScroll->Create(childStyle, none, this, 7);
    hintWindow->Create(this, nullptr);
    builtInEditor.Create(WS_CHILD | ES_AUTOVSCROLL | ES_MULTILINE, none, this, 123);
    RecalcLayout();
    return 0;
}

int GridCtrl::EnableUpdates(int flag) {
    updatesEnabled = flag;
    return 0;
}

void GridCtrl::RefreshChildren() {
    if (!updatesEnabled) return;
    view->RedrawAll();
    cornerButton->Refresh();
    vScroll->Refresh();
    hScroll->Refresh();
    tabs->Refresh();
    topHeading->Refresh();
    sideHeading->Refresh();
}

int GridCtrl::RedrawAll() {
    RefreshChildren();
    return 0;
}

int GridCtrl::RedrawCell(int col, int row) {
    if (col < 0) {
        sideHeading->Invalidate(TRUE);
        sideHeading->UpdateWindow();
    } else if (row < 0) {
        topHeading->Invalidate(TRUE);
        topHeading->UpdateWindow();
    } else {
        view->RedrawCell(col, row);
    }
    return 0;
}

int GridCtrl::RedrawRow(int row) {
    view->RedrawRow(row);
    return 0;
}

int GridCtrl::RedrawCol(int col) {
    view->RedrawCol(col);
    return 0;
}

int GridCtrl::RedrawRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    view->RedrawRange(leftCol, topRow, rightCol, bottomRow);
    return 0;
}

void GridCtrl::AddViewRange(int leftCol, int topRow, int rightCol, int bottomRow) {
    view->MarkRange(leftCol, topRow, rightCol, bottomRow);
}

CWnd* GridCtrl::GetCellEditor() {
    return sheet->cellEditor;
}

CWnd* GridCtrl::GetCellView() {
    return view.get();
}

int GridCtrl::SetCellEditor(CWnd* editor) {
    sheet->cellEditor = editor;
    return 0;
}

void GridCtrl::ReplaceGridView(GridView* replacement) {
    if (!replacement) return;
    view.reset(replacement);
    GiveChildrenSheet();
}

void GridCtrl::ReplaceTopHeading(TopHeading* replacement) {
    if (!replacement) return;
    topHeading.reset(replacement);
    GiveChildrenSheet();
}

void GridCtrl::ReplaceSideHeading(SideHeading* replacement) {
    if (!replacement) return;
    sideHeading.reset(replacement);
    GiveChildrenSheet();
}

void GridCtrl::ReplaceVScroll(GridVScroll* replacement) {
    if (!replacement) return;
    vScroll.reset(replacement);
    GiveChildrenSheet();
}

void GridCtrl::ReplaceHScroll(GridHScroll* replacement) {
    if (!replacement) return;
    hScroll.reset(replacement);
    GiveChildrenSheet();
}

void GridCtrl::ReplaceSheetTabs(SheetTabs* replacement) {
    if (!replacement) return;
    tabs.reset(replacement);
    GiveChildrenSheet();
}

void GridCtrl::ReplaceMultiSelect(MultiSelect* replacement) {
    if (!replacement) return;
    sheet->selection.reset(replacement);
    replacement->grid = this;
    replacement->sheet = sheet;
}

int GridCtrl::OnCreate(CREATESTRUCT* create) {
    if (CWnd::OnCreate(create) == -1) return -1;
    CreateChildWindows();
    return 0;
}

void GridCtrl::OnSize(UINT, int, int) {
    Invalidate(TRUE);
    EnableUpdates(0);
    RecalcLayout();
    EnableUpdates(1);
}

void GridCtrl::OnPaint() {
    {
        CPaintDC dc(this);
        RECT client;
        GetClientRect(&client);
        CBrush face(GetSysColor(COLOR_BTNFACE));
        FillRect(dc, &client, static_cast<HBRUSH>(face.GetSafeHandle()));
    }
    ValidateRect(nullptr);
    RedrawAll();
    vScroll->Refresh();
    hScroll->Refresh();
}

void GridCtrl::OnSetFocus(CWnd*) {
    if (view->m_hWnd) view->SetFocus();
}

void GridCtrl::OnSysColorChange() {
    Default();
    for (int i = 0; i < cellTypes.GetCapacity(); ++i)
        if (auto* type = static_cast<CellType*>(cellTypes.GetAt(i))) type->NotifySysColorChange();
    sheet->headingDefaultCell.SetBackColor(GetSysColor(COLOR_BTNFACE));
    RebuildPens();
}

void GridCtrl::OnHScroll(UINT code, UINT pos, CScrollBar*) {
    hScroll->HandleScroll(code, pos);
}

void GridCtrl::OnVScroll(UINT code, UINT pos, CScrollBar*) {
    vScroll->HandleScroll(code, pos);
}

UINT GridCtrl::OnGetDlgCode() {
    return DLGC_WANTARROWS | DLGC_WANTALLKEYS;
}

BOOL GridCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    int id = LOWORD(wParam);
    // Client items of the context menu take ids from 1000 up; below are the framework's.
    if (id >= 1000) NotifyMenuCommand(menuCol, menuRow, menuSection, id);
    return CWnd::OnCommand(wParam, lParam);
}
