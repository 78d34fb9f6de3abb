// Menu items by command and by position, their states, and handles that are no menu.

#include "platform/afx/CMenu.h"

#include <gtest/gtest.h>

namespace {

std::string Text(HMENU menu, UINT item, UINT flags) {
    char text[32] = "";
    GetMenuString(menu, item, text, sizeof text, flags);
    return text;
}

TEST(MenuItems, FoundByCommandOrPositionAndDeletedUntilEmpty) {
    HMENU menu = CreatePopupMenu();
    EXPECT_TRUE(AppendMenu(menu, MF_STRING, 10, "&Ten"));
    EXPECT_TRUE(AppendMenu(menu, MF_SEPARATOR, 99, "ignored"));
    EXPECT_TRUE(AppendMenu(menu, MF_STRING, 30, "Thirty"));
    EXPECT_TRUE(InsertMenu(menu, 30, MF_BYCOMMAND, 20, "Twenty"));
    EXPECT_TRUE(InsertMenu(menu, 0xFFFFFFFF, MF_BYPOSITION, 40, "Forty"));
    EXPECT_FALSE(InsertMenu(menu, 77, MF_BYCOMMAND, 50, "nowhere"));
    EXPECT_FALSE(AppendMenu(menu, MF_POPUP, 0, "submenu"));
    ASSERT_EQ(GetMenuItemCount(menu), 5);
    const UINT ids[] = {10, 0, 20, 30, 40};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(GetMenuItemID(menu, i), ids[i]);
    EXPECT_EQ(GetMenuItemID(menu, 5), 0xFFFFFFFFu);
    EXPECT_EQ(Text(menu, 10, MF_BYCOMMAND), "&Ten");
    EXPECT_EQ(Text(menu, 2, MF_BYPOSITION), "Twenty");
    EXPECT_EQ(Text(menu, 1, MF_BYPOSITION), "");
    EXPECT_EQ(GetMenuString(menu, 30, nullptr, 0, MF_BYCOMMAND), 6);
    char cut[4];
    EXPECT_EQ(GetMenuString(menu, 30, cut, sizeof cut, MF_BYCOMMAND), 3);
    EXPECT_STREQ(cut, "Thi");
    // A separator carries no command to delete it by.
    EXPECT_FALSE(DeleteMenu(menu, 99, MF_BYCOMMAND));
    EXPECT_TRUE(RemoveMenu(menu, 20, MF_BYCOMMAND));
    EXPECT_FALSE(DeleteMenu(menu, 20, MF_BYCOMMAND));
    for (int left = 3; left >= 0; --left) {
        EXPECT_TRUE(DeleteMenu(menu, 0, MF_BYPOSITION));
        EXPECT_EQ(GetMenuItemCount(menu), left);
    }
    EXPECT_FALSE(DeleteMenu(menu, 0, MF_BYPOSITION));
    EXPECT_TRUE(DestroyMenu(menu));
}

TEST(MenuItems, StatesAnswerWhatTheyWere) {
    HMENU menu = CreatePopupMenu();
    AppendMenu(menu, MF_GRAYED | MF_CHECKED, 1, "One");
    AppendMenu(menu, MF_STRING, 2, "Two");
    EXPECT_EQ(GetMenuState(menu, 1, MF_BYCOMMAND), MF_GRAYED | MF_CHECKED);
    EXPECT_EQ(EnableMenuItem(menu, 1, MF_BYCOMMAND | MF_ENABLED), static_cast<BOOL>(MF_GRAYED));
    EXPECT_EQ(EnableMenuItem(menu, 1, MF_BYPOSITION | MF_DISABLED), static_cast<BOOL>(MF_ENABLED));
    EXPECT_EQ(CheckMenuItem(menu, 0, MF_BYPOSITION | MF_UNCHECKED), MF_CHECKED);
    EXPECT_EQ(CheckMenuItem(menu, 2, MF_BYCOMMAND | MF_CHECKED), MF_UNCHECKED);
    EXPECT_EQ(GetMenuState(menu, 0, MF_BYPOSITION), MF_STRING);
    EXPECT_EQ(GetMenuState(menu, 2, MF_BYCOMMAND), MF_DISABLED | MF_CHECKED);
    EXPECT_EQ(EnableMenuItem(menu, 9, MF_BYCOMMAND), -1);
    EXPECT_EQ(CheckMenuItem(menu, 2, MF_BYPOSITION), 0xFFFFFFFFu);
    EXPECT_EQ(GetMenuState(menu, 9, MF_BYCOMMAND), 0xFFFFFFFFu);
    DestroyMenu(menu);
}

TEST(MenuItems, BadAndDestroyedHandlesAreRefused) {
    HMENU gone = CreatePopupMenu();
    EXPECT_TRUE(IsMenu(gone));
    EXPECT_TRUE(DestroyMenu(gone));
    HMENU next = CreateMenu();
    EXPECT_NE(next, gone);
    for (HMENU bad : {HMENU{}, gone, reinterpret_cast<HMENU>(0x1234)}) {
        EXPECT_FALSE(IsMenu(bad) || DestroyMenu(bad) || AppendMenu(bad, MF_STRING, 1, "x") ||
                     DeleteMenu(bad, 0, MF_BYPOSITION));
        EXPECT_EQ(GetMenuItemCount(bad), -1);
        EXPECT_EQ(GetMenuItemID(bad, 0), 0xFFFFFFFFu);
    }
    DestroyMenu(next);
}

TEST(MenuItems, FrameworkMenuOwnsItsHandle) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        EXPECT_FALSE(menu.CreatePopupMenu());
        handle = menu.GetSafeHmenu();
        EXPECT_EQ(CMenu::FromHandle(handle), &menu);
        EXPECT_TRUE(menu.AppendMenu(MF_STRING, 1000, "Client"));
        EXPECT_EQ(menu.GetMenuString(1000, MF_BYCOMMAND), "Client");
        EXPECT_EQ(menu.GetMenuItemCount(), 1u);
        EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, nullptr));
    }
    EXPECT_FALSE(IsMenu(handle));
    HMENU kept = CreatePopupMenu();
    {
        CMenu* temporary = CMenu::FromHandle(kept);
        EXPECT_EQ(temporary->m_hMenu, kept);
        EXPECT_FALSE(temporary->DestroyMenu());
        CMenu owner;
        owner.Attach(kept);
        EXPECT_EQ(owner.Detach(), kept);
    }
    EXPECT_TRUE(IsMenu(kept));
    DestroyMenu(kept);
}

} // namespace
