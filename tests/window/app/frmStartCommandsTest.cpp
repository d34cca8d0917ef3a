// The menu tree, the shortcuts, and the main window's small commands.

#include <gtest/gtest.h>

#include <ostream>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"

namespace lindrel::testing {
namespace {

struct MenuItem {
    std::wstring Caption;  // with its shortcut; empty for a separator
    int Id = 0;            // 0 for a separator or a menu
    bool operator==(const MenuItem&) const = default;
};
void PrintTo(const MenuItem& item, std::ostream* out) {
    *out << ::testing::PrintToString(item.Caption) << " " << item.Id;
}

std::vector<MenuItem> ItemsOf(HMENU menu) {
    std::vector<MenuItem> items;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t caption[80] = L"";
        GetMenuStringW(menu, static_cast<UINT>(i), caption, 80, MF_BYPOSITION);
        const UINT id = GetMenuItemID(menu, i);
        items.push_back({caption, id == static_cast<UINT>(-1) ? 0 : static_cast<int>(id)});
    }
    return items;
}

struct Shortcut {
    WORD Key;
    bool Control;
    bool Shift;
    int Id;
};
const Shortcut kShortcuts[] = {
    {'N', true, false, ID_mnuNew},        {'O', true, false, ID_mnuOpen},
    {'Z', true, false, ID_mnuClose},      {'S', true, false, ID_mnuSave},
    {'K', true, false, ID_mnuKat},        {'Q', true, false, ID_mnuExit},
    {'A', true, false, ID_mnuAdd},        {'E', true, false, ID_mnuEdit},
    {'F', true, false, ID_mnuFind},       {'M', true, false, ID_mnuMove},
    {VK_DELETE, false, false, ID_mnuDel}, {VK_INSERT, false, true, ID_mnuSelectAll},
    {'G', true, false, ID_mnuGoto},       {VK_F1, false, false, ID_mnuHelp},
    {VK_F2, false, false, ID_mnuEdit},
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
    bool IsMarked(int id) const {
        return (GetMenuState(GetMenu(program.Main()), static_cast<UINT>(id), MF_BYCOMMAND) & MF_CHECKED) != 0;
    }
    bool HasGridLines() const { return program.List().HasGridLines(); }
    void PressShortcut(const Shortcut& shortcut) const {
        const auto hold = [&](bool down) {
            program.OnUi([&](frmStart&) {
                BYTE keys[256]{};
                if (down && shortcut.Control) keys[VK_CONTROL] = keys[VK_LCONTROL] = 0x80;
                if (down && shortcut.Shift) keys[VK_SHIFT] = keys[VK_LSHIFT] = 0x80;
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
    const HMENU menu = GetMenu(program.Main());
    EXPECT_EQ(ItemsOf(menu), (std::vector<MenuItem>{
                                 {L"&Fájl"}, {L"Sz&erkesztés"}, {L"&Nézet"}, {L"&Eszközök"}, {L"&Súgó"}}));
    EXPECT_EQ(ItemsOf(GetSubMenu(menu, 0)), (std::vector<MenuItem>{{L"Új fájl\tCtrl+N", ID_mnuNew},
                                                                   {L"Megnyitás...\tCtrl+O", ID_mnuOpen},
                                                                   {L"Becsuk\tCtrl+Z", ID_mnuClose},
                                                                   {},
                                                                   {L"Mentés\tCtrl+S", ID_mnuSave},
                                                                   {L"Mentés másként...", ID_mnuSaveAs},
                                                                   {},
                                                                   {L"Kategóriák...\tCtrl+K", ID_mnuKat},
                                                                   {},
                                                                   {L"Kilépés\tCtrl+Q", ID_mnuExit}}));
    EXPECT_EQ(ItemsOf(GetSubMenu(menu, 1)),
              (std::vector<MenuItem>{{L"Cím hozzáadása...\tCtrl+A", ID_mnuAdd},
                                     {L"Cím módosítása...\tCtrl+E", ID_mnuEdit},
                                     {},
                                     {L"Keresés...\tCtrl+F", ID_mnuFind},
                                     {L"Áthelyez...\tCtrl+M", ID_mnuMove},
                                     {L"Töröl\tDel", ID_mnuDel},
                                     {L"Ki/Be jelöl mindet\tShift+Ins", ID_mnuSelectAll},
                                     {},
                                     {L"Parancsikon az asztalra", ID_mnuToDesktop}}));
    EXPECT_EQ(ItemsOf(GetSubMenu(menu, 2)),
              (std::vector<MenuItem>{{L"Csíkozott", ID_mnuGridLines}, {L"Tálcára ültet", ID_mnuTray}}));
    EXPECT_EQ(ItemsOf(GetSubMenu(menu, 3)),
              (std::vector<MenuItem>{{L"Importálás...", ID_mnuImport},
                                     {L"Exportálás...", ID_mnuExport},
                                     {},
                                     {L"Ugorj az oldalra\tCtrl+G", ID_mnuGoto}}));
    EXPECT_EQ(
        ItemsOf(GetSubMenu(menu, 4)),
        (std::vector<MenuItem>{
            {L"Tartalom\tF1", ID_mnuHelp}, {L"LND weblapja", ID_mnuGoHome}, {}, {L"Névjegy", ID_mnuAbout}}));
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

TEST_F(frmStartCommandsTest, OpenSaveAndSaveAsAskForAFile) {
    TwoEntries();
    const std::pair<int, std::wstring> dialogs[] = {
        {ID_mnuOpen, L"File megnyitása"}, {ID_mnuSaveAs, L"File mentése"}, {ID_mnuSave, L"File mentése"}};
    for (const auto& [command, title] : dialogs) {
        // Only a changed book is saved; a changed one is asked about before another is opened.
        program.OnUi([id = command](frmStart& form) { form.OpenedBook().Modified = id == ID_mnuSave; });
        program.Choose(command);
        const FileDialogOnScreen dialog = program.FileDialog();
        EXPECT_EQ(dialog.Title(), title);
        dialog.Cancel();
        program.Settle();
    }
}

TEST_F(frmStartCommandsTest, CommandsWithADialogOpenIt) {
    TwoEntries();
    program.ClickBox(2);
    const std::pair<int, std::wstring> dialogs[] = {
        {ID_mnuKat, L"Kategóriák nevei"},   {ID_mnuAdd, L"Új oldal hozzáadása"},
        {ID_mnuEdit, L"Cím módosítása"},    {ID_mnuMove, L"A kiválasztott címek áthelyezése"},
        {ID_mnuExport, L"Exportálás"},      {ID_mnuImport, L"Importálás"},
        {ID_mnuAbout, L"Lindrel névjegye"}, {ID_mnuFind, L"Keresés"},
    };
    for (const auto& [command, caption] : dialogs) {
        program.Choose(command);
        program.Dialog(caption).Cancel();
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
    }
}

TEST_F(frmStartCommandsTest, CommandsWithAQuestionAskIt) {
    TwoEntries();
    const std::pair<int, std::wstring> questions[] = {
        {ID_mnuDel, L"Tényleg ki akarja törölni ezt a web címet ?"},
        {ID_mnuToDesktop, L"Létrehozzam a < Egy > cím parancsikonját az Asztalon ?"},
    };
    for (const auto& [command, question] : questions) {
        program.Choose(command);
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Text(), question);
        box.Press(IDCANCEL);
        program.Settle();
    }
}

TEST_F(frmStartCommandsTest, CheckAllChecksAll) {
    MainState expected = TwoEntries();
    program.Run(ID_mnuSelectAll);
    expected.Checked = {1, 2};
    expected.Status[2] = L"bejelölve 2";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmStartCommandsTest, ExitEndsTheProgram) {
    program.Choose(ID_mnuExit);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(frmStartCommandsTest, StripesFollowTheMarkOfTheirItem) {
    const MainState before = TwoEntries();
    EXPECT_FALSE(IsMarked(ID_mnuGridLines));
    EXPECT_FALSE(HasGridLines());
    for (const bool shown : {true, false, true}) {
        program.Run(ID_mnuGridLines);
        EXPECT_EQ(IsMarked(ID_mnuGridLines), shown);
        EXPECT_EQ(HasGridLines(), shown);
        EXPECT_EQ(program.State(), before);
    }
}

TEST_F(frmStartCommandsTest, GotoOpensTheShownAddressAndNothingWhenThereIsNone) {
    const RecordedShell shell;
    program.Run(ID_mnuGoto);
    TwoEntries();
    program.ClickRow(2);
    const MainState before = program.State();
    program.Run(ID_mnuGoto);
    EXPECT_EQ(shell.NextAddress(), L"http://ketto.hu");
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{L"http://ketto.hu"});
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmStartCommandsTest, GoHomeOpensTheHomePage) {
    const RecordedShell shell;
    program.Run(ID_mnuGoHome);
    EXPECT_EQ(shell.NextAddress(), L"https://lindrel.example/");
}

}  // namespace
}  // namespace lindrel::testing
