// The end of the program and of the session, with a changed book.

#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class FileMenuClosingTest : public FileSession {};

TEST_F(FileMenuClosingTest, AFaultThatNobodyCatchesIsReportedAndEndsTheProgram) {
    for (int i = 0; i < 5; ++i) Change(11);
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = false; });
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(folder.Write(L"kevés.lnd", kElevenHeaders));
    program.Box().Press(IDOK);
    program.Settle();
    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    // Five entries that no file line stands for.
    const HWND tabs = program.Control(ID_frmStart_TabStrip1);
    SendMessageW(tabs, TCM_SETCURFOCUS, 10, 0);
    const BoxOnScreen report = program.Box();
    EXPECT_EQ(report.Title(), L"Lindrel");
    EXPECT_EQ(report.Text(),
              L"Futásidejű hiba: 9\r\n\r\nAz index a tartományon kívül esik.\r\n\r\nA program bezárul.");
    EXPECT_EQ(report.Icon(), BoxIcon::Error);
    report.Press(IDOK);
    ExpectSaveQuestion(L"A fájl módosult", IDNO);
    EXPECT_EQ(program.WaitForEnd(), 1);
}

TEST_F(FileMenuClosingTest, ClosingAsksWithItsOwnTitleAndCancelKeepsTheWindow) {
    Change();
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDCANCEL);
    ExpectState(ChangedState());
    program.Choose(ID_mnuExit);
    ExpectSaveQuestion(L"A fájl módosult", IDCANCEL);
    ExpectState(ChangedState());
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDNO);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(FileMenuClosingTest, ClosingWithYesSavesUnderAChosenNameAndEndsTheProgram) {
    Change();
    const std::wstring path = folder.File(L"vége.lnd");
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    program.FileDialog().Accept(path);
    ExpectSaved(path);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(FileMenuClosingTest, ClosingWithYesSavesInTheBooksOwnFileWithoutADialog) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    program.OnUi([&](frmStart& form) { form.OpenedBook().OpenedFile = path; });
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    ExpectSaved(path);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(FileMenuClosingTest, ClosingWithYesAndACancelledSaveDialogLosesTheChangesAndEndsTheProgram) {
    Change();
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    program.FileDialog().Cancel();
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{});
}

TEST_F(FileMenuClosingTest, TheEndOfTheSessionWaitsForTheAnswerAndLeavesTheWindow) {
    EXPECT_EQ(QueryEndSession().get(), TRUE);  // nothing to ask
    ExpectState(EmptyState());

    Change();
    std::future<LRESULT> answer = QueryEndSession();
    ExpectSaveQuestion(L"A fájl módosult", IDCANCEL);
    EXPECT_EQ(answer.get(), FALSE);
    ExpectState(ChangedState());

    answer = QueryEndSession();
    ExpectSaveQuestion(L"A fájl módosult", IDNO);
    EXPECT_EQ(answer.get(), TRUE);
    ExpectState(ChangedState());

    const std::wstring path = folder.File(L"vége.lnd");
    answer = QueryEndSession();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
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
