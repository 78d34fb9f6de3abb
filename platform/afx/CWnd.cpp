#include "platform/afx/CWnd.h"

#include <map>
#include <memory>
#include <unordered_map>

#include "platform/afx/AfxApp.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CFont.h"
#include "platform/user/WindowManager.h"

namespace {

std::unordered_map<HWND, CWnd*>& Permanent() {
    static std::unordered_map<HWND, CWnd*> map;
    return map;
}

// Wrappers for windows the framework did not make; dropped once their window is gone.
std::unordered_map<HWND, std::unique_ptr<CWnd>>& Temporary() {
    static std::unordered_map<HWND, std::unique_ptr<CWnd>> map;
    return map;
}

// The object whose window CreateEx is creating now; bound at the window's first message.
CWnd* creating = nullptr;

void InstallCreationHook() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    plat::WindowManager::Get().onCreate = [](HWND hwnd) {
        if (!creating) return;
        CWnd* wnd = creating;
        creating = nullptr;
        wnd->SubclassWindow(hwnd);
    };
}

}  // namespace

void BindNextWindow(CWnd* wnd) {
    InstallCreationHook();
    creating = wnd;
}

CWnd::~CWnd() {
    if (m_hWnd && Permanent().count(m_hWnd) && Permanent()[m_hWnd] == this) {
        HWND h = m_hWnd;
        ::DestroyWindow(h);
        Permanent().erase(h);
    }
}

CWnd* CWnd::FromHandlePermanent(HWND hwnd) {
    auto it = Permanent().find(hwnd);
    return it == Permanent().end() ? nullptr : it->second;
}

CWnd* CWnd::FromHandle(HWND hwnd) {
    if (!hwnd) return nullptr;
    if (CWnd* w = FromHandlePermanent(hwnd)) return w;
    auto& temp = Temporary();
    if (temp.size() > 64) std::erase_if(temp, [](const auto& e) { return !::IsWindow(e.first); });
    auto& slot = temp[hwnd];
    if (!slot) {
        slot = std::make_unique<CWnd>();
        slot->m_hWnd = hwnd;
    }
    return slot.get();
}

BOOL CWnd::Attach(HWND hwnd) {
    if (!hwnd || m_hWnd) return FALSE;
    m_hWnd = hwnd;
    Permanent()[hwnd] = this;
    Temporary().erase(hwnd);
    return TRUE;
}

HWND CWnd::Detach() {
    HWND h = m_hWnd;
    if (h) Permanent().erase(h);
    m_hWnd = nullptr;
    return h;
}

BOOL CWnd::SubclassWindow(HWND hwnd) {
    if (!Attach(hwnd)) return FALSE;
    auto old = reinterpret_cast<WNDPROC>(::GetWindowLongPtr(hwnd, GWLP_WNDPROC));
    if (old != AfxWndProc) {
        superProc = old;
        ::SetWindowLongPtr(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc));
    }
    PreSubclassWindow();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    HWND control = parent ? ::GetDlgItem(parent->m_hWnd, static_cast<int>(id)) : nullptr;
    return control ? SubclassWindow(control) : FALSE;
}

HWND CWnd::UnsubclassWindow() {
    if (superProc) ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(superProc));
    superProc = nullptr;
    return Detach();
}

BOOL CWnd::CreateEx(DWORD exStyle, const char* className, const char* windowName, DWORD style,
                    const RECT& r, CWnd* parent, UINT id, void* param) {
    BindNextWindow(this);
    HMENU menu = (style & WS_CHILD) ? MenuFromId(static_cast<int>(id)) : nullptr;
    HWND hwnd = ::CreateWindowEx(exStyle, className, windowName, style, r.left, r.top, r.right - r.left,
                                 r.bottom - r.top, parent ? parent->m_hWnd : nullptr, menu, nullptr, param);
    creating = nullptr;
    return hwnd != nullptr && m_hWnd == hwnd;
}

BOOL CWnd::Create(const char* className, const char* windowName, DWORD style, const RECT& r, CWnd* parent,
                  UINT id) {
    return CreateEx(0, className, windowName, style | WS_CHILD, r, parent, id);
}

