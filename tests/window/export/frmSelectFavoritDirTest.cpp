// The choice of a folder, and the shortcut files in it.

#include <filesystem>
#include <map>
#include <stdexcept>

#include "export/Favorites.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "files/Folder.h"
#include "tests/window/export/ExportSession.h"
#include "tests/window/support/DeepFolder.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/FavoritesFolder.h"
#include "text/BookText.h"

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

    // Every file below the folder with what is in it.
    using Files = std::map<std::wstring, std::string>;
    static Files FilesBelow(const std::filesystem::path& folder) {
        Files files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            if (!entry.is_directory())
                files.emplace(entry.path().lexically_relative(folder).wstring(),
                              TemporaryFolder::Read(entry.path().wstring()));
        return files;
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

TEST_F(frmSelectFavoritDirTest, CancellingAfterAChoiceWritesNothingAndLeavesTheDialogOpen) {
    const DialogOnScreen dialog = Open();
    SelectLine(dialog, 0);
    const auto choose_and_cancel = [&](const std::function<void(const DialogOnScreen&)>& cancel) {
        const DialogOnScreen picker = OpenPicker(dialog);
        Descend(picker, L"Lindrel próba");
        cancel(picker);
        program.Settle();
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(FilesBelow(FavoritesFolder::Path()), Files{});
        EXPECT_EQ(Counts(), CountsOf(2, 0));
    };
    choose_and_cancel(
        [](const DialogOnScreen& picker) { picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdCancel); });
    choose_and_cancel([](const DialogOnScreen& picker) {
        PostMessageW(picker.Control(ID_frmSelectFavoritDir_Dir1), WM_KEYDOWN, VK_ESCAPE, 1);
        picker.WaitForClose();
    });
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
    EXPECT_EQ(FilesBelow(FavoritesFolder::Path()),
              (Files{{L"Alsó\\Első.url", "[InternetShortcut]\r\nURL=http://elso.hu"},
                     {L"Alsó\\Harmadik.url", "[InternetShortcut]\r\nURL=x"},
                     {L"Alsó\\a_b.url", "[InternetShortcut]\r\nURL=http://ab.hu"}}));
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
    dialog.Pick(ID_frmExport_cmbType, 2);
    dialog.Click(ID_frmExport_optColor_3);
    program.Settle();
    EXPECT_FALSE(dialog.IsChecked(ID_frmExport_optColor_2));
    EXPECT_TRUE(dialog.IsChecked(ID_frmExport_optColor_3));
    const DialogOnScreen picker = OpenPicker(dialog);
    Descend(picker, L"Lindrel próba");
    picker.ClickAndWaitForClose(ID_frmSelectFavoritDir_cmdOk);
    dialog.WaitForClose();
    EXPECT_EQ(FilesBelow(FavoritesFolder::Path()),
              (Files{{L"Hírek\\Első.url", "[InternetShortcut]\r\nURL=http://elso.hu"},
                     {L"Hírek\\Harmadik.url", "[InternetShortcut]\r\nURL=x"},
                     {L"Project5\\a_b.url", "[InternetShortcut]\r\nURL=http://ab.hu"}}));
    EXPECT_EQ(Counts(), CountsOf(0, 0));
}

TEST_F(frmSelectFavoritDirTest, AColonBehindThe255thCharacterEndsInTheReportAndLosesNothing) {
    program.OnUi([&](frmStart& form) {
        form.OpenedBook().TheBook.SetSiteName(form.OpenedBook().TheBook.IndexOf(5, 1),
                                              std::string(255, 'n') + ":");
    });
    const std::wstring name = std::wstring(255, L'n') + L":.url";
    ExpectReport(L"Futásidejű hiba: 6\r\n\r\n" + (FavoritesFolder::Path() / name).wstring() +
                 L"\r\nTúlcsordulás.\r\n\r\nA program bezárul.");
}

TEST_F(frmSelectFavoritDirTest, AFileThatCannotBeWrittenEndsInTheReportAndLosesNothing) {
    // A folder stands where the file should be.
    const std::filesystem::path file = FavoritesFolder::Path() / L"a_b.url";
    std::filesystem::create_directory(file);
    ExpectReport(L"Futásidejű hiba: 75\r\n\r\n" + file.wstring() + L"\r\n" + ReasonNotToWrite(file) +
                 L".\r\n\r\nA program bezárul.");
}

TEST_F(frmSelectFavoritDirTest, AnEntryNamedLikeADeviceEndsInTheReportAndLosesNothing) {
    program.OnUi([&](frmStart& form) {
        form.OpenedBook().TheBook.SetSiteName(form.OpenedBook().TheBook.IndexOf(5, 1), "nul");
    });
    const std::filesystem::path file = FavoritesFolder::Path() / L"nul.url";
    ExpectReport(L"Futásidejű hiba: 75\r\n\r\n" + file.wstring() + L"\r\n" + ReasonNotToWrite(file) +
                 L".\r\n\r\nA program bezárul.");
    EXPECT_EQ(FilesBelow(FavoritesFolder::Path()), Files{});
}

TEST_F(frmSelectFavoritDirTest, AFolderOfAnyDepthTakesFoldersAndFiles) {
    const DeepFolder deep(FavoritesFolder::Path() / L"Alsó");
    program.OnUi([&](frmStart& form) {
        Book& book = form.OpenedBook().TheBook;
        book.SetCategoryName(5, "lpt1");
        saveTo_fav(book, deep.Path(), true);
    });
    const std::filesystem::path inside = ExactPath(deep.Path() / L"lpt1_");
    EXPECT_EQ(FilesIn(inside), std::vector<std::wstring>{L"a_b.url"});
    EXPECT_TRUE(DeleteFileW((inside / L"a_b.url").c_str()));
    EXPECT_TRUE(RemoveDirectoryW(inside.c_str()));
}

TEST_F(frmSelectFavoritDirTest, ANewBookIsOfferedToBeSavedAsABook) {
    program.OnUi([&](frmStart& form) {
        form.OpenedBook().TheBook.SetSiteName(form.OpenedBook().TheBook.IndexOf(5, 1), "csillag*");
        form.OpenedBook().Modified = true;
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
        program.OnUi([&](frmStart& form) {
            form.OpenedBook().TheBook.SetSiteURL(form.OpenedBook().TheBook.IndexOf(2, 1), ToBookText(url));
        });
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
