// The find dialog: what it shows and finds, and what its hits do.

#include <chrono>
#include <iostream>

#include "tests/window/find/FindSession.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

class frmFindTest : public FindSession {};

TEST_F(frmFindTest, AnEmptyBookIsRefused) {
    program.Choose(ID_mnuFind);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Lindrel");
    EXPECT_EQ(box.Text(), L"Az adatbázisban még nincsenek címek");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    EXPECT_EQ(box.Icon(), BoxIcon::None);
    box.Press(IDOK);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
}

TEST_F(frmFindTest, ABookWhoseTwelfthCategoryStartsAtOneIsRefusedThoughItHoldsEntries) {
    program.Add(12, {{L"Egy", L"http://egy.hu"}});
    program.Choose(ID_mnuFind);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Text(), L"Az adatbázisban még nincsenek címek");
    box.Press(IDOK);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    // One entry before it is enough.
    program.Add(11, {{L"Kettő", L"http://ketto.hu"}});
    const FindDialog dialog = Open();
    dialog.Search(L"");
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"Kettő", L"Project11"}, {L"Egy", L"Project12"}}));
    dialog.Close();
}

TEST_F(frmFindTest, ShowsItsTextsAndNoHitsYet) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    EXPECT_EQ(dialog.Caption(), L"Keresés");
    const std::pair<int, const wchar_t*> texts[] = {{ID_frmFind_Label1, L"&Amit keres"},
                                                    {ID_frmFind_txtWhat, L""},
                                                    {ID_frmFind_Label3, L"&utótagúakat"},
                                                    {ID_frmFind_Label2, L"szűkíti a keresést"},
                                                    {ID_frmFind_txtTag, L""},
                                                    {ID_frmFind_cmdFind, L"&Keresés indítása"},
                                                    {ID_frmFind_lblSum_0, L"keresés eredménye :"},
                                                    {ID_frmFind_lblSum_1, L"0"},
                                                    {ID_frmFind_lblURL, L""},
                                                    {ID_frmFind_Command2, L"Mindent kijelöl"},
                                                    {ID_frmFind_Command3, L"Kijelölés megszüntetése"},
                                                    {ID_frmFind_cmdDel, L"A kijelölt címek törlése"}};
    for (const auto& [id, text] : texts) EXPECT_EQ(dialog.Text(id), text);
    wchar_t hint[64] = L"";
    SendMessageW(dialog.Control(ID_frmFind_txtTag), EM_GETCUEBANNER, reinterpret_cast<WPARAM>(hint), 64);
    EXPECT_EQ(std::wstring(hint), L"pl.: com, hu, gov");
    EXPECT_EQ(dialog.List().Columns(), (std::vector<std::wstring>{L"webhely neve", L"kategória"}));
    EXPECT_EQ(dialog.List().Rows(), std::vector<Row>{});
    EXPECT_EQ(dialog.Focus(), ID_frmFind_txtWhat);
    dialog.Close();
}

TEST_F(frmFindTest, HitsOfAllCategoriesComeInBookOrder) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"ű");
    EXPECT_EQ(dialog.List().Rows(),
              (std::vector<Row>{{L"MŰSOR", L"Project1"}, {L"űrhajó", L"Project3"}, {L"tűrő", L"Project12"}}));
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"3");
    EXPECT_EQ(dialog.Addresses(),
              (std::vector<std::wstring>{L"http://www.musor.hu", L"http://urhajo.hu/", L"ftp://tur.gov/"}));
    dialog.Close();
}

TEST_F(frmFindTest, LetterCaseDoesNotMatterInHungarianEither) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    for (const wchar_t* const what : {L"műsor", L"MŰSOR", L"Műsor"}) {
        dialog.Search(what);
        EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"MŰSOR", L"Project1"}}));
    }
    dialog.Search(L"OJA", L"COM");
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{}));
    dialog.Search(L"ŐJÁ", L"COM");
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"Időjárás", L"Project1"}}));
    dialog.Close();
}

