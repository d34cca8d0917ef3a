// What the user is asked and told about files whose lines can be read in two ways, or that lack something.

#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class BookFileBoxesTest : public FileSession {
  protected:
    // Twelve headers "#1" to "#12" and lines after the third.
    static std::string FileWith(const std::string& lines) {
        std::string bytes;
        for (int k = 1; k <= 12; ++k) bytes += "#" + std::to_string(k) + "\r\n" + (k == 3 ? lines : "");
        return bytes;
    }
    void Open(const std::string& bytes) const { ChooseWithFile(ID_mnuOpen, folder.Write(L"a.lnd", bytes)); }
    void ExpectLoadBox(const std::wstring& text, BoxIcon icon) const {
        ExpectBox(program, {L"Hiba a beolvasásnál", text, icon});
    }
    void ExpectDoubt(const std::wstring& how_many_and_which, int answer) const {
        ExpectBox(program,
                  {L"Hiba a beolvasásnál",
                   L"A fájlban tizenkettőnél több sor kezdődik „#” jellel. Könyvként csak úgy nyitható "
                   L"meg, ha közülük " +
                       how_many_and_which + L"\r\n\r\nMegnyissam így?",
                   BoxIcon::Question,
                   {IDYES, IDNO}},
                  answer);
    }
    // Saves a book with these entries in its second category, and expects the warning after it.
    void ExpectWarning(const std::vector<NewEntry>& entries, const std::wstring& text) const {
        program.OnUi([&](frmStart& form) {
            form.OpenedBook().TheBook.Reset();
            form.OpenedBook().TheBook.AddEntry(2, entries);
            form.OpenedBook().OpenedFile = folder.File(L"a.lnd");
            form.OpenedBook().Modified = true;
        });
        program.Choose(ID_mnuSave);
        ExpectSaved(folder.File(L"a.lnd"));
        if (!text.empty()) ExpectBox(program, {L"Figyelem", text, BoxIcon::Exclamation});
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_FALSE(program.State().Modified);
    }
};

TEST_F(BookFileBoxesTest, ANameInDoubtIsAskedAboutBeforeTheOpenBookIsReplaced) {
    Change();
    SetModified(false);
    MainState before = ChangedState();
    before.Modified = false;
    const std::string bytes = FileWith("#n\xE9v\r\nhttp://a.hu\r\n#m\r\nwww.b.hu\r\n");
    const std::wstring doubt = L"2 nem kategória, hanem név vagy cím. Az első:\r\n\r\n#név (4. sor)";
    Open(bytes);
    ExpectDoubt(doubt, IDNO);
    ExpectState(before);
    EXPECT_EQ(program.BookBytes(), ChangedBook());

    Open(bytes);
    ExpectDoubt(doubt, IDYES);
    program.Settle();
    program.ClickTab(3);
    const MainState opened = program.State();
    EXPECT_EQ(opened.Title, L"Lindrel -a.lnd");
    EXPECT_EQ(opened.OpenedFile, folder.File(L"a.lnd"));
    EXPECT_EQ(opened.Rows, (std::vector<Row>{{L"#név", L"http://a.hu"}, {L"#m", L"www.b.hu"}}));
    EXPECT_FALSE(opened.Modified);
    EXPECT_EQ(program.BookBytes(), bytes);
}

TEST_F(BookFileBoxesTest, YesIsTheDefaultAndALongNameIsCutInTheQuestion) {
    const std::string bytes = FileWith("#" + std::string(20000, 'x') + "\r\nhttp://a.hu\r\n");
    Open(bytes);
    const BoxOnScreen box = program.Box();
    EXPECT_NE(GetWindowLongW(GetDlgItem(box.Handle(), IDYES), GWL_STYLE) & BS_DEFPUSHBUTTON, 0);
    ExpectDoubt(L"1 nem kategória, hanem név vagy cím:\r\n\r\n#" + std::wstring(99, L'x') + L"… (4. sor)",
                IDYES);
    program.Settle();
    EXPECT_EQ(program.BookBytes(), bytes);
}

TEST_F(BookFileBoxesTest, AddressesWithinAPageRaiseNoQuestion) {
    const std::string bytes = FileWith("Vissza\r\n#fej\r\nLe\r\n#lab\r\n");
    Open(bytes);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.BookBytes(), bytes);
}

