#include "ControlHarness.h"

#include "platform/user/Input.h"

#include <cstring>

namespace {

std::string ClassOf(HWND hwnd) {
    char name[64] = "";
    GetClassName(hwnd, name, sizeof name);
    return name;
}

std::string CodeName(const std::string& cls, WORD code) {
    static const std::map<std::string, std::map<WORD, const char*>> names = {
        {"Edit",
         {{EN_SETFOCUS, "EN_SETFOCUS"},
          {EN_KILLFOCUS, "EN_KILLFOCUS"},
          {EN_CHANGE, "EN_CHANGE"},
          {EN_UPDATE, "EN_UPDATE"},
          {EN_MAXTEXT, "EN_MAXTEXT"}}},
        {"ListBox",
         {{LBN_SELCHANGE, "LBN_SELCHANGE"},
          {LBN_DBLCLK, "LBN_DBLCLK"},
          {LBN_SETFOCUS, "LBN_SETFOCUS"},
          {LBN_KILLFOCUS, "LBN_KILLFOCUS"}}},
        {"Button", {{BN_CLICKED, "BN_CLICKED"}}},
        {"Static", {{STN_CLICKED, "STN_CLICKED"}}},
    };
    auto c = names.find(cls);
    if (c != names.end())
        if (auto n = c->second.find(code); n != c->second.end()) return n->second;
    return "code " + std::to_string(code);
}

const char* ScrollName(WORD code) {
    static const char* names[] = {"SB_LINEUP",   "SB_LINEDOWN",      "SB_PAGEUP",
                                  "SB_PAGEDOWN", "SB_THUMBPOSITION", "SB_THUMBTRACK",
                                  "SB_TOP",      "SB_BOTTOM",        "SB_ENDSCROLL"};
    return code <= SB_ENDSCROLL ? names[code] : "SB_?";
}

const char* const ClassName = "ControlHarness";

} // namespace

ControlHarness::ControlHarness(int width, int height) {
    static bool registered = false;
    if (!registered) {
        WNDCLASS wc;
        wc.lpfnWndProc = Proc;
        wc.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(COLOR_BTNFACE + 1));
        wc.lpszClassName = ClassName;
        RegisterClass(&wc);
        registered = true;
    }
    hwnd = CreateWindow(ClassName, "harness", WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE, 20, 20,
                        width, height, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtr(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetForegroundWindow(hwnd);
    Pump();
}

ControlHarness::~ControlHarness() {
    DestroyWindow(hwnd);
    Pump();
}

HWND ControlHarness::Add(const char* className, DWORD style, int x, int y, int width, int height,
                         int id, const char* text) {
    HWND child = CreateWindow(className, text, style | WS_CHILD | WS_VISIBLE, x, y, width, height,
                              hwnd, MenuFromId(id), nullptr, nullptr);
    Pump();
    return child;
}

std::vector<std::string> ControlHarness::Take() {
    std::vector<std::string> out;
    out.swap(events);
    return out;
}

int ControlHarness::Ticks(UINT_PTR timer) const {
    auto it = ticks.find(timer);
    return it == ticks.end() ? 0 : it->second;
}

LRESULT ControlHarness::Proc(HWND h, UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ControlHarness*>(GetWindowLongPtr(h, GWLP_USERDATA));
    if (self) {
        LRESULT result = 0;
        if (self->hook && self->hook(msg, wParam, lParam, &result)) return result;
        self->Record(msg, wParam, lParam);
    }
    return DefWindowProc(h, msg, wParam, lParam);
}

void ControlHarness::Record(UINT msg, WPARAM wParam, LPARAM lParam) {
    auto from = reinterpret_cast<HWND>(lParam);
    if (msg == WM_COMMAND && from) {
        std::string cls = ClassOf(from);
        std::string line = CodeName(cls, HIWORD(wParam));
        if (cls == "Edit") line += " \"" + GetWindowString(from) + "\"";
        if (cls == "Button" || cls == "Static") line += " " + std::to_string(LOWORD(wParam));
        events.push_back(line);
    } else if (msg == WM_VSCROLL || msg == WM_HSCROLL) {
        lastScrollBar = from;
        events.push_back(std::string(msg == WM_VSCROLL ? "VSCROLL " : "HSCROLL ") +
                         ScrollName(LOWORD(wParam)) + " " + std::to_string(HIWORD(wParam)));
    } else if (msg == WM_TIMER) {
        ++ticks[wParam];
    }
}

void ControlHarness::Pump() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

namespace {

POINT OnScreen(HWND target, int x, int y) {
    POINT p{x, y};
    ClientToScreen(target, &p);
    return p;
}

void Mouse(plat::RawInput::Kind kind, HWND target, int x, int y) {
    plat::PushInput(plat::RawInput{kind, OnScreen(target, x, y), 0, 0, 0});
    ControlHarness::Pump();
}

} // namespace

void ControlHarness::Press(HWND target, int x, int y) {
    Mouse(plat::RawInput::MouseMove, target, x, y);
    Mouse(plat::RawInput::ButtonDown, target, x, y);
}

void ControlHarness::MoveTo(HWND target, int x, int y) {
    Mouse(plat::RawInput::MouseMove, target, x, y);
}

void ControlHarness::Release(HWND target, int x, int y) {
    Mouse(plat::RawInput::MouseMove, target, x, y);
    Mouse(plat::RawInput::ButtonUp, target, x, y);
}

void ControlHarness::Click(HWND target, int x, int y, bool doubleClick) {
    plat::PushClick(OnScreen(target, x, y), 0, doubleClick);
    Pump();
}

void ControlHarness::Key(int vk, bool shift, bool ctrl) {
    plat::PushKey(vk, shift, ctrl);
    Pump();
}

void ControlHarness::Type(const std::string& text) {
    for (char c : text) plat::PushChar(c);
    Pump();
}
