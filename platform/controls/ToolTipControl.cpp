#include "platform/controls/ToolTipControl.h"

#include "platform/controls/ControlDraw.h"
#include "platform/controls/GdiScope.h"

#include <algorithm>

namespace plat {

namespace {

constexpr UINT_PTR InitialTimer = 1; // the pointer has rested long enough
constexpr UINT_PTR AutopopTimer = 2; // the tip has shown long enough
constexpr int MarginX = 4;
constexpr int MarginY = 2;

bool SameTool(const TOOLINFO& a, const TOOLINFO& b) {
    return a.hwnd == b.hwnd && a.uId == b.uId;
}

bool HasString(const char* text) {
    return text && text != LPSTR_TEXTCALLBACK && !IS_INTRESOURCE(text);
}

} // namespace

void ToolTipControl::Register() {
    WNDCLASS wc;
    wc.style = CS_SAVEBITS;
    wc.lpfnWndProc = ControlBase::Proc<ToolTipControl>;
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.lpszClassName = TOOLTIPS_CLASS;
    RegisterClass(&wc);
}

LRESULT ToolTipControl::Handle(UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* info = reinterpret_cast<const TOOLINFO*>(lParam);
    switch (msg) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
    case WM_TIMER: OnTimer(wParam); return 0;
    case TTM_ACTIVATE:
        active = wParam != 0;
        if (!active) {
            Hide();
            KillTimer(hwnd, InitialTimer);
            current = -1;
        }
        return 0;
    case TTM_SETDELAYTIME:
        SetDelay(wParam, static_cast<short>(LOWORD(static_cast<std::uintptr_t>(lParam))));
        return 0;
    case TTM_GETDELAYTIME: return Delay(wParam);
    case TTM_ADDTOOL:
        if (!info) return FALSE;
        AddTool(info);
        return TRUE;
    case TTM_DELTOOL: DeleteTool(info); return 0;
    case TTM_NEWTOOLRECT:
        if (int i = Find(info); i >= 0) tools[static_cast<size_t>(i)].info.rect = info->rect;
        return 0;
    case TTM_UPDATETIPTEXT:
        if (int i = Find(info); i >= 0) SetText(i, info->lpszText);
        return 0;
    case TTM_GETTOOLCOUNT: return static_cast<LRESULT>(tools.size());
    case TTM_RELAYEVENT: Relay(reinterpret_cast<const MSG*>(lParam)); return 0;
    case TTM_TRACKACTIVATE: Track(wParam != 0, info); return 0;
    case TTM_TRACKPOSITION:
        trackAt = POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        if (tracking && current >= 0) Show(current, trackAt);
        return 0;
    case TTM_SETMAXTIPWIDTH: {
        int old = maxWidth;
        maxWidth = static_cast<int>(lParam);
        return old;
    }
    case TTM_GETMAXTIPWIDTH: return maxWidth;
    case TTM_POP:
        Hide();
        if (!tracking) spent = current;
        return 0;
    case TTM_UPDATE:
        if (shown >= 0) Show(shown, shownAt);
        return 0;
    default: return Default(msg, wParam, lParam);
    }
}

int ToolTipControl::Find(const TOOLINFO* key) const {
    if (!key) return -1;
    for (size_t i = 0; i < tools.size(); ++i)
        if (SameTool(tools[i].info, *key)) return static_cast<int>(i);
    return -1;
}

void ToolTipControl::AddTool(const TOOLINFO* info) {
    Tool tool{*info, {}};
    tool.info.lpszText = info->lpszText == LPSTR_TEXTCALLBACK ? LPSTR_TEXTCALLBACK : nullptr;
    if (HasString(info->lpszText)) tool.text = info->lpszText;
    // A tool added again replaces the first.
    if (int i = Find(info); i >= 0)
        tools[static_cast<size_t>(i)] = std::move(tool);
    else
        tools.push_back(std::move(tool));
}

void ToolTipControl::DeleteTool(const TOOLINFO* info) {
    int i = Find(info);
    if (i < 0) return;
    if (shown == i) Hide();
    tools.erase(tools.begin() + i);
    for (int* index : {&current, &shown, &spent}) {
        if (*index == i)
            *index = -1;
        else if (*index > i)
            --*index;
    }
    if (current < 0) tracking = false;
}

void ToolTipControl::SetText(int index, const char* newText) {
    Tool& tool = tools[static_cast<size_t>(index)];
    tool.info.lpszText = newText == LPSTR_TEXTCALLBACK ? LPSTR_TEXTCALLBACK : nullptr;
    tool.text = HasString(newText) ? newText : "";
    if (shown == index) Show(index, shownAt);
}

void ToolTipControl::Track(bool on, const TOOLINFO* info) {
    int i = Find(info);
    if (on && i >= 0) {
        tracking = true;
        current = i;
        Show(i, trackAt);
    } else if (!on && tracking && (i < 0 || i == current)) {
        tracking = false;
        current = -1;
        Hide();
    }
}

