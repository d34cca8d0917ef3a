// The choice of a folder of shortcut files, and their import.

#include <filesystem>
#include <memory>

#include "export/Favorites.h"
#include "export/Shortcut.h"
#include "faults/Faults.h"
#include "files/Files.h"
#include "import/Shortcuts.h"
#include "tests/window/import/ImportSession.h"
#include "tests/window/support/Expectations.h"
#include "tests/window/support/FavoritesFolder.h"

namespace lindrel::testing {
namespace {

class frmI_FavTest : public ImportSession {
  protected:
    DialogOnScreen OpenPicker(const DialogOnScreen& dialog) const {
        dialog.Click(ID_frmImport_from_1);
        dialog.Click(ID_frmImport_cmdOK);
        return program.Dialog(L"Importálás a kedvencekből");
    }
    // Chooses the test's own folder of the favourites, or one inside it, and presses the import button.
    void ChooseFolder(const DialogOnScreen& dialog, const std::vector<std::wstring>& subfolders = {}) const {
        const DialogOnScreen picker = OpenPicker(dialog);
        DescendTo(program, picker.Control(ID_frmI_Fav_Dir1), L"Lindrel próba");
        for (const std::wstring& name : subfolders)
            DescendTo(program, picker.Control(ID_frmI_Fav_Dir1), name);
        picker.ClickAndWaitForClose(ID_frmI_Fav_cmdImport);
    }
    static void Write(const std::wstring& name, const std::string& bytes) {
        WriteFileBytes(FavoritesFolder::Path() / name, bytes);
    }
    static std::wstring PathOf(const std::wstring& name) {
        return (FavoritesFolder::Path() / name).wstring();
    }
    // The system's own words, without the full stop.
    static std::wstring WordsOf(DWORD error) {
        wchar_t text[256] = L"";
        const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                            nullptr, error, 0, text, 256, nullptr);
        const std::wstring words(text, length);
        return words.substr(0, words.find_last_not_of(L"\r\n .") + 1);
    }
    static std::wstring Report(int number, const std::wstring& text) {
        return L"Futásidejű hiba: " + std::to_wstring(number) + L"\r\n\r\n" + text +
               L".\r\n\r\nA program bezárul.";
    }
    static std::wstring Report(int number, const std::wstring& file, const std::wstring& text) {
        return Report(number, PathOf(file) + L"\r\n" + text);
    }
    void ExpectReport(const std::wstring& report) {
        const UnsavedBook book(program);
        ChooseFolder(Open());
        book.ExpectReportAndSave(report);
    }

    // Imports the folder's files, `count` of them, into a category and shows that.
    void ImportInto(int category, int count, const std::vector<std::wstring>& subfolders = {}) const {
        const DialogOnScreen dialog = Open();
        dialog.Pick(ID_frmImport_cmbKateg, category - 1);
        ChooseFolder(dialog, subfolders);
        AnswerResult(count);
        Leave(dialog);
        program.ClickTab(category);
    }

