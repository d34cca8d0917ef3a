// Tabs, list and check marks of the main window.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class BookViewTest : public ::testing::Test {
  protected:
    // Three entries in category 1, four in category 3.
    BookViewTest() {
        program.OnUi([](frmStart& form) {
            form.OpenedBook().TheBook.AddEntry(
                1,
                {{"Egy", "http://egy.hu"}, {"Kett\xF5", "http://ketto.hu"}, {"H\xE1rom", "http://harom.hu"}});
            form.OpenedBook().TheBook.AddEntry(
                3, {{"A", "http://a.hu"}, {"B", "http://b.hu"}, {"C", "http://c.hu"}, {"", ""}});
            form.View().FillAddressList(1);
        });
    }

    MainState FirstCategory() const {
        MainState state;
        state.Title = L"Lindrel ";
        for (int k = 1; k <= 12; ++k) state.Tabs.push_back(L"Project" + std::to_wstring(k));
        state.SelectedTab = 1;
        state.Rows = {
            {L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}, {L"Három", L"http://harom.hu"}};
        state.Status[1] = L"megjelenítve (3 / 7)";
        state.Status[2] = L"bejelölve 0";
        return state;
    }

    Program program;
};

TEST_F(BookViewTest, AFillShowsTheCategoryWithoutSelectionAndWithTheCounters) {
    EXPECT_EQ(program.State(), FirstCategory());
    EXPECT_TRUE(program.CommandEnabled(ID_mnuToDesktop));
}

TEST_F(BookViewTest, ColumnsAndFieldsBearTheirCaptions) {
    EXPECT_EQ(program.List().Columns(), (std::vector<std::wstring>{L"webhely neve", L"URL cime"}));
    EXPECT_EQ(TextOf(program.Control(ID_frmStart_lblSiteName)), L"Webhely neve");
    EXPECT_EQ(TextOf(program.Control(ID_frmStart_lblURL)), L"URL");
    // Screen readers name a field by the label before it.
    for (const auto& [label, field] : {std::pair{ID_frmStart_lblSiteName, ID_frmStart_txtSite},
                                       std::pair{ID_frmStart_lblURL, ID_frmStart_txtURL}})
        EXPECT_EQ(GetDlgCtrlID(GetWindow(GetDlgItem(program.Main(), label), GW_HWNDNEXT)), field);
}

TEST_F(BookViewTest, AnEmptyCategoryHasNoRowsAndNoDesktopCommand) {
    program.ClickTab(2);
    MainState expected = FirstCategory();
    expected.SelectedTab = 2;
    expected.Rows.clear();
    expected.Status[1] = L"megjelenítve (0 / 7)";
    EXPECT_EQ(program.State(), expected);
    EXPECT_FALSE(program.CommandEnabled(ID_mnuToDesktop));
}

TEST_F(BookViewTest, FillingTwiceGivesTheSameRowsWithoutCheckMarks) {
    program.ClickBox(2);
    program.OnUi([](frmStart& form) {
        form.OpenedBook().TheBook.Marks.SetCheckedCount(0);
        form.View().FillAddressList(1);
    });
    EXPECT_EQ(program.State(), FirstCategory());
}

TEST_F(BookViewTest, EmptyNamesAndAddressesGiveEmptyCells) {
    program.ClickTab(3);
    EXPECT_EQ(program.State().Rows.back(), (Row{L"", L""}));
}

