#pragma once
// The common frame of the windows around the cells (headings, corner button, sheet tabs):
// a child window of the grid that shows its background in the colour the grid gives for its
// section and repaints as a whole on Refresh. What each draws comes with its own painting.

#include "grid/windows/GridChild.h"
#include "platform/afx/CWnd.h"

#include <vector>

class HeadingWindow : public CWnd, public GridChild {
public:
    explicit HeadingWindow(int section) : section(section) {}

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual void Refresh();
    // Follows a change of the scroll position; the repaint waits for the next paint message.
    void UpdateView();

protected:
    // Where heading items first to last begin and end, walking from the outermost one (index
    // -count) inward; item i measures sizes[-i - 1]. An end not met leaves its value alone.
    static void HeadingSpan(const std::vector<int>& sizes, int count, int first, int last,
                            LONG* low, LONG* high);
    void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    int section;
};
