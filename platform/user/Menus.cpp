// Menu handles and their items. Handles are numbers that are never given out twice, so that a
// destroyed menu's handle stays safe to pass, as a window's does.

#include <algorithm>
#include <cstring>
#include <memory>
#include <unordered_map>

#include "platform/user/MenuRecord.h"

using namespace plat;

namespace {

std::unordered_map<std::uintptr_t, std::unique_ptr<MenuRecord>>& Menus() {
    static std::unordered_map<std::uintptr_t, std::unique_ptr<MenuRecord>> menus;
    return menus;
}

HMENU NewMenu() {
    // Apart from the window handles, and far above the small numbers that carry control ids.
    static std::uintptr_t next = 0x30010;
    auto handle = next;
    next += 4;
    Menus().emplace(handle, std::make_unique<MenuRecord>());
    return reinterpret_cast<HMENU>(handle);
}

// The index of the item `position` names, or -1.
int Locate(const MenuRecord& m, UINT position, UINT flags) {
    auto count = static_cast<UINT>(m.items.size());
    if (flags & MF_BYPOSITION) return position < count ? static_cast<int>(position) : -1;
    for (UINT i = 0; i < count; ++i)
        if (!m.items[i].Separator() && m.items[i].id == position) return static_cast<int>(i);
    return -1;
}

MenuItem* Item(HMENU menu, UINT position, UINT flags) {
    MenuRecord* m = FindMenu(menu);
    int i = m ? Locate(*m, position, flags) : -1;
    return i < 0 ? nullptr : &m->items[static_cast<size_t>(i)];
}

// Only strings and separators; submenus, bitmaps and owner-drawn items are not offered.
bool Supported(UINT flags) { return !(flags & (MF_POPUP | MF_BITMAP | MF_OWNERDRAW)); }

MenuItem MakeItem(UINT flags, UINT_PTR id, const char* text) {
    MenuItem item;
    item.flags = flags & (MF_SEPARATOR | MF_GRAYED | MF_DISABLED | MF_CHECKED);
    if (item.Separator()) return item;
    item.id = id;
    item.text = text ? text : "";
    return item;
}

}  // namespace

namespace plat {

MenuRecord* FindMenu(HMENU menu) {
    auto it = Menus().find(reinterpret_cast<std::uintptr_t>(menu));
    return it == Menus().end() ? nullptr : it->second.get();
}

}  // namespace plat

HMENU CreateMenu() { return NewMenu(); }

HMENU CreatePopupMenu() { return NewMenu(); }

BOOL DestroyMenu(HMENU menu) { return Menus().erase(reinterpret_cast<std::uintptr_t>(menu)) > 0; }

BOOL IsMenu(HMENU menu) { return FindMenu(menu) != nullptr; }

BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR id, const char* text) {
    MenuRecord* m = FindMenu(menu);
    if (!m || !Supported(flags)) return FALSE;
    m->items.push_back(MakeItem(flags, id, text));
    return TRUE;
}

BOOL InsertMenuA(HMENU menu, UINT position, UINT flags, UINT_PTR id, const char* text) {
    MenuRecord* m = FindMenu(menu);
    if (!m || !Supported(flags)) return FALSE;
    int at = Locate(*m, position, flags);
    if (at < 0) {
        if (!(flags & MF_BYPOSITION)) return FALSE;
        at = static_cast<int>(m->items.size());
    }
    m->items.insert(m->items.begin() + at, MakeItem(flags, id, text));
    return TRUE;
}

BOOL DeleteMenu(HMENU menu, UINT position, UINT flags) {
    MenuRecord* m = FindMenu(menu);
    int i = m ? Locate(*m, position, flags) : -1;
    if (i < 0) return FALSE;
    m->items.erase(m->items.begin() + i);
    return TRUE;
}

BOOL RemoveMenu(HMENU menu, UINT position, UINT flags) { return DeleteMenu(menu, position, flags); }

int GetMenuItemCount(HMENU menu) {
    MenuRecord* m = FindMenu(menu);
    return m ? static_cast<int>(m->items.size()) : -1;
}

UINT GetMenuItemID(HMENU menu, int position) {
    const MenuItem* item = position < 0 ? nullptr : Item(menu, static_cast<UINT>(position), MF_BYPOSITION);
    return item ? static_cast<UINT>(item->id) : 0xFFFFFFFFu;
}

int GetMenuStringA(HMENU menu, UINT position, char* out, int max, UINT flags) {
    const MenuItem* item = Item(menu, position, flags);
    if (!item) return 0;
    auto length = static_cast<int>(item->text.size());
    if (!out) return length;
    if (max <= 0) return 0;
    int n = std::min(length, max - 1);
    std::memcpy(out, item->text.data(), static_cast<size_t>(n));
    out[n] = 0;
    return n;
}

BOOL EnableMenuItem(HMENU menu, UINT position, UINT flags) {
    MenuItem* item = Item(menu, position, flags);
    if (!item) return -1;
    UINT old = item->flags & (MF_GRAYED | MF_DISABLED);
    item->flags = (item->flags & ~(MF_GRAYED | MF_DISABLED)) | (flags & (MF_GRAYED | MF_DISABLED));
    return static_cast<BOOL>(old);
}

DWORD CheckMenuItem(HMENU menu, UINT position, UINT flags) {
    MenuItem* item = Item(menu, position, flags);
    if (!item) return 0xFFFFFFFFu;
    DWORD old = item->flags & MF_CHECKED;
    item->flags = (item->flags & ~MF_CHECKED) | (flags & MF_CHECKED);
    return old;
}

UINT GetMenuState(HMENU menu, UINT position, UINT flags) {
    const MenuItem* item = Item(menu, position, flags);
    return item ? item->flags : 0xFFFFFFFFu;
}
