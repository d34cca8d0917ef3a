// The file commands, with real boxes and file dialogs.

#include <gtest/gtest.h>

#include "book/BookFile.h"
#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

class frmStartFileTest : public ::testing::Test {
  protected:
    static void AddOne(frmStart& form, int category) {
        form.TheBook.NewEntries = {{"N\xE9v", "http://nev.hu"}};
        form.TheBook.AddEntry(category);
        form.Modified = true;
        form.FillAddressList(1);
    }
    void Change(int category = 1) const {
        program.OnUi([category](frmStart& form) { AddOne(form, category); });
    }
    void ExpectSaveQuestion(const std::wstring& title, int answer) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Text(), L"Kívánja menteni a módosításokat ?");
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
    }
    void ExpectSaved(const std::wstring& path) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), L"Elmentve : " + path);
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::None);
        box.Press(IDOK);
    }

    TemporaryFolder folder;
    Program program;
};

TEST_F(frmStartFileTest, StartsWithTheEmptyBook) {
    const MainState state = program.State();
    EXPECT_EQ(state.Title, L"Lindrel ");
    EXPECT_EQ(state.Status[1], L"megjelenítve (0 / 0)");
    EXPECT_EQ(state.Status[2], L"bejelölve 0");
    EXPECT_FALSE(program.CommandEnabled(ID_mnuToDesktop));
}

TEST_F(frmStartFileTest, SavingAnUnmodifiedBookDoesNothing) {
    const MainState before = program.State();
    program.Run(ID_mnuSave);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmStartFileTest, SaveAsDoesNothingForEntriesInTheTwelfthCategoryOnly) {
    Change(12);
    program.Run(ID_mnuSaveAs);
    EXPECT_TRUE(program.NothingIsOpen());
}

TEST_F(frmStartFileTest, SavesAndOpensAgain) {
    Change();
    const std::wstring path = folder.File(L"m\x171sor.lnd");
    program.Choose(ID_mnuSaveAs);
    const FileDialogOnScreen dialog = program.FileDialog();
    EXPECT_EQ(dialog.Title(), L"File mentése");
    EXPECT_EQ(dialog.Filters(), std::vector<std::wstring>{L"Lindrel fájlok (*.lnd)"});
    dialog.Accept(path);
    ExpectSaved(path);
    program.Settle();
    const MainState saved = program.State();
    EXPECT_EQ(saved.Title, L"Lindrel -műsor.lnd");
    EXPECT_EQ(saved.OpenedFile, path);
    EXPECT_FALSE(saved.Modified);

    program.Run(ID_mnuClose);
    EXPECT_EQ(program.State().Title, L"Lindrel ");
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    program.Settle();
    EXPECT_EQ(program.State(), saved);
}

TEST_F(frmStartFileTest, OpenWithChangesAndYesSavesAndOpensNothing) {
    Change();
    program.Choose(ID_mnuOpen);
    ExpectSaveQuestion(L"A file módosult", IDYES);
    const std::wstring path = folder.File(L"a.lnd");
    program.FileDialog().Accept(path);
    ExpectSaved(path);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State().Title, L"Lindrel ");  // the save step leaves the title
    EXPECT_FALSE(program.State().Modified);
}

TEST_F(frmStartFileTest, NewWithYesAndACancelledSaveDialogLosesTheChanges) {
    const MainState empty = program.State();
    Change();
    program.Choose(ID_mnuNew);
    ExpectSaveQuestion(L"A file módosult", IDYES);
    program.FileDialog().Cancel();
    program.Settle();
    EXPECT_EQ(program.State(), empty);
}

TEST_F(frmStartFileTest, SaveAsOntoAnExistingFileAsksAndKeepsTheRefusedPath) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    program.Choose(ID_mnuSaveAs);
    program.FileDialog().Accept(path);
    for (const int answer : {IDNO, IDCANCEL}) {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), L"A " + path + L" már létezik.\r\nFelülírjam a már létező fájlt?");
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
        if (answer == IDNO) program.FileDialog().Accept(path);
    }
    program.Settle();
    EXPECT_EQ(program.State().OpenedFile, path);
    EXPECT_EQ(program.State().Title, L"Lindrel ");
    EXPECT_EQ(TemporaryFolder::Read(path), "régi");
}

TEST_F(frmStartFileTest, AMalformedFileLeavesTheOpenBook) {
    const MainState before = program.State();
    const std::wstring path = folder.Write(L"rossz.lnd", "#a\r\n");
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba a beolvasásnál");
    EXPECT_EQ(box.Icon(), BoxIcon::Error);
    box.Press(IDOK);
    program.Settle();
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmStartFileTest, ClosingAsksWithItsOwnTitleAndCancelKeepsTheWindow) {
    Change();
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDCANCEL);
    program.Settle();
    EXPECT_TRUE(program.State().Modified);
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDNO);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

}  // namespace
}  // namespace lindrel::testing
