// The add dialog, with the real clipboard.

#include "tests/window/edit/EditSession.h"
#include "tests/window/edit/LongCategory.h"
#include "tests/window/support/RealClipboard.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

class frmAddTest : public EditSession {
  protected:
    DialogOnScreen Open() const {
        program.Choose(ID_mnuAdd);
        return program.Dialog(L"Új oldal hozzáadása");
    }
    // Text of the address field and its selection once it has the focus.
    struct Address {
        std::wstring Text;
        std::pair<int, int> Selection;
        bool operator==(const Address&) const = default;
    };
    // The focus alone, as a click gives it: the dialog's own keys select the text themselves.
    void GoToAddress(const DialogOnScreen& dialog) const {
        program.OnUi([&](frmStart&) { SetFocus(dialog.Control(ID_frmAdd_txtURL)); });
        EXPECT_EQ(dialog.Focus(), ID_frmAdd_txtURL);
    }
    Address AddressFor(const std::wstring& clipboard) const {
        PutClipboardText(clipboard);
        return AddressInDialog();
    }
    Address AddressInDialog() const {
        const DialogOnScreen dialog = Open();
        GoToAddress(dialog);
        const Address address{dialog.Text(ID_frmAdd_txtURL), dialog.Selection(ID_frmAdd_txtURL)};
        Leave(dialog);
        return address;
    }
    void Store(const std::wstring& name, const std::wstring& address, int category) const {
        const DialogOnScreen dialog = Open();
        dialog.SetText(ID_frmAdd_txtDesc, name);
        dialog.SetText(ID_frmAdd_txtURL, address);
        dialog.Pick(ID_frmAdd_cmbKateg, category - 1);
        dialog.ClickAndWaitForClose(ID_frmAdd_cmdOK);
        program.Settle();
    }
};

TEST_F(frmAddTest, OpensWithTheShownCategoryAndTheBareAddress) {
    program.ClickTab(4);
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(ToolTipOf(program, dialog.Control(ID_frmAdd_cmdEmail)),
              L"váltás a http:// és a mailto: előtag között");
    EXPECT_EQ(dialog.ComboItems(ID_frmAdd_cmbKateg), EmptyState().Tabs);
    EXPECT_EQ(dialog.Picked(ID_frmAdd_cmbKateg), 3);
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtDesc), L"");
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtURL), L"http://");
    EXPECT_EQ(dialog.Focus(), ID_frmAdd_txtDesc);
    Leave(dialog);
}

TEST_F(frmAddTest, ProposesTheAddressOnTheClipboardAndSelectsIt) {
    EXPECT_EQ(AddressFor(L"  WWW.Lap.hu  "), (Address{L"http://WWW.Lap.hu", {0, 17}}));
    EXPECT_EQ(AddressFor(L"Ezt nézd: HTTP://lap.hu jó"), (Address{L"Ezt nézd: HTTP://lap.hu jó", {0, 26}}));
    EXPECT_EQ(AddressFor(L"https://lap.hu"), (Address{L"https://lap.hu", {0, 14}}));
    EXPECT_EQ(AddressFor(L" ftp://lap.hu"), (Address{L"ftp://lap.hu", {0, 12}}));
    EXPECT_EQ(AddressFor(L"ki@lap.hu"), (Address{L"mailto:ki@lap.hu", {0, 16}}));
    EXPECT_EQ(AddressFor(L"MailTo:ki@lap.hu"), (Address{L"MailTo:ki@lap.hu", {0, 16}}));
}

TEST_F(frmAddTest, LeavesTheBareAddressForAnythingElseWithTheCaretAtItsEnd) {
    const Address bare{L"http://", {7, 7}};
    EXPECT_EQ(AddressFor(L"árvíztűrő szavak"), bare);
    EmptyTheClipboard();
    EXPECT_EQ(AddressInDialog(), bare);
    PutClipboardBytes(RegisterClipboardFormatW(L"Lindrel test form"), "http://nem.szoveg");
    EXPECT_EQ(AddressInDialog(), bare);
}

