// The import dialog and the import of web pages.

#include "tests/window/import/ImportSession.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

using Items = std::vector<std::pair<std::wstring, bool>>;  // each with its check mark
const Items kOnlineChecked = {{L"csak \"online címeket\"", true}, {L"minden címet", false}};
const Items kAllChecked = {{L"csak \"online címeket\"", false}, {L"minden címet", true}};

class frmImportTest : public ImportSession {
  protected:
    // Presses the import button and picks a page.
    void Pick(const DialogOnScreen& dialog, const std::wstring& path) const {
        dialog.Click(ID_frmImport_cmdOK);
        const FileDialogOnScreen file = program.FileDialog();
        EXPECT_EQ(file.Title(), L"Válasszon ki egy weblapot");
        EXPECT_EQ(file.Filters(), std::vector<std::wstring>{L"weblapok (*.htm)"});
        EXPECT_EQ(file.FileName(), L"");
        file.Accept(path);
    }
    std::wstring Page(const std::string& bytes) const { return folder.Write(L"lap.htm", bytes); }

    // The popup menu must open with these items. Presses keys in it, which must close it.
    void ExpectMenu(const Items& expected, const std::vector<WPARAM>& keys) const {
        HWND popup = nullptr;
        WaitUntil("a popup menu", [&] { return (popup = PoppedUpMenu(program.Thread())) != nullptr; });
        constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
        const auto menu = reinterpret_cast<HMENU>(SendMessageW(popup, kGetMenu, 0, 0));
        Items items;
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            wchar_t text[64] = L"";
            GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
            const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
            items.emplace_back(text, (state & MF_CHECKED) != 0);
        }
        EXPECT_EQ(items, expected);
        for (const WPARAM key : keys) PostMessageW(popup, WM_KEYDOWN, key, 0);
        WaitUntil("the popup menu to close", [&] { return !IsWindow(popup) || !IsWindowVisible(popup); });
        program.Settle();
    }

    // Imports a page that fails: the message, if any, and that nothing at all is changed.
    void ExpectFailure(const std::string& page, const std::wstring& title) const {
        program.OnUi([](frmStart& form) { form.OpenedBook().Modified = false; });
        const WholeState before = Whole();
        const DialogOnScreen dialog = Open();
        dialog.Pick(ID_frmImport_cmbKateg, 4);
        Pick(dialog, Page(page));
        if (!title.empty()) AnswerBox(title, L"Az importálás nem sikerült.");
        program.Settle();
        EXPECT_TRUE(dialog.IsOpen());
        Leave(dialog);
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(Whole(), before);
    }

    const std::wstring kTooMany = L"Túl sok címet tartalmaz a weblap";
};

TEST_F(frmImportTest, OpensForAPageAndTheShownCategory) {
    const WholeState before = Whole();
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(dialog.Text(ID_frmImport_Frame1), L" forrás ");
    EXPECT_EQ(dialog.Text(ID_frmImport_from_0), L"weblap - HTML");
    EXPECT_EQ(dialog.Text(ID_frmImport_from_1), L"MS IE kedvencek - URL");
    EXPECT_EQ(dialog.Text(ID_frmImport_Label2), L" >>");
    EXPECT_EQ(dialog.Text(ID_frmImport_Label1), L"a cimeket helyezd ebbe a kategóriába");
    EXPECT_EQ(dialog.Text(ID_frmImport_cmdOK), L"&Importálj");
    EXPECT_EQ(dialog.Text(ID_frmImport_cmdCancel), L"&Mégse");
    EXPECT_TRUE(dialog.IsChecked(ID_frmImport_from_0));
    EXPECT_FALSE(dialog.IsChecked(ID_frmImport_from_1));
    EXPECT_EQ(dialog.ComboItems(ID_frmImport_cmbKateg), before.Main.Tabs);
    EXPECT_EQ(dialog.Picked(ID_frmImport_cmbKateg), 1);
    EXPECT_EQ(ToolTipOf(program, dialog.Control(ID_frmImport_cmbKateg)),
              L"az új címek ebbe a kategóriába importálódnak");
    Leave(dialog);
    EXPECT_EQ(Whole(), before);
}

