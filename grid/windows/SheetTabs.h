#pragma once
// The strip of up to 64 tabs left of the horizontal scroll bar: trapezoids that overlap by
// their slanted sides, two scroll arrows at the left end and a sizing grip at the right. A tab
// is a label with an id and two colours; the strip knows nothing of sheets. A press on a tab
// reports its id through the grid's NotifyTabSelected, and the client decides what it means.

#include "grid/windows/GridChild.h"
#include "platform/afx/CFont.h"
#include "platform/afx/CScrollBar.h"
#include "platform/afx/CWnd.h"

#include <array>
#include <string>

class SheetTabs : public CWnd, public GridChild {
public:
    static constexpr int MaxTabs = 64;

    SheetTabs();
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // 0, or 1 when the strip is full.
    int AddTab(const std::string& text, int id);
    // 0 also for a position outside 0..count; at count it is AddTab. 1 when the strip is full.
    int InsertTab(int position, const std::string& text, int id);
    // 1 when a tab went, 0 for an unknown id. Fires no notification.
    int DeleteTab(int id);
    // Makes the tab current and scrolls it into view: 1, or 0 for an unknown id.
    int SelectTab(int id);
    int GetCurrentTab() const { return currentTab; }
    int GetTabCount() const { return tabCount; }
    // Store the colour without repainting: 1, or 0 for an unknown id.
    int SetTabBackColor(int id, COLORREF color);
    int SetTabTextColor(int id, COLORREF color);
    // A null font changes nothing; the tabs are measured anew. Answers 1.
    int SetTabFont(CFont* newFont);
    void Refresh();

protected:
    int OnCreate(CREATESTRUCT* create);
    void OnPaint();
    void OnSize(UINT type, int cx, int cy);
    void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnRButtonDown(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    struct Tab {
        std::string text;
        int width = 0;
        int id = 0;
        COLORREF textColor = 0;
        COLORREF backColor = 0;
    };

    int IndexOf(int id) const;
    // The tab under x, or -1.
    int TabAt(int x) const;
    int TabWidth(const std::string& text);
    // A tab in the system's colours.
    Tab NewTab(const std::string& text, int id);
    // Where the tab starts, counted from the first tab's start.
    int TabLeft(int index) const;
    void UpdateMaxScroll();
    void DrawTab(CDC& dc, const Tab& tab, int left, int top, int bottom);

    std::array<Tab, MaxTabs> tabs;
    int tabCount = 0;
    // Pixels by which the tabs are scrolled to the left.
    int scrollPos = 0;
    int maxScroll = 0;
    int currentTab = 0;
    int arrowWidth;
    CScrollBar arrows;
    CFont defaultFont;
    CFont* font = &defaultFont;
    // The pointer stands on the grip; a drag of the strip's width is running.
    int canSize = 0;
    int isSizing = 0;
};
