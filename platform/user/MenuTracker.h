#pragma once
// One popup menu being tracked: its window, its loop and what the user chose. There is at most
// one at a time, as on the real system; TrackPopupMenu refuses a second.

#include <memory>

#include "platform/user/MenuView.h"

namespace plat {

class MenuTracker {
public:
    MenuTracker(HMENU menu, UINT flags, HWND owner);
    ~MenuTracker();
    MenuTracker(const MenuTracker&) = delete;
    MenuTracker& operator=(const MenuTracker&) = delete;

    // The menu open now, or null.
    static MenuTracker* Current();
    // Tells the owner, shows the popup at (x, y), runs the loop until it closes and answers
    // what TrackPopupMenu returns.
    BOOL Run(int x, int y);
    // Closes the popup as if dismissed; its loop sees it at the next message.
    void Dismiss();
    // The screen rectangle of the item at `position` of `menu` while it shows.
    bool ItemRect(HMENU menu, UINT position, RECT* r) const;

private:
    bool Open(int x, int y);
    void Loop();
    void Close();
    // Input the menu keeps for itself: every key, and the mouse, which it has captured.
    bool Take(MSG& msg);
    void OnKey(MSG& msg);
    void OnMnemonic(char typed);
    void OnMouse(const MSG& msg);
    // The next row from `from` in direction `step` that may be chosen, round the end; -1 when
    // none may.
    int Next(int from, int step) const;
    void Highlight(int row, bool byMouse);
    void Choose(int row);
    void Notify(UINT msg, WPARAM wParam, LPARAM lParam);

    HMENU menu;
    UINT flags;
    HWND owner;
    HWND window = nullptr;
    std::unique_ptr<MenuView> view;
    bool done = false;
    bool chose = false;
    UINT_PTR chosen = 0;
};

}  // namespace plat
