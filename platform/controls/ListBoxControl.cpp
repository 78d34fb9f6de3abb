#include "platform/controls/ListBoxControl.h"

#include "platform/base/MbString.h"
#include "platform/controls/GdiScope.h"
#include "platform/controls/ScrollBar.h"

#include <algorithm>
#include <cstring>

namespace plat {

namespace {

int AsInt(std::uintptr_t v) {
    return static_cast<int>(static_cast<std::int32_t>(v));
}

constexpr int TextIndent = 2;

bool StartsWithNoCase(const std::string& text, const char* prefix) {
    for (size_t i = 0; prefix[i]; ++i)
        if (i >= text.size() || _mbctolower(static_cast<unsigned char>(text[i])) !=
                                    _mbctolower(static_cast<unsigned char>(prefix[i])))
            return false;
    return true;
}

} // namespace

void ListBoxControl::Register() {
    WNDCLASS wc;
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = ControlBase::Proc<ListBoxControl>;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = "ListBox";
    RegisterClass(&wc);
}

LRESULT ListBoxControl::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    const char* text = reinterpret_cast<const char*>(lParam);
    int index = AsInt(wParam);
    switch (msg) {
    case WM_CREATE: OnCreate(); return 0;
    case WM_SIZE:
        FitHeight();
        UpdateScrollBar();
        SetTop(top);
        return 0;
    case WM_SETFONT: {
        Default(msg, wParam, lParam);
        MeasureDC measure(Font());
        TEXTMETRIC tm;
        GetTextMetrics(measure.Dc(), &tm);
        itemHeight = std::max<int>(1, tm.tmHeight);
        FitHeight();
        UpdateScrollBar();
        return 0;
    }
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_ENABLE: InvalidateRect(hwnd, nullptr, TRUE); return 0;
    case WM_SETFOCUS:
        InvalidateRect(hwnd, nullptr, TRUE);
        NotifyIf(LBN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        InvalidateRect(hwnd, nullptr, TRUE);
        NotifyIf(LBN_KILLFOCUS);
        return 0;
    case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_KEYDOWN: OnKeyDown(wParam); return 0;
    case WM_CHAR: OnChar(wParam); return 0;
    case WM_LBUTTONDOWN: OnPress(lParam); return 0;
    case WM_MOUSEMOVE: OnMouseMove(lParam); return 0;
    case WM_LBUTTONUP: OnRelease(); return 0;
    case WM_LBUTTONDBLCLK: NotifyIf(LBN_DBLCLK); return 0;
    case WM_CAPTURECHANGED: tracking = false; return 0;
    case WM_VSCROLL: OnScroll(wParam); return 0;
    case WM_MOUSEWHEEL: OnWheel(wParam); return 0;

    case LB_ADDSTRING: {
        if (!(Style() & LBS_SORT)) return Insert(-1, text);
        const char* key = text ? text : "";
        auto at =
            std::upper_bound(items.begin(), items.end(), key, [](const char* k, const Item& item) {
                return _mbsicmp(k, item.text.c_str()) < 0;
            });
        return Insert(static_cast<int>(at - items.begin()), text);
    }
    case LB_INSERTSTRING: return Insert(index, text);
    case LB_DELETESTRING: return Delete(index);
    case LB_RESETCONTENT: Reset(); return 0;
    case LB_GETCOUNT: return Count();
    case LB_GETTEXT:
        if (!Valid(index) || !lParam) return LB_ERR;
        std::memcpy(reinterpret_cast<char*>(lParam), items[static_cast<size_t>(index)].text.c_str(),
                    items[static_cast<size_t>(index)].text.size() + 1);
        return static_cast<LRESULT>(items[static_cast<size_t>(index)].text.size());
    case LB_GETTEXTLEN:
        return Valid(index) ? static_cast<LRESULT>(items[static_cast<size_t>(index)].text.size())
                            : LB_ERR;
    case LB_GETITEMDATA: return Valid(index) ? items[static_cast<size_t>(index)].data : LB_ERR;
    case LB_SETITEMDATA:
        if (!Valid(index)) return LB_ERR;
        items[static_cast<size_t>(index)].data = lParam;
        return LB_OKAY;
    case LB_FINDSTRING: return Find(index, text, false);
    case LB_FINDSTRINGEXACT: return Find(index, text, true);
    case LB_SELECTSTRING: {
        int found = Find(index, text, false);
        if (found != LB_ERR) SetSelection(found);
        return found;
    }
    case LB_SETCURSEL:
        if (!Valid(index)) {
            // -1 clears the selection and, as documented, answers LB_ERR all the same.
            if (index == -1) SetSelection(-1);
            return LB_ERR;
        }
        SetSelection(index);
        return index;
    case LB_GETCURSEL: return selected;
    case LB_GETSEL: return Valid(index) ? index == selected : LB_ERR;
    case LB_SETCARETINDEX:
        if (!Valid(index)) return LB_ERR;
        SetCaret(index);
        return LB_OKAY;
    case LB_GETCARETINDEX: return caret;
    case LB_SETTOPINDEX:
        if (!Valid(index) && !(index == 0 && items.empty())) return LB_ERR;
        SetTop(index);
        return LB_OKAY;
    case LB_GETTOPINDEX: return top;
    case LB_SETITEMHEIGHT: {
        int height = LOWORD(static_cast<std::uintptr_t>(lParam));
        if (height < 1 || height > 255) return LB_ERR;
        itemHeight = height;
        FitHeight();
        UpdateScrollBar();
        InvalidateRect(hwnd, nullptr, TRUE);
        return LB_OKAY;
    }
    case LB_GETITEMHEIGHT: return itemHeight;
    case LB_GETITEMRECT:
        if ((!Valid(index) && !(index == 0 && items.empty())) || !lParam) return LB_ERR;
        *reinterpret_cast<RECT*>(lParam) = ItemRect(index);
        return 1;
    case LB_ITEMFROMPOINT: {
        if (items.empty()) return MAKELONG(0, 1);
        POINT p{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        int at = ItemAt(p.y);
        RECT area = ItemArea();
        bool outside = !PtInRect(&area, p) || !Valid(at);
        return MAKELONG(static_cast<WORD>(std::clamp(at, 0, Count() - 1)), outside ? 1 : 0);
    }
    default: return Default(msg, wParam, lParam);
    }
}

bool ListBoxControl::NotifyIf(WORD code) {
    return !Notifies() || Notify(code);
}

void ListBoxControl::OnCreate() {
    MeasureDC measure(Font());
    TEXTMETRIC tm;
    GetTextMetrics(measure.Dc(), &tm);
    itemHeight = std::max<int>(1, tm.tmHeight);
    if (Style() & WS_VSCROLL)
        scrollBar = CreateWindowEx(0, "ScrollBar", "", WS_CHILD | SBS_VERT, 0, 0, 0, 0, hwnd,
                                   nullptr, nullptr, nullptr);
}

LRESULT ListBoxControl::Insert(int index, const char* text) {
    if (index == -1) index = Count();
    if (index < 0 || index > Count()) return LB_ERR;
    int before = Count();
    items.insert(items.begin() + index, Item{text ? text : "", 0});
    if (selected >= index) ++selected;
    // The caret stays with its item; on an empty box it waits at 0 for the first one.
    if (caret < before && caret >= index) ++caret;
    UpdateScrollBar();
    InvalidateRect(hwnd, nullptr, TRUE);
    return index;
}

LRESULT ListBoxControl::Delete(int index) {
    if (!Valid(index)) return LB_ERR;
    items.erase(items.begin() + index);
    if (selected == index)
        selected = -1;
    else if (selected > index)
        --selected;
    if (caret > index) --caret;
    caret = std::clamp(caret, 0, std::max(0, Count() - 1));
    UpdateScrollBar();
    SetTop(top);
    InvalidateRect(hwnd, nullptr, TRUE);
    return Count();
}

void ListBoxControl::Reset() {
    items.clear();
    selected = -1;
    caret = 0;
    top = 0;
    UpdateScrollBar();
    InvalidateRect(hwnd, nullptr, TRUE);
}

// Searches the items after `after` and then from the start, as the real system does.
int ListBoxControl::Find(int after, const char* text, bool exact) const {
    if (items.empty()) return LB_ERR;
    const char* key = text ? text : "";
    int n = Count();
    int start = after < 0 || after >= n ? 0 : after + 1;
    for (int k = 0; k < n; ++k) {
        int i = (start + k) % n;
        const std::string& item = items[static_cast<size_t>(i)].text;
        if (exact ? _mbsicmp(item.c_str(), key) == 0 : StartsWithNoCase(item, key)) return i;
    }
    return LB_ERR;
}

void ListBoxControl::SetSelection(int index) {
    selected = Valid(index) ? index : -1;
    if (selected >= 0) SetCaret(selected);
    InvalidateRect(hwnd, nullptr, TRUE);
}

void ListBoxControl::SetCaret(int index) {
    caret = index;
    Reveal(index);
    InvalidateRect(hwnd, nullptr, TRUE);
}

RECT ListBoxControl::ItemArea() const {
    RECT r;
    GetClientRect(hwnd, &r);
    if (scrollBar && IsWindowVisible(scrollBar))
        r.right = std::max<LONG>(r.left, r.right - GetSystemMetrics(SM_CXVSCROLL));
    return r;
}

int ListBoxControl::PageSize() const {
    RECT r;
    GetClientRect(hwnd, &r);
    return std::max(1, static_cast<int>(r.bottom) / itemHeight);
}

int ListBoxControl::MaxTop() const {
    return std::max(0, Count() - PageSize());
}

RECT ListBoxControl::ItemRect(int index) const {
    RECT area = ItemArea();
    int y = (index - top) * itemHeight;
    return RECT{area.left, y, area.right, y + itemHeight};
}

int ListBoxControl::ItemAt(int y) const {
    int row = y >= 0 ? y / itemHeight : -1 - (-y - 1) / itemHeight;
    return top + row;
}

void ListBoxControl::SetTop(int index) {
    int now = std::clamp(index, 0, MaxTop());
    if (scrollBar) SetScrollPos(scrollBar, SB_CTL, now, TRUE);
    if (now == top) return;
    top = now;
    InvalidateRect(hwnd, nullptr, TRUE);
}

void ListBoxControl::Reveal(int index) {
    if (index < top)
        SetTop(index);
    else if (index >= top + PageSize())
        SetTop(index - PageSize() + 1);
}

void ListBoxControl::FitHeight() {
    if (Style() & LBS_NOINTEGRALHEIGHT) return;
    RECT client, window;
    GetClientRect(hwnd, &client);
    int rest = static_cast<int>(client.bottom) % itemHeight;
    if (client.bottom <= itemHeight || rest == 0) return;
    GetWindowRect(hwnd, &window);
    SetWindowPos(hwnd, nullptr, 0, 0, window.right - window.left, window.bottom - window.top - rest,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ListBoxControl::UpdateScrollBar() {
    if (!scrollBar) return;
    RECT client;
    GetClientRect(hwnd, &client);
    int width = GetSystemMetrics(SM_CXVSCROLL);
    MoveWindow(scrollBar, client.right - width, 0, width, client.bottom, TRUE);
    SCROLLINFO info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = 0;
    info.nMax = std::max(0, Count() - 1);
    info.nPage = static_cast<UINT>(PageSize());
    info.nPos = top;
    SetScrollInfo(scrollBar, SB_CTL, &info, TRUE);
    bool needed = Count() > PageSize();
    bool always = (Style() & LBS_DISABLENOSCROLL) != 0;
    EnableWindow(scrollBar, needed);
    bool show = needed || always;
    if (show != (IsWindowVisible(scrollBar) != 0)) {
        ShowWindow(scrollBar, show ? SW_SHOWNA : SW_HIDE);
        InvalidateRect(hwnd, nullptr, TRUE);
    }
}

void ListBoxControl::OnKeyDown(WPARAM vk) {
    if (items.empty()) return;
    int n = Count(), page = PageSize(), step = std::max(1, page - 1);
    int from = std::clamp(caret, 0, n - 1);
    // With no selection the first arrow key selects the caret's item itself.
    bool none = selected < 0;
    int target;
    switch (vk) {
    case VK_UP: target = none ? from : from - 1; break;
    case VK_DOWN: target = none ? from : from + 1; break;
    case VK_PRIOR: target = from > top ? top : from - step; break;
    case VK_NEXT: target = from < top + page - 1 ? top + page - 1 : from + step; break;
    case VK_HOME: target = 0; break;
    case VK_END: target = n - 1; break;
    default: return;
    }
    SetSelection(std::clamp(target, 0, n - 1));
    NotifyIf(LBN_SELCHANGE);
}

void ListBoxControl::OnChar(WPARAM c) {
    if (c < 0x20 || c > 0xFF) return;
    char key[2] = {static_cast<char>(c), 0};
    int found = Find(caret, key, false);
    if (found == LB_ERR) return;
    SetSelection(found);
    NotifyIf(LBN_SELCHANGE);
}

void ListBoxControl::OnPress(LPARAM point) {
    if (!Focused()) {
        SetFocus(hwnd);
        if (Gone()) return;
    }
    int at = ItemAt(GET_Y_LPARAM(point));
    if (Valid(at)) SetSelection(at);
    SetCapture(hwnd);
    tracking = true;
}

void ListBoxControl::OnMouseMove(LPARAM point) {
    if (!tracking || items.empty()) return;
    int y = GET_Y_LPARAM(point);
    // Above or below the box the selection steps on, which scrolls it one item.
    int at = y < 0 ? top - 1 : y >= PageSize() * itemHeight ? top + PageSize() : ItemAt(y);
    at = std::clamp(at, 0, Count() - 1);
    if (at != selected) SetSelection(at);
}

void ListBoxControl::OnRelease() {
    if (!tracking) return;
    tracking = false;
    if (GetCapture() == hwnd) ReleaseCapture();
    NotifyIf(LBN_SELCHANGE);
}

void ListBoxControl::OnScroll(WPARAM wParam) {
    int page = PageSize();
    switch (LOWORD(wParam)) {
    case SB_LINEUP: SetTop(top - 1); break;
    case SB_LINEDOWN: SetTop(top + 1); break;
    case SB_PAGEUP: SetTop(top - page); break;
    case SB_PAGEDOWN: SetTop(top + page); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: SetTop(HIWORD(wParam)); break;
    case SB_TOP: SetTop(0); break;
    case SB_BOTTOM: SetTop(MaxTop()); break;
    default: break;
    }
}

void ListBoxControl::OnWheel(WPARAM wParam) {
    wheelRest += GET_WHEEL_DELTA_WPARAM(wParam);
    int notches = wheelRest / WHEEL_DELTA;
    wheelRest -= notches * WHEEL_DELTA;
    SetTop(top - notches * std::min(3, PageSize()));
}

void ListBoxControl::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    SavedDC saved(dc);
    SelectObject(dc, Font());
    RECT area = ItemArea();
    HBRUSH brush = ControlColor(WM_CTLCOLORLISTBOX, dc);
    FillRect(dc, &area, brush);
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    COLORREF ink = IsWindowEnabled(hwnd) ? GetTextColor(dc) : GetSysColor(COLOR_GRAYTEXT);
    SetBkMode(dc, TRANSPARENT);
    int last = std::min(Count(), top + PageSize() + 1);
    for (int i = top; i < last; ++i) {
        RECT r = ItemRect(i);
        if (i == selected) FillRect(dc, &r, GetSysColorBrush(COLOR_HIGHLIGHT));
        SetTextColor(dc, i == selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : ink);
        RECT text = r;
        text.left += TextIndent;
        const std::string& s = items[static_cast<size_t>(i)].text;
        DrawText(dc, s.c_str(), static_cast<int>(s.size()), &text,
                 DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
    if (Focused()) {
        RECT r = ItemRect(caret);
        DrawFocusRect(dc, &r);
    }
}

} // namespace plat
