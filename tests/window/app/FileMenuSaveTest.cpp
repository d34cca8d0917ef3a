// Saving a book, with real boxes and file dialogs.

#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class FileMenuSaveTest : public FileSession {
  protected:
    // The changed book is saved under a name in the folder, and the title shows that name.
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
    program.Choose(ID_mnuSave);
    ExpectState(EmptyState());
}

TEST_F(FileMenuSaveTest, SaveAsDoesNothingForEntriesInTheTwelfthCategoryOnly) {
    Change(12);
    const MainState before = program.State();
    program.Choose(ID_mnuSaveAs);
    ExpectState(before);
}

TEST_F(FileMenuSaveTest, ABookThatWasNeverSavedIsSavedUnderAChosenNameWithItsExtension) {
    for (const wchar_t* const typed : {L"Első könyv.lnd", L"könyv"}) {
        program.Run(ID_mnuNew);
        Change();
        ChooseWithFile(ID_mnuSave, folder.File(typed));
        ExpectSavedAs(typed == std::wstring(L"könyv") ? L"könyv.lnd" : typed);
    }
    EXPECT_EQ(folder.Names(), (std::vector<std::wstring>{L"Első könyv.lnd", L"könyv.lnd"}));
}

TEST_F(FileMenuSaveTest, ACancelledSaveOfABookThatWasNeverSavedChangesNothing) {
    Change();
    for (const int command : {ID_mnuSave, ID_mnuSaveAs}) {
        program.Choose(command);
        program.FileDialog().Cancel();
        ExpectState(ChangedState());
    }
}

TEST_F(FileMenuSaveTest, SaveAsOntoAnExistingFileAsksAndKeepsTheRefusedPath) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    ChooseWithFile(ID_mnuSaveAs, path);
    ExpectOverwriteQuestion(path, IDNO);
    program.FileDialog().Accept(path);
    ExpectOverwriteQuestion(path, IDCANCEL);
    MainState expected = ChangedState();
    expected.OpenedFile = path;
    ExpectState(expected);
    EXPECT_EQ(TemporaryFolder::Read(path), "régi");

    // The refused path belongs to the book: the next save uses it, asks nothing and leaves the title.
    program.Choose(ID_mnuSave);
    ExpectSaved(path);
    expected.Modified = false;
    ExpectState(expected);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(FileMenuSaveTest, SaveAsOntoAnExistingFileOverwritesItAfterYesAndLeavesItAfterNo) {
    Change();
    const std::wstring refused = folder.Write(L"van.lnd", "régi");
    const std::wstring path = folder.Write(L"más.lnd", std::string(5000, '#'));
    ChooseWithFile(ID_mnuSaveAs, refused);
    ExpectOverwriteQuestion(refused, IDNO);
    program.FileDialog().Accept(path);
    ExpectOverwriteQuestion(path, IDYES);
    ExpectSavedAs(L"más.lnd");
    EXPECT_EQ(TemporaryFolder::Read(refused), "régi");
    EXPECT_EQ(folder.Names(), (std::vector<std::wstring>{L"más.lnd", L"van.lnd"}));
}

TEST_F(FileMenuSaveTest, PlainSaveOfALoadedBookLeavesTheTitle) {
    const std::wstring path =
        folder.Write(L"a.lnd", "#1\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n#12\r\n");
    ChooseWithFile(ID_mnuOpen, path);
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
    SetOpenedFile(path);
    const MainState before = program.State();
    const auto expect_failure = [&] {
        ExpectFailure(path);
        ExpectState(before);
        EXPECT_EQ(TemporaryFolder::Read(path), old);
        EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"zárt.lnd"});
    };
    program.Choose(ID_mnuSave);
    expect_failure();
    for (const int command : {ID_mnuNew, ID_mnuOpen, ID_mnuClose}) {
        ChooseAndAnswer(command, IDYES);
        expect_failure();
    }
    CloseAndAnswer(IDYES);
    expect_failure();
    EXPECT_TRUE(IsWindow(program.Main()));
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(FileMenuSaveTest, ABookThatCannotBeWrittenOutIsKeptAndTheCommandCalledOff) {
    const std::wstring path = OpenBookWithoutItsEntries();
    const MainState before = program.State();
    const auto expect_refusal = [&] {
        ExpectBox(program, {L"Hiba", path + L"\r\nAz index a tartományon kívül esik", BoxIcon::Error});
        ExpectState(before);
        EXPECT_EQ(TemporaryFolder::Read(path), kElevenHeaders);
        EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"kevés.lnd"});
    };
    program.Choose(ID_mnuSave);
    expect_refusal();
    CloseAndAnswer(IDYES);
    expect_refusal();
}

}  // namespace
}  // namespace lindrel::testing