    FavoritesFolder favorites;
};

TEST_F(frmI_FavTest, TheChoiceStartsAtTheFavouritesAndCancellingItIsSilent) {
    const WholeState before = Whole();
    const DialogOnScreen dialog = Open();
    const DialogOnScreen picker = OpenPicker(dialog);
    EXPECT_EQ(picker.Text(ID_frmI_Fav_lblChoose),
              L"Kérem válassza ki az azt a mappát, amelyből exportálni kíván");
    EXPECT_EQ(picker.Text(ID_frmI_Fav_lblEffect),
              L"A kiválasztott könyvtárból lesznek importálva az ott található (*.url) fájlokból a címek.");
    EXPECT_EQ(picker.Text(ID_frmI_Fav_cmdImport), L"&Importálás");
    EXPECT_EQ(picker.Text(ID_frmI_Fav_cmdCancel), L"&Mégse");
    EXPECT_EQ(SelectedItemText(picker.Control(ID_frmI_Fav_Dir1)),
              FavoritesFolder::Start().filename().wstring());
    picker.ClickAndWaitForClose(ID_frmI_Fav_cmdCancel);
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    OpenPicker(dialog).Cancel();
    program.Settle();
    Leave(dialog);
    EXPECT_EQ(Whole(), before);
}

TEST_F(frmI_FavTest, EachFileBecomesAnEntryAndTheBookIsChanged) {
    Write(L"Posta.url", ShortcutFile("http://posta.hu"));
    Write(L"Hírek.url", ShortcutFile("http://hirek.hu"));
    Write(L"Alsó\\belso.url", ShortcutFile("http://belso.hu"));
    const MainState before = program.State();
    const DialogOnScreen dialog = Open();
    ChooseFolder(dialog);
    AnswerResult(2);
    EXPECT_TRUE(dialog.IsOpen());
    Leave(dialog);
    EXPECT_EQ(program.State(),
              WithImported(before, {{L"Hírek", L"http://hirek.hu"}, {L"Posta", L"http://posta.hu"}}));
}

TEST_F(frmI_FavTest, ExportedEntriesComeBackAmongFilesOfOtherPrograms) {
    Book book;
    book.AddEntry(3, {{"\xC1rv\xEDz", "http://arviz.hu/?a=URL=b"},
                      {"Posta & t\xE1rsa", "mailto:ki@posta.hu"},
                      {"\xDAt", "http://ut.hu/#hely"}});
    book.Marks.Save(3, {1, 2, 3});
    saveTo_fav(book, FavoritesFolder::Path(), false);
    Write(L"NAGY.URL", "[DEFAULT]\r\nBASEURL=http://alap.hu\r\n[InternetShortcut]\r\nURL=http://nagy.hu\r\n");
    Write(L"Görög Ω.Url", "[InternetShortcut]\nurl=http://gorog.hu\nIconIndex=1\n");
    ImportInto(3, 5);
    EXPECT_EQ(program.State().Rows, (std::vector<Row>{{L"Görög ?", L"http://gorog.hu"},
                                                      {L"NAGY", L"http://alap.hu"},
                                                      {L"Posta & társa", L"mailto:ki@posta.hu"},
                                                      {L"Árvíz", L"http://arviz.hu/?a=URL=b"},
                                                      {L"Út", L"http://ut.hu/#hely"}}));
}

TEST_F(frmI_FavTest, AFolderOfAnyDepthIsReadWhateverItAndItsFilesAreCalled) {
    const DeepFolder deep(FavoritesFolder::Path() / L"Alsó");
    deep.Write(L"Műsor.url", ShortcutFile("http://musor.hu"));
    deep.Write(L"nul.url", ShortcutFile("http://nul.hu"));
    std::vector<std::wstring> subfolders = DeepFolder::Names();
    subfolders.insert(subfolders.begin(), L"Alsó");
    ImportInto(3, 2, subfolders);
    EXPECT_EQ(program.State().Rows,
              (std::vector<Row>{{L"Műsor", L"http://musor.hu"}, {L"nul", L"http://nul.hu"}}));
}

TEST_F(frmI_FavTest, AFaultyFileFarDownIsNamedAsTheUserKnowsIt) {
    const DeepFolder deep(FavoritesFolder::Path() / L"Alsó");
    deep.Write(L"a.url", "[InternetShortcut]");
    try {
        ShortcutsOfFolder(deep.Path());
        FAIL();
    } catch (const FileFault& fault) {
        EXPECT_EQ(fault.Path(), (deep.Path() / L"a.url").wstring());
        EXPECT_EQ(fault.Number(), 62);
    }
}

TEST_F(frmI_FavTest, AFolderWithoutShortcutsIsReported) {
    Write(L"lap.htm", "x");
    const WholeState before = Whole();
    const DialogOnScreen dialog = Open();
    ChooseFolder(dialog);
    AnswerBox(L"Lindrel", L"Salynálom, de a megadott könyvtárban nem találtam kedvenc weblapokat");
    Leave(dialog);
    EXPECT_EQ(Whole(), before);
}

TEST_F(frmI_FavTest, AFolderThatHasVanishedIsSilent) {
    const WholeState before = Whole();
    const DialogOnScreen dialog = Open();
    const DialogOnScreen picker = OpenPicker(dialog);
    DescendTo(program, picker.Control(ID_frmI_Fav_Dir1), L"Lindrel próba");
    std::filesystem::remove_all(FavoritesFolder::Path());
    picker.ClickAndWaitForClose(ID_frmI_Fav_cmdImport);
    program.Settle();
    Leave(dialog);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(Whole(), before);
}

TEST_F(frmI_FavTest, A256thFileEndsInTheReportAndLosesNothing) {
    std::vector<Row> rows;
    for (int i = 100; i < 355; ++i) {
        const std::string number = std::to_string(i);
        Write(std::to_wstring(i) + L".url", ShortcutFile("http://" + number + ".hu"));
        rows.emplace_back(std::to_wstring(i), L"http://" + std::to_wstring(i) + L".hu");
    }
    ImportInto(12, 255);
    EXPECT_EQ(program.State().Rows, rows);
    Write(L"355.url", ShortcutFile("http://355.hu"));
    ExpectReport(Report(6, L"355.url", L"Túlcsordulás"));
}

TEST_F(frmI_FavTest, AFileOfOneLineEndsInTheReportAndLosesNothing) {
    Write(L"a.url", ShortcutFile("http://jo.hu"));
    Write(L"b.url", "[InternetShortcut]\r\n");
    ExpectReport(Report(62, L"b.url", L"Olvasás a fájl vége után"));
}

TEST_F(frmI_FavTest, AShortSecondLineEndsInTheReportAndLosesNothing) {
    Write(L"a.url", "[InternetShortcut]\r\nab\r\n");
    ExpectReport(Report(5, L"a.url", L"Érvénytelen eljáráshívás vagy argumentum"));
}

TEST_F(frmI_FavTest, AFileThatAnotherProgramHoldsEndsInTheReportAndLosesNothing) {
    Write(L"a.url", ShortcutFile("http://jo.hu"));
    Write(L"b.url", ShortcutFile("http://masik.hu"));
    const std::unique_ptr<void, decltype(&CloseHandle)> held(
        CreateFileW(PathOf(L"b.url").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
        &CloseHandle);
    ASSERT_NE(held.get(), INVALID_HANDLE_VALUE);
    const std::wstring words = WordsOf(ERROR_SHARING_VIOLATION);
    EXPECT_NE(words, L"");
    ExpectReport(Report(75, L"b.url", words));
}

TEST_F(frmI_FavTest, AFullBookEndsInTheReportAndLosesNothing) {
    FillBookTo(32766);
    Write(L"a.url", ShortcutFile("http://a.hu"));
    Write(L"b.url", ShortcutFile("http://b.hu"));
    const UnsavedBook book(program);
    ChooseFolder(Open());
    AnswerResult(2);  // comes before the entries are added
    book.ExpectReportAndSave(Report(6, L"Túlcsordulás"));
}

TEST_F(frmI_FavTest, AFaultAfterACancelledPageOffersToSaveAmongBooks) {
    Write(L"a.url", "[InternetShortcut]\r\n");
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    const DialogOnScreen dialog = Open();
    dialog.Click(ID_frmImport_cmdOK);
    program.FileDialog().Cancel();
    program.Settle();
    ChooseFolder(dialog);
    const BoxOnScreen report = program.Box();
    EXPECT_EQ(report.Text(), Report(62, L"a.url", L"Olvasás a fájl vége után"));
    report.Press(IDOK);
    const BoxOnScreen question = program.Box();
    EXPECT_EQ(question.Title(), L"A fájl módosult");
    question.Press(IDYES);
    const FileDialogOnScreen save = program.FileDialog();
    EXPECT_EQ(save.Title(), L"File mentése");
    EXPECT_EQ(save.Filters(), std::vector<std::wstring>{L"Lindrel fájlok (*.lnd)"});
    save.Cancel();
    EXPECT_EQ(program.WaitForEnd(), 1);
}

}  // namespace
}  // namespace lindrel::testing
