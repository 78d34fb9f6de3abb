// The message queue and the loops over it.
//
// How nesting works: there is one queue for the one thread. Any handler may run a loop of its
// own (a modal dialog, a message box, a drag that scrolls) by calling GetMessage or PeekMessage;
// such a loop takes the next message whatever window it belongs to, so timers, paints and input
// for every window keep flowing while it runs. The loop ends when its owner says so (EndDialog,
// a released button) and returns into the handler that started it. Sent messages never queue:
// SendMessage calls the window procedure at once, however deep the loops are stacked.
//
// Order of retrieval, as on the real system: posted messages, WM_QUIT, input, WM_PAINT for the
// first window in tree order that needs it, then the earliest due timer. When nothing is there,
// the backend waits for input or the next timer; headless it makes up input from a script or
// advances its virtual clock.

#include <map>

#include "platform/backend/Backend.h"
#include "platform/user/Input.h"
#include "platform/user/Internal.h"

using namespace plat;

namespace {

MSG lastMessage;

bool InRange(UINT msg, UINT first, UINT last) {
    return (first == 0 && last == 0) || (msg >= first && msg <= last);
}

bool ForWindow(HWND target, HWND filter) {
    return !filter || target == filter || IsChild(filter, target);
}

bool TakePosted(MSG* out, HWND filter, UINT first, UINT last, bool remove) {
    auto& posted = WM().queue.posted;
    for (auto it = posted.begin(); it != posted.end(); ++it) {
        if (!ForWindow(it->hwnd, filter) || !InRange(it->message, first, last)) continue;
        *out = *it;
        if (remove) posted.erase(it);
        return true;
    }
    return false;
}

bool TakeInput(MSG* out, HWND filter, UINT first, UINT last, bool remove) {
    auto& input = WM().queue.input;
    while (!input.empty()) {
        RawInput raw = input.front();
        std::optional<MSG> m = InputMessage(raw);
        if (!m) {  // goes nowhere: drop it, but keep key state and pointer true
            input.pop_front();
            CommitInput(raw, MSG{});
            continue;
        }
        if (!ForWindow(m->hwnd, filter) || !InRange(m->message, first, last)) return false;
        *out = *m;
        if (remove) {
            input.pop_front();
            CommitInput(raw, *m);
        }
        return true;
    }
    return false;
}

bool TakePaint(MSG* out, HWND filter, UINT first, UINT last) {
    if (!InRange(WM_PAINT, first, last)) return false;
    HWND found = nullptr;
    WM().ForEach([&](Window* w) {
        if (found || !w->ReallyVisible() || !ForWindow(w->handle, filter)) return;
        if (w->NeedsPaint()) found = w->handle;
    });
    if (!found) return false;
    *out = MSG{found, WM_PAINT, 0, 0, WM().GetBackend().Now(), {}};
    return true;
}

bool TakeTimer(MSG* out, HWND filter, UINT first, UINT last, bool remove) {
    if (!InRange(WM_TIMER, first, last)) return false;
    DWORD now = WM().GetBackend().Now();
    std::optional<Timer> t = WM().timers.TakeDue(now, filter, remove);
    if (!t) return false;
    *out = MSG{t->hwnd, WM_TIMER, t->id, reinterpret_cast<LPARAM>(t->proc), now, {}};
    return true;
}

}  // namespace

LRESULT SendMessage(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    Window* w = W(hwnd);
    if (!w || !w->proc) return 0;
    WNDPROC proc = w->proc;
    ++WM().depth;
    LRESULT r = proc(hwnd, msg, wParam, lParam);
    --WM().depth;
    WM().Bury();
    return r;
}

BOOL PostMessage(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (hwnd && !W(hwnd)) return FALSE;
    WM().queue.posted.push_back(MSG{hwnd, msg, wParam, lParam, WM().GetBackend().Now(), {}});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    WM().queue.quitPosted = true;
    WM().queue.quitCode = exitCode;
}

