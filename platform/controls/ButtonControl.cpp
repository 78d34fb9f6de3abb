#include "platform/controls/ButtonControl.h"

#include "platform/controls/ControlDraw.h"
#include "platform/controls/GdiScope.h"

#include <string>

namespace plat {

namespace {

constexpr int MarkSize = 13; // the square of a check box, the circle of a radio button
constexpr int MarkGap = 4;   // between the mark and the text

bool Inside(HWND hwnd, LPARAM point) {
    RECT r;
    GetClientRect(hwnd, &r);
    return PtInRect(&r, POINT{GET_X_LPARAM(point), GET_Y_LPARAM(point)}) != 0;
}

} // namespace

void ButtonControl::Register() {
    WNDCLASS wc;
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = ControlBase::Proc<ButtonControl>;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = "Button";
    RegisterClass(&wc);
}

LRESULT ButtonControl::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SETTEXT: {
        LRESULT r = DefWindowProc(hwnd, msg, wParam, lParam);
        InvalidateRect(hwnd, nullptr, TRUE);
        return r;
    }
    case WM_ENABLE: InvalidateRect(hwnd, nullptr, TRUE); return 0;
    case WM_GETDLGCODE: return DialogCode();
    case WM_SETFOCUS:
        InvalidateRect(hwnd, nullptr, TRUE);
        // An automatic radio button reached by the keyboard picks itself.
        if (Type() == BS_AUTORADIOBUTTON && GetCapture() != hwnd && check != BST_CHECKED) Click();
        return 0;
    case WM_KILLFOCUS:
        spaceDown = false;
        if (tracking && GetCapture() == hwnd) ReleaseCapture();
        SetPushed(false);
        InvalidateRect(hwnd, nullptr, TRUE);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: OnPress(); return 0;
    case WM_MOUSEMOVE:
        if (tracking) SetPushed(Inside(hwnd, lParam));
        return 0;
    case WM_LBUTTONUP: OnRelease(lParam); return 0;
    case WM_CAPTURECHANGED:
        if (tracking) {
            tracking = false;
            SetPushed(false);
        }
        return 0;
    case WM_KEYDOWN:
        if (wParam == VK_SPACE && !pushed && Type() != BS_GROUPBOX) {
            spaceDown = true;
            SetPushed(true);
        }
        return 0;
    case WM_KEYUP:
        if (wParam == VK_SPACE && spaceDown) {
            spaceDown = false;
            SetPushed(false);
            Click();
        }
        return 0;
    case BM_CLICK:
        if (!IsWindowEnabled(hwnd)) return 0;
        // As the mouse would: through the window's procedure, so that a subclass sees it.
        SendMessage(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, 0);
        if (!Gone()) SendMessage(hwnd, WM_LBUTTONUP, 0, 0);
        return 0;
    case BM_GETCHECK: return check;
    case BM_SETCHECK: SetCheck(static_cast<UINT>(wParam)); return 0;
    case BM_GETSTATE:
        return check | (pushed ? UINT{BST_PUSHED} : 0u) | (Focused() ? UINT{BST_FOCUS} : 0u);
    case BM_SETSTATE: SetPushed(wParam != 0); return 0;
    case BM_SETSTYLE:
        SetWindowLong(hwnd, GWL_STYLE,
                      static_cast<LONG>((Style() & ~BS_TYPEMASK) | (wParam & BS_TYPEMASK)));
        if (LOWORD(static_cast<std::uintptr_t>(lParam))) InvalidateRect(hwnd, nullptr, TRUE);
        return 0;
    default: return Default(msg, wParam, lParam);
    }
}

LRESULT ButtonControl::DialogCode() const {
    switch (Type()) {
    case BS_PUSHBUTTON: return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON: return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON: return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX: return DLGC_STATIC;
    default: return DLGC_BUTTON;
    }
}

void ButtonControl::SetPushed(bool on) {
    if (pushed == on) return;
    pushed = on;
    InvalidateRect(hwnd, nullptr, TRUE);
}

void ButtonControl::SetCheck(UINT state) {
    if (!IsCheckBox() && !IsRadio()) return;
    state = state == BST_INDETERMINATE ? BST_INDETERMINATE : state ? BST_CHECKED : BST_UNCHECKED;
    if (check == state) return;
    check = state;
    InvalidateRect(hwnd, nullptr, TRUE);
}

