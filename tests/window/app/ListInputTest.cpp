// The address list, with real keys and a real mouse.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/app/MenuItems.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RealClipboard.h"
#include "tests/window/support/RealInput.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

std::vector<UINT> beeps;
BOOL WINAPI HearBeep(UINT sound) {
    beeps.push_back(sound);
    return TRUE;
}

class ListInputTest : public ::testing::Test {
  protected:
    ListInputTest() {
        program.Add(
            1, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}, {L"Három", L"http://harom.hu"}});
    }
    // The state with a row picked by the user; 0 for none.
    MainState Picked(int row) const {
        MainState state = EmptyState();
        state.Rows = {
            {L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}, {L"Három", L"http://harom.hu"}};
        state.Status[1] = L"megjelenítve (3 / 3)";
        if (row == 0) return state;
        state.SelectedRow = row;
        std::tie(state.txtSite, state.txtURL) = state.Rows[static_cast<std::size_t>(row - 1)];
        state.Status[0] = state.txtURL;
        return state;
    }
    RECT LabelOf(int row) const {
        RECT bounds{};
        ListView_GetItemRect(list, row - 1, &bounds, LVIR_LABEL);
        return bounds;
    }
    POINT TextOf(int row) const {
        return {LabelOf(row).left + 6, (LabelOf(row).top + LabelOf(row).bottom) / 2};
    }
    POINT BoxOf(int row) const { return {LabelOf(row).left / 2, TextOf(row).y}; }
    POINT BelowTheRows() const { return {LabelOf(3).left + 6, LabelOf(3).bottom + 30}; }

    HWND WaitForMenu() const {
        WaitUntil("the menu", [this] { return PoppedUpMenu(program.Thread()) != nullptr; });
        return PoppedUpMenu(program.Thread());
    }
    void LeaveMenu() const {
        hands.Press(VK_ESCAPE);
        WaitUntil("the menu to close", [this] { return PoppedUpMenu(program.Thread()) == nullptr; });
    }
    // The items of the menu that pops up.
    std::vector<MenuItem> PoppedUpItems() const {
        return ItemsOf(reinterpret_cast<HMENU>(SendMessageW(WaitForMenu(), MN_GETHMENU, 0, 0)));
    }
    // Below the selected row, `left` pixels into the list. Leaves the menu.
    void ExpectMenuBelowRow(int row, LONG left) const {
        RECT bounds{};
        EXPECT_TRUE(GetWindowRect(WaitForMenu(), &bounds));
        POINT corner{left, LabelOf(row).bottom};
        ClientToScreen(list, &corner);
        EXPECT_EQ(bounds.left, corner.x);
        EXPECT_EQ(bounds.top, corner.y);
        EXPECT_EQ(program.State(), Picked(row));
        LeaveMenu();
    }
    static std::vector<MenuItem> RowMenu() {
        return {{L"Ugorj az oldalra\tCtrl+G", ID_mnuGoto, true, true},
                {},
                {L"Cím módosítása...\tCtrl+E", ID_mnuEdit},
                {L"Áthelyez...\tCtrl+M", ID_mnuMove},
                {L"Töröl\tDel", ID_mnuDel},
                {},
                {L"Parancsikon az asztalra", ID_mnuToDesktop}};
    }

    const Program program;
    const HWND list = program.Control(ID_frmStart_ListURLs);
    const RealInput hands{program};
};

TEST_F(ListInputTest, ADoubleClickOpensTheRow) {
    const RecordedShell shell;
    hands.Click(list, TextOf(2), 2);
    EXPECT_EQ(shell.NextAddress(), L"http://ketto.hu");
    program.Settle();
    EXPECT_EQ(program.State(), Picked(2));
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{L"http://ketto.hu"});
}

TEST_F(ListInputTest, EnterOpensTheSelectedRowAndShowsIt) {
    const RecordedShell shell;
    hands.Press(VK_RETURN);  // no row is selected
    // As after an edit: the fields are empty.
    program.OnUi([](frmStart& form) { form.View().SelectRow(3); });
    hands.Press(VK_RETURN);
    EXPECT_EQ(shell.NextAddress(), L"http://harom.hu");
    program.Settle();
    EXPECT_EQ(program.State(), Picked(3));
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{L"http://harom.hu"});
}

TEST_F(ListInputTest, ADoubleClickOnACheckBoxTogglesTwiceAndOpensNothing) {
    const RecordedShell shell;
    hands.Click(list, BoxOf(2), 2);
    EXPECT_EQ(program.State(), Picked(0));
    hands.Click(list, BoxOf(2));
    MainState checked = Picked(0);
    checked.Checked = {2};
    checked.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), checked);
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{});
}

TEST_F(ListInputTest, ARightClickSelectsTheRowAndOpensItsMenu) {
    const RecordedShell shell;
    hands.RightClick(list, TextOf(2));
    EXPECT_EQ(PoppedUpItems(), RowMenu());
    EXPECT_EQ(program.State(), Picked(2));
    LeaveMenu();
    hands.RightClick(list, BoxOf(3));
    WaitForMenu();
    EXPECT_EQ(program.State(), Picked(3));  // and not checked
    hands.Press(VK_DOWN);
    hands.Press(VK_RETURN);
    EXPECT_EQ(shell.NextAddress(), L"http://harom.hu");
}