TEST_F(frmAddTest, TheMailButtonExchangesBareBeginningsOnly) {
    const DialogOnScreen dialog = Open();
    const auto after_click = [&](const std::wstring& before) {
        dialog.SetText(ID_frmAdd_txtURL, before);
        dialog.Click(ID_frmAdd_cmdEmail);
        program.Settle();
        return dialog.Text(ID_frmAdd_txtURL);
    };
    EXPECT_EQ(after_click(L"http://"), L"mailto:");
    EXPECT_EQ(after_click(L"mailto:"), L"http://");
    EXPECT_EQ(after_click(L"HTTP://"), L"HTTP://");
    EXPECT_EQ(after_click(L"http://a"), L"http://a");
    EXPECT_EQ(after_click(L""), L"");
    Leave(dialog);
}

TEST_F(frmAddTest, TheAddressIsSelectedWhenTheUserGoesThereButNotOnComingBackToTheDialog) {
    const std::pair<const wchar_t*, std::pair<int, int>> selections[] = {{L"http://a.hu/", {0, 12}},
                                                                         {L"nem cím", {7, 7}}};
    for (const auto& [clipboard, on_arrival] : selections) {
        PutClipboardText(clipboard);
        const DialogOnScreen dialog = Open();
        program.PressKey(dialog.Control(ID_frmAdd_txtDesc), VK_TAB);
        EXPECT_EQ(dialog.Focus(), ID_frmAdd_cmbKateg);
        program.PressKey(dialog.Control(ID_frmAdd_cmbKateg), VK_TAB);
        EXPECT_EQ(dialog.Focus(), ID_frmAdd_txtURL);
        EXPECT_EQ(dialog.Selection(ID_frmAdd_txtURL), on_arrival);
        SendMessageW(dialog.Control(ID_frmAdd_txtURL), EM_SETSEL, 2, 4);
        program.LeaveAndComeBack();
        EXPECT_EQ(dialog.Focus(), ID_frmAdd_txtURL);
        EXPECT_EQ(dialog.Selection(ID_frmAdd_txtURL), std::pair(2, 4));
        // The user goes there again.
        program.OnUi([&](frmStart&) { SetFocus(dialog.Control(ID_frmAdd_txtDesc)); });
        program.LeaveAndComeBack();
        EXPECT_EQ(dialog.Focus(), ID_frmAdd_txtDesc);
        GoToAddress(dialog);
        EXPECT_EQ(dialog.Selection(ID_frmAdd_txtURL), on_arrival);
        Leave(dialog);
    }
}

TEST_F(frmAddTest, MissingFieldsAreAskedForAndNothingIsStored) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    const std::pair<std::wstring, std::wstring> bad[] = {
        {L"   ", L"http://a.hu"}, {L"", L"http://a.hu"}, {L"Név", L"ab"}, {L"Név", L"  ab   "}, {L"", L""}};
    for (const auto& [name, address] : bad) {
        dialog.SetText(ID_frmAdd_txtDesc, name);
        dialog.SetText(ID_frmAdd_txtURL, address);
        dialog.Click(ID_frmAdd_cmdOK);
        ExpectMissingFields();
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.Focus(), ID_frmAdd_txtDesc);
        EXPECT_EQ(dialog.Text(ID_frmAdd_txtDesc), name);
        EXPECT_EQ(dialog.Text(ID_frmAdd_txtURL), address);
    }
    ExpectUnchangedAfter(dialog, before);
}

TEST_F(frmAddTest, OneLetterAndTheBareAddressAreStoredAsTyped) {
    Store(L" ű ", L"http://", 1);
    EXPECT_EQ(program.State(), Changed(1, {{L" ű ", L"http://"}}, 1));
}