TEST_F(frmImportTest, LinksGoAfterTheEntriesOfTheChosenCategory) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    Pick(dialog, Page("<A HREF=\"HTTP://Lap.hu/\">H\xCDrek</A>\r\n<a href=\"helyi.htm\">Helyi</a>\r\n"
                      "<a href=\"http://ket.hu\"><b>K\xE9t</b></a>\r\n"));
    AnswerResult(2);
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(program.State().Rows, before.Rows);  // shown when the dialog closes
    Leave(dialog);
    EXPECT_EQ(program.State(),
              WithImported(before, {{L"hírek", L"http://lap.hu/"}, {L"két", L"http://ket.hu"}}));
}

TEST_F(frmImportTest, SeveralPagesAreImportedInARow) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    dialog.Pick(ID_frmImport_cmbKateg, 4);
    Pick(dialog, Page("<a href=\"http://egy.hu\">Egy</a>"));
    AnswerResult(1);
    Pick(dialog, Page("<a href=\"http://ket.hu\">K\xE9t</a><a href=\"http://har.hu\">H\xE1rom</a>"));
    AnswerResult(2);
    Leave(dialog);
    EXPECT_EQ(program.State(), WithImported(before, {}, 3));
    program.ClickTab(5);
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"Ötödik", L"http://otodik.hu"},
                                                      {L"egy", L"http://egy.hu"},
                                                      {L"két", L"http://ket.hu"},
                                                      {L"három", L"http://har.hu"}}));
}

TEST_F(frmImportTest, AnEmptyBookTakesTheLinksOfOnePageAfterTheOther) {
    program.Run(ID_mnuNew);
    const DialogOnScreen dialog = Open();
    for (int page = 1; page <= 2; ++page) {
        Pick(dialog, Page("<a href=\"http://egy.hu\">Egy</a>"));
        AnswerResult(1);
    }
    Leave(dialog);
    EXPECT_EQ(program.State().Rows,
              (std::vector<Row>{{L"egy", L"http://egy.hu"}, {L"egy", L"http://egy.hu"}}));
}

TEST_F(frmImportTest, TheMenuChoosesBetweenOnlineAndAllAddresses) {
    const std::wstring page = Page("<a href=\"http://egy.hu\">Egy</a><a href=\"mailto:ki@lap.hu\">Ki</a>");
    DialogOnScreen dialog = Open();
    const auto open_menu = [&](const Items& expected, const std::vector<WPARAM>& keys) {
        dialog.Click(ID_frmImport_Label2);
        ExpectMenu(expected, keys);
    };
    open_menu(kOnlineChecked, {VK_DOWN, VK_RETURN});  // the checked one: nothing changes
    open_menu(kOnlineChecked, {VK_DOWN, VK_DOWN, VK_RETURN});
    open_menu(kAllChecked, {VK_DOWN, VK_DOWN, VK_RETURN});
    Pick(dialog, page);
    AnswerResult(2);
    open_menu(kAllChecked, {VK_DOWN, VK_RETURN});
    Pick(dialog, page);
    AnswerResult(1);
    Leave(dialog);
    dialog = Open();
    open_menu(kOnlineChecked, {VK_ESCAPE});
    Leave(dialog);
}

TEST_F(frmImportTest, TheMenuOpensWhenTheMouseGoesDownAndForPagesOnly) {
    const DialogOnScreen dialog = Open();
    const HWND button = dialog.Control(ID_frmImport_Label2);
    PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    ExpectMenu(kOnlineChecked, {VK_ESCAPE});
    dialog.Click(ID_frmImport_from_1);
    program.Settle();
    EXPECT_FALSE(dialog.IsEnabled(ID_frmImport_Label2));
    PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    program.Settle();
    EXPECT_EQ(WindowsOf(program.Thread()).size(), 2U);  // no menu: the dialog and the main window
    dialog.Click(ID_frmImport_from_0);
    program.Settle();
    EXPECT_TRUE(dialog.IsEnabled(ID_frmImport_Label2));
    Leave(dialog);
}

