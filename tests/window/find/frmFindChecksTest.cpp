// The check boxes of the hits, and what they become in the main window.

#include "tests/window/find/FindSession.h"

namespace lindrel::testing {
namespace {

class frmFindChecksTest : public FindSession {
  protected:
    std::vector<int> CheckedOn(int tab) const {
        program.ClickTab(tab);
        return program.State().Checked;
    }
};

TEST_F(frmFindChecksTest, KeysOfTheNumberPadAndTheTwoButtonsCheckAndUncheckAll) {
    const FindDialog dialog = FindSix();
    const std::vector<int> all{1, 2, 3, 4, 5, 6};
    const auto checked_after_key = [&](WPARAM key) {
        program.PressKey(dialog.List().Handle(), key);
        return dialog.List().Checked();
    };
    EXPECT_EQ(checked_after_key(VK_MULTIPLY), all);
    EXPECT_EQ(checked_after_key(VK_SUBTRACT), std::vector<int>{});
    EXPECT_EQ(checked_after_key(VK_ADD), all);
    dialog.Press(ID_frmFind_Command3);
    EXPECT_EQ(dialog.List().Checked(), std::vector<int>{});
    dialog.Check({2});
    dialog.Press(ID_frmFind_Command2);
    EXPECT_EQ(dialog.List().Checked(), all);
}

TEST_F(frmFindChecksTest, TheKeysOfTheNumberPadLeaveTheSelectionWhereItIs) {
    const FindDialog dialog =
        FindAll({{L"+", L"http://plusz.hu"}, {L"egy", L"http://egy.hu"}, {L"*", L"http://csillag.hu"}});
    dialog.ClickHit(2);
    for (const WPARAM key : std::initializer_list<WPARAM>{VK_MULTIPLY, VK_ADD, VK_SUBTRACT}) {
        program.PressKey(dialog.List().Handle(), key);
        EXPECT_EQ(dialog.List().Selected(), 2);
    }
}

TEST_F(frmFindChecksTest, TheNumberOfCheckedHitsIsAlwaysRight) {
    const FindDialog dialog = FindSix();
    dialog.Check({1, 4, 6});
    dialog.DeleteChecked(3, IDNO);
    dialog.Check({4});
    dialog.DeleteChecked(2, IDNO);
    dialog.Press(ID_frmFind_Command2);
    dialog.DeleteChecked(6, IDNO);
    dialog.Check({5});
    dialog.DeleteChecked(5, IDNO);
    dialog.Press(ID_frmFind_Command3);
    dialog.Check({2});
    dialog.DeleteChecked(1, IDNO);
}

TEST_F(frmFindChecksTest, CheckedHitsOfTwoCategoriesBecomeTheOnlyCheckMarks) {
    AddSixEntries();
    program.Add(7, {{L"y", L"http://y.hu"}});
    program.ClickTab(7);
    program.ClickBox(1);
    program.ClickTab(2);
    for (const int row : {1, 2, 3}) program.ClickBox(row);
    const FindDialog dialog = FindX();
    dialog.Check({2, 6});
    dialog.Close();

    MainState expected = EmptyState();
    expected.SelectedTab = 2;
    expected.Rows = {{L"x1", L"http://1.hu"}, {L"x2", L"http://2.hu"}, {L"x3", L"http://3.hu"}};
    expected.Checked = {2};
    expected.Status[1] = L"megjelenítve (3 / 7)";
    expected.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(5);
    expected.SelectedTab = 5;
    expected.Rows = {{L"x4", L"http://4.hu"}, {L"x5", L"http://5.hu"}, {L"x6", L"http://6.hu"}};
    expected.Checked = {3};
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(7);
    expected.SelectedTab = 7;
    expected.Rows = {{L"y", L"http://y.hu"}};
    expected.Checked = {};
    expected.Status[1] = L"megjelenítve (1 / 7)";
    expected.Status[2] = L"bejelölve 0";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmFindChecksTest, SeveralCheckedHitsOfOneCategoryKeepTheirPositions) {
    const FindDialog dialog = FindSix();
    dialog.Check({6, 4, 1});
    dialog.Close();
    EXPECT_EQ(program.State().Status[2], L"bejelölve 0");
    EXPECT_EQ(CheckedOn(5), (std::vector<int>{1, 3}));
    EXPECT_EQ(program.State().Status[2], L"bejelölve 2");
    EXPECT_EQ(CheckedOn(2), std::vector<int>{1});
    EXPECT_EQ(program.State().Status[2], L"bejelölve 1");
}

TEST_F(frmFindChecksTest, AllHitsOfThePlusKeyBecomeCheckMarks) {
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"", L"hu");
    program.PressKey(dialog.List().Handle(), VK_ADD);
    dialog.Close();
    for (const int tab : {2, 5}) {
        EXPECT_EQ(CheckedOn(tab), (std::vector<int>{1, 2, 3}));
        EXPECT_EQ(program.State().Status[2], L"bejelölve 3");
    }
}

TEST_F(frmFindChecksTest, WithNothingCheckedAndNothingDeletedTheCheckMarksStay) {
    AddSixEntries();
    program.ClickTab(5);
    program.ClickBox(2);
    program.ClickTab(2);
    for (const int row : {1, 3}) program.ClickBox(row);
    const MainState before = program.State();
    {
        const FindDialog dialog = FindX();
        dialog.ClickHit(2);
        dialog.Close();
        EXPECT_EQ(program.State(), before);
    }
    {
        // Checked and unchecked again in three ways.
        const FindDialog dialog = FindX();
        dialog.Check({2, 2});
        dialog.Press(ID_frmFind_Command2);
        dialog.Press(ID_frmFind_Command3);
        dialog.Check({4});
        dialog.Search(L"x");
        dialog.Close();
        EXPECT_EQ(program.State(), before);
    }
    EXPECT_EQ(CheckedOn(5), std::vector<int>{2});
}

TEST_F(frmFindChecksTest, ADeletionClearsAllCheckMarks) {
    AddSixEntries();
    program.ClickTab(5);
    program.ClickBox(2);
    program.ClickTab(2);
    for (const int row : {1, 3}) program.ClickBox(row);
    const FindDialog dialog = FindX();
    dialog.DeleteHit(1);
    dialog.Close();
    EXPECT_EQ(program.State().Checked, std::vector<int>{});
    EXPECT_EQ(program.State().Status[2], L"bejelölve 0");
    EXPECT_EQ(CheckedOn(5), std::vector<int>{});
    EXPECT_EQ(program.State().Status[2], L"bejelölve 0");
}

TEST_F(frmFindChecksTest, HitsCheckedAfterADeletionKeepTheirNewPositions) {
    const FindDialog dialog = FindSix();
    dialog.DeleteHit(1);
    dialog.Check({1, 3});
    dialog.Close();
    EXPECT_EQ(CheckedOn(2), std::vector<int>{1});
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"x2", L"http://2.hu"}, {L"x3", L"http://3.hu"}}));
    EXPECT_EQ(CheckedOn(5), std::vector<int>{1});
}

}  // namespace
}  // namespace lindrel::testing
