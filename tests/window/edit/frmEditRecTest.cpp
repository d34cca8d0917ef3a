// The edit dialog.

#include <string>
#include <utility>

#include "tests/window/edit/EditSession.h"
#include "tests/window/edit/LongCategory.h"

namespace lindrel::testing {
namespace {

class frmEditRecTest : public EditSession {
  protected:
    frmEditRecTest() {
        AddNamed(1, {L"a", L"b", L"c"});
        AddNamed(3, {L"x", L"y"});
    }
    DialogOnScreen Open() const {
        program.Choose(ID_mnuEdit);
        return program.Dialog(L"Cím módosítása");
    }
    void Accept(const DialogOnScreen& dialog) const {
        dialog.ClickAndWaitForClose(ID_frmEditRec_cmdOk);
        program.Settle();
    }
    // Moves the selected entry to another category (1..12).
    void MoveTo(int category) const {
        const DialogOnScreen dialog = Open();
        dialog.Pick(ID_frmEditRec_cmbKateg, category - 1);
        Accept(dialog);
    }
};

TEST_F(frmEditRecTest, ShowsTheSelectedEntryAndTheShownCategory) {
    program.ClickRow(2);
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtDesc), L"b");
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtURL), L"http://b.hu");
    EXPECT_EQ(dialog.ComboItems(ID_frmEditRec_cmbKateg), EmptyState().Tabs);
    EXPECT_EQ(dialog.Picked(ID_frmEditRec_cmbKateg), 0);
    Leave(dialog);
}

TEST_F(frmEditRecTest, AnEmptyListAndNoSelectedRowOpenNothing) {
    ExpectNothingDone(ID_mnuEdit);
    program.ClickTab(2);
    ExpectNothingDone(ID_mnuEdit);
}

TEST_F(frmEditRecTest, ChangesTheEntryInPlaceExactlyAsTyped) {
    program.ClickBox(3);
    program.ClickRow(2);
    const DialogOnScreen dialog = Open();
    dialog.SetText(ID_frmEditRec_txtDesc, L" Őz ");
    dialog.SetText(ID_frmEditRec_txtURL, L"http://oz.hu ");
    Accept(dialog);
    MainState expected = Changed(1, RowsNamed({L"a", L"b", L"c"}), 5);
    expected.Rows[1] = {L" Őz ", L"http://oz.hu "};
    expected.Checked = {3};
    expected.SelectedRow = 2;
    expected.Status[2] = L"bejelölve 1";
    EXPECT_EQ(program.State(), expected);
    EXPECT_EQ(program.Ask<std::wstring>([](frmStart& form) { return form.ResultTag; }), L"");
}

TEST_F(frmEditRecTest, OkWithoutAChangeModifiesTheBook) {
    program.ClickRow(1);
    Accept(Open());
    MainState expected = Changed(1, RowsNamed({L"a", L"b", L"c"}), 5);
    expected.SelectedRow = 1;
    EXPECT_EQ(program.State(), expected);
}

// The text of a window ends at a NUL, and a damaged file can hold one.
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
    MainState expected = Changed(1, RowsNamed({L"a", L"b"}), 5);
    expected.SelectedRow = 2;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(3);
    EXPECT_EQ(program.State().Rows,
              (std::vector<Row>{{L"x", L"http://x.hu"}, {L"y", L"http://y.hu"}, {L"Új C", L"http://c.hu"}}));
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
    MoveTo(2);
    expected.Rows.pop_back();
    expected.SelectedRow = 199;
    expected.Status[1] = L"megjelenítve (199 / 205)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    many.ExpectScrolledIntoView(199);
}

TEST_F(frmEditRecTest, MovingTowardsTheFrontSelectsTheNextRow) {
    program.ClickTab(3);
    program.ClickRow(1);
    MoveTo(1);
    MainState expected = Changed(3, RowsNamed({L"y"}), 5);
    expected.SelectedRow = 1;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmEditRecTest, MovingTheOnlyRowAwaySelectsNothing) {
    AddNamed(2, {L"e"});
    program.ClickTab(2);
    program.ClickRow(1);
    MoveTo(12);
    EXPECT_EQ(program.State(), Changed(2, {}, 6));
}

TEST_F(frmEditRecTest, MovingForgetsTheCheckMarksOfTheSourceOnly) {
    program.ClickTab(3);
    program.ClickBox(2);
    program.ClickTab(1);
    program.ClickBox(1);
    program.ClickBox(3);
    program.ClickRow(2);
    MoveTo(5);
    MainState expected = Changed(1, RowsNamed({L"a", L"c"}), 5);
    expected.SelectedRow = 2;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(3);
    EXPECT_EQ(program.State().Checked, std::vector<int>{2});
    EXPECT_EQ(program.State().Status[2], L"bejelölve 1");
    program.ClickTab(1);
    EXPECT_EQ(program.State().Checked, std::vector<int>{});
}

TEST_F(frmEditRecTest, CancelLeavesListAndCheckMarks) {
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
    // The focus stays where it is.
    program.OnUi([&](frmStart&) { SetFocus(dialog.Control(ID_frmEditRec_txtURL)); });
    SendMessageW(dialog.Control(ID_frmEditRec_txtURL), EM_SETSEL, 2, 5);
    dialog.SetText(ID_frmEditRec_txtDesc, L" ");
    program.PressKey(dialog.Control(ID_frmEditRec_txtURL), VK_RETURN);
    ExpectMissingFields();
    EXPECT_EQ(dialog.Focus(), ID_frmEditRec_txtURL);
    EXPECT_EQ(dialog.Selection(ID_frmEditRec_txtURL), std::pair(2, 5));
    dialog.SetText(ID_frmEditRec_txtDesc, L"漢");
    dialog.Click(ID_frmEditRec_cmdOk);
    ExpectForeignCharacter(L"„漢” (U+6F22)");
    EXPECT_EQ(dialog.Focus(), ID_frmEditRec_txtDesc);
    EXPECT_EQ(dialog.Text(ID_frmEditRec_txtDesc), L"漢");
    ExpectUnchangedAfter(dialog, before);
}

}  // namespace
}  // namespace lindrel::testing
