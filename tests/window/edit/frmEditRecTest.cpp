// The edit dialog.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "resources/resource.h"
#include "tests/window/edit/LongCategory.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class frmEditRecTest : public ::testing::Test {
  protected:
    frmEditRecTest() {
        program.Add(1, {{L"A", L"http://a.hu"}, {L"B", L"http://b.hu"}, {L"C", L"http://c.hu"}});
        program.Add(3, {{L"X", L"http://x.hu"}, {L"Y", L"http://y.hu"}});
    }
    DialogOnScreen Open() const {
        program.Choose(ID_mnuEdit);
        return program.Dialog(L"Cím módosítása");
    }
    void Accept(const DialogOnScreen& dialog) const {
        dialog.ClickAndWaitForClose(ID_frmEditRec_cmdOk);
        program.Settle();
    }
    static MainState FirstCategory() {
        MainState state = EmptyState();
        state.Rows = {{L"A", L"http://a.hu"}, {L"B", L"http://b.hu"}, {L"C", L"http://c.hu"}};
        state.Status[1] = L"megjelenítve (3 / 5)";
        return state;
    }

    Program program;
};

TEST_F(frmEditRecTest, ShowsTheSelectedEntryAndTheShownCategory) {
    program.ClickRow(2);
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(ID_frmEditRec_Frame1), L" Az oldal adatai ");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_Label1), L"az oldal &neve");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_Label2), L"&kategória");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_lblHint), L"ebbe a kategóriába lesz áthelyezve");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_lblURL), L"&URL címe");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtDesc), L"B");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtURL), L"http://b.hu");
    EXPECT_EQ(dialog.ComboItems(ID_frmEditRec_cmbKateg), EmptyState().Tabs);
    EXPECT_EQ(dialog.Picked(ID_frmEditRec_cmbKateg), 0);
    EXPECT_EQ(dialog.Text(ID_frmEditRec_cmdOk), L"OK");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_Command1), L"&Mégse");
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmEditRecTest, AnEmptyListOpensNothing) {
    program.ClickTab(2);
    const MainState before = program.State();
    program.Run(ID_mnuEdit);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmEditRecTest, NoSelectedRowOpensNothing) {
    program.Run(ID_mnuEdit);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), FirstCategory());
}

TEST_F(frmEditRecTest, ChangesTheEntryInPlaceExactlyAsTyped) {
    program.ClickBox(3);
    program.ClickRow(2);
    const DialogOnScreen dialog = Open();
    dialog.SetText(ID_frmEditRec_txtDesc, L" Őz ");
    dialog.SetText(ID_frmEditRec_txtURL, L"http://oz.hu ");
    Accept(dialog);
    MainState expected = FirstCategory();
    expected.Rows[1] = {L" Őz ", L"http://oz.hu "};
    expected.Checked = {3};
    expected.SelectedRow = 2;
    expected.Status[2] = L"bejelölve 1";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    EXPECT_EQ(program.Ask<std::wstring>([](frmStart& form) { return form.OpenedBook().ResultTag; }), L"");
}

TEST_F(frmEditRecTest, OkWithoutAChangeMarksTheBook) {
    program.ClickRow(1);
    Accept(Open());
    MainState expected = FirstCategory();
    expected.SelectedRow = 1;
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

// A window's text ends at a NUL, and files that were damaged can hold one.
TEST_F(frmEditRecTest, AFieldThatWasNotChangedKeepsWhatTheWindowCannotShow) {
    using namespace std::string_literals;
    program.OnUi([](frmStart& form) {
        form.OpenedBook().TheBook.SetSiteName(2, "N\0\xE9v"s);
        form.OpenedBook().TheBook.SetSiteURL(2, "http://\0b.hu"s);
    });
    const auto entry = [&] {
        return program.Ask<std::pair<std::string, std::string>>([](frmStart& form) {
            const Book& book = form.OpenedBook().TheBook;
            return std::pair(std::string(book.SiteNames(2)), std::string(book.SiteURLs(2)));
        });
    };
    program.ClickRow(2);
    Accept(Open());
    EXPECT_EQ(entry(), std::pair("N\0\xE9v"s, "http://\0b.hu"s));

    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtDesc), L"N");
    dialog.SetText(ID_frmEditRec_txtDesc, L"Más");
    Accept(dialog);
    EXPECT_EQ(entry(), std::pair("M\xE1s"s, "http://\0b.hu"s));

    const DialogOnScreen again = Open();
    again.SetText(ID_frmEditRec_txtURL, L"http://b.hu");
    Accept(again);
    EXPECT_EQ(entry(), std::pair("M\xE1s"s, "http://b.hu"s));
}

TEST_F(frmEditRecTest, MovingTheLastRowAwaySelectsTheNewLastRow) {
    program.ClickRow(3);
    const DialogOnScreen dialog = Open();
    dialog.SetText(ID_frmEditRec_txtDesc, L"Új C");
    dialog.Pick(ID_frmEditRec_cmbKateg, 2);
    Accept(dialog);
    MainState expected = FirstCategory();
    expected.Rows.pop_back();
    expected.SelectedRow = 2;
    expected.Status[1] = L"megjelenítve (2 / 5)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(3);
    EXPECT_EQ(program.State().Rows,
              (std::vector<Row>{{L"X", L"http://x.hu"}, {L"Y", L"http://y.hu"}, {L"Új C", L"http://c.hu"}}));
}