int ToolTipControl::ToolAt(const MSG& msg) const {
    POINT p{GET_X_LPARAM(msg.lParam), GET_Y_LPARAM(msg.lParam)};
    for (size_t i = 0; i < tools.size(); ++i) {
        const TOOLINFO& t = tools[i].info;
        if (t.uFlags & TTF_TRACK) continue;
        if (t.uFlags & TTF_IDISHWND) {
            auto window = reinterpret_cast<HWND>(t.uId);
            if (msg.hwnd == window || IsChild(window, msg.hwnd)) return static_cast<int>(i);
        } else if (msg.hwnd == t.hwnd && PtInRect(&t.rect, p)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void ToolTipControl::Relay(const MSG* msg) {
    if (!msg || tracking) return;
    switch (msg->message) {
    case WM_MOUSEMOVE: {
        int hit = ToolAt(*msg);
        if (hit != spent) spent = -1;
        if (hit == current) return;
        bool wasShown = shown >= 0;
        current = hit;
        Hide();
        KillTimer(hwnd, InitialTimer);
        // Moving from one tip to the next shows the next one sooner.
        if (hit >= 0 && active && hit != spent)
            SetTimer(hwnd, InitialTimer, static_cast<UINT>(wasShown ? reshowDelay : initialDelay),
                     nullptr);
        return;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        Hide();
        KillTimer(hwnd, InitialTimer);
        spent = current;
        return;
    default: return;
    }
}

void ToolTipControl::SetDelay(WPARAM which, int ms) {
    int initial = ms < 0 ? static_cast<int>(GetDoubleClickTime()) : ms;
    switch (which) {
    case TTDT_AUTOMATIC:
        initialDelay = initial;
        autopopDelay = initial * 10;
        reshowDelay = initial / 5;
        break;
    case TTDT_INITIAL: initialDelay = initial; break;
    case TTDT_AUTOPOP: autopopDelay = ms < 0 ? initial * 10 : ms; break;
    case TTDT_RESHOW: reshowDelay = ms < 0 ? initial / 5 : ms; break;
    default: break;
    }
}

LRESULT ToolTipControl::Delay(WPARAM which) const {
    switch (which) {
    case TTDT_AUTOPOP: return autopopDelay;
    case TTDT_RESHOW: return reshowDelay;
    default: return initialDelay;
    }
}

void ToolTipControl::OnTimer(WPARAM id) {
    KillTimer(hwnd, id);
    if (id == AutopopTimer && !tracking) {
        Hide();
        spent = current;
        return;
    }
    if (id != InitialTimer || !active || tracking || current < 0 || current == spent) return;
    POINT p;
    GetCursorPos(&p);
    // Below the pointer's arrow.
    p.y += GetSystemMetrics(SM_CYCURSOR) * 2 / 3;
    if (Show(current, p) && !Gone())
        SetTimer(hwnd, AutopopTimer, static_cast<UINT>(autopopDelay), nullptr);
}

std::string ToolTipControl::TextOf(int index) {
    TOOLINFO info = tools[static_cast<size_t>(index)].info;
    if (info.lpszText != LPSTR_TEXTCALLBACK) return tools[static_cast<size_t>(index)].text;
    NMTTDISPINFO ask;
    ask.hdr.hwndFrom = hwnd;
    ask.hdr.idFrom = info.uId;
    ask.hdr.code = TTN_GETDISPINFO;
    ask.lpszText = ask.szText;
    ask.uFlags = info.uFlags;
    ask.lParam = info.lParam;
    SendMessage(info.hwnd, WM_NOTIFY, static_cast<WPARAM>(info.uId),
                reinterpret_cast<LPARAM>(&ask));
    ask.szText[sizeof ask.szText - 1] = 0;
    std::string answer = HasString(ask.lpszText) ? ask.lpszText : "";
    if (Gone()) return answer;
    // The window may keep its answer for good.
    if (int i = Find(&info); i >= 0 && (ask.uFlags & TTF_DI_SETITEM)) {
        tools[static_cast<size_t>(i)].text = answer;
        tools[static_cast<size_t>(i)].info.lpszText = nullptr;
    }
    return answer;
}

bool ToolTipControl::Show(int index, POINT at) {
    std::string newText = TextOf(index);
    if (Gone()) return false;
    if (newText.empty()) {
        Hide();
        return false;
    }
    text = std::move(newText);
    MeasureDC measure(Font());
    RECT r{0, 0, std::max(maxWidth, 0), 0};
    UINT format = DT_CALCRECT | (maxWidth >= 0 ? DT_WORDBREAK : DT_SINGLELINE);
    if (Style() & TTS_NOPREFIX) format |= DT_NOPREFIX;
    DrawText(measure.Dc(), text.c_str(), static_cast<int>(text.size()), &r, format);
    int width = static_cast<int>(r.right) + 2 * MarginX + 2,
        height = static_cast<int>(r.bottom) + 2 * MarginY + 2;
    int x = std::clamp<int>(at.x, 0, std::max(0, GetSystemMetrics(SM_CXSCREEN) - width));
    int y = std::clamp<int>(at.y, 0, std::max(0, GetSystemMetrics(SM_CYSCREEN) - height));
    shown = index;
    shownAt = at;
    SetWindowPos(hwnd, HWND_TOPMOST, x, y, width, height, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    InvalidateRect(hwnd, nullptr, TRUE);
    return true;
}

void ToolTipControl::Hide() {
    shown = -1;
    KillTimer(hwnd, AutopopTimer);
    if (IsWindowVisible(hwnd)) ShowWindow(hwnd, SW_HIDE);
}

void ToolTipControl::OnPaint() {
    PaintScope paint(hwnd);
    HDC dc = paint.Dc();
    SavedDC saved(dc);
    RECT r;
    GetClientRect(hwnd, &r);
    DrawRing(dc, r, COLOR_INFOTEXT, COLOR_INFOTEXT);
    FillSysColor(dc, r, COLOR_INFOBK);
    InflateRect(&r, -(MarginX - 1), -(MarginY - 1));
    SelectObject(dc, Font());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
    UINT format = maxWidth >= 0 ? DT_WORDBREAK : DT_SINGLELINE;
    if (Style() & TTS_NOPREFIX) format |= DT_NOPREFIX;
    DrawText(dc, text.c_str(), static_cast<int>(text.size()), &r, format);
}

} // namespace plat