BOOL PeekMessage(MSG* msg, HWND filter, UINT first, UINT last, UINT remove) {
    MSG m;
    bool take = (remove & PM_REMOVE) != 0;
    bool found = TakePosted(&m, filter, first, last, take);
    if (!found && WM().queue.quitPosted && InRange(WM_QUIT, first, last)) {
        m = MSG{nullptr, WM_QUIT, static_cast<WPARAM>(WM().queue.quitCode), 0, WM().GetBackend().Now(), {}};
        if (take) WM().queue.quitPosted = false;
        found = true;
    }
    found = found || TakeInput(&m, filter, first, last, take) || TakePaint(&m, filter, first, last) ||
            TakeTimer(&m, filter, first, last, take);
    if (!found) return FALSE;
    if (msg) *msg = m;
    if (take) lastMessage = m;
    return TRUE;
}

BOOL WaitMessage() {
    if (WM().GetBackend().Wait(WM().timers.NextDue())) return TRUE;
    // Nothing will ever come. Let the owner of the program decide; make sure loops end.
    if (WM().onStall) WM().onStall();
    MSG m;
    if (!PeekMessage(&m, nullptr, 0, 0, PM_NOREMOVE)) PostQuitMessage(0);
    return TRUE;
}

BOOL GetMessage(MSG* msg, HWND filter, UINT first, UINT last) {
    while (!PeekMessage(msg, filter, first, last, PM_REMOVE)) WaitMessage();
    return msg->message != WM_QUIT;
}

BOOL TranslateMessage(const MSG* msg) {
    if (!msg || (msg->message != WM_KEYDOWN && msg->message != WM_SYSKEYDOWN)) return FALSE;
    int vk = static_cast<int>(msg->wParam);
    bool shift = GetKeyState(VK_SHIFT) < 0, ctrl = GetKeyState(VK_CONTROL) < 0;
    int c = -1;
    if (vk >= 'A' && vk <= 'Z') c = ctrl ? vk - 'A' + 1 : shift ? vk : vk - 'A' + 'a';
    else if (vk >= '0' && vk <= '9' && !ctrl) c = shift ? ")!@#$%^&*("[vk - '0'] : vk;
    else if (vk == VK_RETURN) c = ctrl ? 0x0A : 0x0D;
    else if (vk == VK_ESCAPE || vk == VK_TAB || vk == VK_BACK || vk == VK_SPACE) c = vk;
    else if (!ctrl) {
        static const std::map<int, std::pair<char, char>> punct = {
            {VK_OEM_1, {';', ':'}}, {VK_OEM_PLUS, {'=', '+'}}, {VK_OEM_COMMA, {',', '<'}},
            {VK_OEM_MINUS, {'-', '_'}}, {VK_OEM_PERIOD, {'.', '>'}}, {VK_OEM_2, {'/', '?'}},
            {0xC0, {'`', '~'}}, {0xDB, {'[', '{'}}, {0xDC, {'\\', '|'}}, {0xDD, {']', '}'}},
            {0xDE, {'\'', '"'}}};
        auto it = punct.find(vk);
        if (it != punct.end()) c = static_cast<unsigned char>(shift ? it->second.second : it->second.first);
    }
    if (c < 0) return FALSE;
    UINT charMsg = msg->message == WM_SYSKEYDOWN ? WM_SYSCHAR : WM_CHAR;
    PostMessage(msg->hwnd, charMsg, static_cast<WPARAM>(c), msg->lParam);
    return TRUE;
}

LRESULT DispatchMessage(const MSG* msg) {
    if (!msg) return 0;
    if (msg->message == WM_TIMER && msg->lParam) {
        reinterpret_cast<TIMERPROC>(msg->lParam)(msg->hwnd, WM_TIMER, msg->wParam, msg->time);
        return 0;
    }
    if (msg->message == WM_PAINT)
        if (Window* w = W(msg->hwnd)) w->internalPaint = false;
    return SendMessage(msg->hwnd, msg->message, msg->wParam, msg->lParam);
}

LRESULT CallWindowProc(WNDPROC proc, HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (!proc) return 0;
    ++WM().depth;
    LRESULT r = proc(hwnd, msg, wParam, lParam);
    --WM().depth;
    WM().Bury();
    return r;
}

UINT RegisterWindowMessage(const char* name) {
    static std::map<std::string, UINT> registered;
    if (!name) return 0;
    auto [it, added] = registered.emplace(name, 0xC000 + static_cast<UINT>(registered.size()));
    return it->second;
}

DWORD GetMessageTime() { return lastMessage.time; }

DWORD GetMessagePos() {
    return static_cast<DWORD>(MAKELONG(static_cast<WORD>(lastMessage.pt.x), static_cast<WORD>(lastMessage.pt.y)));
}
