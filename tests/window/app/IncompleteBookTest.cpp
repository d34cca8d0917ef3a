// A book that counts more entries than it has: what it shows, and that no command ends the program.

#include "resources/resource.h"
#include "system/Shell.h"
#include "tests/window/app/FileSession.h"
#include "tests/window/support/FavoritesFolder.h"
#include "tests/window/support/RecordedShell.h"

namespace lindrel::testing {
namespace {

constexpr wchar_t kRefusal[] =
    L"Ide most nem kerülhet cím, mert a könyv hiányos: több címet számol, mint amennyi a fájljában "
    L"volt.\r\n\r\nVálassza az „Új fájl” parancsot, majd nyissa meg a könyvet még egyszer.";

class IncompleteBookTest : public FileSession {
  protected:
    // The entries A and B in category 11, which counts five, and none in category 12, which counts two.
    IncompleteBookTest() {
        for (int i = 0; i < 5; ++i) Change(11);
        SetModified(false);
        std::string file;
        for (int k = 1; k <= 11; ++k) file += "#" + std::to_string(k) + "\r\n";
        path = folder.Write(L"kevés.lnd", file + "A\r\nhttp://a.hu\r\nB\r\nhttp://b.hu\r\n");
        ChooseWithFile(ID_mnuOpen, path);
        program.Box().Press(IDOK);
        program.Settle();
        program.ClickTab(11);
    }
    // What the window shows of the book in a category.
    MainState Shown(int tab) const {
        MainState state = EmptyState();
        state.Title = L"Lindrel -kevés.lnd";
        for (int k = 1; k <= 11; ++k) state.Tabs[static_cast<std::size_t>(k - 1)] = std::to_wstring(k);
        state.SelectedTab = tab;
        if (tab == 11) state.Rows = {{L"A", L"http://a.hu"}, {L"B", L"http://b.hu"}};
        state.Status[1] = L"megjelenítve (" + std::to_wstring(state.Rows.size()) + L" / 7)";
        state.OpenedFile = path;
        return state;
    }
    MainState Picked(int row) const {
        MainState state = Shown(11);
        state.SelectedRow = row;
        std::tie(state.txtSite, state.txtURL) = state.Rows[static_cast<std::size_t>(row - 1)];
        state.Status[0] = state.txtURL;
        return state;
    }
    void ExpectRefusal() const {
        ExpectBox(program, {L"Hiba", kRefusal, BoxIcon::Error});
        program.Settle();
    }
    // A dialog whose entry the last category cannot take: it stays, and does not change anything.
    void ExpectRefusedByTheLast(int command, const std::wstring& caption, int combo, int ok,
                                const std::function<void(const DialogOnScreen&)>& fill = {}) const {
        const MainState before = program.State();
        program.Choose(command);
        const DialogOnScreen dialog = program.Dialog(caption);
        if (fill) fill(dialog);
        dialog.Pick(combo, 11);
        dialog.Click(ok);
        ExpectRefusal();
        dialog.Cancel();
        ExpectState(before);
    }
    void RefuseToAdd() const {
        ExpectRefusedByTheLast(ID_mnuAdd, L"Új oldal hozzáadása", ID_frmAdd_cmbKateg, ID_frmAdd_cmdOK,
                               [](const DialogOnScreen& dialog) { dialog.SetText(ID_frmAdd_txtDesc, L"C"); });
    }
    void RefuseToEdit() const {
        ExpectRefusedByTheLast(
            ID_mnuEdit, L"Cím módosítása", ID_frmEditRec_cmbKateg, ID_frmEditRec_cmdOk,
            [](const DialogOnScreen& dialog) { dialog.SetText(ID_frmEditRec_txtDesc, L"más"); });
    }
    void RefuseToMove() const {
        ExpectRefusedByTheLast(ID_mnuMove, L"A kiválasztott címek áthelyezése", ID_frmMove_cmbKateg,
                               ID_frmMove_cmdOk);
    }
    // Opens the import dialog with the last category.
    DialogOnScreen Import() const {
        program.Choose(ID_mnuImport);
        const DialogOnScreen dialog = program.Dialog(L"Importálás");
        dialog.Pick(ID_frmImport_cmbKateg, 11);
        return dialog;
    }

