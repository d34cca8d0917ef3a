// The search box.

#include <gtest/gtest.h>

#include "resources/resource.h"
#include "tests/window/app/ExpectBox.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

constexpr wchar_t kExcite[] = L"http://search.excite.com/search.gw?searchType=Concept&search=";

class SearchBoxTest : public ::testing::Test {
  protected:
    // The second and the fourth entry of the first category hold "AB".
    SearchBoxTest() {
        program.Add(1, {{L"első", L"http://ab.hu"},
                        {L"kABát", L"http://2.hu"},
                        {L"harmadik", L"http://3.hu"},
                        {L"ABlak", L"http://4.hu"}});
        program.Add(2, {{L"TŰZIJÁTÉK", L"http://tuz.hu"}, {L"időjárás", L"http://ido.hu"}});
    }
    HWND Control(int id) const { return program.Control(id); }
    void Type(const std::wstring& text) const {
        SendMessageW(Control(ID_frmStart_txtFind), EM_SETSEL, 0, -1);
        SendMessageW(Control(ID_frmStart_txtFind), EM_REPLACESEL, TRUE,
                     reinterpret_cast<LPARAM>(text.c_str()));
    }
    void Choose(int service) const {
        SendMessageW(Control(ID_frmStart_cmbFinders), CB_SETCURSEL, static_cast<WPARAM>(service), 0);
    }
    int Chosen() const { return ComboBox(Control(ID_frmStart_cmbFinders)).Selected(); }
    // The picture button; returns at once, since a box may open.
    void PressSearch() const { PostMessageW(Control(ID_frmStart_Image1), BM_CLICK, 0, 0); }
    void Search() const {
        PressSearch();
        program.Settle();
    }
    int SelectedAfterSearch() const {
        Search();
        return program.List().Selected();
    }
    void NothingMoreIsFound() const {
        PressSearch();
        ExpectNoMore();
    }
    void ExpectNoMore() const {
        ExpectBox(program, {.Text = L"Nem találtam többet"});
        program.Settle();
    }
    void FocusOn(int id) const {
        program.OnUi([&](frmStart&) { SetFocus(Control(id)); });
    }
    std::wstring ToolTip(int id) const { return ToolTipOf(program, Control(id)); }

    Program program;
};

TEST_F(SearchBoxTest, OffersSixChoicesTheEmptyOneFirst) {
    const ComboBox finders(Control(ID_frmStart_cmbFinders));
    std::vector<std::wstring> items;
    for (int i = 0; i < finders.Count(); ++i) items.push_back(finders.Item(i));
    EXPECT_EQ(items, (std::vector<std::wstring>{L"", L"AltaVista", L"Lycos", L"Excite", L"Yahoo",
                                                L"Altavizsla - hu!"}));
    EXPECT_EQ(finders.Selected(), 0);
    EXPECT_EQ(TextOf(Control(ID_frmStart_FrameSearch)), L"&keresés");
    EXPECT_EQ(TextOf(Control(ID_frmStart_txtFind)), L"");
}

TEST_F(SearchBoxTest, EachControlHasItsToolTip) {
    EXPECT_EQ(ToolTip(ID_frmStart_cmbFinders), L"keress az interneten");
    EXPECT_EQ(ToolTip(ID_frmStart_txtFind), L"a keresett szó");
    EXPECT_EQ(ToolTip(ID_frmStart_Image1), L"Keresés");
    EXPECT_EQ(ToolTip(ID_frmStart_picGo), L"Ugorj a web oldalra");
}

TEST_F(SearchBoxTest, SearchesWalkThroughTheHitsOfTheCategoryAndStartAgain) {
    MainState expected = program.State();  // the fields do not show the hits
    Type(L"ab");
    Search();
    expected.SelectedRow = 2;
    EXPECT_EQ(program.State(), expected);
    EXPECT_EQ(SelectedAfterSearch(), 4);
    NothingMoreIsFound();
    EXPECT_EQ(program.List().Selected(), 4);
    EXPECT_EQ(SelectedAfterSearch(), 2);
}

