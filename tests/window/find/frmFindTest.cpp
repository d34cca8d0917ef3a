// The find dialog: what it shows and finds, and what its hits do.

#include "tests/window/find/FindSession.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

class frmFindTest : public FindSession {
  protected:
    void ExpectRefusal() const {
        const MainState before = program.State();
        program.Choose(ID_mnuFind);
        ExpectBox(program, {.Text = L"Az adatbázisban még nincsenek címek"});
        ExpectState(program, before);
    }
    static void ExpectHits(const FindDialog& dialog, const std::vector<Row>& hits) {
        EXPECT_EQ(dialog.List().Rows(), hits);
        EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), std::to_wstring(hits.size()));
    }
};

TEST_F(frmFindTest, ABookWithoutEntriesInTheFirstElevenCategoriesIsRefused) {
    ExpectRefusal();
    program.Add(12, {{L"Egy", L"http://egy.hu"}});
    ExpectRefusal();
    // One entry before it is enough.
    program.Add(11, {{L"Kettő", L"http://ketto.hu"}});
    const FindDialog dialog = Open();
    dialog.Search(L"");
    ExpectHits(dialog, {{L"Kettő", L"Project11"}, {L"Egy", L"Project12"}});
}

TEST_F(frmFindTest, OpensWithoutHits) {
    const FindDialog dialog = OpenHungarian();
    for (const int id : {ID_frmFind_txtWhat, ID_frmFind_txtTag, ID_frmFind_lblURL})
        EXPECT_EQ(dialog.Text(id), L"");
    wchar_t hint[64] = L"";
    SendMessageW(dialog.Control(ID_frmFind_txtTag), EM_GETCUEBANNER, reinterpret_cast<WPARAM>(hint), 64);
    EXPECT_EQ(std::wstring(hint), L"pl.: com, hu, gov");
    EXPECT_EQ(dialog.List().Columns(), (std::vector<std::wstring>{L"webhely neve", L"kategória"}));
    ExpectHits(dialog, {});
    EXPECT_EQ(dialog.Focus(), ID_frmFind_txtWhat);
}

TEST_F(frmFindTest, HitsOfAllCategoriesComeInBookOrder) {
    const FindDialog dialog = OpenHungarian();
    dialog.Search(L"ű");
    ExpectHits(dialog, {{L"MŰSOR", L"Project1"}, {L"űrhajó", L"Project3"}, {L"tűrő", L"Project12"}});
    EXPECT_EQ(dialog.Addresses(),
              (std::vector<std::wstring>{L"http://www.musor.hu", L"http://urhajo.hu/", L"ftp://tur.gov/"}));
}

TEST_F(frmFindTest, LetterCaseDoesNotMatterInHungarianEither) {
    const FindDialog dialog = OpenHungarian();
    for (const wchar_t* const what : {L"műsor", L"MŰSOR", L"Műsor"}) {
        dialog.Search(what);
        ExpectHits(dialog, {{L"MŰSOR", L"Project1"}});
    }
    dialog.Search(L"OJA", L"COM");
    ExpectHits(dialog, {});
    dialog.Search(L"ŐJÁ", L"COM");
    ExpectHits(dialog, {{L"Időjárás", L"Project1"}});
}

TEST_F(frmFindTest, AnEmptySearchTextListsEverything) {
    const FindDialog dialog = OpenHungarian();
    dialog.Search(L"");
    ExpectHits(dialog, {{L"MŰSOR", L"Project1"},
                        {L"Időjárás", L"Project1"},
                        {L"űrhajó", L"Project3"},
                        {L"Bolt & társa", L"Project3"},
                        {L"tűrő", L"Project12"}});
}

TEST_F(frmFindTest, AnEndingAloneListsEveryAddressThatCarriesIt) {
    const FindDialog dialog = OpenHungarian();
    dialog.Search(L"", L"hu");
    ExpectHits(dialog, {{L"MŰSOR", L"Project1"}, {L"űrhajó", L"Project3"}, {L"Bolt & társa", L"Project3"}});
    dialog.Search(L"ű", L"GOV");
    ExpectHits(dialog, {{L"tűrő", L"Project12"}});
}

TEST_F(frmFindTest, AnEndingCountsAfterTheDotOfWwwAndWithinThePath) {
    program.Add(1, {{L"www pont", L"http://www.hungary.com/"},
                    {L"WWW PONT", L"HTTP://WWW.HUNGARY.COM/"},
                    {L"egy betű", L"http://x.hu/lap"},
                    {L"út", L"http://pelda.com/lap.hu/index.html"},
                    {L"www út", L"http://www.pelda.com/lap.hu"},
                    {L"https", L"https://www.hungary.com/"},
                    {L"rövid", L"a.hu"}});
    const FindDialog dialog = Open();
    dialog.Search(L"", L"hu");
    EXPECT_EQ(dialog.Addresses(),
              (std::vector<std::wstring>{L"http://x.hu/lap", L"http://pelda.com/lap.hu/index.html",
                                         L"http://www.pelda.com/lap.hu", L"https://www.hungary.com/"}));
}

TEST_F(frmFindTest, ASearchWithoutHitsShowsNothingAndZero) {
    const FindDialog dialog = OpenHungarian();
    dialog.Search(L"ű");
    dialog.ClickHit(1);
    dialog.Search(L"nincs ilyen");
    ExpectHits(dialog, {});
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"");
}