TEST_F(BookFileBoxesTest, HeadersThatCannotBeIdentifiedAreRefusedWithTheLineOfTheThirteenth) {
    const std::string before = program.BookBytes();
    Open(FileWith("#n\r\nx\r\ny\r\nhttp://z.hu\r\n"));
    ExpectLoadBox(
        L"A fájlban tizenkettőnél több „#” jellel kezdődő sor van, de nem lehet közülük úgy tizenkét "
        L"kategóriát választani, hogy köztük csak teljes (név, cím) párok maradjanak.\r\n(16. sor)",
        BoxIcon::Error);
    std::string several;
    for (int i = 0; i < 7; ++i) several += "#a\r\n#http://a.hu\r\n";
    Open(several);
    ExpectLoadBox(
        L"A fájlban tizenkettőnél több „#” jellel kezdődő sor van, és többféleképpen is lehet "
        L"közülük tizenkét kategóriát választani.\r\n(13. sor)",
        BoxIcon::Error);
    ExpectState(EmptyState());
    EXPECT_EQ(program.BookBytes(), before);
}

TEST_F(BookFileBoxesTest, EntriesInNoCategoryAreToldOf) {
    Open("x\r\ny\r\n" + FileWith("n\r\nu\r\n"));
    ExpectLoadBox(
        L"A fájlban 1 címmel több van, mint amennyi a kategóriákba tartozik. A könyv mentésekor ennyi "
        L"cím elveszne.",
        BoxIcon::Exclamation);
    program.Settle();
    program.ClickTab(3);
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"x", L"y"}}));
    EXPECT_FALSE(program.State().Modified);
}

TEST_F(BookFileBoxesTest, MissingCategoriesComeBeforeEntriesInNone) {
    std::string bytes;
    for (int i = 0; i < 10000; ++i) bytes += "x\r\ny\r\n";
    Open(bytes + "#1\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n");
    ExpectLoadBox(L"Nem sikerült beolvasni az összes kategóriát", BoxIcon::Error);
    ExpectLoadBox(
        L"A fájlban 10\x00A0\x0030\x0030\x0030 címmel több van, mint amennyi a kategóriákba tartozik. "
        L"A könyv mentésekor ennyi cím elveszne.",
        BoxIcon::Exclamation);
    program.Settle();
    EXPECT_EQ(program.State().Title, L"Lindrel -a.lnd");
}

TEST_F(BookFileBoxesTest, AFileWithTooManyEntriesIsRefused) {
    std::string bytes = FileWith("");
    for (int i = 0; i < 32768; ++i) bytes += "n\r\nu\r\n";
    Open(bytes);
    ExpectLoadBox(
        L"A fájl több címet tartalmaz, mint amennyi egy könyvben elfér (32\x00A0\x0037\x0036\x0037).",
        BoxIcon::Error);
    ExpectState(EmptyState());
}

TEST_F(BookFileBoxesTest, NamesThatWillBeAskedAboutAreWarnedOfAfterSaving) {
    const std::wstring next =
        L"\r\n\r\nA fájlban a kategóriák is így kezdődnek, ezért a következő megnyitáskor a program "
        L"rákérdez.";
    ExpectWarning({{"#els\xF5", "http://a.hu"}, {"B", "#m\xE1sodik"}},
                  L"A könyvben 1 olyan név van, amely „#” jellel kezdődik:\r\n\r\n#első" + next);
    ExpectWarning({{"B", "#m\xE1sodik"}, {"#els\xF5", "http://a.hu"}, {"#c", "www.c.hu"}},
                  L"A könyvben 2 olyan név van, amely „#” jellel kezdődik. Az első:\r\n\r\n#első" + next);
}

TEST_F(BookFileBoxesTest, NamesAndAddressesThatCannotBeIdentifiedAreWarnedOfAfterSaving) {
    ExpectWarning(
        {{"#a", "localhost"}},
        L"A könyvben 1 olyan név van, amely „#” jellel kezdődik:\r\n\r\n#a\r\n\r\nA következő "
        L"megnyitáskor a program nem tudja ezt megkülönböztetni a kategóriáktól. Kérem, írja át ezt, "
        L"és mentse újra a könyvet.");
    ExpectWarning(
        {{"http://a.hu", "#a"}, {"http://b.hu", "#b"}},
        L"A könyvben 2 olyan cím van, amely „#” jellel kezdődik. Az első:\r\n\r\n#a\r\n\r\nA "
        L"következő megnyitáskor a program nem tudja ezeket megkülönböztetni a kategóriáktól. Kérem, "
        L"írja át ezeket, és mentse újra a könyvet.");
}

TEST_F(BookFileBoxesTest, AddressesThatRaiseNoQuestionAreNotWarnedOf) {
    ExpectWarning({{"Vissza", "#fej"}, {"Le", "#lab"}}, L"");
}

}  // namespace
}  // namespace lindrel::testing
