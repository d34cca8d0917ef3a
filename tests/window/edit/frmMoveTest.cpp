// The move dialog.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class frmMoveTest : public ::testing::Test {
  protected:
    frmMoveTest() {
        program.Add(1, {{L"1", L"http://1.hu"},
                        {L"2", L"http://2.hu"},
                        {L"3", L"http://3.hu"},
                        {L"4", L"http://4.hu"},
                        {L"5", L"http://5.hu"},
                        {L"6", L"http://6.hu"}});
        program.Add(4, {{L"X", L"http://x.hu"}});
    }
    DialogOnScreen Open() const {
        program.Choose(ID_mnuMove);
        return program.Dialog(L"A kiválasztott címek áthelyezése");
    }
    void MoveTo(int category) const {
        const DialogOnScreen dialog = Open();
        dialog.Pick(ID_frmMove_cmbKateg, category - 1);
        dialog.ClickAndWaitForClose(ID_frmMove_cmdOk);
        program.Settle();
    }
    static MainState Shown(int tab, const std::vector<std::wstring>& names) {
        MainState state = EmptyState();
        state.SelectedTab = tab;
        for (const std::wstring& name : names)
            state.Rows.emplace_back(name, L"http://" + (name == L"X" ? L"x" : name) + L".hu");
        state.Status[1] = L"megjelenítve (" + std::to_wstring(names.size()) + L" / 7)";
        return state;
    }

    Program program;
};

TEST_F(frmMoveTest, NothingCheckedAndNothingSelectedOpensNothing) {
    program.Run(ID_mnuMove);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), Shown(1, {L"1", L"2", L"3", L"4", L"5", L"6"}));
}

TEST_F(frmMoveTest, ShowsTheCategoriesWithTheShownOneChosen) {
    program.ClickTab(4);
    program.ClickRow(1);
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(ID_frmMove_lblHint), L"ebbe a kategóriába lesz(nek) áthelyezve");
    EXPECT_EQ(dialog.ComboItems(ID_frmMove_cmbKateg), EmptyState().Tabs);
    EXPECT_EQ(dialog.Picked(ID_frmMove_cmbKateg), 3);
    EXPECT_EQ(dialog.Text(ID_frmMove_cmdOk), L"OK");
    EXPECT_EQ(dialog.Text(ID_frmMove_cmdCancel), L"&Mégse");
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmMoveTest, CheckedRowsGoToTheEndInTheirOrder) {
    for (const int row : {5, 2, 3}) program.ClickBox(row);
    program.ClickRow(1);
    MoveTo(4);
    MainState expected = Shown(1, {L"1", L"4", L"6"});
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(4);
    MainState target = Shown(4, {L"X", L"2", L"3", L"5"});
    target.Modified = true;
    EXPECT_EQ(program.State(), target);
}

TEST_F(frmMoveTest, AllRowsLeaveAnEmptyCategory) {
    program.Run(ID_mnuSelectAll);
    MoveTo(4);
    MainState expected = Shown(1, {});
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(4);
    EXPECT_EQ(program.State().Rows.size(), 7u);
    EXPECT_EQ(program.State().Checked, std::vector<int>{});
}

TEST_F(frmMoveTest, WithoutCheckMarksTheSelectedEntryMoves) {
    program.ClickRow(4);
    MoveTo(2);
    MainState expected = Shown(1, {L"1", L"2", L"3", L"5", L"6"});
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(2);
    MainState target = Shown(2, {L"4"});
    target.Modified = true;
    EXPECT_EQ(program.State(), target);
}

TEST_F(frmMoveTest, MovesTowardsTheFrontToo) {
    program.ClickTab(4);
    program.ClickBox(1);
    MoveTo(1);
    program.ClickTab(1);
    MainState expected = Shown(1, {L"1", L"2", L"3", L"4", L"5", L"6", L"X"});
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmMoveTest, TheShownCategoryAsDestinationChangesNothing) {
    program.ClickBox(2);
    program.ClickRow(3);
    const MainState before = program.State();
    MoveTo(1);
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmMoveTest, CancelChangesNothing) {
    program.ClickBox(2);
    ExpectCancelChangesNothing(
        program, [this] { return Open(); },
        [](const DialogOnScreen& dialog) { dialog.Pick(ID_frmMove_cmbKateg, 5); }, ID_frmMove_cmdCancel);
}

TEST_F(frmMoveTest, AnAddressInTheFieldWithoutASelectedRowMovesNothing) {
    // A click on the column header shows the first entry and selects nothing.
    program.List().ClickHeader();
    program.Settle();
    const MainState before = program.State();
    EXPECT_EQ(before.txtURL, L"http://1.hu");
    EXPECT_EQ(before.SelectedRow, 0);
    MoveTo(4);
    EXPECT_EQ(program.State(), before);
}

}  // namespace
}  // namespace lindrel::testing
