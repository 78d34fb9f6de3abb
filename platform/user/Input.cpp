#include "platform/user/Input.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>

#include "platform/backend/Backend.h"
#include "platform/user/Internal.h"

using namespace plat;

namespace {

struct InputState {
    std::array<BYTE, 256> keys{};       // as of the message being handled
    std::array<BYTE, 256> asyncKeys{};  // as of the last event handed in
    POINT pointer{};
    HWND lastClickWindow = nullptr;
    UINT lastClickMessage = 0;
    DWORD lastClickTime = 0;
    POINT lastClickPoint{};
    HCURSOR cursor = nullptr;
};

InputState& State() {
    static InputState state;
    return state;
}

WPARAM MouseKeys(const std::array<BYTE, 256>& keys) {
    WPARAM w = 0;
    if (keys[VK_LBUTTON] & 0x80) w |= MK_LBUTTON;
    if (keys[VK_RBUTTON] & 0x80) w |= MK_RBUTTON;
    if (keys[VK_MBUTTON] & 0x80) w |= MK_MBUTTON;
    if (keys[VK_SHIFT] & 0x80) w |= MK_SHIFT;
    if (keys[VK_CONTROL] & 0x80) w |= MK_CONTROL;
    return w;
}

const int buttonVk[3] = {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON};
const UINT downMsg[3] = {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN};
const UINT upMsg[3] = {WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONUP};

bool IsDoubleClick(const InputState& s, HWND target, UINT msg, POINT p, DWORD time) {
    Window* w = W(target);
    if (!w || !w->cls || !(w->cls->wc.style & CS_DBLCLKS)) return false;
    return s.lastClickWindow == target && s.lastClickMessage == msg &&
           time - s.lastClickTime <= GetDoubleClickTime() &&
           std::abs(p.x - s.lastClickPoint.x) <= GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
           std::abs(p.y - s.lastClickPoint.y) <= GetSystemMetrics(SM_CYDOUBLECLK) / 2;
}

}  // namespace

