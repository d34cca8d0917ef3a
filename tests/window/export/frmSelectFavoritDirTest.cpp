// The choice of a folder, and the shortcut files in it.

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "book/Faults.h"
#include "book/Files.h"
#include "tests/window/export/ExportSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/FavoritesFolder.h"

namespace lindrel::testing {
namespace {

class frmSelectFavoritDirTest : public ExportSession {
  protected:
    DialogOnScreen OpenPicker(const DialogOnScreen& dialog) const {
        dialog.Pick(ID_frmExport_cmbType, 2);
        dialog.Click(ID_frmExport_cmdOK);
        return program.Dialog(L"Exportálás a kedvencekbe");
    }
    void Descend(const DialogOnScreen& picker, const std::wstring& name) const {
        DescendTo(program, picker.Control(ID_frmSelectFavoritDir_Dir1), name);
    }

    // Exports the second of the checked categories, where a fault ends the program.
    void ExpectReport(const std::wstring& text) {
        const UnsavedBook book(program);
        const DialogOnScreen dialog = Open();
        SelectLine(dialog, 1);
        const DialogOnScreen picker = OpenPicker(dialog);
        Descend(picker, L"Lindrel próba");
        picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
        book.ExpectReportAndSave(text);
    }
    // The system's own words.
    static std::wstring ReasonNotToWrite(const std::filesystem::path& file) {
        try {
            WriteFileBytes(file, "");
        } catch (const FileFault& fault) {
            return fault.Meaning();
        }
        throw std::runtime_error("the file can be written");
    }

    FavoritesFolder favorites;
};

TEST_F(frmSelectFavoritDirTest, TheFolderChoiceStartsAtTheFavourites) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
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
    RECT place{};
    RECT client{};
    GetClientRect(tree, &client);
    ASSERT_TRUE(TreeView_GetItemRect(tree, selected, &place, TRUE));  // it is shown
    RECT inside{};
    EXPECT_TRUE(IntersectRect(&inside, &place, &client));
    EXPECT_EQ(inside.bottom, place.bottom);
    picker.Cancel();
    picker.WaitForClose();
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(Counts(), CountsOf(0, 1));  // what was not chosen is dropped all the same
    dialog.Cancel();
    dialog.WaitForClose();
}

TEST_F(frmSelectFavoritDirTest, AllFilesGoIntoTheChosenFolderAndTheNameChangesInTheBook) {
    const std::string before = program.BookBytes();
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    SelectLine(dialog, 1);
    const DialogOnScreen picker = OpenPicker(dialog);
    Descend(picker, L"Lindrel próba");
    Descend(picker, L"Alsó");
    picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
    dialog.WaitForClose();
    program.Settle();
    std::vector<std::wstring> names;
    for (const auto& entry : std::filesystem::directory_iterator(FavoritesFolder::Path() / L"Alsó"))
        names.push_back(entry.path().filename().wstring());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"Első.url", L"Harmadik.url", L"a_b.url"}));
    EXPECT_EQ(TemporaryFolder::Read((FavoritesFolder::Path() / L"Alsó" / L"a_b.url").wstring()),
              "[InternetShortcut]\r\nURL=http://ab.hu");
    EXPECT_EQ(Counts(), CountsOf(0, 0));
    std::string expected = before;
    expected.replace(expected.find("a:b"), 3, "a_b");
    EXPECT_EQ(program.BookBytes(), expected);
    EXPECT_FALSE(program.State().Modified);
    program.ClickTab(5);
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"a_b", L"http://ab.hu"}}));
}

TEST_F(frmSelectFavoritDirTest, EachCategoryHasAFolderOfItsOwn) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    SelectLine(dialog, 1);
    dialog.Click(ID_frmExport_optColor_3);
    const DialogOnScreen picker = OpenPicker(dialog);
    Descend(picker, L"Lindrel próba");
    picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
    dialog.WaitForClose();
    const auto exists = [](const wchar_t* file) {
        return std::filesystem::exists(FavoritesFolder::Path() / file);
    };
    EXPECT_TRUE(exists(L"Hírek\\Első.url"));
    EXPECT_TRUE(exists(L"Hírek\\Harmadik.url"));
    EXPECT_TRUE(exists(L"Project5\\a_b.url"));
}

TEST_F(frmSelectFavoritDirTest, AColonBehindThe255thCharacterEndsInTheReportAndLosesNothing) {
    program.OnUi([&](frmStart& form) {
        form.TheBook.SetSiteName(form.TheBook.IndexOf(5, 1), std::string(255, 'n') + ":");
    });
    ExpectReport(L"Futásidejű hiba: 6\r\n\r\nTúlcsordulás.");
}

TEST_F(frmSelectFavoritDirTest, AFileThatCannotBeWrittenEndsInTheReportAndLosesNothing) {
    // A folder stands where the file should be.
    const std::filesystem::path file = FavoritesFolder::Path() / L"a_b.url";
    std::filesystem::create_directory(file);
    ExpectReport(L"Futásidejű hiba: 75\r\n\r\n" + file.wstring() + L"\r\n" + ReasonNotToWrite(file) + L".");
}

TEST_F(frmSelectFavoritDirTest, ANewBookIsOfferedToBeSavedAsABook) {
    program.OnUi([&](frmStart& form) {
        form.TheBook.SetSiteName(form.TheBook.IndexOf(5, 1), "csillag*");
        form.Modified = true;
    });
    const std::string before = program.BookBytes();
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 1);
    const DialogOnScreen picker = OpenPicker(dialog);
    picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
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
    for (const wchar_t* const url : {L"http://regi.hu/hosszu/cim", L"http://uj.hu"}) {
        program.OnUi(
            [&](frmStart& form) { form.TheBook.SetSiteURL(form.TheBook.IndexOf(2, 1), ToBookText(url)); });
        const DialogOnScreen dialog = Open();
        SelectLine(dialog, 0);
        const DialogOnScreen picker = OpenPicker(dialog);
        Descend(picker, L"Lindrel próba");
        picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
        dialog.WaitForClose();
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
    }
    EXPECT_EQ(TemporaryFolder::Read((FavoritesFolder::Path() / L"Első.url").wstring()),
              "[InternetShortcut]\r\nURL=http://uj.hu");
}

}  // namespace
}  // namespace lindrel::testing
