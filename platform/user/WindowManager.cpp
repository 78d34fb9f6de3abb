#include "platform/user/WindowManager.h"

#include <algorithm>
#include <cctype>

#include "platform/backend/Backend.h"
#include "platform/user/SystemClasses.h"

namespace plat {

namespace {
std::string Folded(const std::string& name) {
    std::string s = name;
    for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}
}  // namespace

WindowManager& WindowManager::Get() {
    // Not a static initialiser: registering the classes comes back here.
    static WindowManager* manager = nullptr;
    if (!manager) {
        manager = new WindowManager;
        RegisterSystemClasses();
    }
    return *manager;
}

WindowManager::WindowManager() : desktop(std::make_unique<Window>()) {
    desktop->style = WS_VISIBLE;
    desktop->handle = reinterpret_cast<HWND>(nextHandle);
    nextHandle += 4;
    onStall = [] { ::PostQuitMessage(0); };
}

Window* WindowManager::Find(HWND hwnd) const {
    if (!hwnd) return nullptr;
    if (hwnd == desktop->handle) return desktop.get();
    auto it = windows.find(reinterpret_cast<std::uintptr_t>(hwnd));
    return it == windows.end() ? nullptr : it->second.get();
}

HWND WindowManager::Adopt(std::unique_ptr<Window> window) {
    HWND hwnd = reinterpret_cast<HWND>(nextHandle);
    nextHandle += 4;
    window->handle = hwnd;
    windows.emplace(reinterpret_cast<std::uintptr_t>(hwnd), std::move(window));
    return hwnd;
}

void WindowManager::Release(HWND hwnd) {
    auto it = windows.find(reinterpret_cast<std::uintptr_t>(hwnd));
    if (it == windows.end()) return;
    // A handler further up the stack may still hold the record; it is freed when the
    // outermost message returns.
    graveyard.push_back(std::move(it->second));
    windows.erase(it);
}

void WindowManager::Bury() {
    if (depth == 0) graveyard.clear();
}

const WindowClass* WindowManager::FindClass(const std::string& name) const {
    auto it = classes.find(Folded(name));
    return it == classes.end() ? nullptr : it->second.get();
}

ATOM WindowManager::AddClass(const WNDCLASS& wc) {
    if (!wc.lpszClassName || !wc.lpfnWndProc) return 0;
    std::string key = Folded(wc.lpszClassName);
    if (classes.count(key)) return 0;
    auto cls = std::make_unique<WindowClass>();
    cls->name = wc.lpszClassName;
    cls->wc = wc;
    cls->wc.lpszClassName = cls->name.c_str();
    classes.emplace(key, std::move(cls));
    return static_cast<ATOM>(0xC000 + classes.size());
}

bool WindowManager::RemoveClass(const std::string& name) { return classes.erase(Folded(name)) > 0; }

void WindowManager::ForEach(const std::function<void(Window*)>& visit) {
    std::function<void(Window*)> walk = [&](Window* w) {
        // Copy: a visitor may destroy or reorder windows.
        std::vector<HWND> kids;
        for (Window* c : w->children) kids.push_back(c->handle);
        for (HWND h : kids)
            if (Window* c = Find(h)) {
                visit(c);
                walk(c);
            }
    };
    walk(desktop.get());
}

Backend& WindowManager::GetBackend() { return CurrentBackend(); }

void ReportEvent(const std::string& kind, const std::string& text) {
    auto& wm = WindowManager::Get();
    if (wm.onEvent) wm.onEvent(kind, text);
}

}  // namespace plat