TEST_F(frmFindTest, AnEmptySearchTextListsEverything) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"");
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"MŰSOR", L"Project1"},
                                                      {L"Időjárás", L"Project1"},
                                                      {L"űrhajó", L"Project3"},
                                                      {L"Bolt & társa", L"Project3"},
                                                      {L"tűrő", L"Project12"}}));
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"5");
    dialog.Close();
}

TEST_F(frmFindTest, AnEndingAloneListsEveryAddressThatCarriesIt) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"", L"hu");
    EXPECT_EQ(dialog.List().Rows(),
              (std::vector<Row>{
                  {L"MŰSOR", L"Project1"}, {L"űrhajó", L"Project3"}, {L"Bolt & társa", L"Project3"}}));
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"3");
    dialog.Search(L"ű", L"GOV");
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"tűrő", L"Project12"}}));
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"1");
    dialog.Close();
}

TEST_F(frmFindTest, AnEndingCountsBehindTheDotOfWwwAndWithinThePath) {
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
    dialog.Close();
}

TEST_F(frmFindTest, ASearchWithoutHitsShowsNothingAndZero) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"ű");
    dialog.ClickHit(1);
    dialog.Search(L"nincs ilyen");
    EXPECT_EQ(dialog.List().Rows(), std::vector<Row>{});
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"0");
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"");
    dialog.Close();
}

TEST_F(frmFindTest, EnterInEitherTextBoxSearches) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.SetText(ID_frmFind_txtWhat, L"műsor");
    program.PressKey(dialog.Control(ID_frmFind_txtWhat), VK_RETURN);
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"MŰSOR", L"Project1"}}));
    dialog.SetText(ID_frmFind_txtWhat, L"");
    dialog.SetText(ID_frmFind_txtTag, L"gov");
    program.OnUi([&](frmStart&) { SetFocus(dialog.Control(ID_frmFind_txtTag)); });
    program.PressKey(dialog.Control(ID_frmFind_txtTag), VK_RETURN);
    EXPECT_EQ(dialog.List().Rows(), (std::vector<Row>{{L"tűrő", L"Project12"}}));
    dialog.Close();
}

TEST_F(frmFindTest, TheSearchTextIsSelectedWheneverItsBoxGainsTheFocus) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.SetText(ID_frmFind_txtWhat, L"műsor");
    const HWND box = dialog.Control(ID_frmFind_txtWhat);
    program.OnUi([&](frmStart&) {
        SetFocus(dialog.Control(ID_frmFind_txtTag));
        SetFocus(box);
    });
    EXPECT_EQ(TextBox(box).SelectedText(), L"műsor");
    dialog.Close();
}

TEST_F(frmFindTest, ComingBackToTheDialogLeavesTheCaretInTheSearchText) {
    AddHungarianEntries();
    const FindDialog dialog = Open();
    dialog.SetText(ID_frmFind_txtWhat, L"műsor");
    SendMessageW(dialog.Control(ID_frmFind_txtWhat), EM_SETSEL, 1, 3);
    program.LeaveAndComeBack();
    EXPECT_EQ(dialog.Focus(), ID_frmFind_txtWhat);
    EXPECT_EQ(dialog.Selection(ID_frmFind_txtWhat), std::pair(1, 3));
    dialog.Close();
}

TEST_F(frmFindTest, AClickShowsTheAddressAndADoubleClickOpensIt) {
    const RecordedShell shell;
    program.Add(1, {{L"Nézd & lásd", L"http://pelda.hu/két szó/ŰRHAJÓ?a=1&b=2"}, {L"b", L"http://b.hu"}});
    const FindDialog dialog = Open();
    dialog.Search(L"");
    dialog.ClickHit(1);
    EXPECT_EQ(dialog.List().Cell(1, 0), L"Nézd & lásd");
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"http://pelda.hu/két szó/ŰRHAJÓ?a=1&b=2");
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{});
    dialog.List().DoubleClickRow(1);
    EXPECT_EQ(shell.NextAddress(), L"http://pelda.hu/két szó/ŰRHAJÓ?a=1&b=2");
    program.Settle();
    dialog.Close();
}

