// Menus as data.
#include "window/TestWindow.h"

namespace {

TEST(MenuTest, SubmenusHaveOneHolder)
{
    const HMENU hA = CreateMenu();
    const HMENU hB = CreateMenu();
    const auto id = [](HMENU h) { return reinterpret_cast<UINT_PTR>(h); };
    EXPECT_FALSE(AppendMenuW(hA, MF_POPUP, id(hA), L"itself"));
    EXPECT_TRUE(AppendMenuW(hA, MF_POPUP, id(hB), L"b"));
    EXPECT_FALSE(AppendMenuW(hA, MF_POPUP, id(hB), L"twice"));
    EXPECT_FALSE(AppendMenuW(hB, MF_POPUP, id(hA), L"a circle"));
    EXPECT_FALSE(AppendMenuW(hB, MF_POPUP, 12345, L"no menu"));
    EXPECT_TRUE(RemoveMenu(hA, 0, MF_BYPOSITION));
    EXPECT_TRUE(IsMenu(hB)) << "a removed submenu lives on";
    EXPECT_TRUE(AppendMenuW(hA, MF_POPUP, id(hB), L"b"));
    EXPECT_TRUE(DestroyMenu(hB));
    EXPECT_EQ(GetSubMenu(hA, 0), nullptr);
    EXPECT_EQ(GetMenuItemCount(hA), 1);
    EXPECT_TRUE(DeleteMenu(hA, 0, MF_BYPOSITION));
    EXPECT_TRUE(DestroyMenu(hA));
}

TEST(MenuTest, ObjectsOwnWhatTheyCreate)
{
    HMENU hMenu = nullptr;
    {
        CMenu menu;
        menu.CreatePopupMenu();
        hMenu = menu.GetSafeHmenu();
        EXPECT_EQ(CMenu::FromHandle(hMenu), &menu);
        EXPECT_FALSE(menu.CreatePopupMenu());
    }
    EXPECT_FALSE(IsMenu(hMenu));
    hMenu = CreatePopupMenu();
    CMenu* pBorrowed = CMenu::FromHandle(hMenu);
    ASSERT_NE(pBorrowed, nullptr);
    EXPECT_TRUE(pBorrowed->AppendMenu(MF_STRING, 1, L"x"));
    {
        CMenu menu;
        EXPECT_TRUE(menu.Attach(hMenu));
        EXPECT_EQ(menu.Detach(), hMenu);
    }
    EXPECT_TRUE(DestroyMenu(hMenu));
    EXPECT_EQ(CMenu::FromHandle(hMenu), nullptr);
}

} // namespace