TEST_F(BookViewTest, AClickedRowIsShownInTheFields) {
    program.ClickRow(2);
    MainState expected = FirstCategory();
    expected.SelectedRow = 2;
    expected.txtSite = L"Kettő";
    expected.txtURL = expected.Status[0] = L"http://ketto.hu";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, CheckingAnotherRowChangesOnlyTheCounter) {
    program.ClickRow(1);
    program.ClickBox(3);
    MainState expected = FirstCategory();
    expected.SelectedRow = 1;
    expected.txtSite = L"Egy";
    expected.txtURL = expected.Status[0] = L"http://egy.hu";
    expected.Checked = {3};
    expected.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, TheSpaceBarChecksAndWalksDownAndStaysOnTheLastRow) {
    program.ClickRow(2);
    const HWND list = program.Control(ID_frmStart_ListURLs);
    program.PressKey(list, VK_SPACE);
    MainState expected = FirstCategory();
    expected.SelectedRow = 3;
    expected.txtSite = L"Három";
    expected.txtURL = expected.Status[0] = L"http://harom.hu";
    expected.Checked = {2};
    expected.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), expected);
    program.PressKey(list, VK_SPACE);
    expected.Checked = {2, 3};
    expected.Status[2] = L"bejelölve 2";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, ATabRemembersItsCheckMarks) {
    for (const int row : {1, 2, 3}) program.ClickBox(row);
    MainState expected = FirstCategory();
    expected.Checked = {1, 2, 3};
    expected.Status[2] = L"bejelölve 3";
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(3);
    EXPECT_EQ(program.State().Status[2], L"bejelölve 0");
    program.ClickTab(1);
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, WithNothingCheckedNothingIsRemembered) {
    program.ClickBox(2);
    program.ClickTab(3);
    program.ClickTab(1);
    program.ClickBox(2);
    program.ClickTab(3);
    program.OnUi([](frmStart& form) { EXPECT_EQ(form.OpenedBook().TheBook.Marks, CheckMarks()); });
    program.ClickTab(1);
    EXPECT_EQ(program.State(), FirstCategory());
}

TEST_F(BookViewTest, OneCheckMarkIsEnoughForCheckAllToClearThem) {
    program.ClickBox(2);
    program.Run(ID_mnuSelectAll);
    EXPECT_EQ(program.State(), FirstCategory());
    program.Run(ID_mnuSelectAll);
    MainState expected = FirstCategory();
    expected.Checked = {1, 2, 3};
    expected.Status[2] = L"bejelölve 3";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, AColumnClickShowsTheFirstEntryOnlyWhileTheFieldIsEmpty) {
    const auto click_header = [this] {
        program.List().ClickHeader();
        program.Settle();
    };
    click_header();
    MainState expected = FirstCategory();
    expected.txtSite = L"Egy";
    expected.txtURL = expected.Status[0] = L"http://egy.hu";
    EXPECT_EQ(program.State(), expected);
    program.ClickRow(3);
    const MainState before = program.State();
    click_header();
    EXPECT_EQ(program.State(), before);
}

TEST_F(BookViewTest, CheckingTheSelectedLastRowByMouseStaysOnIt) {
    program.ClickRow(3);
    program.ClickBox(3);
    MainState expected = FirstCategory();
    expected.SelectedRow = 3;
    expected.txtSite = L"Három";
    expected.txtURL = expected.Status[0] = L"http://harom.hu";
    expected.Checked = {3};
    expected.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), expected);
    program.ClickBox(3);
    expected.Checked = {};
    expected.Status[2] = L"bejelölve 0";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, CheckingTheSelectedRowByMouseGoesOnToTheNext) {
    program.ClickRow(1);
    program.ClickBox(1);
    MainState expected = FirstCategory();
    expected.SelectedRow = 2;
    expected.txtSite = L"Kettő";
    expected.txtURL = expected.Status[0] = L"http://ketto.hu";
    expected.Checked = {1};
    expected.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), expected);
}

TEST_F(BookViewTest, CheckAllIsInertWhileTheFirstElevenCategoriesAreEmpty) {
    program.Run(ID_mnuNew);
    program.OnUi([](frmStart& form) { form.OpenedBook().TheBook.AddEntry(12, {{"A", "http://a.hu"}}); });
    program.ClickTab(12);
    const MainState before = program.State();
    EXPECT_EQ(before.Rows.size(), 1u);
    program.Run(ID_mnuSelectAll);
    EXPECT_EQ(program.State(), before);
}

}  // namespace
}  // namespace lindrel::testing
