// The category names dialog.

#include "tests/window/edit/EditSession.h"

namespace lindrel::testing {
namespace {

class frmEditKatsTest : public EditSession {
  protected:
    DialogOnScreen Open() const {
        program.Choose(ID_mnuKat);
        return program.Dialog(L"Kategóriák nevei");
    }
    static int Field(int category) { return ID_frmEditKats_txtKateg_0 + category - 1; }
    void Accept(const DialogOnScreen& dialog) const {
        dialog.ClickAndWaitForClose(ID_frmEditKats_cmdOk);
        program.Settle();
    }
};

TEST_F(frmEditKatsTest, ShowsTheTwelveNames) {
    program.OnUi([](frmStart& form) { form.OpenedBook().TheBook.SetCategoryName(7, "H&\xEDrek"); });
    const DialogOnScreen dialog = Open();
    for (int k = 1; k <= 12; ++k)
        EXPECT_EQ(dialog.Text(Field(k)), k == 7 ? L"H&írek" : L"Project" + std::to_wstring(k));
    Leave(dialog);
}

TEST_F(frmEditKatsTest, OkWithoutAChangeModifiesTheBook) {
    Accept(Open());
    MainState expected = EmptyState();
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmEditKatsTest, NamesAreTakenExactlyAsTyped) {
    program.Add(1, {{L"A", L"http://a.hu"}});
    const DialogOnScreen dialog = Open();
    dialog.SetText(Field(1), L"  Űr & idő ");
    dialog.SetText(Field(2), L"#kettős");
    dialog.SetText(Field(3), L"#kettős");
    dialog.SetText(Field(12), L"");
    Accept(dialog);
    MainState expected = EmptyState();
    expected.Tabs[0] = L"  Űr & idő ";
    expected.Tabs[1] = expected.Tabs[2] = L"#kettős";
    expected.Tabs[11] = L"";
    expected.Rows = {{L"A", L"http://a.hu"}};
    expected.Status[1] = L"megjelenítve (1 / 1)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    EXPECT_EQ(
        program.BookBytes(),
        "#  \xDBr & id\xF5 \r\nA\r\nhttp://a.hu\r\n##kett\xF5s\r\n##kett\xF5s\r\n#Project4\r\n#Project5\r\n"
        "#Project6\r\n#Project7\r\n#Project8\r\n#Project9\r\n#Project10\r\n#Project11\r\n#\r\n");
}

// The text of a window ends at a NUL, and a damaged file can hold one.
TEST_F(frmEditKatsTest, ANameThatWasNotChangedKeepsWhatTheWindowCannotShow) {
    using namespace std::string_literals;
    program.OnUi([](frmStart& form) {
        form.OpenedBook().TheBook.SetCategoryName(4, "H\0\xEDrek"s);
        form.OpenedBook().TheBook.SetCategoryName(5, "\0"s);
    });
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(Field(4)), L"H");
    EXPECT_EQ(dialog.Text(Field(5)), L"");
    dialog.SetText(Field(12), L"Más");
    Accept(dialog);
    const auto names = [&] {
        return program.Ask<std::vector<std::string>>([](frmStart& form) {
            const Book& book = form.OpenedBook().TheBook;
            return std::vector{book.CategoryNames(4), book.CategoryNames(5), book.CategoryNames(12)};
        });
    };
    EXPECT_EQ(names(), (std::vector{"H\0\xEDrek"s, "\0"s, "M\xE1s"s}));

    const DialogOnScreen again = Open();
    again.SetText(Field(4), L"H\xEDr");
    again.SetText(Field(5), L"x");
    Accept(again);
    EXPECT_EQ(names(), (std::vector{"H\xEDr"s, "x"s, "M\xE1s"s}));
}

TEST_F(frmEditKatsTest, CancelChangesNothing) {
    ExpectCancelChangesNothing(
        program, [this] { return Open(); },
        [](const DialogOnScreen& dialog) { dialog.SetText(Field(5), L"más"); }, ID_frmEditKats_cmdCancel);
}

TEST_F(frmEditKatsTest, AForeignCharacterIsRefusedAndNoNameIsTaken) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    dialog.SetText(Field(1), L"Jó név");
    dialog.SetText(Field(9), L"Ω");
    dialog.Click(ID_frmEditKats_cmdOk);
    ExpectForeignCharacter(L"„Ω” (U+03A9)");
    EXPECT_EQ(dialog.Focus(), Field(9));
    EXPECT_EQ(dialog.Text(Field(9)), L"Ω");
    ExpectUnchangedAfter(dialog, before);
}

}  // namespace
}  // namespace lindrel::testing
