#pragma once
// The horizontal scroll bar of the grid. It translates between the thumb and `leftCol`; the
// thumb counts the scrolling columns only, so its position is shifted by the locked ones.

#include "grid/windows/GridChild.h"
#include "platform/afx/CScrollBar.h"

class GridHScroll : public CScrollBar, public GridChild {
public:
    void Refresh();
    // The grid forwards its WM_HSCROLL here.
    void HandleScroll(UINT code, UINT pos);

    int lastMaxLeftCol = -1;
    int lastLockedCols = -1;
    // The column that the thumb points at during a drag.
    int trackCol = 0;

private:
    void ThumbTrack(UINT pos);
};
