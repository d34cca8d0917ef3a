// Saving to a device, over another book, over a file that another program has changed.

#include <chrono>
#include <filesystem>

#include "tests/window/app/FileSession.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

class FileMenuFaultsTest : public FileSession {
  protected:
    void ExpectChangedQuestion(const std::wstring& path, int answer) const {
        EXPECT_EQ(DialogOnScreen(program.Box().Handle()).Focus(), IDNO);
        ExpectBox(program,
                  {L"Figyelem",
                   path + L"\r\n\r\nEzt a fájlt egy másik program megváltoztatta, mióta a könyvet "
                          L"megnyitotta vagy elmentette.\r\nFelülírjam a másik program "
                          L"változtatásait?",
                   BoxIcon::Exclamation,
                   {IDYES, IDNO}},
                  answer);
    }
    // Opens a book of one entry and changes it; returns its path.
    std::wstring OpenAndChange() const {
        const std::wstring path = folder.Write(L"közös.lnd", OneEntryBook("A\r\nhttp://a.hu\r\n"));
        ChooseWithFile(ID_mnuOpen, path);
        program.Settle();
        Change();
        return path;
    }
    static std::string TwoEntries() {
        return OneEntryBook("A\r\nhttp://a.hu\r\nN\xE9v\r\nhttp://nev.hu\r\n");
    }
};

TEST_F(FileMenuFaultsTest, ABookIsNotSavedToADevice) {
    Change();
    const MainState before = program.State();
    for (const wchar_t* name : {L"nul.lnd", L"com1.lnd"}) {
        const std::wstring device = folder.File(name);
        for (const int command : {ID_mnuSave, ID_mnuSaveAs}) {
            program.Choose(command);
            program.FileDialog().TypeAndPressOk(device);
            // Some systems take a device for an existing file, and ask whether to overwrite it.
            if (program.Box().Title() != L"Hiba") program.Box().Press(IDYES);
            ExpectFailure(device);
            ExpectState(before);
        }
    }
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{});
}

TEST_F(FileMenuFaultsTest, AFailedSaveAsLeavesTheBookWithItsFile) {
    const std::wstring path = OpenAndChange();
    const MainState before = program.State();
    program.Choose(ID_mnuSaveAs);
    const std::wstring refused = folder.Write(L"zárt.lnd", "régi");
    ASSERT_TRUE(SetFileAttributesW(refused.c_str(), FILE_ATTRIBUTE_READONLY));
    program.FileDialog().Accept(refused);
    program.Box().Press(IDYES);
    ExpectFailure(refused);
    ExpectState(before);
    ASSERT_TRUE(SetFileAttributesW(refused.c_str(), FILE_ATTRIBUTE_NORMAL));
    program.Choose(ID_mnuSave);
    ExpectSaved(path);
    EXPECT_EQ(TemporaryFolder::Read(path), TwoEntries());
    EXPECT_EQ(TemporaryFolder::Read(refused), "régi");
}

TEST_F(FileMenuFaultsTest, TheFirstSaveAsksBeforeItOverwritesAnotherBook) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    const auto refuse = [&] {
        const FileDialogOnScreen dialog = program.FileDialog();
        dialog.TypeAndPressOk(path);
        program.Box().Press(IDNO);  // the dialog's own question, in the system's words
        EXPECT_EQ(TemporaryFolder::Read(path), "régi");
        return dialog;
    };
    program.Choose(ID_mnuSave);
    refuse().Cancel();
    ExpectState(ChangedState());

    program.Choose(ID_mnuSave);
    const FileDialogOnScreen dialog = refuse();
    dialog.TypeAndPressOk(path);
    program.Box().Press(IDYES);
    ExpectSaved(path);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(FileMenuFaultsTest, AFileThatAnotherProgramHasChangedIsAskedAbout) {
    const std::wstring path = OpenAndChange();
    const MainState before = program.State();
    folder.Write(L"közös.lnd", "another program's");
    for (const int command : {ID_mnuSave, ID_mnuNew, ID_mnuOpen, ID_mnuClose}) {
        program.Choose(command);
        if (command != ID_mnuSave) ExpectSaveQuestion(kAtCommand, IDYES);
        ExpectChangedQuestion(path, IDNO);
        ExpectState(before);
        EXPECT_EQ(TemporaryFolder::Read(path), "another program's");
    }
    CloseAndAnswer(IDYES);
    ExpectChangedQuestion(path, IDNO);
    ExpectState(before);

    program.Choose(ID_mnuSave);
    ExpectChangedQuestion(path, IDYES);
    ExpectSaved(path);
    EXPECT_EQ(TemporaryFolder::Read(path), TwoEntries());
    // From then on it is the program's own file again, which it overwrites without a question.
    Change();
    program.Choose(ID_mnuSave);
    ExpectSaved(path);
}

