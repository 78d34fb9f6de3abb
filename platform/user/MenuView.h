#pragma once
// What an open popup shows: a copy of the menu's items taken as it opens, so that a program
// changing the menu meanwhile cannot pull rows from under the pointer; the rows they take in
// the menu font; and the highlighted row. The tracker moves the highlight, the menu window
// paints from it.

#include <string_view>
#include <utility>
#include <vector>

#include "platform/user/MenuRecord.h"

namespace plat {

class MenuView {
public:
    explicit MenuView(std::vector<MenuItem> items);

    int Count() const { return static_cast<int>(items.size()); }
    const MenuItem& At(int row) const { return items[static_cast<size_t>(row)]; }
    HFONT Font() const { return font; }
    // The client area's size; the rows fill its width from the top.
    SIZE ClientSize() const { return size; }
    RECT Row(int row) const { return rows[static_cast<size_t>(row)]; }
    // Where the check mark goes, and where the label and the shortcut go.
    RECT CheckArea(int row) const;
    RECT TextArea(int row) const;
    // The row under a point of the client area, -1 for none.
    int RowAt(POINT client) const;
    // The label and the right-aligned shortcut, on either side of the text's first tab.
    static std::pair<std::string_view, std::string_view> Split(const std::string& text);

    int highlight = -1;

private:
    std::vector<MenuItem> items;
    std::vector<RECT> rows;
    SIZE size;
    HFONT font;
};

}  // namespace plat
