// The move dialog.

#include "tests/window/edit/EditSession.h"

namespace lindrel::testing {
namespace {

class frmMoveTest : public EditSession {
  protected:
    frmMoveTest() {
        AddNamed(1, {L"1", L"2", L"3", L"4", L"5", L"6"});
        AddNamed(4, {L"x"});
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
    void ExpectShown(int tab, const std::vector<std::wstring>& names) const {
        EXPECT_EQ(program.State(), Changed(tab, RowsNamed(names), 7));
    }
};

TEST_F(frmMoveTest, NothingCheckedAndNothingSelectedOpensNothing) {
    ExpectNothingDone(ID_mnuMove);
}

TEST_F(frmMoveTest, ShowsTheCategoriesWithTheShownOneChosen) {
    program.ClickTab(4);
    program.ClickRow(1);
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.ComboItems(ID_frmMove_cmbKateg), EmptyState().Tabs);
    EXPECT_EQ(dialog.Picked(ID_frmMove_cmbKateg), 3);
    Leave(dialog);
}

TEST_F(frmMoveTest, CheckedRowsGoToTheEndInTheirOrder) {
    for (const int row : {5, 2, 3}) program.ClickBox(row);
    program.ClickRow(1);
    MoveTo(4);
    ExpectShown(1, {L"1", L"4", L"6"});
    program.ClickTab(4);
    ExpectShown(4, {L"x", L"2", L"3", L"5"});
}

TEST_F(frmMoveTest, AllRowsLeaveAnEmptyCategory) {
    program.Run(ID_mnuSelectAll);
    MoveTo(4);
    ExpectShown(1, {});
    program.ClickTab(4);
    ExpectShown(4, {L"x", L"1", L"2", L"3", L"4", L"5", L"6"});
}

TEST_F(frmMoveTest, WithoutCheckMarksTheSelectedEntryMoves) {
    program.ClickRow(4);
    MoveTo(2);
    ExpectShown(1, {L"1", L"2", L"3", L"5", L"6"});
    program.ClickTab(2);
    ExpectShown(2, {L"4"});
}

TEST_F(frmMoveTest, MovesTowardsTheFrontToo) {
    program.ClickTab(4);
    program.ClickBox(1);
    MoveTo(1);
    program.ClickTab(1);
    ExpectShown(1, {L"1", L"2", L"3", L"4", L"5", L"6", L"x"});
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