TEST_F(frmFindTest, TheQuestionBeforeAProgramIsStartedStandsOverTheDialog) {
    program.Add(1, {{L"program", L"C:\\x.exe"}});
    const FindDialog dialog = Open();
    dialog.Search(L"");
    dialog.List().DoubleClickRow(1);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(GetWindow(box.Handle(), GW_OWNER), dialog.Handle());
    box.Press(IDNO);
    program.Settle();
    dialog.Close();
}

TEST_F(frmFindTest, EnterInTheListOpensTheHitAndKeepsTheCheckMarks) {
    const RecordedShell shell;
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"x");
    dialog.List().ClickBox(1);
    program.PressKey(dialog.List().Handle(), VK_RETURN);  // no hit is selected
    dialog.ClickHit(4);
    program.PressKey(dialog.List().Handle(), VK_RETURN);
    EXPECT_EQ(shell.NextAddress(), L"http://4.hu");
    EXPECT_EQ(shell.Addresses(), std::vector<std::wstring>{L"http://4.hu"});
    EXPECT_EQ(dialog.List().Checked(), std::vector<int>{1});
    EXPECT_EQ(dialog.List().Selected(), 4);
    dialog.Close();
}

TEST_F(frmFindTest, TheWholeAddressIsTheTipOfTheLineThatMayCutIt) {
    const std::wstring address = L"http://pelda.hu/" + std::wstring(60, L'a') + L"?a=1&b=2";
    program.Add(1, {{L"hosszú", address}});
    const FindDialog dialog = Open();
    dialog.Search(L"");
    const HWND line = dialog.Control(ID_frmFind_lblURL);
    EXPECT_EQ(ToolTipOf(program, line), L"");
    dialog.ClickHit(1);
    EXPECT_EQ(ToolTipOf(program, line), address);
    dialog.Search(L"");
    EXPECT_EQ(ToolTipOf(program, line), L"");
    dialog.Close();
}

TEST_F(frmFindTest, ArrowKeysShowTheAddressesToo) {
    AddSixEntries();
    const FindDialog dialog = Open();
    dialog.Search(L"x");
    dialog.ClickHit(1);
    program.PressKey(dialog.List().Handle(), VK_DOWN);
    EXPECT_EQ(dialog.List().Selected(), 2);
    EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), L"http://2.hu");
    dialog.Close();
}

TEST_F(frmFindTest, TheMainWindowShowsTheCategoryAnew) {
    AddSixEntries();
    program.ClickTab(2);
    const MainState untouched = program.State();
    program.ClickRow(2);
    Open().Close();
    // Neither the selection nor the fields outlive the fill.
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
    dialog.SetText(ID_frmFind_txtWhat, L"MŰSOR");
    dialog.SetText(ID_frmFind_txtTag, L"HU");
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::duration<double, std::milli>;
    Milliseconds listed = Milliseconds::max();
    Milliseconds painted = Milliseconds::max();
    for (int run = 0; run < 25; ++run)
        program.OnUi([&](frmStart&) {
            const auto start = Clock::now();
            SendMessageW(dialog.Handle(), WM_COMMAND, MAKEWPARAM(ID_frmFind_cmdFind, BN_CLICKED), 0);
            const auto after_listing = Clock::now();
            UpdateWindow(dialog.List().Handle());
            listed = std::min<Milliseconds>(listed, after_listing - start);
            painted = std::min<Milliseconds>(painted, Clock::now() - after_listing);
        });
    std::cout << "[   FIGURE ] 32,767 names searched and listed in " << listed.count() << " ms, painted in "
              << painted.count() << " ms (least of 25)\n";
    RecordProperty("listed_ms", std::to_string(listed.count()));
    RecordProperty("painted_ms", std::to_string(painted.count()));
    EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), L"32767");
    EXPECT_EQ(dialog.List().Count(), kMostEntries);
    EXPECT_EQ(dialog.List().Cell(kMostEntries, 0), L"Magyar műsorok és hírek 32767");
    dialog.Close();
}

}  // namespace
}  // namespace lindrel::testing
