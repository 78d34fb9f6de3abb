#include "grid/windows/SheetTabs.h"

#include "grid/core/GridCtrl.h"
#include "platform/afx/CBrush.h"
#include "platform/afx/CClientDC.h"
#include "platform/afx/CPaintDC.h"
#include "platform/afx/CPen.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(SheetTabs, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_RBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_SETCURSOR()
END_MESSAGE_MAP()

SheetTabs::SheetTabs() : arrowWidth(2 * GetSystemMetrics(SM_CXHSCROLL)) {
    defaultFont.CreateFont(14, 0, 0, 0, 500, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
}

BOOL SheetTabs::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    const char* windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW), nullptr);
    return CWnd::Create(windowClass, "", style | WS_CLIPCHILDREN, rect, parent, id);
}

int SheetTabs::OnCreate(CREATESTRUCT* create) {
    if (CWnd::OnCreate(create) == -1) return -1;
    RECT client;
    GetClientRect(&client);
    arrows.Create(WS_CHILD | WS_VISIBLE,
                  RECT{client.left, client.top, client.left + arrowWidth, client.bottom}, this,
                  100);
    return 0;
}

int SheetTabs::IndexOf(int id) const {
    for (int i = 0; i < tabCount; ++i)
        if (tabs[static_cast<size_t>(i)].id == id) return i;
    return -1;
}

int SheetTabs::TabWidth(const std::string& text) {
    CClientDC dc(this);
    CFont* old = dc.SelectObject(font);
    const int width = dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
    dc.SelectObject(old);
    return width + 10;
}

SheetTabs::Tab SheetTabs::NewTab(const std::string& text, int id) {
    return Tab{text, TabWidth(text), id, GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_BTNFACE)};
}

int SheetTabs::TabLeft(int index) const {
    int left = 0;
    for (int i = 0; i < index; ++i) left += tabs[static_cast<size_t>(i)].width;
    return left;
}

int SheetTabs::AddTab(const std::string& text, int id) {
    if (tabCount >= MaxTabs) return 1;
    tabs[static_cast<size_t>(tabCount++)] = NewTab(text, id);
    UpdateMaxScroll();
    return 0;
}

int SheetTabs::InsertTab(int position, const std::string& text, int id) {
    if (position < 0 || position > tabCount) return 0;
    if (position == tabCount) return AddTab(text, id);
    if (tabCount >= MaxTabs) return 1;
    auto at = tabs.begin() + position;
    std::move_backward(at, tabs.begin() + tabCount, tabs.begin() + tabCount + 1);
    *at = NewTab(text, id);
    ++tabCount;
    // The same tab stays current.
    if (position <= currentTab) ++currentTab;
    UpdateMaxScroll();
    Invalidate(TRUE);
    return 0;
}

int SheetTabs::DeleteTab(int id) {
    const int index = IndexOf(id);
    if (index < 0) return 0;
    std::move(tabs.begin() + index + 1, tabs.begin() + tabCount, tabs.begin() + index);
    tabs[static_cast<size_t>(--tabCount)] = Tab{};
    if (index == currentTab) {
        if (tabCount > 0) SelectTab(tabs[0].id);
    } else if (index < currentTab) {
        --currentTab;
    }
    UpdateMaxScroll();
    Invalidate(TRUE);
    return 1;
}

int SheetTabs::SelectTab(int id) {
    const int index = IndexOf(id);
    if (index < 0) return 0;
    int x = TabLeft(index) - 5;
    currentTab = index;
    x = std::max(x, 0);
    const int room = sheet->tabStripWidth - 2 * tabs[static_cast<size_t>(index)].width - 10;
    if (x < scrollPos)
        scrollPos = x;
    else if (x > room + scrollPos)
        scrollPos = x - room;
    if (x > maxScroll) scrollPos = maxScroll;
    Invalidate(TRUE);
    return 1;
}

