#pragma once
// The record behind a menu handle. Only the menu's own files use it; programs see handles and
// the functions of Menu.h.

#include <string>
#include <vector>

#include "platform/user/Menu.h"

namespace plat {

struct MenuItem {
    UINT flags = MF_STRING;  // MF_SEPARATOR, MF_GRAYED, MF_DISABLED, MF_CHECKED
    UINT_PTR id = 0;
    std::string text;  // "&x" marks the mnemonic, a tab starts the right-aligned shortcut

    bool Separator() const { return (flags & MF_SEPARATOR) != 0; }
    // What a click or Enter may choose, and the arrow keys stop at.
    bool Choosable() const { return !(flags & (MF_SEPARATOR | MF_GRAYED | MF_DISABLED)); }
};

struct MenuRecord {
    std::vector<MenuItem> items;
};

// The record of a live menu; null for any other handle, a destroyed menu's too.
MenuRecord* FindMenu(HMENU menu);

}  // namespace plat