TEST_F(frmFindTest, EnterInEitherTextBoxSearches) {
    const FindDialog dialog = OpenHungarian();
    dialog.SetText(ID_frmFind_txtWhat, L"műsor");
    program.PressKey(dialog.Control(ID_frmFind_txtWhat), VK_RETURN);
    ExpectHits(dialog, {{L"MŰSOR", L"Project1"}});
    dialog.SetText(ID_frmFind_txtWhat, L"");
    dialog.SetText(ID_frmFind_txtTag, L"gov");
    program.OnUi([&](frmStart&) { SetFocus(dialog.Control(ID_frmFind_txtTag)); });
    program.PressKey(dialog.Control(ID_frmFind_txtTag), VK_RETURN);
    ExpectHits(dialog, {{L"tűrő", L"Project12"}});
}

TEST_F(frmFindTest, TheSearchTextIsSelectedWheneverItsBoxGainsTheFocusFromTheUser) {
    const FindDialog dialog = OpenHungarian();
    dialog.SetText(ID_frmFind_txtWhat, L"műsor");
    const TextBox box(dialog.Control(ID_frmFind_txtWhat));
    program.OnUi([&](frmStart&) {
        SetFocus(dialog.Control(ID_frmFind_txtTag));
        box.SetFocus();
    });
    EXPECT_EQ(box.SelectedText(), L"műsor");
    SendMessageW(box.Handle(), EM_SETSEL, 1, 3);
    program.LeaveAndComeBack();
    EXPECT_EQ(dialog.Focus(), ID_frmFind_txtWhat);
    EXPECT_EQ(dialog.Selection(ID_frmFind_txtWhat), std::pair(1, 3));
}

TEST_F(frmFindTest, AClickShowsTheAddressAndADoubleClickOpensIt) {
    const RecordedShell shell;
    const FindDialog dialog =
        FindAll({{L"Nézd & lásd", L"http://pelda.hu/két szó/ŰRHAJÓ?a=1&b=2"}, {L"b", L"http://b.hu"}});
    dialog.ClickHit(1);
    EXPECT_EQ(dialog.List().Cell(1, 0), L"Nézd & lásd");
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"http://pelda.hu/két szó/ŰRHAJÓ?a=1&b=2");
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{});
    dialog.List().DoubleClickRow(1);
    EXPECT_EQ(shell.NextAddress(), L"http://pelda.hu/két szó/ŰRHAJÓ?a=1&b=2");
    program.Settle();
}

TEST_F(frmFindTest, TheQuestionBeforeAProgramIsStartedBelongsToTheDialog) {
    const FindDialog dialog = FindAll({{L"program", L"C:\\x.exe"}});
    dialog.List().DoubleClickRow(1);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(GetWindow(box.Handle(), GW_OWNER), dialog.Handle());
    box.Press(IDNO);
    program.Settle();
}

TEST_F(frmFindTest, ArrowKeysShowTheAddressAndKeepTheCheckMarks) {
    const FindDialog dialog = FindSix();
    dialog.List().ClickBox(1);
    dialog.ClickHit(3);
    program.PressKey(dialog.List().Handle(), VK_DOWN);
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"http://4.hu");
    EXPECT_EQ(dialog.List().Checked(), std::vector<int>{1});
    EXPECT_EQ(dialog.List().Selected(), 4);
}

TEST_F(frmFindTest, EnterInTheHitsSearchesAgain) {
    const RecordedShell shell;
    const FindDialog dialog = FindSix();
    const HWND hits = dialog.List().Handle();
    dialog.ClickHit(3);
    dialog.SetText(ID_frmFind_txtWhat, L"x1");
    program.PressKey(hits, VK_RETURN);
    ExpectHits(dialog, {{L"x1", L"Project2"}});
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"");
    EXPECT_EQ(GetDlgCtrlID(hits), dialog.Focus());
    // Without a selected hit too.
    dialog.SetText(ID_frmFind_txtWhat, L"x2");
    program.PressKey(hits, VK_RETURN);
    ExpectHits(dialog, {{L"x2", L"Project2"}});
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{});
}

TEST_F(frmFindTest, TheWholeAddressIsTheTipOfTheLineThatMayCutIt) {
    const std::wstring address = L"http://pelda.hu/" + std::wstring(60, L'a') + L"?a=1&b=2";
    const FindDialog dialog = FindAll({{L"hosszú", address}});
    const HWND line = dialog.Control(ID_frmFind_lblURL);
    EXPECT_EQ(ToolTipOf(program, line), L"");
    dialog.ClickHit(1);
    EXPECT_EQ(ToolTipOf(program, line), address);
    dialog.Search(L"");
    EXPECT_EQ(ToolTipOf(program, line), L"");
}

TEST_F(frmFindTest, ClosingFillsTheListOfTheMainWindow) {
    AddSixEntries();
    program.ClickTab(2);
    const MainState untouched = program.State();
    program.ClickRow(2);
    Open().Close();
    // The selection is gone, and the fields are empty.
    EXPECT_EQ(program.State(), untouched);
}

TEST_F(frmFindTest, TheLargestBookIsSearchedAndListed) {
    program.OnUi([](frmStart& form) {
        std::vector<NewEntry> entries;
        for (int i = 1; i <= kMostEntries; ++i)
            entries.push_back({"Magyar m\xFBsorok \xE9s h\xEDrek " + std::to_string(i),
                               "http://www.pelda.hu/" + std::to_string(i)});
        form.OpenedBook().TheBook.AddEntry(4, entries);
    });
    const FindDialog dialog = Open();
    dialog.Search(L"MŰSOR", L"HU");
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"32767");
    EXPECT_EQ(dialog.List().Count(), kMostEntries);
    EXPECT_EQ(dialog.List().Cell(kMostEntries, 0), L"Magyar műsorok és hírek 32767");
}

}  // namespace
}  // namespace lindrel::testing