TEST_F(SearchBoxTest, AChangedTextSearchesFromTheFirstEntry) {
    Type(L"ab");
    EXPECT_EQ(SelectedAfterSearch(), 2);
    EXPECT_EQ(SelectedAfterSearch(), 4);
    Type(L"aba");
    NothingMoreIsFound();
    Type(L"abá");
    EXPECT_EQ(SelectedAfterSearch(), 2);
    // One letter taken away by the keyboard.
    FocusOn(ID_frmStart_txtFind);
    SendMessageW(Control(ID_frmStart_txtFind), EM_SETSEL, 3, 3);
    PostMessageW(Control(ID_frmStart_txtFind), WM_CHAR, VK_BACK, 1);
    program.Settle();
    EXPECT_EQ(TextOf(Control(ID_frmStart_txtFind)), L"ab");
    EXPECT_EQ(SelectedAfterSearch(), 2);
}

TEST_F(SearchBoxTest, NamesOfTheShownCategoryAreSearchedInEitherCase) {
    Type(L"http");
    NothingMoreIsFound();
    Type(L"időjárás");
    NothingMoreIsFound();
    program.ClickTab(2);
    Type(L"tűzijáték");
    EXPECT_EQ(SelectedAfterSearch(), 1);
    Type(L"IDŐJÁRÁS");
    EXPECT_EQ(SelectedAfterSearch(), 2);
    Type(L"tuz");
    NothingMoreIsFound();
}

TEST_F(SearchBoxTest, ASearchGoesOnAtTheOldPositionAfterATabChange) {
    program.Add(3, {{L"ab1", L"1"}, {L"ab2", L"2"}, {L"ab3", L"3"}});
    Type(L"ab");
    EXPECT_EQ(SelectedAfterSearch(), 2);
    program.ClickTab(3);
    EXPECT_EQ(SelectedAfterSearch(), 3);
    NothingMoreIsFound();
    EXPECT_EQ(SelectedAfterSearch(), 1);
}

TEST_F(SearchBoxTest, FewerThanTwoCharactersDoNothing) {
    const RecordedShell shell;
    for (const wchar_t* const text : {L"", L"a"}) {
        Type(text);
        Choose(0);
        Search();
        EXPECT_EQ(program.List().Selected(), 0);
        Choose(3);
        Search();
        EXPECT_EQ(Chosen(), 3);
    }
    EXPECT_TRUE(program.NothingIsOpen());
    // Had one of them opened an address, it would come first.
    Type(L"ab");
    Search();
    EXPECT_EQ(shell.NextAddress(), std::wstring(kExcite) + L"ab");
}

TEST_F(SearchBoxTest, AnEmptyCategoryIsNotSearchedButAServiceIsAsked) {
    const RecordedShell shell;
    program.ClickTab(5);
    Type(L"ab");
    const MainState before = program.State();
    Search();
    ExpectState(program, before);
    Choose(3);
    Search();
    EXPECT_EQ(shell.NextAddress(), std::wstring(kExcite) + L"ab");
}

TEST_F(SearchBoxTest, AHitOutsideTheViewIsScrolledIn) {
    std::vector<Row> many(500, {L"x", L"http://x.hu"});
    many[399].first = L"itt ŐZ van";
    program.Add(4, many);
    program.ClickTab(4);
    Type(L"őz");
    EXPECT_EQ(SelectedAfterSearch(), 400);
    const HWND list = program.List().Handle();
    const int first_shown = ListView_GetTopIndex(list) + 1;
    EXPECT_GT(first_shown, 1);
    EXPECT_LE(first_shown, 400);
    EXPECT_LT(400, first_shown + ListView_GetCountPerPage(list));
}

