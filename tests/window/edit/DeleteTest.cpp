// The delete command.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class DeleteTest : public ::testing::Test {
  protected:
    DeleteTest() {
        program.Add(1, {{L"1", L"http://1.hu"},
                        {L"2", L"http://2.hu"},
                        {L"3", L"http://3.hu"},
                        {L"4", L"http://4.hu"},
                        {L"5", L"http://5.hu"}});
        program.Add(2, {{L"X", L"http://x.hu"}});
    }
    void Answer(const std::wstring& text, const std::vector<int>& buttons, int answer) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Törlés engedélyezése");
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(box.Buttons(), buttons);
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
        program.Settle();
    }
    void AnswerChecked(int count, int answer) const {
        Answer(L"Töröljem a (" + std::to_wstring(count) + L") bejelölt címet?", {IDYES, IDNO}, answer);
    }
    void AnswerSelected(int answer) const {
        Answer(L"Tényleg ki akarja törölni ezt a web címet ?", {IDOK, IDCANCEL}, answer);
    }
    static MainState Left(const std::vector<std::wstring>& names) {
        MainState state = EmptyState();
        for (const std::wstring& name : names) state.Rows.emplace_back(name, L"http://" + name + L".hu");
        const std::wstring count = std::to_wstring(names.size());
        state.Status[1] = L"megjelenítve (" + count + L" / " + std::to_wstring(names.size() + 1) + L")";
        state.Modified = true;
        return state;
    }
    HWND Focused(int id) const {
        program.OnUi([&](frmStart&) { SetFocus(program.Control(id)); });
        return program.Control(id);
    }

    Program program;
};

TEST_F(DeleteTest, CheckedRowsGoAfterTheirQuestion) {
    for (const int row : {1, 2, 4}) program.ClickBox(row);
    program.ClickRow(5);
    program.Choose(ID_mnuDel);
    AnswerChecked(3, IDYES);
    EXPECT_EQ(program.State(), Left({L"3", L"5"}));
}

TEST_F(DeleteTest, AllRowsGo) {
    program.Run(ID_mnuSelectAll);
    program.Choose(ID_mnuDel);
    AnswerChecked(5, IDYES);
    EXPECT_EQ(program.State(), Left({}));
}

TEST_F(DeleteTest, TheSelectedRowGoesWhenNoneIsChecked) {
    program.ClickRow(2);
    program.Choose(ID_mnuDel);
    AnswerSelected(IDOK);
    EXPECT_EQ(program.State(), Left({L"1", L"3", L"4", L"5"}));
}

TEST_F(DeleteTest, DecliningLeavesEverything) {
    program.ClickRow(3);
    const MainState selected = program.State();
    program.Choose(ID_mnuDel);
    AnswerSelected(IDCANCEL);
    EXPECT_EQ(program.State(), selected);
    program.ClickBox(2);
    const MainState checked = program.State();
    program.Choose(ID_mnuDel);
    AnswerChecked(1, IDNO);
    EXPECT_EQ(program.State(), checked);
}

TEST_F(DeleteTest, NothingCheckedAndNothingSelectedAsksNothing) {
    const MainState before = program.State();
    program.Run(ID_mnuDel);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(DeleteTest, AnAddressInTheFieldWithoutASelectedRowAsksNothing) {
    program.List().ClickHeader();
    program.Settle();
    const MainState before = program.State();
    EXPECT_EQ(before.txtURL, L"http://1.hu");
    program.Run(ID_mnuDel);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(DeleteTest, InTheSearchBoxTheCommandDoesNothingAndTheKeyEditsTheText) {
    program.ClickBox(1);
    program.ClickRow(3);
    const MainState before = program.State();
    const HWND search = Focused(ID_frmStart_txtFind);
    program.Run(ID_mnuDel);
    EXPECT_TRUE(program.NothingIsOpen());
    SetWindowTextW(search, L"szó");
    SendMessageW(search, EM_SETSEL, 1, 2);
    program.PressKey(search, VK_DELETE);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(TextOf(search), L"só");
    EXPECT_EQ(program.State(), before);
}

TEST_F(DeleteTest, InTheOtherFieldsTheKeyIsTheCommand) {
    program.ClickRow(3);
    for (const int field : {ID_frmStart_txtSite, ID_frmStart_txtURL}) {
        PostMessageW(Focused(field), WM_KEYDOWN, VK_DELETE, 1);
        AnswerSelected(IDCANCEL);
    }
    const HWND list = program.Control(ID_frmStart_ListURLs);
    PostMessageW(list, WM_KEYDOWN, VK_DELETE, 1);
    AnswerSelected(IDOK);
    EXPECT_EQ(program.State(), Left({L"1", L"2", L"4", L"5"}));
}

TEST_F(DeleteTest, AfterTheLastEntryTheBookIsEmptyAndTakesNewOnes) {
    program.Run(ID_mnuSelectAll);
    program.Choose(ID_mnuDel);
    AnswerChecked(5, IDYES);
    program.ClickTab(2);
    program.ClickRow(1);
    program.Choose(ID_mnuDel);
    AnswerSelected(IDOK);
    MainState empty = EmptyState();
    empty.SelectedTab = 2;
    empty.Modified = true;
    EXPECT_EQ(program.State(), empty);
    program.Add(2, {{L"Új", L"http://uj.hu"}});
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"Új", L"http://uj.hu"}}));
}

}  // namespace
}  // namespace lindrel::testing
