// The export dialog: what it shows, asks and leaves behind, with real files.

#include "tests/window/export/ExportSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/ToolTipOf.h"

namespace lindrel::testing {
namespace {

class frmExportTest : public ExportSession {
  protected:
    static std::vector<std::wstring> Lines(const DialogOnScreen& dialog) {
        const HWND list = dialog.Control(ID_frmExport_lstSource);
        std::vector<std::wstring> lines;
        for (int line = 0; line < SendMessageW(list, LB_GETCOUNT, 0, 0); ++line) {
            wchar_t text[256] = L"";
            SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text));
            lines.emplace_back(text);
        }
        return lines;
    }
    // Exports lines of the list to a text file.
    DialogOnScreen ExportText(const std::vector<int>& lines, const std::wstring& path) const {
        const DialogOnScreen dialog = Open(lines);
        dialog.Pick(ID_frmExport_cmbType, 1);
        Export(dialog, path, kTexts);
        return dialog;
    }
    // The dialog closes, with these counts of checked entries left.
    void ExpectClosedWithoutAMessage(const DialogOnScreen& dialog, const std::vector<int>& counts) {
        dialog.WaitForClose();
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(Counts(), counts);
    }
    static std::string Header(const std::string& name) {
        return "\xF7\xF7\xF7\xF7\xF7< " + name + std::string(120 - name.size(), '-') + "\r\n";
    }
    static std::string SecondCategory() {
        return Header("H\xEDrek") + "\xB0 Els\xF5\r\n  http://elso.hu\r\n\xB0 Harmadik\r\n  x\r\n";
    }
    static std::string FifthCategory() { return Header("Project5") + "\xB0 a:b\r\n  http://ab.hu\r\n"; }
};

TEST_F(frmExportTest, WithNothingCheckedAsksForMarksAndOpensNothing) {
    program.Run(ID_mnuSelectAll);  // clears those of category 2
    program.ClickTab(5);
    program.Run(ID_mnuSelectAll);
    const MainState before = program.State();
    program.Choose(ID_mnuExport);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Nincsenek kijelölve címek");
    EXPECT_EQ(box.Text(),
              L"Kérem jelölje be (pipazza ki) az exportálni kívánt címeket /akár több kategóriából is/.");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    box.Press(IDOK);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmExportTest, OpensWithTheWebPageAndALineForEachCategoryWithMarks) {
    const DialogOnScreen dialog = Open();
    EXPECT_EQ(Lines(dialog), (std::vector<std::wstring>{L"Hírek (2)", L"Project5 (1)"}));
    EXPECT_EQ(SendMessageW(dialog.Control(ID_frmExport_lstSource), LB_GETSELCOUNT, 0, 0), 0);
    EXPECT_EQ(dialog.ComboItems(ID_frmExport_cmbType),
              (std::vector<std::wstring>{L"weblap - HTML", L"szövegfájl - txt", L"IE kedvencek - url"}));
    EXPECT_EQ(dialog.Picked(ID_frmExport_cmbType), 0);
    const std::vector<std::pair<int, std::wstring>> texts = {
        {ID_frmExport_lblText, L"Válassza ki, mely kategóriákból kíván exportálni"},
        {ID_frmExport_Frame1, L" exportálva lesz(nek)"},
        {ID_frmExport_Label2, L"&fájltipus"},
        {ID_frmExport_Frame2, L" hozzáadás a MS IE kedvencekhez beállitások"},
        {ID_frmExport_Frame3, L" weblap tulajdonságai "},
        {ID_frmExport_lblTitle, L"a weblap címe"},
        {ID_frmExport_lblColor, L"háttérszín :"},
        {ID_frmExport_optColor_0, L"fehér"},
        {ID_frmExport_optColor_1, L"fekete"},
        {ID_frmExport_optColor_2, L"tegye az összes címet egy mappa alá"},
        {ID_frmExport_optColor_3, L"létrehozni a kategóriák neveivel új mappákat"},
        {ID_frmExport_Label3, L"arculat"},
        {ID_frmExport_cmdBrowse, L"Tallózz .."},
        {ID_frmExport_cmdOK, L"&Exportálj ..."},
        {ID_frmExport_cmdCancel, L"&Mégse"},
        {ID_frmExport_txtTitle, L""},
        {ID_frmExport_cmbTheme, L""},
    };
    for (const auto& [id, text] : texts) EXPECT_EQ(dialog.Text(id), text) << id;
    EXPECT_EQ(ToolTipOf(program, dialog.Control(ID_frmExport_txtTitle)), L"<TITLE>?\?\?</TITLE>");
    EXPECT_TRUE(dialog.IsChecked(ID_frmExport_optColor_0));
    EXPECT_FALSE(dialog.IsChecked(ID_frmExport_optColor_1));
    EXPECT_TRUE(dialog.IsChecked(ID_frmExport_optColor_2));
    EXPECT_FALSE(dialog.IsChecked(ID_frmExport_optColor_3));
    Leave(dialog);
}