TEST_F(SearchBoxTest, AServiceOpensItsPageWithTheWordsAsTypedAndIsThenLeft) {
    const RecordedShell shell;
    Choose(3);
    Type(L"két szó");
    const MainState before = program.State();
    Search();
    EXPECT_EQ(shell.NextAddress(), L"http://search.excite.com/search.gw?searchType=Concept&search=két szó");
    EXPECT_EQ(Chosen(), 0);
    EXPECT_EQ(TextOf(Control(ID_frmStart_cmbFinders)), L"");
    EXPECT_EQ(TextOf(Control(ID_frmStart_txtFind)), L"két szó");
    EXPECT_EQ(program.State(), before);
    // The next search is in the book again.
    Type(L"ab");
    EXPECT_EQ(SelectedAfterSearch(), 2);
    EXPECT_EQ(shell.Addresses().size(), 1u);
}

TEST_F(SearchBoxTest, EveryServiceOpensItsOwnPage) {
    const RecordedShell shell;
    const std::wstring pages[] = {
        L"https://search.yahoo.com/search?fr=altavista&p=", L"https://search.lycos.com/web/?q=", kExcite,
        L"https://search.yahoo.com/search?p=", L"https://www.altavizsla.hu/search?q="};
    Type(L"ŰRHAJÓ & őz + 100%");
    for (int service = 1; service <= 5; ++service) {
        Choose(service);
        Search();
        EXPECT_EQ(shell.NextAddress(), pages[service - 1] + L"ŰRHAJÓ & őz + 100%");
        EXPECT_EQ(Chosen(), 0);
    }
}

TEST_F(SearchBoxTest, EnterInTheTextBoxSearches) {
    const RecordedShell shell;
    Type(L"ab");
    FocusOn(ID_frmStart_txtFind);
    const auto enter = [&] { program.PressKey(Control(ID_frmStart_txtFind), VK_RETURN); };
    enter();
    EXPECT_EQ(program.List().Selected(), 2);
    // The focus stays, so that Enter goes on.
    enter();
    EXPECT_EQ(program.List().Selected(), 4);
    PostMessageW(Control(ID_frmStart_txtFind), WM_KEYDOWN, VK_RETURN, 1);
    ExpectNoMore();
    Choose(3);
    enter();
    EXPECT_EQ(shell.NextAddress(), std::wstring(kExcite) + L"ab");
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(SearchBoxTest, TheTextIsSelectedWheneverItsBoxGainsTheFocusFromTheUser) {
    Type(L"műsor");
    FocusOn(ID_frmStart_ListURLs);
    FocusOn(ID_frmStart_txtFind);
    const TextBox box(Control(ID_frmStart_txtFind));
    EXPECT_EQ(box.SelectedText(), L"műsor");
    program.OnUi([&](frmStart&) { box.Select(1, 2); });
    program.LeaveAndComeBack();
    EXPECT_TRUE(program.Ask<bool>([&](frmStart&) { return box.HasFocus(); }));
    EXPECT_EQ(box.SelectedText(), L"űs");
}

TEST_F(SearchBoxTest, APictureButtonHasABorderWhileTheMouseHoldsIt) {
    for (const int id : {ID_frmStart_Image1, ID_frmStart_picGo}) {
        const HWND button = Control(id);
        const auto has_border = [&] { return (GetWindowLongPtrW(button, GWL_STYLE) & WS_BORDER) != 0; };
        const auto has_border_after = [&](UINT message, int x) {
            PostMessageW(button, message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(x, 5));
            program.Settle();
            return has_border();
        };
        EXPECT_FALSE(has_border());
        for (const int released_at : {5, -50}) {
            EXPECT_TRUE(has_border_after(WM_LBUTTONDOWN, 5));
            EXPECT_FALSE(has_border_after(WM_LBUTTONUP, released_at));
        }
        EXPECT_TRUE(has_border_after(WM_LBUTTONDOWN, 5));
        program.OnUi([](frmStart&) { ReleaseCapture(); });
        EXPECT_FALSE(has_border());
    }
}

TEST_F(SearchBoxTest, TwoQuickClicksSearchTwice) {
    Type(L"ab");
    const HWND button = Control(ID_frmStart_Image1);
    for (const auto message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        PostMessageW(button, static_cast<UINT>(message), 0, MAKELPARAM(5, 5));
    program.Settle();
    EXPECT_EQ(program.List().Selected(), 4);
}

}  // namespace
}  // namespace lindrel::testing
