// The menu tree, the shortcuts, and the main window's small commands.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/app/MenuItems.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

struct Shortcut {
    WORD Key;
    int Id;
    WORD Held = 0;  // VK_CONTROL, VK_SHIFT or none
};
const Shortcut kShortcuts[] = {
    {'N', ID_mnuNew, VK_CONTROL},  {'O', ID_mnuOpen, VK_CONTROL}, {'Z', ID_mnuClose, VK_CONTROL},
    {'S', ID_mnuSave, VK_CONTROL}, {'K', ID_mnuKat, VK_CONTROL},  {'Q', ID_mnuExit, VK_CONTROL},
    {'A', ID_mnuAdd, VK_CONTROL},  {'E', ID_mnuEdit, VK_CONTROL}, {'F', ID_mnuFind, VK_CONTROL},
    {'M', ID_mnuMove, VK_CONTROL}, {VK_DELETE, ID_mnuDel},        {VK_INSERT, ID_mnuSelectAll, VK_SHIFT},
    {'G', ID_mnuGoto, VK_CONTROL}, {VK_F1, ID_mnuHelp},           {VK_F2, ID_mnuEdit},
};

// Commands that arrive at the main window, written down instead of being run.
std::vector<int> commands;
LRESULT CALLBACK WriteDown(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id, DWORD_PTR) {
    if (message == WM_COMMAND) {
        commands.push_back(LOWORD(first));
        return 0;
    }
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &WriteDown, id);
    return DefSubclassProc(window, message, first, second);
}

class frmStartCommandsTest : public ::testing::Test {
  protected:
    // Two entries in the first category; the first is selected, none is checked.
    MainState TwoEntries() const {
        program.Add(1, {{L"Egy", L"http://egy.hu/?q=két szó"}, {L"Kettő", L"http://ketto.hu"}});
        program.ClickRow(1);
        return program.State();
    }
    bool IsChecked(int id) const {
        return (GetMenuState(GetMenu(program.Main()), static_cast<UINT>(id), MF_BYCOMMAND) & MF_CHECKED) != 0;
    }
    void PressShortcut(const Shortcut& shortcut) const {
        const auto hold = [&](bool down) {
            program.OnUi([&](frmStart&) {
                BYTE keys[256]{};
                if (down && shortcut.Held == VK_CONTROL) keys[VK_CONTROL] = keys[VK_LCONTROL] = 0x80;
                if (down && shortcut.Held == VK_SHIFT) keys[VK_SHIFT] = keys[VK_LSHIFT] = 0x80;
                EXPECT_TRUE(SetKeyboardState(keys));
            });
        };
        hold(true);
        program.PressKey(program.Control(ID_frmStart_ListURLs), shortcut.Key);
        hold(false);
    }

    Program program;
};

TEST_F(frmStartCommandsTest, TheMenuTreeIsComplete) {
    using Items = std::vector<MenuItem>;
    const HMENU menu = GetMenu(program.Main());
    EXPECT_EQ(ItemsOf(menu), (Items{{L"&Fájl"}, {L"Sz&erkesztés"}, {L"&Nézet"}, {L"&Eszközök"}, {L"&Súgó"}}));
    const Items menus[] = {
        {{L"Új fájl\tCtrl+N", ID_mnuNew},
         {L"Megnyitás...\tCtrl+O", ID_mnuOpen},
         {L"Becsuk\tCtrl+Z", ID_mnuClose},
         {},
         {L"Mentés\tCtrl+S", ID_mnuSave},
         {L"Mentés másként...", ID_mnuSaveAs},
         {},
         {L"Kategóriák...\tCtrl+K", ID_mnuKat},
         {},
         {L"Kilépés\tCtrl+Q", ID_mnuExit}},
        {{L"Cím hozzáadása...\tCtrl+A", ID_mnuAdd},
         {L"Cím módosítása...\tCtrl+E", ID_mnuEdit},
         {},
         {L"Keresés...\tCtrl+F", ID_mnuFind},
         {L"Áthelyez...\tCtrl+M", ID_mnuMove},
         {L"Töröl\tDel", ID_mnuDel},
         {L"Ki/Be jelöl mindet\tShift+Ins", ID_mnuSelectAll},
         {},
         {L"Parancsikon az asztalra", ID_mnuToDesktop, false}},
        {{L"Csíkozott", ID_mnuGridLines}, {L"Tálcára ültet", ID_mnuTray}},
        {{L"Importálás...", ID_mnuImport},
         {L"Exportálás...", ID_mnuExport},
         {},
         {L"Ugorj az oldalra\tCtrl+G", ID_mnuGoto}},
        {{L"Tartalom\tF1", ID_mnuHelp}, {L"LND weblapja", ID_mnuGoHome}, {}, {L"Névjegy", ID_mnuAbout}}};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(ItemsOf(GetSubMenu(menu, i)), menus[i]);
}

TEST_F(frmStartCommandsTest, EachShortcutSendsItsCommand) {
    program.OnUi([](frmStart& form) {
        commands.clear();
        ASSERT_TRUE(SetWindowSubclass(form.Handle(), &WriteDown, 1, 0));
    });
    std::vector<int> expected;
    for (const Shortcut& shortcut : kShortcuts) {
        PressShortcut(shortcut);
        expected.push_back(shortcut.Id);
    }
    program.OnUi([&](frmStart& form) {
        ASSERT_TRUE(RemoveWindowSubclass(form.Handle(), &WriteDown, 1));
        EXPECT_EQ(commands, expected);
    });
}

TEST_F(frmStartCommandsTest, NewAndCloseGiveAnEmptyBook) {
    for (const int command : {ID_mnuNew, ID_mnuClose}) {
        MainState expected = EmptyState();
        expected.Status[0] = TwoEntries().Status[0];
        program.Run(command);
        EXPECT_EQ(program.State(), expected);
    }
}

TEST_F(frmStartCommandsTest, ExitEndsTheProgram) {
    program.Choose(ID_mnuExit);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(frmStartCommandsTest, GridLinesFollowTheCheckMarkOfTheirItem) {
    const MainState before = TwoEntries();
    EXPECT_FALSE(IsChecked(ID_mnuGridLines));
    EXPECT_FALSE(program.List().HasGridLines());
    for (const bool shown : {true, false, true}) {
        program.Run(ID_mnuGridLines);
        EXPECT_EQ(IsChecked(ID_mnuGridLines), shown);
        EXPECT_EQ(program.List().HasGridLines(), shown);
        EXPECT_EQ(program.State(), before);
    }
}

}  // namespace
}  // namespace lindrel::testing