BOOL CWnd::DestroyWindow() { return m_hWnd ? ::DestroyWindow(m_hWnd) : FALSE; }

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT swpFlags) {
    DWORD style = GetStyle();
    DWORD now = (style & ~remove) | add;
    if (now == style) return FALSE;
    ::SetWindowLong(m_hWnd, GWL_STYLE, static_cast<LONG>(now));
    if (swpFlags)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0, swpFlags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

void CWnd::ClientToScreen(RECT* r) const {
    POINT a{r->left, r->top}, b{r->right, r->bottom};
    ::ClientToScreen(m_hWnd, &a);
    ::ClientToScreen(m_hWnd, &b);
    *r = RECT{a.x, a.y, b.x, b.y};
}

void CWnd::ScreenToClient(RECT* r) const {
    POINT a{r->left, r->top}, b{r->right, r->bottom};
    ::ScreenToClient(m_hWnd, &a);
    ::ScreenToClient(m_hWnd, &b);
    *r = RECT{a.x, a.y, b.x, b.y};
}

CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }

int CWnd::ReleaseDC(CDC* dc) { return dc ? ::ReleaseDC(m_hWnd, dc->Detach()) : 0; }

void CWnd::SetFont(CFont* font, BOOL redraw) {
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->GetSafeHandle() : nullptr), redraw);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

int CWnd::MessageBox(const char* text, const char* caption, UINT type) const {
    return ::MessageBox(m_hWnd, text, caption, type);
}

const MessageMap* CWnd::GetThisMessageMap() {
    static const MessageMapEntry none[] = {{0, 0, 0, 0, nullptr}};
    static const MessageMap map{nullptr, none};
    return &map;
}

const MessageMap* CWnd::GetMessageMap() const { return GetThisMessageMap(); }

const MessageMapEntry* CWnd::FindEntry(UINT msg, WPARAM wParam) const {
    UINT id = LOWORD(wParam), code = HIWORD(wParam);
    for (const MessageMap* map = GetMessageMap(); map; map = map->base ? map->base() : nullptr) {
        for (const MessageMapEntry* e = map->entries; e->call; ++e) {
            if (e->message != msg) continue;
            if (msg != WM_COMMAND && msg != WM_REFLECT_BASE + WM_COMMAND) return e;
            if ((e->code == 0xFFFF || e->code == code) && id >= e->idFirst && id <= e->idLast) return e;
        }
    }
    return nullptr;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd* control = lParam ? FromHandlePermanent(reinterpret_cast<HWND>(lParam)) : nullptr)
        if (control->OnChildNotify(WM_COMMAND, wParam, lParam)) return TRUE;
    const MessageMapEntry* e = FindEntry(WM_COMMAND, wParam);
    if (!e) return FALSE;
    e->call(this, wParam, lParam);
    return TRUE;
}

LRESULT CWnd::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_COMMAND) {
        if (OnCommand(wParam, lParam)) return 0;
        return DefWindowProc(msg, wParam, lParam);
    }
    if (const MessageMapEntry* e = FindEntry(msg, wParam)) return e->call(this, wParam, lParam);
    return DefWindowProc(msg, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (superProc) return ::CallWindowProc(superProc, m_hWnd, msg, wParam, lParam);
    return ::DefWindowProc(m_hWnd, msg, wParam, lParam);
}

LRESULT CWnd::Default() { return DefWindowProc(current.message, current.wParam, current.lParam); }

LRESULT CWnd::Dispatch(UINT msg, WPARAM wParam, LPARAM lParam) {
    MSG saved = current;
    current = MSG{m_hWnd, msg, wParam, lParam, 0, {}};
    LRESULT r = WindowProc(msg, wParam, lParam);
    current = saved;
    if (msg == WM_NCDESTROY) {
        if (m_hWnd && superProc) ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(superProc));
        superProc = nullptr;
        Detach();
        PostNcDestroy();
    }
    return r;
}

LRESULT AfxWndProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    CWnd* wnd = CWnd::FromHandlePermanent(hwnd);
    if (!wnd) return ::DefWindowProc(hwnd, msg, wParam, lParam);
    return wnd->Dispatch(msg, wParam, lParam);
}

const char* AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background) {
    static std::map<std::tuple<UINT, HCURSOR, HBRUSH>, std::string> names;
    auto key = std::make_tuple(classStyle, cursor, background);
    auto it = names.find(key);
    if (it != names.end()) return it->second.c_str();
    std::string name = "Afx:" + std::to_string(names.size());
    WNDCLASS wc;
    wc.style = classStyle;
    wc.lpfnWndProc = ::DefWindowProc;
    wc.hCursor = cursor;
    wc.hbrBackground = background;
    wc.lpszClassName = name.c_str();
    ::RegisterClass(&wc);
    return names.emplace(key, name).first->second.c_str();
}

BOOL CWnd::OnChildNotify(UINT msg, WPARAM wParam, LPARAM lParam) {
    const MessageMapEntry* e = FindEntry(WM_REFLECT_BASE + msg, wParam);
    if (!e) return FALSE;
    e->call(this, wParam, lParam);
    return TRUE;
}