TEST_F(frmExportTest, TheKindShowsItsOwnOptions) {
    const DialogOnScreen dialog = Open();
    const auto expect = [&](int kind, bool page_shown, bool page_enabled, bool favorites_shown) {
        dialog.Pick(ID_frmExport_cmbType, kind);
        for (const int id : {ID_frmExport_Frame3, ID_frmExport_optColor_0, ID_frmExport_optColor_1,
                             ID_frmExport_cmdBrowse, ID_frmExport_lblColor, ID_frmExport_lblTitle,
                             ID_frmExport_Label3, ID_frmExport_txtTitle, ID_frmExport_cmbTheme}) {
            EXPECT_EQ(dialog.IsShown(id), page_shown) << id;
            if (page_shown) {
                EXPECT_EQ(dialog.IsEnabled(id), page_enabled) << id;
            }
        }
        for (const int id : {ID_frmExport_Frame2, ID_frmExport_optColor_2, ID_frmExport_optColor_3})
            EXPECT_EQ(dialog.IsShown(id), favorites_shown) << id;
    };
    expect(0, true, true, false);
    expect(1, true, false, false);
    expect(2, false, false, true);
    expect(0, true, true, false);
    Leave(dialog);
}

TEST_F(frmExportTest, WithoutAChosenCategoryTheListIsAskedFor) {
    const DialogOnScreen dialog = Open();
    dialog.Click(ID_frmExport_cmdOK);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Lindrel");
    EXPECT_EQ(box.Text(), L"Kérem válassza ki, mely kategóriá(k)ból kíván exportálni.");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    EXPECT_EQ(box.Icon(), BoxIcon::None);
    box.Press(IDOK);
    program.Settle();
    EXPECT_EQ(dialog.Focus(), ID_frmExport_lstSource);
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    Leave(dialog);
    EXPECT_EQ(Counts(), CountsOf(2, 1));
}

TEST_F(frmExportTest, ATextListOfBothCategoriesInListOrder) {
    const MainState before = program.State();
    ExpectClosedWithoutAMessage(ExportText({0, 1}, folder.File(L"lista")), CountsOf(0, 0));
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")),  // the extension is added
              SecondCategory() + FifthCategory());
    EXPECT_EQ(program.State(), before);  // the check marks stay in the list
}

TEST_F(frmExportTest, OnlyTheChosenCategoryIsExported) {
    ExpectClosedWithoutAMessage(ExportText({1}, folder.File(L"lista.txt")), CountsOf(0, 0));
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")), FifthCategory());
}

TEST_F(frmExportTest, DecliningToOverwriteLeavesEverything) {
    const std::wstring path = folder.Write(L"lista.txt", std::string(10000, 'r'));
    const DialogOnScreen dialog = ExportText({1}, path);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Figyelem: már van ilyen fájl!");
    EXPECT_EQ(box.Text(), L"Felülírjam a már létező állományt ?");
    EXPECT_EQ(box.Buttons(), (std::vector<int>{IDOK, IDCANCEL}));
    EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
    box.Press(IDCANCEL);
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    EXPECT_EQ(TemporaryFolder::Read(path), std::string(10000, 'r'));
    Export(dialog, path, kTexts);
    program.Box().Press(IDOK);
    ExpectClosedWithoutAMessage(dialog, CountsOf(0, 0));
    EXPECT_EQ(TemporaryFolder::Read(path), FifthCategory());
}

TEST_F(frmExportTest, CancelChangesNothing) {
    ExpectCancelChangesNothing(
        program, [this] { return Open({0}); },
        [](const DialogOnScreen& dialog) { dialog.Pick(ID_frmExport_cmbType, 2); }, ID_frmExport_cmdCancel);
    EXPECT_EQ(Counts(), CountsOf(2, 1));
}

TEST_F(frmExportTest, ACancelledSaveDialogLeavesTheDialogAndTheCounts) {
    const DialogOnScreen dialog = Open({0});
    dialog.Click(ID_frmExport_cmdOK);
    program.FileDialog().Cancel();
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(Counts(), CountsOf(2, 1));
    Leave(dialog);
}

TEST_F(frmExportTest, AFailureWhileWritingClosesTheDialogWithoutAMessage) {
    Change([](Book& book) { book.SetCategoryName(5, std::string(121, 'n')); });
    ExpectClosedWithoutAMessage(ExportText({0, 1}, folder.File(L"lista.txt")), CountsOf(2, 1));
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"lista.txt")), SecondCategory());
    ExpectClosedWithoutAMessage(ExportText({1}, folder.File(L"ures.txt")), CountsOf(0, 1));
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"ures.txt")), "");
}

TEST_F(frmExportTest, AFileThatCannotBeCreatedClosesTheDialogWithoutAMessage) {
    const std::wstring path = folder.Write(L"foglalt.txt", "old");
    // Another program keeps it to itself.
    const HANDLE other = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    const DialogOnScreen dialog = ExportText({1}, path);
    program.Box().Press(IDOK);
    ExpectClosedWithoutAMessage(dialog, CountsOf(0, 1));
    ASSERT_TRUE(CloseHandle(other));
    EXPECT_EQ(TemporaryFolder::Read(path), "old");
}

}  // namespace
}  // namespace lindrel::testing
