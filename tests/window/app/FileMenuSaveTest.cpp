// Saving a book, with real boxes and file dialogs.

#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class FileMenuSaveTest : public FileSession {
  protected:
    void ExpectOverwriteQuestion(const std::wstring& path, int answer) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), L"A " + path + L" már létezik.\r\nFelülírjam a már létező fájlt?");
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
    }

    // The changed book is saved under a name in the folder, and the window bears that name.
    void ExpectSavedAs(const std::wstring& name) const {
        const std::wstring path = folder.File(name);
        ExpectSaved(path);
        MainState expected = ChangedState();
        expected.Title = L"Lindrel -" + name;
        expected.OpenedFile = path;
        expected.Modified = false;
        ExpectState(expected);
        EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
    }
};

TEST_F(FileMenuSaveTest, SavingAnUnmodifiedBookDoesNothing) {
    const MainState before = program.State();
    program.Run(ID_mnuSave);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(FileMenuSaveTest, SaveAsDoesNothingForEntriesInTheTwelfthCategoryOnly) {
    Change(12);
    const MainState before = program.State();
    program.Choose(ID_mnuSaveAs);
    ExpectState(before);
}

TEST_F(FileMenuSaveTest, SavingABookThatWasNeverSavedAsksForAFileAndSetsTheTitle) {
    Change();
    const std::wstring path = folder.File(L"Első könyv.lnd");
    program.Choose(ID_mnuSave);
    const FileDialogOnScreen dialog = program.FileDialog();
    EXPECT_EQ(dialog.Title(), L"File mentése");
    dialog.Accept(path);
    ExpectSavedAs(L"Első könyv.lnd");
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"Első könyv.lnd"});
}

TEST_F(FileMenuSaveTest, ACancelledSaveOfABookThatWasNeverSavedChangesNothing) {
    Change();
    for (const int command : {ID_mnuSave, ID_mnuSaveAs}) {
        program.Choose(command);
        program.FileDialog().Cancel();
        ExpectState(ChangedState());
    }
}

TEST_F(FileMenuSaveTest, ANameWithoutAnExtensionIsSavedAsABookFile) {
    Change();
    program.Choose(ID_mnuSave);
    program.FileDialog().Accept(folder.File(L"könyv"));
    ExpectSavedAs(L"könyv.lnd");
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"könyv.lnd"});
}

TEST_F(FileMenuSaveTest, SaveAsOntoAnExistingFileAsksAndKeepsTheRefusedPath) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    program.Choose(ID_mnuSaveAs);
    program.FileDialog().Accept(path);
    ExpectOverwriteQuestion(path, IDNO);
    program.FileDialog().Accept(path);
    ExpectOverwriteQuestion(path, IDCANCEL);
    MainState expected = ChangedState();
    expected.OpenedFile = path;
    ExpectState(expected);
    EXPECT_EQ(TemporaryFolder::Read(path), "régi");

    // The refused path is the book's: the next save goes there, asks nothing and leaves the title.
    program.Choose(ID_mnuSave);
    ExpectSaved(path);
    expected.Modified = false;
    ExpectState(expected);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(FileMenuSaveTest, SaveAsOntoAnExistingFileOverwritesItAfterYes) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", std::string(5000, '#'));
    program.Choose(ID_mnuSaveAs);
    program.FileDialog().Accept(path);
    ExpectOverwriteQuestion(path, IDYES);
    ExpectSavedAs(L"van.lnd");
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"van.lnd"});
}

TEST_F(FileMenuSaveTest, SaveAsAfterNoSavesUnderAnotherNameAndLeavesTheRefusedFile) {
    Change();
    const std::wstring refused = folder.Write(L"van.lnd", "régi");
    const std::wstring path = folder.File(L"más.lnd");
    program.Choose(ID_mnuSaveAs);
    program.FileDialog().Accept(refused);
    ExpectOverwriteQuestion(refused, IDNO);
    program.FileDialog().Accept(path);
    ExpectSavedAs(L"más.lnd");
    EXPECT_EQ(TemporaryFolder::Read(refused), "régi");
}

TEST_F(FileMenuSaveTest, PlainSaveOfALoadedBookLeavesTheTitle) {
    const std::wstring path =
        folder.Write(L"a.lnd", "#1\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n#12\r\n");
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    program.Settle();
    program.OnUi([](frmStart& form) { SetWindowTextW(form.Handle(), L"egyéb"); });
    Change();
    program.Choose(ID_mnuSave);
    ExpectSaved(path);
    program.Settle();
    EXPECT_EQ(program.State().Title, L"egyéb");
    EXPECT_FALSE(program.State().Modified);
    EXPECT_EQ(TemporaryFolder::Read(path),
              "#1\r\nN\xE9v\r\nhttp://"
              "nev.hu\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n#12\r\n");
}

TEST_F(FileMenuSaveTest, AFailedSaveSaysWhyChangesNothingAndCallsTheCommandOff) {
    const std::string old = "régi";
    const std::wstring path = folder.Write(L"zárt.lnd", old);
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    Change();
    program.OnUi([&](frmStart& form) { form.OpenedBook().OpenedFile = path; });
    const MainState before = program.State();
    const auto expect_failure = [&] {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text().substr(0, path.size() + 2), path + L"\r\n");
        EXPECT_GT(box.Text().size(), path.size() + 2);  // the system's reason
        EXPECT_EQ(box.Icon(), BoxIcon::Error);
        box.Press(IDOK);
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), before);
        EXPECT_EQ(TemporaryFolder::Read(path), old);
        EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"zárt.lnd"});
    };
    program.Choose(ID_mnuSave);
    expect_failure();
    for (const int command : {ID_mnuNew, ID_mnuOpen, ID_mnuClose}) {
        program.Choose(command);
        ExpectSaveQuestion(L"A file módosult", IDYES);
        expect_failure();
    }
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    expect_failure();
    EXPECT_TRUE(IsWindow(program.Main()));
    std::future<LRESULT> end_of_session = QueryEndSession();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    expect_failure();
    EXPECT_EQ(end_of_session.get(), FALSE);
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(FileMenuSaveTest, ABookThatCannotBeWrittenOutIsKeptAndTheCommandCalledOff) {
    for (int i = 0; i < 5; ++i) Change(11);
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = false; });
    const std::wstring path = folder.Write(L"kevés.lnd", kElevenHeaders);
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    program.Box().Press(IDOK);
    program.Settle();
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    const MainState before = program.State();
    // Category 11 counts five entries of the book before, which nothing stands for.
    const auto expect_refusal = [&] {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text(), path + L"\r\nAz index a tartományon kívül esik");
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::Error);
        box.Press(IDOK);
        program.Settle();
        EXPECT_EQ(program.State(), before);
        EXPECT_EQ(TemporaryFolder::Read(path), kElevenHeaders);
        EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"kevés.lnd"});
    };
    program.Choose(ID_mnuSave);
    expect_refusal();
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    expect_refusal();
}

}  // namespace
}  // namespace lindrel::testing
