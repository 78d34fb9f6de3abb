#pragma once
// The vertical scroll bar of the grid. It translates between the thumb and `topRow`: the thumb
// range is capped at 1000 units, so a long sheet scales rows to thumb units. In thumb mode 2
// the thumb rests in the middle of a range of 0 to 2 and shows no position.

#include "grid/windows/GridChild.h"
#include "platform/afx/CScrollBar.h"

class GridVScroll : public CScrollBar, public GridChild {
public:
    // Brings range and position up to date with the sheet.
    void Refresh();
    // The grid forwards its WM_VSCROLL here.
    void HandleScroll(UINT code, UINT pos);

    double rowToThumb = 1.0;
    double thumbToRow = 1.0;
    int lastMaxTopRow = -2;
    int lastMode = -2;
    int lastLockedRows = -2;
    // The row that the thumb points at during a drag.
    int trackRow = 0;

private:
    void ThumbTrack(UINT pos);
};
