#include "platform/user/MenuView.h"

#include <algorithm>

#include "platform/gdi/Gdi.h"
#include "platform/user/User.h"

namespace plat {

namespace {

// The classic popup's proportions: a column for the check mark left of the text, as wide as a
// row is high, the same room on the right (where a submenu's arrow would go), and a gap
// between the longest label and the shortcuts.
constexpr int SeparatorHeight = 8;
constexpr int ShortcutGap = 12;

int RowHeight(int textHeight) { return std::max(textHeight + 4, GetSystemMetrics(SM_CYMENU) - 2); }

}  // namespace

MenuView::MenuView(std::vector<MenuItem> menuItems)
    : items(std::move(menuItems)), font(static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT))) {
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRIC tm;
    GetTextMetrics(dc, &tm);
    int height = RowHeight(tm.tmHeight);
    auto width = [&](std::string_view s, UINT format) {
        RECT r{};
        if (!s.empty())
            DrawText(dc, s.data(), static_cast<int>(s.size()), &r, format | DT_CALCRECT | DT_SINGLELINE);
        return static_cast<int>(r.right - r.left);
    };
    int labels = 0, shortcuts = 0, y = 0;
    for (const MenuItem& item : items) {
        int h = item.Separator() ? SeparatorHeight : height;
        rows.push_back(RECT{0, y, 0, y + h});
        y += h;
        if (item.Separator()) continue;
        auto [label, shortcut] = Split(item.text);
        labels = std::max(labels, width(label, 0));
        shortcuts = std::max(shortcuts, width(shortcut, DT_NOPREFIX));
    }
    SelectObject(dc, old);
    DeleteDC(dc);
    // An empty menu shows as a bare frame.
    int total = items.empty() ? 0 : 2 * height + labels + (shortcuts ? ShortcutGap + shortcuts : 0);
    for (RECT& r : rows) r.right = total;
    size = SIZE{total, y};
}

RECT MenuView::CheckArea(int row) const {
    RECT r = Row(row);
    r.right = r.left + (r.bottom - r.top);
    return r;
}

RECT MenuView::TextArea(int row) const {
    RECT r = Row(row);
    int margin = r.bottom - r.top;
    r.left += margin;
    r.right -= margin;
    return r;
}

int MenuView::RowAt(POINT client) const {
    for (int i = 0; i < Count(); ++i)
        if (PtInRect(&rows[static_cast<size_t>(i)], client)) return i;
    return -1;
}

std::pair<std::string_view, std::string_view> MenuView::Split(const std::string& text) {
    std::string_view all = text;
    size_t tab = all.find('\t');
    if (tab == std::string_view::npos) return {all, {}};
    return {all.substr(0, tab), all.substr(tab + 1)};
}

}  // namespace plat
