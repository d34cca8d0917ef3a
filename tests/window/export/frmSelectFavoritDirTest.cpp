// The dialog that chooses a folder, and the shortcut files exported into it.

#include <filesystem>

#include "export/Favorites.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "files/Folder.h"
#include "tests/window/export/ExportSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/FavoritesFolder.h"

namespace lindrel::testing {
namespace {

class frmSelectFavoritDirTest : public ExportSession {
  protected:
    static std::filesystem::path Favorites() { return FavoritesFolder::Path(); }
    static std::string ShortcutTo(const std::string& address) {
        return "[InternetShortcut]\r\nURL=" + address;
    }
    DialogOnScreen OpenPicker(const DialogOnScreen& dialog) const {
        dialog.Pick(ID_frmExport_cmbType, 2);
        dialog.Click(ID_frmExport_cmdOK);
        return program.Dialog(L"Exportálás a kedvencekbe");
    }
    // Goes down from the folder that is selected first, and exports.
    void ExportInto(const DialogOnScreen& dialog, const std::vector<std::wstring>& folders) const {
        const DialogOnScreen picker = OpenPicker(dialog);
        for (const std::wstring& name : folders)
            DescendTo(program, picker.Control(ID_frmSelectFavoritDir_Dir1), name);
        picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
    }
    void ExportInto(const std::vector<int>& lines, const std::vector<std::wstring>& folders) const {
        const DialogOnScreen dialog = Open(lines);
        ExportInto(dialog, folders);
        dialog.WaitForClose();
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
    }
    void NameTheFifth(const std::string& name) const {
        Change([&](Book& book) { book.SetSiteName(book.IndexOf(5, 1), name); });
    }

    // Exports category 5, where a fault of a file ends the program.
    void ExpectReport(int number, const std::filesystem::path& file, const std::wstring& meaning) {
        const UnsavedBook book(program);
        ExportInto(Open({1}), {L"Lindrel próba"});
        book.ExpectReportAndSave(L"Futásidejű hiba: " + std::to_wstring(number) + L"\r\n\r\n" +
                                 file.wstring() + L"\r\n" + meaning + L".\r\n\r\nA program bezárul.");
    }
    void ExpectReportThatItCannotBeWritten(const std::filesystem::path& file) {
        std::wstring reason;
        try {
            WriteFileBytes(file, "");
        } catch (const FileFault& fault) {
            reason = fault.Meaning();
        }
        ASSERT_NE(reason, L"");
        ExpectReport(75, file, reason);
    }

    FavoritesFolder favorites;
};

TEST_F(frmSelectFavoritDirTest, TheFolderChoiceStartsAtTheFavourites) {
    const DialogOnScreen dialog = Open({1});
    const DialogOnScreen picker = OpenPicker(dialog);
    EXPECT_EQ(picker.Text(ID_frmSelectFavoritDir_lblChoose),
              L"Kérem válassza ki azt a mappát, amelybe exportálni kíván");
    EXPECT_EQ(picker.Text(ID_frmSelectFavoritDir_lblEffect),
              L"Az Ön által kiválasztott címek hozzáadódnak az Internet Explorer kedvenc lapok listájához");
    EXPECT_EQ(picker.Text(ID_frmSelectFavoritDir_cmdOk), L"Export");
    EXPECT_EQ(picker.Text(ID_frmSelectFavoritDir_cmdCancel), L"Mégse");
    const HWND tree = picker.Control(ID_frmSelectFavoritDir_Dir1);
    const auto selected = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    EXPECT_EQ(SelectedItemText(tree), FavoritesFolder::Start().filename().wstring());
    RECT bounds{};
    RECT client{};
    GetClientRect(tree, &client);
    ASSERT_TRUE(TreeView_GetItemRect(tree, selected, &bounds, TRUE));  // it is shown
    RECT inside{};
    EXPECT_TRUE(IntersectRect(&inside, &bounds, &client));
    EXPECT_EQ(inside.bottom, bounds.bottom);
    picker.Cancel();
    picker.WaitForClose();
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(Counts(), CountsOf(0, 1));  // what was not chosen is dropped all the same
    Leave(dialog);
}

TEST_F(frmSelectFavoritDirTest, CancellingAfterAChoiceWritesNothingAndLeavesTheDialogOpen) {
    const DialogOnScreen dialog = Open({0});
    for (const bool by_key : {false, true}) {
        const DialogOnScreen picker = OpenPicker(dialog);
        const HWND tree = picker.Control(ID_frmSelectFavoritDir_Dir1);
        DescendTo(program, tree, L"Lindrel próba");
        if (by_key)
            PostMessageW(tree, WM_KEYDOWN, VK_ESCAPE, 1);
        else
            picker.Click(ID_frmSelectFavoritDir_cmdCancel);
        picker.WaitForClose();
        program.Settle();
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(FilesBelow(Favorites()), Files{});
        EXPECT_EQ(Counts(), CountsOf(2, 0));
    }
    Leave(dialog);
}

TEST_F(frmSelectFavoritDirTest, AllFilesGoIntoTheChosenFolderAndTheNameChangesInTheBook) {
    std::string expected = program.BookBytes();
    expected.replace(expected.find("a:b"), 3, "a_b");
    ExportInto(std::vector{0, 1}, {L"Lindrel próba", L"Alsó"});
    EXPECT_EQ(FilesBelow(Favorites()), (Files{{L"Alsó\\Első.url", ShortcutTo("http://elso.hu")},
                                              {L"Alsó\\Harmadik.url", ShortcutTo("x")},
                                              {L"Alsó\\a_b.url", ShortcutTo("http://ab.hu")}}));
    EXPECT_EQ(Counts(), CountsOf(0, 0));
    EXPECT_EQ(program.BookBytes(), expected);
    EXPECT_FALSE(program.State().Modified);
    program.ClickTab(5);
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"a_b", L"http://ab.hu"}}));
}

