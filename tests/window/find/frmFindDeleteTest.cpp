// Deleting the selected hit and the checked ones.

#include "tests/window/find/FindSession.h"
#include "text/BookText.h"

namespace lindrel::testing {
namespace {

class frmFindDeleteTest : public FindSession {
  protected:
    // The names that the book holds, in its order.
    std::vector<std::wstring> BookNames() const {
        return program.Ask<std::vector<std::wstring>>([](frmStart& form) {
            std::vector<std::wstring> names;
            for (int i = 1; i <= form.OpenedBook().TheBook.EntryCount(); ++i)
                names.push_back(FromBookText(form.OpenedBook().TheBook.SiteNames(i)));
            return names;
        });
    }
};

TEST_F(frmFindDeleteTest, AfterADeletionTheArrowKeysGoOnFromTheSameRow) {
    const FindDialog dialog = FindSix();
    dialog.DeleteHit(3);
    EXPECT_EQ(dialog.List().Count(), 5);
    EXPECT_EQ(dialog.List().Selected(), 0);
    EXPECT_EQ(ListView_GetNextItem(dialog.List().Handle(), -1, LVNI_FOCUSED) + 1, 3);
}

TEST_F(frmFindDeleteTest, DeleteAsksAndCancelKeepsTheEntry) {
    const FindDialog dialog = FindSix();
    dialog.ClickHit(3);
    dialog.DeleteSelected(IDCANCEL);
    EXPECT_EQ(dialog.List().Count(), 6);
    EXPECT_EQ(dialog.List().Selected(), 3);
    dialog.Close();
    EXPECT_EQ(BookNames(), (std::vector<std::wstring>{L"x1", L"x2", L"x3", L"x4", L"x5", L"x6"}));
    EXPECT_FALSE(program.State().Modified);
}

TEST_F(frmFindDeleteTest, DeleteRemovesTheSelectedHitSearchesAgainAndNumbersTheHitsAnew) {
    const FindDialog dialog = FindSix();
    dialog.DeleteHit(2);
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"5");
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"");
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"x1", L"Project2"},
                                                      {L"x3", L"Project2"},
                                                      {L"x4", L"Project5"},
                                                      {L"x5", L"Project5"},
                                                      {L"x6", L"Project5"}}));
    EXPECT_EQ(dialog.Addresses(), (std::vector<std::wstring>{L"http://1.hu", L"http://3.hu", L"http://4.hu",
                                                             L"http://5.hu", L"http://6.hu"}));
    // The next deletion uses the new indices, in the other category.
    dialog.DeleteHit(4);
    EXPECT_EQ(BookNames(), (std::vector<std::wstring>{L"x1", L"x3", L"x4", L"x6"}));
    dialog.Close();
    EXPECT_TRUE(program.State().Modified);
    program.ClickTab(5);
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"x4", L"http://4.hu"}, {L"x6", L"http://6.hu"}}));
    EXPECT_EQ(program.State().Status[1], L"megjelenítve (2 / 4)");
}

TEST_F(frmFindDeleteTest, ASearchAfterADeletionUsesTheTextsThatAreThereNow) {
    const FindDialog dialog = FindSix();
    dialog.ClickHit(1);
    dialog.SetText(ID_frmFind_txtWhat, L"x5");
    dialog.DeleteSelected();
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"x5", L"Project5"}}));
    dialog.Close();
    EXPECT_EQ(BookNames(), (std::vector<std::wstring>{L"x2", L"x3", L"x4", L"x5", L"x6"}));
}

TEST_F(frmFindDeleteTest, DeleteWithoutASelectedHitAsksNothing) {
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.ListKey(VK_DELETE);
    program.Settle();
    dialog.Search(L"x");
    dialog.ListKey(VK_DELETE);
    program.Settle();
    EXPECT_TRUE(IsWindowEnabled(dialog.Handle()));
    EXPECT_EQ(dialog.List().Count(), 6);
}

TEST_F(frmFindDeleteTest, DeletingTheCheckedHitsAsksForYesOrNo) {
    const FindDialog dialog = FindSix();
    dialog.Check({2, 5});
    dialog.DeleteChecked(2, IDNO);
    EXPECT_EQ(dialog.List().Checked(), (std::vector<int>{2, 5}));
    dialog.Press(ID_frmFind_Command3);
    dialog.Close();
    EXPECT_EQ(BookNames().size(), 6u);
    EXPECT_FALSE(program.State().Modified);
}

TEST_F(frmFindDeleteTest, DeletingTheCheckedHitsOfSeveralCategoriesLeavesTheOthers) {
    AddSixEntries();
    program.Add(2, {{L"marad", L"http://marad.hu"}});
    const FindDialog dialog = FindX();
    dialog.Check({1, 3, 4, 6});
    dialog.DeleteChecked(4);
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"x2", L"Project2"}, {L"x5", L"Project5"}}));
    EXPECT_EQ(dialog.Addresses(), (std::vector<std::wstring>{L"http://2.hu", L"http://5.hu"}));
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"2");
    // Nothing is checked any more.
    dialog.Press(ID_frmFind_cmdDel);
    EXPECT_TRUE(IsWindowEnabled(dialog.Handle()));
    dialog.Close();
    EXPECT_EQ(BookNames(), (std::vector<std::wstring>{L"x2", L"marad", L"x5"}));
    EXPECT_TRUE(program.State().Modified);
}

TEST_F(frmFindDeleteTest, DeletingEverythingLeavesNoBlankHit) {
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"");
    dialog.Press(ID_frmFind_Command2);
    dialog.DeleteChecked(6);
    EXPECT_EQ(dialog.List().Rows(), std::vector<Row>{});
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"0");
    dialog.Close();
    MainState expected = EmptyState();
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmFindDeleteTest, WithNothingCheckedDeletingDoesNothing) {
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.Press(ID_frmFind_cmdDel);
    dialog.Search(L"x");
    dialog.Press(ID_frmFind_cmdDel);
    EXPECT_TRUE(IsWindowEnabled(dialog.Handle()));
    EXPECT_EQ(dialog.List().Count(), 6);
    dialog.Close();
    EXPECT_FALSE(program.State().Modified);
}

}  // namespace
}  // namespace lindrel::testing
