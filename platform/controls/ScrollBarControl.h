#pragma once
// The "ScrollBar" class, SBS_HORZ or SBS_VERT: a range, a page and a position (empty range at
// first), drawn as a shaft with an arrow at each end and a thumb whose length shows the page.
//
// The bar never moves its own position: it tells its parent, with WM_VSCROLL or WM_HSCROLL
// carrying a code and its own handle, and the parent sets the position. A press on an arrow
// sends SB_LINEUP or SB_LINEDOWN, one on the shaft SB_PAGEUP or SB_PAGEDOWN; both repeat
// through a timer while the button stays down over the same part, and the release sends
// SB_ENDSCROLL. Dragging the thumb sends SB_THUMBTRACK with the position under it at every
// move, then SB_THUMBPOSITION with the last one at the release, then SB_ENDSCROLL.

#include "platform/controls/ControlBase.h"

namespace plat {

class ScrollBarControl : public ControlBase {
public:
    using ControlBase::ControlBase;
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    enum class Part { None, LineBack, PageBack, Thumb, PageForward, LineForward };
    // Where things lie along the bar, in pixels from its start.
    struct Geometry {
        int length = 0;
        int arrow = 0;
        int thumbStart = 0;
        int thumbSize = 0;
        bool hasThumb = false;
    };

    bool Vertical() const { return (Style() & SBS_VERT) != 0; }
    int Along(POINT p) const { return Vertical() ? p.y : p.x; }
    int Positions() const; // how many thumb positions there are besides the first
    Geometry Layout() const;
    // The part under a point of the client area; None off the bar.
    Part HitTest(POINT p) const;
    void Normalize();
    int SetInfo(const SCROLLINFO& info, bool redraw);
    BOOL GetInfo(SCROLLINFO* info) const;
    BOOL EnableArrows(UINT arrows);
    bool Send(UINT code, int position = 0);

    void OnPress(LPARAM point);
    void OnMove(LPARAM point);
    void OnRelease();
    void OnRepeat();
    void StopTracking();

    void OnPaint();
    void PaintArrow(HDC dc, RECT r, bool back, bool pushed, bool disabled) const;

    int minPos = 0, maxPos = 0, pos = 0;
    UINT page = 0;
    UINT disabledArrows = ESB_ENABLE_BOTH;
    Part pressed = Part::None;
    bool over = false; // the pointer is over the pressed part
    int grab = 0;      // where in the thumb it was taken
    int lastAlong = 0;
    int trackPos = 0;
};

} // namespace plat
