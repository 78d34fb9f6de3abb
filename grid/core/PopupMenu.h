#pragma once
// The items of the control's context menu, kept in the order and by the rules of the window
// system's menu calls: AppendItem as AppendMenu, DeleteItem as DeleteMenu by command or by
// position. The platform offers no menus yet, so showing the menu is not here; this holds
// what a tracked menu will show.

#include "platform/base/WinTypes.h"

#include <string>
#include <vector>

inline constexpr UINT MF_BYPOSITION = 0x400;
inline constexpr UINT MF_SEPARATOR = 0x800;

class PopupMenu {
public:
    struct Item {
        int id;
        std::string text;
        bool separator;
    };

    BOOL AppendItem(UINT flags, int id, const std::string& text) {
        items.push_back(
            Item{id, (flags & MF_SEPARATOR) ? std::string() : text, (flags & MF_SEPARATOR) != 0});
        return TRUE;
    }
    // By command the first item with the id goes; FALSE when there is none.
    BOOL DeleteItem(int idOrPosition, UINT flags) {
        for (size_t i = 0; i < items.size(); ++i) {
            bool hit = (flags & MF_BYPOSITION) ? static_cast<int>(i) == idOrPosition
                                               : !items[i].separator && items[i].id == idOrPosition;
            if (hit) {
                items.erase(items.begin() + static_cast<std::ptrdiff_t>(i));
                return TRUE;
            }
        }
        return FALSE;
    }
    int GetItemCount() const { return static_cast<int>(items.size()); }
    const std::vector<Item>& Items() const { return items; }

private:
    std::vector<Item> items;
};