TEST_F(frmEditRecTest, InALongListTheEditedRowIsScrolledBackIntoView) {
    const LongCategory many(program, 5, 150);
    MainState expected = many.WithoutFields();
    const DialogOnScreen dialog = Open();
    dialog.SetText(ID_frmEditRec_txtDesc, L"más");
    Accept(dialog);
    expected.Rows[149].first = L"más";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    many.ExpectScrolledIntoView(150);
}

TEST_F(frmEditRecTest, InALongListTheNewLastRowIsScrolledIntoView) {
    const LongCategory many(program, 5, LongCategory::kRows);
    MainState expected = many.WithoutFields();
    const DialogOnScreen dialog = Open();
    dialog.Pick(ID_frmEditRec_cmbKateg, 1);
    Accept(dialog);
    expected.Rows.pop_back();
    expected.SelectedRow = 199;
    expected.Status[1] = L"megjelenítve (199 / 205)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    many.ExpectScrolledIntoView(199);
}

TEST_F(frmEditRecTest, MovingTowardsTheFrontSelectsTheRowThatTookThePlace) {
    program.ClickTab(3);
    program.ClickRow(1);
    const DialogOnScreen dialog = Open();
    dialog.Pick(ID_frmEditRec_cmbKateg, 0);
    Accept(dialog);
    MainState expected = EmptyState();
    expected.SelectedTab = 3;
    expected.Rows = {{L"Y", L"http://y.hu"}};
    expected.SelectedRow = 1;
    expected.Status[1] = L"megjelenítve (1 / 5)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmEditRecTest, MovingTheOnlyRowAwaySelectsNothing) {
    program.Add(2, {{L"E", L"http://e.hu"}});
    program.ClickTab(2);
    program.ClickRow(1);
    const DialogOnScreen dialog = Open();
    dialog.Pick(ID_frmEditRec_cmbKateg, 11);
    Accept(dialog);
    MainState expected = EmptyState();
    expected.SelectedTab = 2;
    expected.Status[1] = L"megjelenítve (0 / 6)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmEditRecTest, MovingForgetsTheMarksOfTheSourceOnly) {
    program.ClickTab(3);
    program.ClickBox(2);
    program.ClickTab(1);
    program.ClickBox(1);
    program.ClickBox(3);
    program.ClickRow(2);
    const DialogOnScreen dialog = Open();
    dialog.Pick(ID_frmEditRec_cmbKateg, 4);
    Accept(dialog);
    MainState expected = FirstCategory();
    expected.Rows.erase(expected.Rows.begin() + 1);
    expected.SelectedRow = 2;
    expected.Status[1] = L"megjelenítve (2 / 5)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(3);
    EXPECT_EQ(program.State().Checked, std::vector<int>{2});
    EXPECT_EQ(program.State().Status[2], L"bejelölve 1");
    program.ClickTab(1);
    EXPECT_EQ(program.State().Checked, std::vector<int>{});
}

TEST_F(frmEditRecTest, CancelLeavesListAndMarks) {
    program.ClickBox(1);
    program.ClickRow(3);
    ExpectCancelChangesNothing(
        program, [this] { return Open(); },
        [](const DialogOnScreen& dialog) { dialog.SetText(ID_frmEditRec_txtDesc, L"más"); },
        ID_frmEditRec_Command1);
}

TEST_F(frmEditRecTest, MissingFieldsAndForeignCharactersAreRefused) {
    program.ClickRow(1);
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    dialog.SetText(ID_frmEditRec_txtDesc, L" ");
    dialog.Click(ID_frmEditRec_cmdOk);
    const BoxOnScreen missing = program.Box();
    EXPECT_EQ(missing.Title(), L"Nem töltött ki minden mezőt");
    EXPECT_EQ(missing.Text(), L"Kérem előbb töltse ki a szükséges mezőket!");
    missing.Press(IDOK);
    program.Settle();
    dialog.SetText(ID_frmEditRec_txtDesc, L"漢");
    dialog.Click(ID_frmEditRec_cmdOk);
    const BoxOnScreen foreign = program.Box();
    EXPECT_EQ(foreign.Title(), L"Hiba");
    EXPECT_EQ(foreign.Text(), L"Ezt a karaktert a könyv nem tudja tárolni:\r\n\r\n„漢” (U+6F22)");
    foreign.Press(IDOK);
    program.Settle();
    EXPECT_EQ(dialog.Focus(), ID_frmEditRec_txtDesc);
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtDesc), L"漢");
    dialog.Cancel();
    dialog.WaitForClose();
    program.Settle();
    EXPECT_EQ(program.State(), before);
}

}  // namespace
}  // namespace lindrel::testing