TEST_F(frmSelectFavoritDirTest, EachCategoryHasAFolderOfItsOwn) {
    const DialogOnScreen dialog = Open({0, 1});
    dialog.Pick(ID_frmExport_cmbType, 2);
    dialog.Click(ID_frmExport_optColor_3);
    program.Settle();
    EXPECT_FALSE(dialog.IsChecked(ID_frmExport_optColor_2));
    EXPECT_TRUE(dialog.IsChecked(ID_frmExport_optColor_3));
    ExportInto(dialog, {L"Lindrel próba"});
    dialog.WaitForClose();
    EXPECT_EQ(FilesBelow(Favorites()), (Files{{L"Hírek\\Első.url", ShortcutTo("http://elso.hu")},
                                              {L"Hírek\\Harmadik.url", ShortcutTo("x")},
                                              {L"Project5\\a_b.url", ShortcutTo("http://ab.hu")}}));
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmSelectFavoritDirTest, AColonAfterThe255thCharacterEndsInTheReportAndLosesNothing) {
    NameTheFifth(std::string(255, 'n') + ":");
    ExpectReport(6, Favorites() / (std::wstring(255, L'n') + L":.url"), L"Túlcsordulás");
}

TEST_F(frmSelectFavoritDirTest, AFileThatCannotBeWrittenEndsInTheReportAndLosesNothing) {
    std::filesystem::create_directory(Favorites() / L"a_b.url");
    ExpectReportThatItCannotBeWritten(Favorites() / L"a_b.url");
}

TEST_F(frmSelectFavoritDirTest, AnEntryNamedLikeADeviceEndsInTheReportAndLosesNothing) {
    NameTheFifth("nul");
    ExpectReportThatItCannotBeWritten(Favorites() / L"nul.url");
    EXPECT_EQ(FilesBelow(Favorites()), Files{});
}

TEST_F(frmSelectFavoritDirTest, AFolderOfAnyDepthTakesFoldersAndFiles) {
    const DeepFolder deep(Favorites() / L"Alsó");
    Change([&](Book& book) {
        book.SetCategoryName(5, "lpt1");
        saveTo_fav(book, deep.Path(), true);
    });
    const std::filesystem::path inside = ExactPath(deep.Path() / L"lpt1_");
    EXPECT_EQ(FilesIn(inside), std::vector<std::wstring>{L"a_b.url"});
    EXPECT_TRUE(DeleteFileW((inside / L"a_b.url").c_str()));
    EXPECT_TRUE(RemoveDirectoryW(inside.c_str()));
}

TEST_F(frmSelectFavoritDirTest, ANewBookIsOfferedToBeSavedAsABook) {
    NameTheFifth("csillag*");
    program.OnUi([&](frmStart& form) { form.OpenedBook().Modified = true; });
    const std::string before = program.BookBytes();
    ExportInto(Open({1}), {});
    program.Box().Press(IDOK);
    program.Box().Press(IDYES);
    const FileDialogOnScreen file = program.FileDialog();
    EXPECT_EQ(file.Title(), L"File mentése");
    EXPECT_EQ(file.Filters(), std::vector<std::wstring>{L"Lindrel fájlok (*.lnd)"});
    file.Accept(folder.File(L"uj"));
    program.Box().Press(IDOK);
    EXPECT_EQ(program.WaitForEnd(), 1);
    EXPECT_EQ(TemporaryFolder::Read(folder.File(L"uj.lnd")), before);
}

TEST_F(frmSelectFavoritDirTest, ASecondExportOverwritesWithoutAQuestion) {
    for (const std::string address : {"http://regi.hu/hosszu/cim", "http://uj.hu"}) {
        Change([&](Book& book) { book.SetSiteURL(book.IndexOf(2, 1), address); });
        ExportInto(std::vector{0}, {L"Lindrel próba"});
        EXPECT_EQ(TemporaryFolder::Read((Favorites() / L"Első.url").wstring()), ShortcutTo(address));
    }
}

}  // namespace
}  // namespace lindrel::testing
