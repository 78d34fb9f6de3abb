#include "platform/controls/ScrollBarControl.h"

#include "platform/controls/ControlDraw.h"
#include "platform/controls/GdiScope.h"
#include "platform/controls/ScrollBar.h"

#include <algorithm>

namespace plat {

namespace {

constexpr UINT_PTR RepeatTimer = 0xFFFA;
constexpr UINT FirstDelay = 200; // before a held arrow starts repeating
constexpr UINT RepeatDelay = 50;
constexpr int MinThumb = 8;

} // namespace

void ScrollBarControl::Register() {
    WNDCLASS wc;
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = ControlBase::Proc<ScrollBarControl>;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = "ScrollBar";
    RegisterClass(&wc);
}

LRESULT ScrollBarControl::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_ENABLE: InvalidateRect(hwnd, nullptr, TRUE); return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: OnPress(lParam); return 0;
    case WM_MOUSEMOVE: OnMove(lParam); return 0;
    case WM_LBUTTONUP: OnRelease(); return 0;
    case WM_CAPTURECHANGED: StopTracking(); return 0;
    case WM_TIMER:
        if (wParam != RepeatTimer) return Default(msg, wParam, lParam);
        OnRepeat();
        return 0;
    case SBM_SETSCROLLINFO:
        return lParam ? SetInfo(*reinterpret_cast<const SCROLLINFO*>(lParam), wParam != 0) : pos;
    case SBM_GETSCROLLINFO: return GetInfo(reinterpret_cast<SCROLLINFO*>(lParam));
    case SBM_SETPOS: {
        int old = pos;
        SCROLLINFO info;
        info.fMask = SIF_POS;
        info.nPos = static_cast<int>(wParam);
        SetInfo(info, lParam != 0);
        return old;
    }
    case SBM_GETPOS: return pos;
    case SBM_SETRANGE:
    case SBM_SETRANGEREDRAW: {
        int old = pos;
        SCROLLINFO info;
        info.fMask = SIF_RANGE;
        info.nMin = static_cast<int>(wParam);
        info.nMax = static_cast<int>(lParam);
        SetInfo(info, msg == SBM_SETRANGEREDRAW);
        return old;
    }
    case SBM_GETRANGE:
        if (wParam) *reinterpret_cast<int*>(wParam) = minPos;
        if (lParam) *reinterpret_cast<int*>(lParam) = maxPos;
        return 0;
    case SBM_ENABLE_ARROWS: return EnableArrows(static_cast<UINT>(wParam));
    default: return Default(msg, wParam, lParam);
    }
}

int ScrollBarControl::Positions() const {
    long long span = static_cast<long long>(maxPos) - minPos;
    long long positions = page ? span + 1 - page : span;
    return static_cast<int>(std::max(0LL, positions));
}

// The range gets at least one position, the page is no larger than the range, and the
// position stays where the page still fits.
void ScrollBarControl::Normalize() {
    maxPos = std::max(maxPos, minPos);
    long long range = static_cast<long long>(maxPos) - minPos + 1;
    page = static_cast<UINT>(std::min<long long>(page, range));
    pos = std::clamp(pos, minPos, minPos + Positions());
}

int ScrollBarControl::SetInfo(const SCROLLINFO& info, bool redraw) {
    if (info.fMask & SIF_RANGE) {
        minPos = info.nMin;
        maxPos = info.nMax;
    }
    if (info.fMask & SIF_PAGE) page = info.nPage;
    if (info.fMask & SIF_POS) pos = info.nPos;
    Normalize();
    if (redraw) InvalidateRect(hwnd, nullptr, TRUE);
    return pos;
}

BOOL ScrollBarControl::GetInfo(SCROLLINFO* info) const {
    if (!info || !(info->fMask & (SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS))) return FALSE;
    if (info->fMask & SIF_RANGE) {
        info->nMin = minPos;
        info->nMax = maxPos;
    }
    if (info->fMask & SIF_PAGE) info->nPage = page;
    if (info->fMask & SIF_POS) info->nPos = pos;
    if (info->fMask & SIF_TRACKPOS) info->nTrackPos = pressed == Part::Thumb ? trackPos : pos;
    return TRUE;
}

BOOL ScrollBarControl::EnableArrows(UINT arrows) {
    arrows &= ESB_DISABLE_BOTH;
    if (arrows == disabledArrows) return FALSE;
    disabledArrows = arrows;
    InvalidateRect(hwnd, nullptr, TRUE);
    return TRUE;
}

bool ScrollBarControl::Send(UINT code, int position) {
    SendMessage(GetParent(hwnd), Vertical() ? WM_VSCROLL : WM_HSCROLL,
                MAKEWPARAM(static_cast<WORD>(code), static_cast<WORD>(position)),
                reinterpret_cast<LPARAM>(hwnd));
    return !Gone();
}