int SheetTabs::SetTabBackColor(int id, COLORREF color) {
    const int index = IndexOf(id);
    if (index < 0) return 0;
    tabs[static_cast<size_t>(index)].backColor = color;
    return 1;
}

int SheetTabs::SetTabTextColor(int id, COLORREF color) {
    const int index = IndexOf(id);
    if (index < 0) return 0;
    tabs[static_cast<size_t>(index)].textColor = color;
    return 1;
}

int SheetTabs::SetTabFont(CFont* newFont) {
    if (newFont) font = newFont;
    for (int i = 0; i < tabCount; ++i)
        tabs[static_cast<size_t>(i)].width = TabWidth(tabs[static_cast<size_t>(i)].text);
    UpdateMaxScroll();
    Invalidate(TRUE);
    return 1;
}

void SheetTabs::Refresh() {
    if (!m_hWnd) return;
    Invalidate(TRUE);
    UpdateWindow();
}

void SheetTabs::UpdateMaxScroll() {
    if (tabCount == 0) return;
    RECT client;
    GetClientRect(&client);
    int excess = -(client.right - arrowWidth);
    for (int i = 0; i < tabCount; ++i) excess += tabs[static_cast<size_t>(i)].width;
    maxScroll = excess < 1 ? 0 : excess + 20;
}

void SheetTabs::DrawTab(CDC& dc, const Tab& tab, int left, int top, int bottom) {
    const int right = left + tab.width;
    const POINT corners[] = {
        {left, top}, {left + 7, bottom}, {right + 2, bottom}, {right + 9, top}};
    dc.Polygon(corners, 4);
    dc.SetTextColor(tab.textColor);
    dc.ExtTextOut(left + 10, top + 1, 0, nullptr, tab.text.c_str(),
                  static_cast<UINT>(tab.text.size()), nullptr);
}

void SheetTabs::OnPaint() {
    CPaintDC dc(this);
    const int saved = dc.SaveDC();
    dc.SelectObject(font);
    CBrush face(GetSysColor(COLOR_BTNFACE)), white(RGB(255, 255, 255));
    CPen whitePen(PS_SOLID, 1, RGB(255, 255, 255)), blackPen(PS_SOLID, 1, RGB(0, 0, 0)),
        facePen(PS_SOLID, 1, GetSysColor(COLOR_BTNFACE)),
        shadowPen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW));
    RECT client;
    GetClientRect(&client);
    dc.SetBkColor(GetSysColor(COLOR_BTNFACE));
    dc.ExtTextOut(0, 0, ETO_OPAQUE, &client, "", 0, nullptr);

    const int top = client.top, bottom = client.bottom - 1;
    int left = arrowWidth - scrollPos, currentLeft = left;
    for (int i = 0; i < tabCount; ++i) {
        const Tab& tab = tabs[static_cast<size_t>(i)];
        CBrush back(tab.backColor);
        if (i == currentTab) {
            currentLeft = left;
            dc.SelectObject(&white);
            dc.SetBkColor(RGB(255, 255, 255));
        } else {
            dc.SelectObject(&back);
            dc.SetBkColor(tab.backColor);
        }
        DrawTab(dc, tab, left, top, bottom);
        dc.SelectObject(&face);
        left += tab.width;
    }
    // The current tab once more, over its neighbours, open at the top. With no tabs there is
    // none to draw.
    if (currentTab < tabCount) {
        const Tab& tab = tabs[static_cast<size_t>(currentTab)];
        dc.SelectObject(&white);
        dc.SetBkColor(RGB(255, 255, 255));
        DrawTab(dc, tab, currentLeft, top, bottom);
        CPen* old = dc.SelectObject(&whitePen);
        dc.MoveTo(currentLeft + 1, top);
        dc.LineTo(currentLeft + tab.width + 9, top);
        dc.SelectObject(old);
        dc.ExtTextOut(currentLeft + 10, top + 1, 0, nullptr, tab.text.c_str(),
                      static_cast<UINT>(tab.text.size()), nullptr);
    }
    // The grip.
    CPen* const gripPens[] = {&blackPen, &shadowPen, &facePen, &facePen, &whitePen, &facePen};
    for (int i = 0; i < 6; ++i) {
        dc.SelectObject(gripPens[i]);
        dc.MoveTo(client.right - 1 - i, client.top);
        dc.LineTo(client.right - 1 - i, client.bottom);
    }
    dc.SelectObject(&blackPen);
    dc.MoveTo(client.left, client.top);
    dc.LineTo(client.left + 1 + arrowWidth, client.top);
    arrows.Invalidate(TRUE);
    arrows.UpdateWindow();
    dc.RestoreDC(saved);
}