void ButtonControl::Click() {
    if (Type() == BS_AUTOCHECKBOX) SetCheck(check == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
    if (Type() == BS_AUTORADIOBUTTON) {
        SetCheck(BST_CHECKED);
        UncheckGroup();
        if (Gone()) return;
    }
    Notify(BN_CLICKED);
}

// The group runs from the nearest sibling at or before this one that has WS_GROUP up to the
// next one that has it.
void ButtonControl::UncheckGroup() {
    HWND first = hwnd;
    while (!(GetWindowLong(first, GWL_STYLE) & WS_GROUP)) {
        HWND prev = GetWindow(first, GW_HWNDPREV);
        if (!prev) break;
        first = prev;
    }
    for (HWND h = first; h; h = GetWindow(h, GW_HWNDNEXT)) {
        if (h != first && (GetWindowLong(h, GWL_STYLE) & WS_GROUP)) break;
        if (h == hwnd) continue;
        char cls[16];
        GetClassName(h, cls, sizeof cls);
        if (std::string(cls) == "Button" &&
            (GetWindowLong(h, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON)
            SendMessage(h, BM_SETCHECK, BST_UNCHECKED, 0);
    }
}

void ButtonControl::OnPress() {
    if (Type() == BS_GROUPBOX) return;
    // The mouse first, so that the focus arriving with it is known as the mouse's.
    SetCapture(hwnd);
    tracking = true;
    if (!Focused()) {
        SetFocus(hwnd);
        if (Gone()) return;
    }
    SetPushed(tracking);
}

void ButtonControl::OnRelease(LPARAM point) {
    if (!tracking) return;
    tracking = false;
    bool inside = Inside(hwnd, point);
    SetPushed(false);
    if (GetCapture() == hwnd) ReleaseCapture();
    if (inside && !Gone()) Click();
}

void ButtonControl::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    SavedDC saved(dc);
    SelectObject(dc, Font());
    RECT r;
    GetClientRect(hwnd, &r);
    if (IsPushButton())
        PaintPushButton(dc, r);
    else if (Type() == BS_GROUPBOX)
        PaintGroupBox(dc, r);
    else
        PaintMarkButton(dc, r);
}

void ButtonControl::PaintPushButton(HDC dc, RECT r) {
    FillSysColor(dc, r, COLOR_BTNFACE);
    if (Type() == BS_DEFPUSHBUTTON) DrawRing(dc, r, COLOR_WINDOWFRAME, COLOR_WINDOWFRAME);
    if (pushed)
        DrawRing(dc, r, COLOR_BTNSHADOW, COLOR_BTNSHADOW);
    else
        DrawRaisedEdge(dc, r);
    RECT text = r;
    if (pushed) OffsetRect(&text, 1, 1);
    std::string caption = GetWindowString(hwnd);
    UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    if (!IsWindowEnabled(hwnd)) {
        DrawEmbossedText(dc, caption, text, format);
    } else {
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
        DrawText(dc, caption.c_str(), static_cast<int>(caption.size()), &text, format);
    }
    if (Focused()) {
        InflateRect(&r, -1, -1);
        DrawFocusRect(dc, &r);
    }
}

void ButtonControl::PaintMarkButton(HDC dc, RECT r) {
    FillRect(dc, &r, ControlColor(WM_CTLCOLORSTATIC, dc));
    int top = (r.top + r.bottom - MarkSize) / 2;
    RECT mark{r.left, top, r.left + MarkSize, top + MarkSize};
    bool enabled = IsWindowEnabled(hwnd) != 0;
    int ink = enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
    int face = pushed || !enabled ? COLOR_BTNFACE : COLOR_WINDOW;
    if (IsRadio()) {
        SolidPen pen(1, GetSysColor(COLOR_BTNSHADOW));
        SelectObject(dc, pen.Get());
        SelectObject(dc, GetSysColorBrush(face));
        Ellipse(dc, mark.left, mark.top, mark.right - 1, mark.bottom - 1);
        if (check) {
            SelectObject(dc, GetStockObject(NULL_PEN));
            SelectObject(dc, GetSysColorBrush(ink));
            Ellipse(dc, mark.left + 4, mark.top + 4, mark.left + 9, mark.top + 9);
        }
        SelectObject(dc, GetStockObject(BLACK_PEN));
    } else {
        RECT box = mark;
        DrawSunkenEdge(dc, box);
        FillSysColor(dc, box, face);
        // The tick: seven columns, each three pixels high, down to the third and up again.
        for (int k = 0; check && k < 7; ++k) {
            int y = box.top + 1 + (k <= 2 ? 2 + k : 6 - k);
            FillSysColor(dc, RECT{box.left + 1 + k, y, box.left + 2 + k, y + 3}, ink);
        }
    }
    RECT text{mark.right + MarkGap, r.top, r.right, r.bottom};
    std::string caption = GetWindowString(hwnd);
    UINT format = DT_LEFT | DT_VCENTER | DT_SINGLELINE;
    SetBkMode(dc, TRANSPARENT);
    if (!enabled) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    DrawText(dc, caption.c_str(), static_cast<int>(caption.size()), &text, format);
    if (Focused() && !caption.empty()) {
        RECT extent = text;
        DrawText(dc, caption.c_str(), static_cast<int>(caption.size()), &extent,
                 format | DT_CALCRECT);
        int height = extent.bottom - extent.top;
        extent.top = (r.top + r.bottom - height) / 2 - 1;
        extent.bottom = extent.top + height + 2;
        extent.left -= 1;
        extent.right += 1;
        DrawFocusRect(dc, &extent);
    }
}

// A group box lies behind the controls it frames: it draws its frame and its title and leaves
// the inside alone.
void ButtonControl::PaintGroupBox(HDC dc, RECT r) {
    HBRUSH brush = ControlColor(WM_CTLCOLORSTATIC, dc);
    TEXTMETRIC tm;
    GetTextMetrics(dc, &tm);
    RECT frame{r.left, r.top + tm.tmHeight / 2, r.right, r.bottom};
    RECT outer = frame;
    DrawRing(dc, outer, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
    DrawRing(dc, outer, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW);
    std::string caption = GetWindowString(hwnd);
    if (caption.empty()) return;
    RECT text{r.left + 8, r.top, r.right - 8, r.top + tm.tmHeight};
    DrawText(dc, caption.c_str(), static_cast<int>(caption.size()), &text,
             DT_LEFT | DT_SINGLELINE | DT_CALCRECT);
    InflateRect(&text, 2, 0);
    FillRect(dc, &text, brush);
    InflateRect(&text, -2, 0);
    SetBkMode(dc, TRANSPARENT);
    if (!IsWindowEnabled(hwnd)) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    DrawText(dc, caption.c_str(), static_cast<int>(caption.size()), &text, DT_LEFT | DT_SINGLELINE);
}

} // namespace plat
