#pragma once
// The "ListBox" class with single selection: strings with a number each (item data), kept in
// the order they came or, with LBS_SORT, in alphabetical order without regard to case.
//
// The selection (LB_GETCURSEL) and the caret (the item with the focus rectangle) are apart:
// a fresh box has no selection and its caret on item 0. With no selection, Up and Down select
// the caret's item and Home the first. Each key that moves sends LBN_SELCHANGE, even when
// nothing changes; a typed character selects the next item that starts with it. A mouse press
// selects at once and the release sends LBN_SELCHANGE; a drag in between follows the pointer;
// a double click sends LBN_DBLCLK. Programs' changes (LB_SETCURSEL, ...) send nothing. All
// notifications, LBN_SETFOCUS and LBN_KILLFOCUS too, go out only with LBS_NOTIFY.
//
// With WS_VSCROLL a child "ScrollBar" on the right shows when there are more items than room;
// the wheel scrolls in any case. Without LBS_NOINTEGRALHEIGHT the box shrinks to a whole
// number of items.

#include "platform/controls/ControlBase.h"

#include <string>
#include <vector>

namespace plat {

class ListBoxControl : public ControlBase {
public:
    using ControlBase::ControlBase;
    static void Register();
    LRESULT Handle(UINT msg, WPARAM wParam, LPARAM lParam);

private:
    struct Item {
        std::string text;
        LPARAM data = 0;
    };

    int Count() const { return static_cast<int>(items.size()); }
    bool Valid(int index) const { return index >= 0 && index < Count(); }
    bool Notifies() const { return (Style() & LBS_NOTIFY) != 0; }
    // Sends a notification when LBS_NOTIFY asks for it; false when the window is gone.
    bool NotifyIf(WORD code);

    LRESULT Insert(int index, const char* text);
    LRESULT Delete(int index);
    void Reset();
    int Find(int after, const char* text, bool exact) const;
    void SetSelection(int index);
    void SetCaret(int index);

    // Geometry.
    RECT ItemArea() const; // the client area without the scroll bar
    int PageSize() const;  // items that show whole
    int MaxTop() const;
    RECT ItemRect(int index) const;
    int ItemAt(int y) const;
    void SetTop(int index);
    void Reveal(int index);
    void FitHeight();
    void UpdateScrollBar();

    void OnCreate();
    void OnKeyDown(WPARAM vk);
    void OnChar(WPARAM c);
    void OnPress(LPARAM point);
    void OnMouseMove(LPARAM point);
    void OnRelease();
    void OnScroll(WPARAM wParam);
    void OnWheel(WPARAM wParam);
    void OnPaint();

    std::vector<Item> items;
    int selected = -1;
    int caret = 0;
    int top = 0;
    int itemHeight = 0;
    int wheelRest = 0;     // part of a notch turned and not yet scrolled
    bool tracking = false; // a mouse press is selecting
    HWND scrollBar = nullptr;
};

} // namespace plat