TEST_F(frmImportTest, PagesOfAnyEncodingAndEndingAreImported) {
    const std::wstring utf16 = L"\xFEFF<a href=\"http://п.hu/ű\">Ő és п</a>";
    const auto* const utf16_bytes = reinterpret_cast<const char*>(utf16.data());
    const std::wstring paths[] = {
        Page("<a href=\"http://a.hu\">\xC1rv\xEDzt\xFBr\xF5 t\xFCk\xF6r</a>"),
        folder.Write(
            L"latin2.htm",
            "<meta charset=iso-8859-2><a href=\"http://a.hu\">\xC1rv\xEDzt\xFBr\xF5 t\xFCk\xF6r</a>"),
        folder.Write(L"utf8.htm",
                     "<a href=\"http://a.hu\">\xC3\x81rv\xC3\xADzt\xC5\xB1r\xC5\x91 "
                     "t\xC3\xBCk\xC3\xB6r</a>"),
        folder.Write(L"utf16.html", {utf16_bytes, utf16_bytes + utf16.size() * sizeof(wchar_t)})};
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    for (const std::wstring& path : paths) {
        Pick(dialog, path);
        AnswerResult(1);
    }
    Leave(dialog);
    const Row expected{L"árvíztűrő tükör", L"http://a.hu"};
    EXPECT_EQ(program.State(),
              WithImported(before, {expected, expected, expected, {L"ő és ?", L"http://%d0%bf.hu/ű"}}));
}

TEST_F(frmImportTest, APageWithoutLinksGivesZeroAndDoesNotChangeTheBook) {
    WholeState expected = Whole();
    // The list is refilled all the same.
    const bool modified = expected.Main.Modified;
    expected.Main = WithImported(expected.Main, {});
    expected.Main.Modified = modified;
    const DialogOnScreen dialog = Open();
    Pick(dialog, Page("<p>Semmi</p><a href=\"helyi.htm\">Helyi</a>"));
    AnswerResult(0);
    Leave(dialog);
    EXPECT_EQ(Whole(), expected);
}

TEST_F(frmImportTest, AFaultyPageChangesNothing) {
    const std::string good = "<a href=\"http://jo.hu\">J\xF3</a>\r\n";
    std::string many;
    for (int i = 0; i < 32767; ++i) many += "<a href=\"http://a.hu\">N</a>\n";
    ExpectFailure(good + "<a href=\"http://" + std::string(300, 'u') + "\">N</a>", kTooMany);
    ExpectFailure(good + "<a href=\"http://a.hu\">" + std::string(300, 'n') + "</b></a>", kTooMany);
    ExpectFailure(many, kTooMany);
    ExpectFailure(good + "<a href=\"http://a.hu\">N\r\nM\r\n", L"Hibás a weblap");
    // An address without a closing quotation mark: no message.
    ExpectFailure(good + "<a href=\"http://a.hu>N</a>", L"");
}

TEST_F(frmImportTest, ANearlyFullBookTakesWhatFitsAndNothingOfWhatDoesNot) {
    FillBookTo(32766);
    ExpectFailure("<a href=\"http://a.hu\">A</a><a href=\"http://b.hu\">B</a>", kTooMany);
    const DialogOnScreen dialog = Open();
    Pick(dialog, Page("<a href=\"http://a.hu\">A</a>"));
    AnswerResult(1);
    Leave(dialog);
    EXPECT_EQ(program.State().Status[1], L"megjelenítve (4 / 32767)");
    ExpectFailure("<a href=\"http://b.hu\">B</a>", kTooMany);
}

TEST_F(frmImportTest, APageThatCannotBeReadChangesNothingWithoutAWord) {
    const WholeState before = Whole();
    const std::wstring path = Page("<a href=\"http://a.hu\">A</a>");
    const HANDLE held = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const DialogOnScreen dialog = Open();
    Pick(dialog, path);
    program.Settle();
    Leave(dialog);
    CloseHandle(held);
    EXPECT_EQ(Whole(), before);
}

TEST_F(frmImportTest, TheCancelledFileDialogEndsTheClick) {
    const WholeState before = Whole();
    const DialogOnScreen dialog = Open();
    dialog.Click(ID_frmImport_cmdOK);
    program.FileDialog().Cancel();
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    Leave(dialog);
    EXPECT_EQ(Whole(), before);
}

TEST_F(frmImportTest, AMissingPageIsAskedForAgain) {
    const WholeState before = Whole();
    const DialogOnScreen dialog = Open();
    Pick(dialog, folder.File(L"nincs.htm"));
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba");
    EXPECT_EQ(box.Text(), L"A megadott fájl nem létezik");
    box.Press(IDOK);
    const FileDialogOnScreen again = program.FileDialog();
    EXPECT_EQ(again.Title(), L"Válasszon ki egy weblapot");
    again.Cancel();
    program.Settle();
    Leave(dialog);
    EXPECT_EQ(Whole(), before);
}

}  // namespace
}  // namespace lindrel::testing