void SheetTabs::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    RECT client;
    GetClientRect(&client);
    arrows.MoveWindow(0, 1, arrowWidth, client.bottom - 1, TRUE);
    UpdateMaxScroll();
}

void SheetTabs::OnHScroll(UINT code, UINT pos, CScrollBar* bar) {
    // Steps of 5 pixels may leave the position a little below 0; the painting takes that.
    if (code == SB_LINEUP && scrollPos > 0) {
        scrollPos -= 5;
        Invalidate(TRUE);
    } else if (code == SB_LINEDOWN && scrollPos < maxScroll - 5) {
        scrollPos += 5;
        Invalidate(TRUE);
    }
    CWnd::OnHScroll(code, pos, bar);
}

int SheetTabs::TabAt(int x) const {
    int left = arrowWidth - scrollPos;
    for (int i = 0; i < tabCount; ++i) {
        const int right = left + tabs[static_cast<size_t>(i)].width;
        // The slanted gap right of the text belongs to the tab.
        if (left <= x && x <= right + 2) return i;
        left = right;
    }
    return -1;
}

void SheetTabs::OnLButtonDown(UINT flags, CPoint point) {
    if (canSize) {
        SetCapture();
        isSizing = 1;
    } else if (const int index = TabAt(point.x); index >= 0) {
        currentTab = index;
        const int left = arrowWidth - scrollPos + TabLeft(index);
        const int right = left + tabs[static_cast<size_t>(index)].width + 19;
        RECT client;
        GetClientRect(&client);
        if (left - 5 < arrowWidth)
            scrollPos = std::max(0, scrollPos - (arrowWidth - (left - 5)));
        else if (right > client.right)
            scrollPos = std::min(maxScroll, scrollPos + right - client.right);
        Invalidate(TRUE);
        grid->NotifyTabSelected(tabs[static_cast<size_t>(index)].id);
    }
    CWnd::OnLButtonDown(flags, point);
}

void SheetTabs::OnMouseMove(UINT flags, CPoint point) {
    RECT client;
    GetClientRect(&client);
    if (!isSizing) {
        // The last six pixels are the grip.
        canSize = point.x > client.right - 7;
    } else {
        RECT parent;
        GetParent()->GetClientRect(&parent);
        sheet->tabStripWidth = std::min<int>(point.x, parent.right - 15);
        grid->tabResizing = 1;
        grid->RecalcLayout();
        grid->tabResizing = 0;
    }
    CWnd::OnMouseMove(flags, point);
}

void SheetTabs::OnLButtonUp(UINT flags, CPoint point) {
    ReleaseCapture();
    isSizing = 0;
    CWnd::OnLButtonUp(flags, point);
}

BOOL SheetTabs::OnSetCursor(CWnd*, UINT, UINT) {
    ::SetCursor(canSize ? sheet->colResizeCursor : LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

void SheetTabs::OnRButtonDown(UINT flags, CPoint point) {
    if (sheet->popupMenuEnabled) {
        POINT screen = point;
        ClientToScreen(&screen);
        grid->ShowContextMenu(TabAt(point.x), 0, &screen, 7);
    }
    CWnd::OnRButtonDown(flags, point);
}
