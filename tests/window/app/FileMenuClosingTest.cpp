// The end of the program and of the session, with a changed book.

#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class FileMenuClosingTest : public FileSession {
  protected:
    void ExpectSavedAtTheEnd(const std::wstring& path) {
        ExpectSaved(path);
        EXPECT_EQ(program.WaitForEnd(), 0);
        EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
    }
};

TEST_F(FileMenuClosingTest, AFaultThatNoCommandHandlesIsReportedAndEndsTheProgram) {
    Change();
    // The next command finds a category that no book has.
    program.OnUi([](frmStart& form) { form.OpenedBook().CurrentCategory = 13; });
    program.Choose(ID_mnuImport);
    ExpectBox(program,
              {.Text = L"Futásidejű hiba: 9\r\n\r\nAz index a tartományon kívül esik.\r\n\r\nA program "
                       L"bezárul.",
               .Icon = BoxIcon::Error});
    ExpectSaveQuestion(kAtClosing, IDNO);
    EXPECT_EQ(program.WaitForEnd(), 1);
}

TEST_F(FileMenuClosingTest, ClosingAsksWithItsOwnTitleAndCancelKeepsTheWindow) {
    Change();
    CloseAndAnswer(IDCANCEL);
    ExpectState(ChangedState());
    program.Choose(ID_mnuExit);
    ExpectSaveQuestion(kAtClosing, IDCANCEL);
    ExpectState(ChangedState());
    CloseAndAnswer(IDNO);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(FileMenuClosingTest, ClosingWithYesSavesUnderAChosenNameAndEndsTheProgram) {
    Change();
    const std::wstring path = folder.File(L"vége.lnd");
    CloseAndAnswer(IDYES);
    program.FileDialog().Accept(path);
    ExpectSavedAtTheEnd(path);
}

TEST_F(FileMenuClosingTest, ClosingWithYesSavesInTheBooksOwnFileWithoutADialog) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    SetOpenedFile(path);
    CloseAndAnswer(IDYES);
    ExpectSavedAtTheEnd(path);
}

TEST_F(FileMenuClosingTest, ClosingWithYesAndACancelledSaveDialogLosesTheChangesAndEndsTheProgram) {
    Change();
    CloseAndAnswer(IDYES);
    program.FileDialog().Cancel();
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{});
}

TEST_F(FileMenuClosingTest, AtTheEndOfTheSessionTheBookIsSavedUnderAChosenName) {
    Change();
    const std::wstring path = folder.File(L"vége.lnd");
    std::future<LRESULT> answer = QueryEndSession();
    ExpectSaveQuestion(kAtClosing, IDYES);
    program.FileDialog().Accept(path);
    ExpectSaved(path);
    EXPECT_EQ(answer.get(), TRUE);
    MainState saved = ChangedState();
    saved.OpenedFile = path;
    saved.Modified = false;
    ExpectState(saved);  // the save step leaves the title
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

}  // namespace
}  // namespace lindrel::testing