namespace plat {

void PushInput(RawInput input) {
    input.time = WM().GetBackend().Now();
    InputState& s = State();
    switch (input.kind) {
    case RawInput::KeyDown: s.asyncKeys[input.value & 0xFF] |= 0x80; break;
    case RawInput::KeyUp: s.asyncKeys[input.value & 0xFF] &= 0x7F; break;
    case RawInput::ButtonDown: s.asyncKeys[buttonVk[input.button]] |= 0x80; break;
    case RawInput::ButtonUp: s.asyncKeys[buttonVk[input.button]] &= 0x7F; break;
    default: break;
    }
    WM().queue.input.push_back(input);
}

void PushKey(int vk, bool shift, bool ctrl, bool alt) {
    auto key = [](RawInput::Kind k, int v) { PushInput(RawInput{k, {}, 0, v, 0}); };
    if (shift) key(RawInput::KeyDown, VK_SHIFT);
    if (ctrl) key(RawInput::KeyDown, VK_CONTROL);
    if (alt) key(RawInput::KeyDown, VK_MENU);
    key(RawInput::KeyDown, vk);
    key(RawInput::KeyUp, vk);
    if (alt) key(RawInput::KeyUp, VK_MENU);
    if (ctrl) key(RawInput::KeyUp, VK_CONTROL);
    if (shift) key(RawInput::KeyUp, VK_SHIFT);
}

void PushChar(char c) {
    static const char shifted[] = ")!@#$%^&*(";
    static const struct { char plain, shift; int vk; } punct[] = {
        {';', ':', VK_OEM_1}, {'=', '+', VK_OEM_PLUS}, {',', '<', VK_OEM_COMMA},
        {'-', '_', VK_OEM_MINUS}, {'.', '>', VK_OEM_PERIOD}, {'/', '?', VK_OEM_2},
        {'`', '~', 0xC0}, {'[', '{', 0xDB}, {'\\', '|', 0xDC}, {']', '}', 0xDD}, {'\'', '"', 0xDE}};
    auto u = static_cast<unsigned char>(c);
    if (std::isalpha(u) && u < 0x80) return PushKey(std::toupper(u), std::isupper(u) != 0);
    if (std::isdigit(u)) return PushKey(u);
    for (int d = 0; d < 10; ++d)
        if (c == shifted[d]) return PushKey('0' + d, true);
    if (c == ' ') return PushKey(VK_SPACE);
    for (const auto& p : punct)
        if (c == p.plain || c == p.shift) return PushKey(p.vk, c == p.shift);
    // No key makes it: the character comes alone, as from an input method.
    PushInput(RawInput{RawInput::Char, {}, 0, u, 0});
}

void PushClick(POINT screen, int button, bool doubleClick) {
    PushInput(RawInput{RawInput::MouseMove, screen, 0, 0, 0});
    for (int i = 0; i < (doubleClick ? 2 : 1); ++i) {
        PushInput(RawInput{RawInput::ButtonDown, screen, button, 0, 0});
        PushInput(RawInput{RawInput::ButtonUp, screen, button, 0, 0});
    }
}

void ForgetLastClick() { State().lastClickWindow = nullptr; }

std::optional<MSG> InputMessage(const RawInput& in) {
    InputState& s = State();
    MSG m;
    m.time = in.time;
    m.pt = in.kind <= RawInput::Wheel ? in.screen : s.pointer;
    switch (in.kind) {
    case RawInput::KeyDown:
    case RawInput::KeyUp:
    case RawInput::Char: {
        m.hwnd = WM().focus ? WM().focus : WM().active;
        if (!m.hwnd) return std::nullopt;
        bool alt = (s.keys[VK_MENU] & 0x80) || (in.kind != RawInput::Char && in.value == VK_MENU);
        if (in.kind == RawInput::Char) m.message = WM_CHAR;
        else if (in.kind == RawInput::KeyDown) m.message = alt ? WM_SYSKEYDOWN : WM_KEYDOWN;
        else m.message = alt ? WM_SYSKEYUP : WM_KEYUP;
        m.wParam = static_cast<WPARAM>(in.value);
        m.lParam = in.kind == RawInput::KeyUp ? static_cast<LPARAM>(0xC0000001u) : 1;
        return m;
    }
    default: break;
    }
    HWND target = WM().capture ? WM().capture : WindowFromPoint(in.screen);
    Window* w = W(target);
    if (!w || (!WM().capture && !w->Enabled())) return std::nullopt;
    m.hwnd = target;
    if (in.kind == RawInput::Wheel) {
        m.message = WM_MOUSEWHEEL;
        m.wParam = MAKEWPARAM(static_cast<WORD>(MouseKeys(s.keys)), static_cast<WORD>(in.value));
        m.lParam = MakePointLParam(in.screen.x, in.screen.y);
        return m;
    }
    POINT c = in.screen;
    ScreenToClient(target, &c);
    m.lParam = MakePointLParam(c.x, c.y);
    std::array<BYTE, 256> keys = s.keys;
    if (in.kind == RawInput::ButtonDown) keys[buttonVk[in.button]] |= 0x80;
    if (in.kind == RawInput::ButtonUp) keys[buttonVk[in.button]] &= 0x7F;
    m.wParam = MouseKeys(keys);
    if (in.kind == RawInput::MouseMove) m.message = WM_MOUSEMOVE;
    else if (in.kind == RawInput::ButtonUp) m.message = upMsg[in.button];
    else {
        m.message = downMsg[in.button];
        if (IsDoubleClick(s, target, m.message, in.screen, in.time))
            m.message += WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
    }
    return m;
}

void CommitInput(const RawInput& in, const MSG& m) {
    InputState& s = State();
    switch (in.kind) {
    case RawInput::KeyDown: s.keys[in.value & 0xFF] = static_cast<BYTE>((s.keys[in.value & 0xFF] ^ 0x01) | 0x80); break;
    case RawInput::KeyUp: s.keys[in.value & 0xFF] &= 0x7F; break;
    case RawInput::ButtonDown: s.keys[buttonVk[in.button]] |= 0x80; break;
    case RawInput::ButtonUp: s.keys[buttonVk[in.button]] &= 0x7F; break;
    default: break;
    }
    if (in.kind <= RawInput::Wheel) s.pointer = in.screen;
    if (in.kind == RawInput::ButtonDown) {
        bool dbl = m.message == WM_LBUTTONDBLCLK || m.message == WM_RBUTTONDBLCLK;
        // After a double click the next press starts over.
        s.lastClickWindow = dbl ? nullptr : m.hwnd;
        s.lastClickMessage = downMsg[in.button];
        s.lastClickTime = in.time;
        s.lastClickPoint = in.screen;
        // A window made never to take the activation (an open menu) leaves it where it is.
        Window* w = W(m.hwnd);
        Window* top = w ? w->TopLevel() : nullptr;
        if (top && top->handle != WM().active && !(top->exStyle & WS_EX_NOACTIVATE)) SetActiveWindow(top->handle);
    }
    if (in.kind == RawInput::MouseMove || in.kind == RawInput::ButtonDown)
        if (W(m.hwnd))
            SendMessage(m.hwnd, WM_SETCURSOR, reinterpret_cast<WPARAM>(m.hwnd), MAKELPARAM(HTCLIENT, static_cast<WORD>(m.message)));
}

void CaptureLost(Window* w) {
    HWND c = WM().capture;
    if (c && (c == w->handle || IsChild(w->handle, c))) ReleaseCapture();
}

void ForgetInput(HWND hwnd) {
    auto& posted = WM().queue.posted;
    std::erase_if(posted, [&](const MSG& m) { return m.hwnd == hwnd; });
    if (State().lastClickWindow == hwnd) State().lastClickWindow = nullptr;
}

}  // namespace plat