ScrollBarControl::Geometry ScrollBarControl::Layout() const {
    RECT c;
    GetClientRect(hwnd, &c);
    Geometry g;
    g.length = Vertical() ? c.bottom : c.right;
    g.arrow = std::min(GetSystemMetrics(Vertical() ? SM_CYVSCROLL : SM_CXHSCROLL), g.length / 2);
    int shaft = g.length - 2 * g.arrow;
    int positions = Positions();
    bool usable = IsWindowEnabled(hwnd) && disabledArrows != ESB_DISABLE_BOTH && positions > 0;
    long long range = static_cast<long long>(maxPos) - minPos + 1;
    int size = page ? static_cast<int>(shaft * static_cast<long long>(page) / range)
                    : GetSystemMetrics(Vertical() ? SM_CYVTHUMB : SM_CXHTHUMB);
    g.thumbSize = std::min(std::max(size, MinThumb), shaft);
    g.hasThumb = usable && shaft >= MinThumb;
    if (!g.hasThumb) return g;
    int at = (pressed == Part::Thumb ? trackPos : pos) - minPos;
    g.thumbStart =
        g.arrow + static_cast<int>(static_cast<long long>(shaft - g.thumbSize) * at / positions);
    return g;
}

ScrollBarControl::Part ScrollBarControl::HitTest(POINT p) const {
    RECT client;
    GetClientRect(hwnd, &client);
    if (!PtInRect(&client, p)) return Part::None;
    Geometry g = Layout();
    int along = Along(p);
    if (along < g.arrow) return Part::LineBack;
    if (along >= g.length - g.arrow) return Part::LineForward;
    if (!g.hasThumb) return Part::None;
    if (along < g.thumbStart) return Part::PageBack;
    if (along < g.thumbStart + g.thumbSize) return Part::Thumb;
    return Part::PageForward;
}

namespace {

UINT CodeOf(int part) {
    static const UINT codes[] = {0, SB_LINEUP, SB_PAGEUP, SB_THUMBTRACK, SB_PAGEDOWN, SB_LINEDOWN};
    return codes[part];
}

} // namespace

