// System colours, metrics and sounds. The colour scheme is the classic one of the platform,
// which the module's drawing was made for.

#include <array>
#include <string>

#include "platform/backend/Backend.h"
#include "platform/gdi/Gdi.h"
#include "platform/user/Internal.h"

using namespace plat;

namespace {

constexpr int ColorCount = 25;

std::array<COLORREF, ColorCount>& Colors() {
    static std::array<COLORREF, ColorCount> colors = {
        RGB(212, 208, 200),  // COLOR_SCROLLBAR
        RGB(58, 110, 165),   // COLOR_BACKGROUND
        RGB(10, 36, 106),    // COLOR_ACTIVECAPTION
        RGB(128, 128, 128),  // COLOR_INACTIVECAPTION
        RGB(212, 208, 200),  // COLOR_MENU
        RGB(255, 255, 255),  // COLOR_WINDOW
        RGB(0, 0, 0),        // COLOR_WINDOWFRAME
        RGB(0, 0, 0),        // COLOR_MENUTEXT
        RGB(0, 0, 0),        // COLOR_WINDOWTEXT
        RGB(255, 255, 255),  // COLOR_CAPTIONTEXT
        RGB(212, 208, 200),  // COLOR_ACTIVEBORDER
        RGB(212, 208, 200),  // COLOR_INACTIVEBORDER
        RGB(128, 128, 128),  // COLOR_APPWORKSPACE
        RGB(10, 36, 106),    // COLOR_HIGHLIGHT
        RGB(255, 255, 255),  // COLOR_HIGHLIGHTTEXT
        RGB(212, 208, 200),  // COLOR_BTNFACE
        RGB(128, 128, 128),  // COLOR_BTNSHADOW
        RGB(128, 128, 128),  // COLOR_GRAYTEXT
        RGB(0, 0, 0),        // COLOR_BTNTEXT
        RGB(212, 208, 200),  // COLOR_INACTIVECAPTIONTEXT
        RGB(255, 255, 255),  // COLOR_BTNHIGHLIGHT
        RGB(64, 64, 64),     // COLOR_3DDKSHADOW
        RGB(212, 208, 200),  // COLOR_3DLIGHT
        RGB(0, 0, 0),        // COLOR_INFOTEXT
        RGB(255, 255, 225),  // COLOR_INFOBK
    };
    return colors;
}

std::array<HBRUSH, ColorCount>& Brushes() {
    static std::array<HBRUSH, ColorCount> brushes{};
    return brushes;
}

}  // namespace

DWORD GetSysColor(int index) {
    return index >= 0 && index < ColorCount ? Colors()[static_cast<size_t>(index)] : 0;
}

HBRUSH GetSysColorBrush(int index) {
    if (index < 0 || index >= ColorCount) return nullptr;
    HBRUSH& b = Brushes()[static_cast<size_t>(index)];
    if (!b) b = CreateSolidBrush(GetSysColor(index));
    return b;
}

void SetSysColors(int count, const int* indexes, const COLORREF* colors) {
    for (int i = 0; i < count; ++i) {
        int k = indexes[i];
        if (k < 0 || k >= ColorCount) continue;
        Colors()[static_cast<size_t>(k)] = colors[i];
        HBRUSH& b = Brushes()[static_cast<size_t>(k)];
        if (b) DeleteObject(b);
        b = nullptr;
    }
    std::vector<HWND> tops;
    for (Window* t : WM().Desktop()->children) tops.push_back(t->handle);
    for (HWND t : tops) SendMessage(t, WM_SYSCOLORCHANGE, 0, 0);
}

int GetSystemMetrics(int index) {
    switch (index) {
    case SM_CXSCREEN: return WM().GetBackend().ScreenSize().cx;
    case SM_CYSCREEN: return WM().GetBackend().ScreenSize().cy;
    case SM_CXVSCROLL:
    case SM_CYHSCROLL:
    case SM_CYVSCROLL:
    case SM_CXHSCROLL:
    case SM_CYVTHUMB:
    case SM_CXHTHUMB: return 16;
    case SM_CYCAPTION:
    case SM_CYMENU: return 19;
    case SM_CXBORDER:
    case SM_CYBORDER: return 1;
    case SM_CXDLGFRAME:
    case SM_CYDLGFRAME: return 3;
    case SM_CXEDGE:
    case SM_CYEDGE: return 2;
    case SM_CXICON:
    case SM_CYICON:
    case SM_CXCURSOR:
    case SM_CYCURSOR: return 32;
    case SM_CXDOUBLECLK:
    case SM_CYDOUBLECLK:
    case SM_CXDRAG:
    case SM_CYDRAG: return 4;
    default: return 0;
    }
}

BOOL Beep(DWORD frequency, DWORD ms) {
    ReportEvent("beep", std::to_string(frequency) + " " + std::to_string(ms));
    WM().GetBackend().Beep(frequency, ms);
    return TRUE;
}

BOOL MessageBeep(UINT) { return Beep(750, 100); }
