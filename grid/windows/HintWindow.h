#pragma once
// A small floating tip with one line of centred text, which the scroll bars show beside the
// thumb during a drag. Its positions are in the client coordinates of the grid, and it stays
// inside the grid's client area where it can.

#include "platform/afx/CWnd.h"

#include <string>

class CFont;
class GridCtrl;

class HintWindow : public CWnd {
public:
    // Placement: 0x02 ends at x, 0x04 centred on x; 0x10 ends at y, 0x20 centred on y.
    // 1, or 0 when the window can't be made. A brush of 0 takes the tip colour.
    int Create(CWnd* parent, HBRUSH background);
    int SetHintFont(CFont* hintFont);
    int SetPlacement(int flags);
    int SetTextColor(COLORREF color);
    int SetBackColor(COLORREF color);
    int SetText(const std::string& hintText, int redraw);
    int MoveHint(int x, int y, int minimumWidth);
    void HideHint();
    void ShowHint();

    GridCtrl* grid = nullptr;
    std::string text;
    COLORREF textColor = 0;
    COLORREF backColor = 0xE0FFFF;
    int placement = 1;
    CFont* font = nullptr;
    int lineHeight = 0;

protected:
    void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    SIZE Measure(const char* sample);
};