TEST_F(FileMenuFaultsTest, AChangeOfTheSameLengthIsSeenWhateverItsTime) {
    const std::wstring path = OpenAndChange();
    std::string changed = TemporaryFolder::Read(path);
    changed.back() = ' ';
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    FILETIME time{};
    DWORD written = 0;
    EXPECT_TRUE(GetFileTime(file, nullptr, nullptr, &time));
    EXPECT_TRUE(WriteFile(file, changed.data(), static_cast<DWORD>(changed.size()), &written, nullptr));
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
    CloseHandle(file);
    program.Choose(ID_mnuSave);
    ExpectChangedQuestion(path, IDNO);
    program.Settle();
    EXPECT_EQ(TemporaryFolder::Read(path), changed);
}

// As backups and network drives do it.
TEST_F(FileMenuFaultsTest, TheSameContentInAnotherFileIsNotAskedAbout) {
    const std::wstring path = OpenAndChange();
    const std::string opened = TemporaryFolder::Read(path);
    const auto expect_no_question = [&] {
        program.Choose(ID_mnuSave);
        ExpectSaved(path);
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        Change();
    };
    const std::wstring copy = folder.Write(L"másik.lnd", opened);
    ASSERT_TRUE(MoveFileExW(copy.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING));
    expect_no_question();
    std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::hours(1));
    expect_no_question();
    const std::string saved = TemporaryFolder::Read(path);
    folder.Write(L"közös.lnd", "another program's");
    folder.Write(L"közös.lnd", saved);
    expect_no_question();
}

TEST_F(FileMenuFaultsTest, SaveAsOntoTheBooksOwnChangedFileAsksOnce) {
    const std::wstring path = OpenAndChange();
    MainState expected = program.State();
    folder.Write(L"közös.lnd", "another program's");
    ChooseWithFile(ID_mnuSaveAs, path);
    ExpectOverwriteQuestion(path, IDYES);
    ExpectSaved(path);
    expected.Modified = false;
    ExpectState(expected);
    EXPECT_EQ(TemporaryFolder::Read(path), TwoEntries());
    // A plain save asks about the next change.
    SetModified(true);
    folder.Write(L"közös.lnd", "another program's");
    program.Choose(ID_mnuSave);
    ExpectChangedQuestion(path, IDNO);
}

// Another program has changed the file and lets nobody read it: whether that may be overwritten cannot be
// asked, though the file could be replaced.
TEST_F(FileMenuFaultsTest, AFileThatCannotBeReadIsNotOverwritten) {
    const std::wstring path = OpenAndChange();
    const MainState before = program.State();
    folder.Write(L"közös.lnd", "another program's");
    const HANDLE holder =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
    program.Choose(ID_mnuSave);
    ExpectFailure(path);
    ExpectState(before);
    CloseHandle(holder);
    EXPECT_EQ(TemporaryFolder::Read(path), "another program's");
    program.Choose(ID_mnuSave);
    ExpectChangedQuestion(path, IDYES);
    ExpectSaved(path);
}

TEST_F(FileMenuFaultsTest, ADeletedFileIsWrittenAgainWithoutAQuestion) {
    const std::wstring path = OpenAndChange();
    ASSERT_TRUE(DeleteFileW(path.c_str()));
    program.Choose(ID_mnuSave);
    ExpectSaved(path);
    EXPECT_EQ(TemporaryFolder::Read(path), TwoEntries());
}

TEST_F(FileMenuFaultsTest, AnotherFileIsNotAskedAbout) {
    const std::wstring path = OpenAndChange();
    folder.Write(L"közös.lnd", "another program's");
    // Save As has its own question, and a new book is not connected with the old book's file.
    ChooseWithFile(ID_mnuSaveAs, folder.File(L"új.lnd"));
    ExpectSaved(folder.File(L"új.lnd"));
    program.Run(ID_mnuNew);
    Change();
    program.Choose(ID_mnuSave);
    program.FileDialog().TypeAndPressOk(path);
    program.Box().Press(IDYES);
    ExpectSaved(path);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

HMODULE WINAPI LoadNothing(LPCWSTR, HANDLE, DWORD) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

TEST_F(FileMenuFaultsTest, WithoutTheLibraryOfTheFileDialogsTheBookStays) {
    Change();
    const MainState before = program.State();
    {
        const ReplacedImport missing(&LoadLibraryExW, &LoadNothing);
        for (const int command : {ID_mnuSave, ID_mnuSaveAs}) {
            program.Choose(command);
            ExpectBox(program,
                      {L"Hiba",
                       L"A Windows ezt nem tudta teljesíteni: a fájlválasztó ablak megnyitása\r\nHibakód: 2",
                       BoxIcon::Error});
            ExpectState(before);
        }
    }
    // With the library it can be saved.
    ChooseWithFile(ID_mnuSave, folder.File(L"mégis.lnd"));
    ExpectSaved(folder.File(L"mégis.lnd"));
}

}  // namespace
}  // namespace lindrel::testing