TEST_F(ListInputTest, TheMenuFollowsTheMenuBar) {
    program.OnUi([](frmStart& form) { form.EnableCommand(ID_mnuMove, false); });
    hands.RightClick(list, TextOf(1));
    std::vector<MenuItem> expected = RowMenu();
    expected[3].Enabled = false;
    EXPECT_EQ(PoppedUpItems(), expected);
    LeaveMenu();
}

TEST_F(ListInputTest, KeysOpenTheMenuAtTheSelectedRow) {
    program.OnUi([](frmStart& form) { form.View().SelectRow(2); });
    const auto expect_menu = [this] {
        EXPECT_EQ(PoppedUpItems(), RowMenu());
        ExpectMenuBelowRow(2, LabelOf(2).left);
    };
    hands.Press(VK_APPS);
    expect_menu();
    hands.Press(VK_F10, {VK_SHIFT});
    expect_menu();
}

TEST_F(ListInputTest, ScrolledSidewaysTheMenuOfTheKeysStaysInTheList) {
    program.OnUi([this](frmStart& form) {
        ListView_SetColumnWidth(list, 0, 2000);
        form.View().SelectRow(2);
        ListView_Scroll(list, 700, 0);
        EXPECT_LT(LabelOf(2).left, -500);
    });
    hands.Press(VK_APPS);
    ExpectMenuBelowRow(2, 0);
}

TEST_F(ListInputTest, AProgramOf32BitsAsksForTheMenuOfTheKeys) {
    program.OnUi([](frmStart& form) { form.View().SelectRow(2); });
    constexpr LPARAM kBothHalves = 0xFFFFFFFF;
    static_assert(kBothHalves != -1 && GET_X_LPARAM(kBothHalves) == -1 && GET_Y_LPARAM(kBothHalves) == -1);
    PostMessageW(list, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list), kBothHalves);
    ExpectMenuBelowRow(2, LabelOf(2).left);
}

TEST_F(ListInputTest, WithNothingToActOnThereIsNoMenu) {
    hands.RightClick(list, BelowTheRows());
    hands.Press(VK_APPS);
    EXPECT_EQ(PoppedUpMenu(program.Thread()), nullptr);
    EXPECT_EQ(program.State(), Picked(0));
    // Check marks are enough.
    hands.Click(list, BoxOf(1));
    hands.Press(VK_APPS);
    EXPECT_EQ(PoppedUpItems(), RowMenu());
    LeaveMenu();
    hands.RightClick(list, BelowTheRows());
    WaitForMenu();
    LeaveMenu();
}

TEST_F(ListInputTest, TheHeaderHasNoMenu) {
    program.ClickRow(1);
    hands.RightClick(ListView_GetHeader(list), {30, 8});
    hands.Press(VK_DOWN);
    EXPECT_EQ(PoppedUpMenu(program.Thread()), nullptr);
    EXPECT_EQ(program.State(), Picked(2));
}

TEST_F(ListInputTest, F2Edits) {
    program.ClickRow(2);
    hands.Press(VK_F2);
    const DialogOnScreen dialog = program.Dialog(L"Cím módosítása");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtURL), L"http://ketto.hu");
    dialog.Cancel();
    program.Settle();
}

TEST_F(ListInputTest, ControlCCopiesTheAddressOfTheRow) {
    PutClipboardText(L"régi");
    hands.Press('C', {VK_CONTROL});  // no row is selected
    EXPECT_EQ(TextOnClipboard(), L"régi");
    program.OnUi([](frmStart& form) { form.View().SelectRow(3); });
    hands.Press('C', {VK_CONTROL});
    EXPECT_EQ(TextOnClipboard(), L"http://harom.hu");
    // In a text box it copies what is selected there.
    program.ClickRow(2);
    const HWND field = program.Control(ID_frmStart_txtURL);
    program.OnUi([field](frmStart&) {
        SetFocus(field);
        SendMessageW(field, EM_SETSEL, 7, 12);
    });
    hands.Press('C', {VK_CONTROL});
    EXPECT_EQ(TextOnClipboard(), L"ketto");
    EXPECT_EQ(program.State(), Picked(2));
}

TEST_F(ListInputTest, ACommandThatFindsNothingToActOnSaysNothing) {
    const ReplacedImport hear(&MessageBeep, &HearBeep);
    beeps.clear();
    for (const int command : {ID_mnuDel, ID_mnuMove, ID_mnuGoto, ID_frmStart_picGo}) {
        program.Run(command);
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), Picked(0));
    }
    // The fields show an entry, but no row is selected.
    program.List().ClickHeader();
    program.Settle();
    program.Run(ID_mnuDel);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(beeps, std::vector<UINT>{});
}

TEST_F(ListInputTest, ACommandThatHasItsWorkIsSilent) {
    const RecordedShell shell;
    const ReplacedImport hear(&MessageBeep, &HearBeep);
    program.ClickRow(1);
    beeps.clear();
    program.Run(ID_mnuGoto);
    EXPECT_EQ(shell.NextAddress(), L"http://egy.hu");
    program.Choose(ID_mnuMove);
    program.Dialog(L"A kiválasztott címek áthelyezése").Cancel();
    program.Settle();
    EXPECT_EQ(beeps, std::vector<UINT>{});
}

}  // namespace
}  // namespace lindrel::testing