    std::wstring path;
};

TEST_F(IncompleteBookTest, TheTabsShowTheEntriesThatThereAre) {
    for (const int tab : {12, 11, 10, 1, 11}) {
        program.ClickTab(tab);
        EXPECT_EQ(program.State(), Shown(tab));
        EXPECT_EQ(program.CommandEnabled(ID_mnuToDesktop), tab == 11);
    }
    program.ClickRow(2);
    EXPECT_EQ(program.State(), Picked(2));
}

TEST_F(IncompleteBookTest, WhatItCannotTakeIsRefusedAndTheDialogStays) {
    RefuseToAdd();
    program.ClickRow(1);
    RefuseToEdit();
    RefuseToMove();
    program.ClickBox(2);
    RefuseToMove();
}

TEST_F(IncompleteBookTest, ImportsThatItCannotTakeAreRefused) {
    const MainState before = program.State();
    const DialogOnScreen dialog = Import();
    dialog.Click(ID_frmImport_cmdOK);
    program.FileDialog().Accept(folder.Write(L"lap.htm", "<a href=\"http://x.hu\">X</a>\r\n"));
    ExpectRefusal();

    const FavoritesFolder favorites;
    WriteFileBytes(FavoritesFolder::Path() / L"a.url", "[InternetShortcut]\r\nURL=http://a.hu");
    dialog.Click(ID_frmImport_from_1);
    dialog.Click(ID_frmImport_cmdOK);
    const DialogOnScreen picker = program.Dialog(L"Importálás a kedvencekből");
    DescendTo(program, picker.Control(ID_frmI_Fav_Dir1), L"Lindrel próba");
    picker.ClickAndWaitForClose(ID_frmI_Fav_cmdImport);
    ExpectBox(program, {.Text = L"Az importálás eredménye: 1 új cím"});
    ExpectRefusal();
    dialog.Cancel();
    ExpectState(before);
}

TEST_F(IncompleteBookTest, EarlierCategoriesTakeEntries) {
    program.ClickRow(1);
    program.Choose(ID_mnuEdit);
    const DialogOnScreen edit = program.Dialog(L"Cím módosítása");
    edit.SetText(ID_frmEditRec_txtDesc, L"más");
    edit.Pick(ID_frmEditRec_cmbKateg, 1);
    edit.ClickAndWaitForClose(ID_frmEditRec_cmdOk);
    program.Settle();
    program.Run(ID_mnuSelectAll);
    program.Choose(ID_mnuMove);
    const DialogOnScreen move = program.Dialog(L"A kiválasztott címek áthelyezése");
    move.Pick(ID_frmMove_cmbKateg, 1);
    move.ClickAndWaitForClose(ID_frmMove_cmdOk);
    program.ClickTab(2);
    MainState expected = Shown(2);
    expected.Rows = {{L"más", L"http://a.hu"}, {L"B", L"http://b.hu"}};
    expected.Status[1] = L"megjelenítve (2 / 7)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(11);
    expected = Shown(11);
    expected.Rows = {};
    expected.Status[1] = L"megjelenítve (0 / 7)";
    expected.Modified = true;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(IncompleteBookTest, OtherCommandsWorkOnTheEntriesThatThereAre) {
    const RecordedShell shell;
    program.ClickTab(12);
    program.Run(ID_mnuSelectAll);
    EXPECT_EQ(program.State(), Shown(12));
    program.ClickTab(11);
    program.Run(ID_mnuSelectAll);
    MainState checked = Shown(11);
    checked.Checked = {1, 2};
    checked.Status[2] = L"bejelölve 2";
    EXPECT_EQ(program.State(), checked);

    program.Choose(ID_mnuExport);
    const DialogOnScreen dialog = program.Dialog(L"Exportálás");
    SendMessageW(dialog.Control(ID_frmExport_lstSource), LB_SETSEL, TRUE, 0);
    dialog.Pick(ID_frmExport_cmbType, 1);
    dialog.Click(ID_frmExport_cmdOK);
    program.FileDialog().Accept(folder.File(L"lista.txt"));
    dialog.WaitForClose();
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")),
              "\xF7\xF7\xF7\xF7\xF7< 11" + std::string(118, '-') +
                  "\r\n\xB0 A\r\n  http://a.hu\r\n\xB0 B\r\n  http://b.hu\r\n");

    program.ClickTab(12);
    SendMessageW(program.Control(ID_frmStart_txtFind), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"régi"));
    PostMessageW(program.Control(ID_frmStart_Image1), BM_CLICK, 0, 0);
    ExpectBox(program, {.Text = L"Nem találtam többet"});

    program.ClickTab(11);
    program.Choose(ID_mnuDel);
    ExpectDeleteQuestion(program, 2, IDYES);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State().Status[2], L"bejelölve 0");
}

}  // namespace
}  // namespace lindrel::testing
