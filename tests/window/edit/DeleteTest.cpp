// The delete command.

#include "tests/window/edit/EditSession.h"

namespace lindrel::testing {
namespace {

class DeleteTest : public EditSession {
  protected:
    DeleteTest() {
        AddNamed(1, {L"1", L"2", L"3", L"4", L"5"});
        AddNamed(2, {L"x"});
    }
    // Chooses the command, which asks about the selected row or about so many checked ones.
    void DeleteSelected(int answer) const {
        program.Choose(ID_mnuDel);
        ExpectDeleteQuestion(program, answer);
    }
    void DeleteChecked(int count, int answer) const {
        program.Choose(ID_mnuDel);
        ExpectDeleteQuestion(program, count, answer);
    }
    void ExpectLeft(const std::vector<std::wstring>& names) const {
        EXPECT_EQ(program.State(), Changed(1, RowsNamed(names), names.size() + 1));
    }
    HWND Focused(int id) const {
        program.OnUi([&](frmStart&) { SetFocus(program.Control(id)); });
        return program.Control(id);
    }
};

TEST_F(DeleteTest, CheckedRowsAreDeletedAfterTheirQuestion) {
    for (const int row : {1, 2, 4}) program.ClickBox(row);
    program.ClickRow(5);
    DeleteChecked(3, IDYES);
    ExpectLeft({L"3", L"5"});
}

TEST_F(DeleteTest, AllRowsAreDeleted) {
    program.Run(ID_mnuSelectAll);
    DeleteChecked(5, IDYES);
    ExpectLeft({});
}

TEST_F(DeleteTest, TheSelectedRowIsDeletedIfNoneIsChecked) {
    program.ClickRow(2);
    DeleteSelected(IDOK);
    ExpectLeft({L"1", L"3", L"4", L"5"});
}

TEST_F(DeleteTest, DecliningLeavesEverything) {
    program.ClickRow(3);
    const MainState selected = program.State();
    DeleteSelected(IDCANCEL);
    EXPECT_EQ(program.State(), selected);
    program.ClickBox(2);
    const MainState checked = program.State();
    DeleteChecked(1, IDNO);
    EXPECT_EQ(program.State(), checked);
}

TEST_F(DeleteTest, NothingCheckedAndNothingSelectedAsksNothing) {
    ExpectNothingDone(ID_mnuDel);
}

TEST_F(DeleteTest, AnAddressInTheFieldWithoutASelectedRowAsksNothing) {
    program.List().ClickHeader();
    program.Settle();
    EXPECT_EQ(program.State().txtURL, L"http://1.hu");
    ExpectNothingDone(ID_mnuDel);
}

TEST_F(DeleteTest, InTheSearchBoxTheCommandDoesNothingAndTheKeyEditsTheText) {
    program.ClickBox(1);
    program.ClickRow(3);
    const MainState before = program.State();
    const HWND search = Focused(ID_frmStart_txtFind);
    ExpectNothingDone(ID_mnuDel);
    SetWindowTextW(search, L"szó");
    SendMessageW(search, EM_SETSEL, 1, 2);
    program.PressKey(search, VK_DELETE);
    EXPECT_EQ(TextOf(search), L"só");
    ExpectState(program, before);
}

TEST_F(DeleteTest, InTheOtherFieldsTheKeyIsTheCommand) {
    program.ClickRow(3);
    for (const int field : {ID_frmStart_txtSite, ID_frmStart_txtURL}) {
        PostMessageW(Focused(field), WM_KEYDOWN, VK_DELETE, 1);
        ExpectDeleteQuestion(program, IDCANCEL);
    }
    const HWND list = program.Control(ID_frmStart_ListURLs);
    PostMessageW(list, WM_KEYDOWN, VK_DELETE, 1);
    ExpectDeleteQuestion(program, IDOK);
    ExpectLeft({L"1", L"2", L"4", L"5"});
}

TEST_F(DeleteTest, AfterTheLastEntryTheBookIsEmptyAndTakesNewOnes) {
    program.Run(ID_mnuSelectAll);
    DeleteChecked(5, IDYES);
    program.ClickTab(2);
    program.ClickRow(1);
    DeleteSelected(IDOK);
    EXPECT_EQ(program.State(), Changed(2, {}, 0));
    AddNamed(2, {L"uj"});
    EXPECT_EQ(program.State().Rows, RowsNamed({L"uj"}));
}

TEST_F(DeleteTest, AfterADeletionTheArrowKeysGoOnFromTheSameRow) {
    const HWND list = program.Control(ID_frmStart_ListURLs);
    const auto delete_row = [&](int row) {
        program.ClickRow(row);
        DeleteSelected(IDOK);
        EXPECT_EQ(program.State().SelectedRow, 0);
        return ListView_GetNextItem(list, -1, LVNI_FOCUSED) + 1;
    };
    EXPECT_EQ(delete_row(2), 2);
    EXPECT_EQ(delete_row(4), 3);  // the last one that is left
    program.PressKey(list, VK_SPACE);
    EXPECT_EQ(program.State().Checked, std::vector<int>{3});
}

}  // namespace
}  // namespace lindrel::testing
