// Tabs, list and check marks of the main window.

#include <gtest/gtest.h>

#include <tuple>

#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class BookViewTest : public ::testing::Test {
  protected:
    // Three entries in category 1, four in category 3.
    BookViewTest() {
        program.Add(3, {{L"A", L"http://a.hu"}, {L"B", L"http://b.hu"}, {L"C", L"http://c.hu"}, {L"", L""}});
        program.Add(1, FirstCategory().Rows);
    }

    // The first category with a row shown in the fields (0 for none) and these rows checked.
    static MainState FirstCategory(int row = 0, const std::vector<int>& checked = {}) {
        MainState state = EmptyState();
        state.Rows = {
            {L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}, {L"Három", L"http://harom.hu"}};
        state.Checked = checked;
        state.Status[1] = L"megjelenítve (3 / 7)";
        state.Status[2] = L"bejelölve " + std::to_wstring(checked.size());
        if (row == 0) return state;
        state.SelectedRow = row;
        std::tie(state.txtSite, state.txtURL) = state.Rows[static_cast<std::size_t>(row - 1)];
        state.Status[0] = state.txtURL;
        return state;
    }

    Program program;
};

TEST_F(BookViewTest, AFillShowsTheCategoryWithoutSelectionAndWithTheCounters) {
    EXPECT_EQ(program.State(), FirstCategory());
    EXPECT_TRUE(program.CommandEnabled(ID_mnuToDesktop));
}

TEST_F(BookViewTest, ColumnsAndLabelsHaveTheirCaptions) {
    EXPECT_EQ(program.List().Columns(), (std::vector<std::wstring>{L"webhely neve", L"URL cime"}));
    EXPECT_EQ(TextOf(program.Control(ID_frmStart_lblSiteName)), L"Webhely neve");
    EXPECT_EQ(TextOf(program.Control(ID_frmStart_lblURL)), L"URL");
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
    EXPECT_EQ(program.State(), FirstCategory(2));
}

TEST_F(BookViewTest, CheckingAnotherRowChangesOnlyTheCounter) {
    program.ClickRow(1);
    program.ClickBox(3);
    EXPECT_EQ(program.State(), FirstCategory(1, {3}));
}

TEST_F(BookViewTest, TheSpaceBarChecksAndWalksDownAndStaysOnTheLastRow) {
    program.ClickRow(2);
    const HWND list = program.Control(ID_frmStart_ListURLs);
    program.PressKey(list, VK_SPACE);
    EXPECT_EQ(program.State(), FirstCategory(3, {2}));
    program.PressKey(list, VK_SPACE);
    EXPECT_EQ(program.State(), FirstCategory(3, {2, 3}));
}

TEST_F(BookViewTest, ATabRemembersItsCheckMarks) {
    for (const int row : {1, 2, 3}) program.ClickBox(row);
    EXPECT_EQ(program.State(), FirstCategory(0, {1, 2, 3}));
    program.ClickTab(3);
    EXPECT_EQ(program.State().Status[2], L"bejelölve 0");
    program.ClickTab(1);
    EXPECT_EQ(program.State(), FirstCategory(0, {1, 2, 3}));
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
    program.ClickRow(1);
    program.ClickBox(2);
    program.Run(ID_mnuSelectAll);
    EXPECT_EQ(program.State(), FirstCategory(1));
    program.Run(ID_mnuSelectAll);
    EXPECT_EQ(program.State(), FirstCategory(1, {1, 2, 3}));
}

TEST_F(BookViewTest, AColumnClickShowsTheFirstEntryOnlyWhileTheFieldIsEmpty) {
    const auto click_header = [this] {
        program.List().ClickHeader();
        program.Settle();
    };
    click_header();
    MainState expected = FirstCategory(1);
    expected.SelectedRow = 0;
    EXPECT_EQ(program.State(), expected);
    program.ClickRow(3);
    const MainState before = program.State();
    click_header();
    EXPECT_EQ(program.State(), before);
}

TEST_F(BookViewTest, CheckingTheSelectedLastRowByMouseStaysOnIt) {
    program.ClickRow(3);
    program.ClickBox(3);
    EXPECT_EQ(program.State(), FirstCategory(3, {3}));
    program.ClickBox(3);
    EXPECT_EQ(program.State(), FirstCategory(3));
}

TEST_F(BookViewTest, CheckingTheSelectedRowByMouseGoesOnToTheNext) {
    program.ClickRow(1);
    program.ClickBox(1);
    EXPECT_EQ(program.State(), FirstCategory(2, {1}));
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