TEST_F(frmAddTest, TheListKeepsItsCheckMarksAndItsSelectedRow) {
    AddNamed(1, {L"a", L"b", L"c"});
    program.ClickBox(1);
    program.ClickBox(3);
    program.ClickRow(2);
    Store(L"d", L"http://d.hu", 1);
    MainState expected = Changed(1, RowsNamed({L"a", L"b", L"c", L"d"}), 4);
    expected.Checked = {1, 3};
    expected.SelectedRow = 2;
    expected.Status[2] = L"bejelölve 2";
    EXPECT_EQ(program.State(), expected);
    EXPECT_EQ(program.Ask<std::wstring>([](frmStart& form) { return form.ResultTag; }), L"");
}

TEST_F(frmAddTest, InALongListTheRowThatWasSelectedIsScrolledBackIntoView) {
    const LongCategory many(program, 2, 150);
    MainState expected = many.WithoutFields();
    Store(L"D", L"http://d.hu", 2);
    expected.Rows.emplace_back(L"D", L"http://d.hu");
    expected.Status[1] = L"megjelenítve (201 / 201)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    many.ExpectScrolledIntoView(150);
}

TEST_F(frmAddTest, AnEntryOfAnotherCategoryLeavesTheShownOne) {
    AddNamed(1, {L"a"});
    Store(L"d", L"http://d.hu", 12);
    EXPECT_EQ(program.State(), Changed(1, RowsNamed({L"a"}), 2));
    program.ClickTab(12);
    EXPECT_EQ(program.State(), Changed(12, RowsNamed({L"d"}), 2));
}

TEST_F(frmAddTest, CancelChangesNothing) {
    AddNamed(1, {L"a", L"b"});
    program.ClickBox(2);
    program.ClickRow(1);
    ExpectCancelChangesNothing(
        program, [this] { return Open(); },
        [](const DialogOnScreen& dialog) { dialog.SetText(ID_frmAdd_txtDesc, L"D"); }, ID_frmAdd_cmdCancel);
}

TEST_F(frmAddTest, ACharacterThatABookCannotHoldIsRefusedAndTheTextStays) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    const auto expect_refusal = [&](int field, const std::wstring& shown, int start, int end) {
        dialog.Click(ID_frmAdd_cmdOK);
        ExpectForeignCharacter(shown);
        EXPECT_EQ(dialog.Focus(), field);
        EXPECT_EQ(dialog.Selection(field), std::pair(start, end));
    };
    dialog.SetText(ID_frmAdd_txtDesc, L"Az Ω jel");
    dialog.SetText(ID_frmAdd_txtURL, L"http://a.hu/\xD83D\xDE00");
    expect_refusal(ID_frmAdd_txtDesc, L"„Ω” (U+03A9)", 3, 4);
    EXPECT_EQ(dialog.Text(ID_frmAdd_txtDesc), L"Az Ω jel");
    dialog.SetText(ID_frmAdd_txtDesc, L"Az Őz");
    expect_refusal(ID_frmAdd_txtURL, L"„\xD83D\xDE00” (U+1F600)", 12, 14);
    ExpectUnchangedAfter(dialog, before);
}

TEST_F(frmAddTest, AFullBookEndsInTheReportOffersToSaveAndLosesNothing) {
    program.OnUi([](frmStart& form) {
        form.OpenedBook().TheBook.AddEntry(6, std::vector<NewEntry>(32767, {"n", "http://n.hu"}));
        form.View().FillAddressList(1);
    });
    const UnsavedBook book(program);
    const DialogOnScreen dialog = Open();
    dialog.SetText(ID_frmAdd_txtDesc, L"D");
    dialog.SetText(ID_frmAdd_txtURL, L"http://d.hu");
    dialog.Click(ID_frmAdd_cmdOK);
    book.ExpectReportAndSave(L"Futásidejű hiba: 6\r\n\r\nTúlcsordulás.\r\n\r\nA program bezárul.");
}

}  // namespace
}  // namespace lindrel::testing
