#pragma once
// The framework's menu object. It destroys the menu it holds when it goes, unless the handle
// was detached first. FromHandle answers the object that holds a handle, or else a temporary
// wrapper that lives as long as the program and never destroys the menu.

#include "platform/afx/CObject.h"
#include "platform/user/User.h"

#include <string>

class CWnd;

class CMenu : public CObject {
public:
    CMenu() = default;
    ~CMenu() override;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    HMENU m_hMenu = nullptr;

    HMENU GetSafeHmenu() const { return m_hMenu; }
    operator HMENU() const { return m_hMenu; }

    // Each fails when the object holds a menu already.
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL Attach(HMENU menu);
    HMENU Detach();
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, const char* text = nullptr) {
        return ::AppendMenuA(m_hMenu, flags, id, text);
    }
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR id = 0, const char* text = nullptr) {
        return ::InsertMenuA(m_hMenu, position, flags, id, text);
    }
    BOOL DeleteMenu(UINT position, UINT flags) { return ::DeleteMenu(m_hMenu, position, flags); }
    BOOL RemoveMenu(UINT position, UINT flags) { return ::RemoveMenu(m_hMenu, position, flags); }
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    UINT GetMenuItemID(int position) const { return ::GetMenuItemID(m_hMenu, position); }
    int GetMenuString(UINT item, char* out, int max, UINT flags) const {
        return ::GetMenuStringA(m_hMenu, item, out, max, flags);
    }
    std::string GetMenuString(UINT item, UINT flags) const;
    UINT EnableMenuItem(UINT item, UINT flags) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, item, flags));
    }
    UINT CheckMenuItem(UINT item, UINT check) {
        return static_cast<UINT>(::CheckMenuItem(m_hMenu, item, check));
    }
    UINT GetMenuState(UINT item, UINT flags) const { return ::GetMenuState(m_hMenu, item, flags); }
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, const RECT* rect = nullptr);

    static CMenu* FromHandle(HMENU menu);

private:
    bool temporary_ = false;
};