void ScrollBarControl::OnPress(LPARAM point) {
    if (Style() & WS_TABSTOP) {
        SetFocus(hwnd);
        if (Gone()) return;
    }
    POINT p{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    int along = Along(p);
    Part part = HitTest(p);
    if (part == Part::None || (part == Part::LineBack && (disabledArrows & ESB_DISABLE_LTUP)) ||
        (part == Part::LineForward && (disabledArrows & ESB_DISABLE_RTDN)))
        return;
    SetCapture(hwnd);
    pressed = part;
    over = true;
    InvalidateRect(hwnd, nullptr, TRUE);
    if (part == Part::Thumb) {
        grab = along - Layout().thumbStart;
        lastAlong = along;
        trackPos = pos;
        return;
    }
    if (!Send(CodeOf(static_cast<int>(part)))) return;
    SetTimer(hwnd, RepeatTimer, FirstDelay, nullptr);
}

void ScrollBarControl::OnMove(LPARAM point) {
    if (pressed == Part::None) return;
    POINT p{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    int along = Along(p);
    if (pressed != Part::Thumb) {
        bool now = HitTest(p) == pressed;
        if (now != over) InvalidateRect(hwnd, nullptr, TRUE);
        over = now;
        return;
    }
    if (along == lastAlong) return;
    lastAlong = along;
    Geometry g = Layout();
    int room = g.length - 2 * g.arrow - g.thumbSize;
    int start = std::clamp(along - grab, g.arrow, g.arrow + room);
    long long positions = Positions();
    trackPos =
        minPos + (room > 0
                      ? static_cast<int>(((start - g.arrow) * positions * 2 + room) / (2LL * room))
                      : 0);
    InvalidateRect(hwnd, nullptr, TRUE);
    Send(SB_THUMBTRACK, trackPos);
}

void ScrollBarControl::OnRepeat() {
    SetTimer(hwnd, RepeatTimer, RepeatDelay, nullptr);
    POINT p;
    GetCursorPos(&p);
    ScreenToClient(hwnd, &p);
    over = HitTest(p) == pressed;
    if (over) Send(CodeOf(static_cast<int>(pressed)));
}

void ScrollBarControl::OnRelease() {
    Part was = pressed;
    if (was == Part::None) return;
    StopTracking();
    if (GetCapture() == hwnd) ReleaseCapture();
    if (was == Part::Thumb && !Send(SB_THUMBPOSITION, trackPos)) return;
    Send(SB_ENDSCROLL);
}

void ScrollBarControl::StopTracking() {
    if (pressed == Part::None) return;
    pressed = Part::None;
    KillTimer(hwnd, RepeatTimer);
    InvalidateRect(hwnd, nullptr, TRUE);
}

void ScrollBarControl::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    RECT c;
    GetClientRect(hwnd, &c);
    Geometry g = Layout();
    bool vertical = Vertical();
    auto span = [&](int from, int to) {
        return vertical ? RECT{c.left, from, c.right, to} : RECT{from, c.top, to, c.bottom};
    };
    // The system's own brush gets the classic checked shaft; a parent's brush is used as it is.
    HBRUSH shaft = ControlColor(WM_CTLCOLORSCROLLBAR, dc);
    if (shaft == GetSysColorBrush(COLOR_BTNFACE) || shaft == GetSysColorBrush(COLOR_SCROLLBAR))
        FillChecked(dc, c, COLOR_BTNHIGHLIGHT, COLOR_BTNFACE);
    else
        FillRect(dc, &c, shaft);
    if (g.hasThumb && over && (pressed == Part::PageBack || pressed == Part::PageForward)) {
        RECT held = pressed == Part::PageBack
                        ? span(g.arrow, g.thumbStart)
                        : span(g.thumbStart + g.thumbSize, g.length - g.arrow);
        FillSysColor(dc, held, COLOR_3DDKSHADOW);
    }
    bool enabled = IsWindowEnabled(hwnd) != 0;
    PaintArrow(dc, span(0, g.arrow), true, pressed == Part::LineBack && over,
               !enabled || (disabledArrows & ESB_DISABLE_LTUP));
    PaintArrow(dc, span(g.length - g.arrow, g.length), false, pressed == Part::LineForward && over,
               !enabled || (disabledArrows & ESB_DISABLE_RTDN));
    if (g.hasThumb) {
        RECT thumb = span(g.thumbStart, g.thumbStart + g.thumbSize);
        FillSysColor(dc, thumb, COLOR_BTNFACE);
        DrawRaisedEdge(dc, thumb);
    }
}

void ScrollBarControl::PaintArrow(HDC dc, RECT r, bool back, bool pushed, bool disabled) const {
    FillSysColor(dc, r, COLOR_BTNFACE);
    RECT edge = r;
    if (pushed) {
        DrawRing(dc, edge, COLOR_BTNSHADOW, COLOR_BTNSHADOW);
        OffsetRect(&r, 1, 1);
    } else {
        DrawRaisedEdge(dc, edge);
    }
    ArrowDirection direction = Vertical() ? (back ? ArrowDirection::Up : ArrowDirection::Down)
                                          : (back ? ArrowDirection::Left : ArrowDirection::Right);
    if (disabled) {
        RECT shadow = r;
        OffsetRect(&shadow, 1, 1);
        DrawArrow(dc, shadow, direction, COLOR_BTNHIGHLIGHT);
    }
    DrawArrow(dc, r, direction, disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
}

} // namespace plat

// The functions for scroll bar controls: each is a message to the control.

int SetScrollInfo(HWND hwnd, int bar, const SCROLLINFO* info, BOOL redraw) {
    if (bar != SB_CTL || !info) return 0;
    return static_cast<int>(
        SendMessage(hwnd, SBM_SETSCROLLINFO, redraw, reinterpret_cast<LPARAM>(info)));
}

BOOL GetScrollInfo(HWND hwnd, int bar, SCROLLINFO* info) {
    if (bar != SB_CTL || !info) return FALSE;
    return static_cast<BOOL>(
        SendMessage(hwnd, SBM_GETSCROLLINFO, 0, reinterpret_cast<LPARAM>(info)));
}

int SetScrollPos(HWND hwnd, int bar, int pos, BOOL redraw) {
    if (bar != SB_CTL) return 0;
    return static_cast<int>(SendMessage(hwnd, SBM_SETPOS, static_cast<WPARAM>(pos), redraw));
}

int GetScrollPos(HWND hwnd, int bar) {
    return bar == SB_CTL ? static_cast<int>(SendMessage(hwnd, SBM_GETPOS, 0, 0)) : 0;
}

BOOL SetScrollRange(HWND hwnd, int bar, int min, int max, BOOL redraw) {
    if (bar != SB_CTL) return FALSE;
    SendMessage(hwnd, redraw ? SBM_SETRANGEREDRAW : SBM_SETRANGE, static_cast<WPARAM>(min), max);
    return TRUE;
}

BOOL GetScrollRange(HWND hwnd, int bar, int* min, int* max) {
    if (bar != SB_CTL) return FALSE;
    SendMessage(hwnd, SBM_GETRANGE, reinterpret_cast<WPARAM>(min), reinterpret_cast<LPARAM>(max));
    return TRUE;
}

BOOL EnableScrollBar(HWND hwnd, UINT bar, UINT arrows) {
    if (bar != SB_CTL) return FALSE;
    return static_cast<BOOL>(SendMessage(hwnd, SBM_ENABLE_ARROWS, arrows, 0));
}

BOOL ShowScrollBar(HWND hwnd, int bar, BOOL show) {
    if (bar != SB_CTL || !IsWindow(hwnd)) return FALSE;
    ShowWindow(hwnd, show ? SW_SHOW : SW_HIDE);
    return TRUE;
}
