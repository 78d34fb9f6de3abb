#include "platform/controls/ControlBase.h"

#include "platform/gdi/Gdi.h"

#include <unordered_map>

namespace plat {

namespace {

std::unordered_map<HWND, std::unique_ptr<ControlBase>>& Controls() {
    static std::unordered_map<HWND, std::unique_ptr<ControlBase>> controls;
    return controls;
}

} // namespace

ControlBase* ControlBase::Find(HWND hwnd) {
    auto it = Controls().find(hwnd);
    return it == Controls().end() || it->second->gone ? nullptr : it->second.get();
}

ControlBase* ControlBase::Adopt(std::unique_ptr<ControlBase> control) {
    auto& slot = Controls()[control->hwnd];
    slot = std::move(control);
    return slot.get();
}

void ControlBase::Release(ControlBase* control) {
    Controls().erase(control->hwnd);
}

bool ControlBase::Notify(WORD code) {
    SendMessage(GetParent(hwnd), WM_COMMAND,
                MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(hwnd)), code),
                reinterpret_cast<LPARAM>(hwnd));
    return !gone;
}

HBRUSH ControlBase::ControlColor(UINT msg, HDC dc) {
    auto dcParam = reinterpret_cast<WPARAM>(dc);
    auto self = reinterpret_cast<LPARAM>(hwnd);
    HWND parent = GetParent(hwnd);
    auto brush =
        parent ? reinterpret_cast<HBRUSH>(SendMessage(parent, msg, dcParam, self)) : nullptr;
    if (!brush) brush = reinterpret_cast<HBRUSH>(DefWindowProc(hwnd, msg, dcParam, self));
    return brush;
}

HFONT ControlBase::Font() const {
    return font ? font : GetStockObject(SYSTEM_FONT);
}

LRESULT ControlBase::Default(UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_SETFONT:
        font = reinterpret_cast<HFONT>(wParam);
        if (LOWORD(static_cast<std::uintptr_t>(lParam))) InvalidateRect(hwnd, nullptr, TRUE);
        return 0;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(font);
    default: return DefWindowProc(hwnd, msg, wParam, lParam);
    }
}

} // namespace plat
