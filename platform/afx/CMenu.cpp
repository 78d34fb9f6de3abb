#include "platform/afx/CMenu.h"

#include "platform/afx/CWnd.h"

#include <memory>
#include <unordered_map>

namespace {

// The objects that own their menus, to find a handle's wrapper again.
std::unordered_map<HMENU, CMenu*>& Owners() {
    static std::unordered_map<HMENU, CMenu*> owners;
    return owners;
}

} // namespace

CMenu::~CMenu() {
    if (!temporary_) DestroyMenu();
}

BOOL CMenu::Attach(HMENU menu) {
    if (m_hMenu || !menu || temporary_) return FALSE;
    m_hMenu = menu;
    Owners()[menu] = this;
    return TRUE;
}

HMENU CMenu::Detach() {
    HMENU menu = m_hMenu;
    if (menu && !temporary_) Owners().erase(menu);
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::DestroyMenu() {
    if (!m_hMenu || temporary_) return FALSE;
    return ::DestroyMenu(Detach());
}

std::string CMenu::GetMenuString(UINT item, UINT flags) const {
    int length = ::GetMenuStringA(m_hMenu, item, nullptr, 0, flags);
    std::string text(static_cast<size_t>(length) + 1, '\0');
    text.resize(
        static_cast<size_t>(::GetMenuStringA(m_hMenu, item, text.data(), length + 1, flags)));
    return text;
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, const RECT* rect) {
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, owner ? owner->GetSafeHwnd() : nullptr, rect);
}

CMenu* CMenu::FromHandle(HMENU menu) {
    if (!menu) return nullptr;
    if (auto it = Owners().find(menu); it != Owners().end()) return it->second;
    static std::unordered_map<HMENU, std::unique_ptr<CMenu>> temporaries;
    auto& slot = temporaries[menu];
    if (!slot) {
        slot = std::make_unique<CMenu>();
        slot->temporary_ = true;
    }
    slot->m_hMenu = menu; // it may have been detached since
    return slot.get();
}