short GetKeyState(int vk) {
    BYTE k = State().keys[vk & 0xFF];
    return static_cast<short>(((k & 0x80) ? 0xFF80 : 0) | (k & 1));
}

short GetAsyncKeyState(int vk) { return static_cast<short>((State().asyncKeys[vk & 0xFF] & 0x80) ? 0x8000 : 0); }

BOOL GetKeyboardState(BYTE* keys) {
    if (!keys) return FALSE;
    std::copy(State().keys.begin(), State().keys.end(), keys);
    return TRUE;
}

BOOL SetKeyboardState(const BYTE* keys) {
    if (!keys) return FALSE;
    std::copy(keys, keys + 256, State().keys.begin());
    return TRUE;
}

UINT SendInput(UINT count, const INPUT* inputs, int) {
    SIZE screen = WM().GetBackend().ScreenSize();
    for (UINT i = 0; i < count; ++i) {
        const INPUT& in = inputs[i];
        if (in.type == INPUT_KEYBOARD) {
            RawInput::Kind k = (in.ki.dwFlags & KEYEVENTF_KEYUP) ? RawInput::KeyUp : RawInput::KeyDown;
            PushInput(RawInput{k, {}, 0, in.ki.wVk, 0});
            continue;
        }
        POINT p = State().pointer;
        if (in.mi.dwFlags & MOUSEEVENTF_MOVE) {
            if (in.mi.dwFlags & MOUSEEVENTF_ABSOLUTE)
                p = POINT{static_cast<LONG>((in.mi.dx * (screen.cx - 1) + 32767) / 65535),
                          static_cast<LONG>((in.mi.dy * (screen.cy - 1) + 32767) / 65535)};
            else p.x += in.mi.dx, p.y += in.mi.dy;
            PushInput(RawInput{RawInput::MouseMove, p, 0, 0, 0});
        }
        const struct { DWORD flag; RawInput::Kind kind; int button; } buttons[] = {
            {MOUSEEVENTF_LEFTDOWN, RawInput::ButtonDown, 0}, {MOUSEEVENTF_LEFTUP, RawInput::ButtonUp, 0},
            {MOUSEEVENTF_RIGHTDOWN, RawInput::ButtonDown, 1}, {MOUSEEVENTF_RIGHTUP, RawInput::ButtonUp, 1}};
        for (const auto& b : buttons)
            if (in.mi.dwFlags & b.flag) PushInput(RawInput{b.kind, p, b.button, 0, 0});
        if (in.mi.dwFlags & MOUSEEVENTF_WHEEL)
            PushInput(RawInput{RawInput::Wheel, p, 0, static_cast<int>(static_cast<short>(in.mi.mouseData)), 0});
    }
    return count;
}

BOOL GetCursorPos(POINT* p) {
    if (!p) return FALSE;
    *p = State().pointer;
    return TRUE;
}

BOOL SetCursorPos(int x, int y) {
    PushInput(RawInput{RawInput::MouseMove, POINT{x, y}, 0, 0, 0});
    return TRUE;
}

UINT GetDoubleClickTime() { return 500; }

HCURSOR SetCursor(HCURSOR cursor) {
    HCURSOR old = State().cursor;
    State().cursor = cursor;
    return old;
}

HCURSOR GetCursor() { return State().cursor; }

HCURSOR LoadCursor(HINSTANCE, const char* name) {
    // Standard cursors are their own numbers; the backends map them to real shapes.
    return IS_INTRESOURCE(name) ? reinterpret_cast<HCURSOR>(const_cast<char*>(name)) : nullptr;
}

HWND SetCapture(HWND hwnd) {
    HWND old = WM().capture;
    if (!W(hwnd)) return old;
    WM().capture = hwnd;
    if (old && old != hwnd) SendMessage(old, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(hwnd));
    return old;
}

BOOL ReleaseCapture() {
    HWND old = WM().capture;
    WM().capture = nullptr;
    if (old) SendMessage(old, WM_CAPTURECHANGED, 0, 0);
    return TRUE;
}

HWND GetCapture() { return WM().capture; }
