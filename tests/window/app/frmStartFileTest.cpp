// The file commands, with real boxes and file dialogs.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "book/BookFile.h"
#include "controls/Shell.h"
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

TEST_F(frmStartFileTest, AMissingFileIsReportedAndTheOpenDialogComesBack) {
    const MainState before = program.State();
    program.Choose(ID_mnuOpen);
    for (int attempt = 0; attempt < 2; ++attempt) {
        program.FileDialog().TypeAndPressOk(folder.File(L"nincs.lnd"));
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text(), L"A megadott fájl nem létezik");
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::None);
        box.Press(IDOK);
    }
    program.FileDialog().Cancel();
    program.Settle();
    EXPECT_EQ(program.State(), before);
}

TEST_F(frmStartFileTest, FileExistsOfAnEmptyPathSaysSoAndOfAPatternGoesByWhatMatches) {
    std::atomic<bool> exists{true};
    std::atomic<bool> answered{false};
    std::thread asking([&] {
        program.OnUi([&](frmStart& form) { exists = FileExists(form.Handle(), L""); });
        answered = true;
    });
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba");
    EXPECT_EQ(box.Text(), L"A megadott fájl nem létezik");
    box.Press(IDOK);
    asking.join();
    EXPECT_TRUE(answered);
    EXPECT_FALSE(exists);
    static_cast<void>(folder.Write(L"van.lnd", ""));
    EXPECT_TRUE(program.Ask<bool>(
        [this](frmStart& form) { return FileExists(form.Handle(), folder.File(L"v?n.*")); }));
}

TEST_F(frmStartFileTest, PlainSaveOfALoadedBookLeavesTheTitle) {
    const std::wstring path =
        folder.Write(L"a.lnd", "#1\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n#12\r\n");
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    program.Settle();
    program.OnUi([](frmStart& form) { form.SetTitle(L"egyéb"); });
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

TEST_F(frmStartFileTest, NewAndCloseForgetTheBookOnNoAndKeepItOnCancel) {
    const MainState empty = program.State();
    for (const int command : {ID_mnuNew, ID_mnuClose}) {
        Change();
        const MainState changed = program.State();
        program.Choose(command);
        ExpectSaveQuestion(L"A file módosult", IDCANCEL);
        program.Settle();
        EXPECT_EQ(program.State(), changed);
        program.Choose(command);
        ExpectSaveQuestion(L"A file módosult", IDNO);
        program.Settle();
        EXPECT_EQ(program.State(), empty);
    }
}

TEST_F(frmStartFileTest, OpenWithChangesGoesOnAfterNoAndStopsAfterCancel) {
    Change();
    const MainState changed = program.State();
    program.Choose(ID_mnuOpen);
    ExpectSaveQuestion(L"A file módosult", IDCANCEL);
    program.Settle();
    EXPECT_TRUE(program.NothingIsOpen());
    program.Choose(ID_mnuOpen);
    ExpectSaveQuestion(L"A file módosult", IDNO);
    const FileDialogOnScreen dialog = program.FileDialog();
    EXPECT_EQ(dialog.Title(), L"File megnyitása");
    dialog.Cancel();
    program.Settle();
    EXPECT_EQ(program.State(), changed);
}

TEST_F(frmStartFileTest, AFailedSaveSaysWhyChangesNothingAndCallsTheCommandOff) {
    const std::string old = "régi";
    const std::wstring path = folder.Write(L"zárt.lnd", old);
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    Change();
    program.OnUi([&](frmStart& form) { form.OpenedFile = path; });
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
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(frmStartFileTest, EntriesThatWillComeBackAsHeadersAreWarnedOf) {
    program.OnUi([&](frmStart& form) {
        form.TheBook.NewEntries = {{"#els\xF5", "http://a.hu"}, {"B", "#m\xE1sodik"}};
        form.TheBook.AddEntry(2);
        form.OpenedFile = folder.File(L"a.lnd");
        form.Modified = true;
    });
    program.Choose(ID_mnuSave);
    ExpectSaved(folder.File(L"a.lnd"));
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Figyelem");
    EXPECT_EQ(
        box.Text(),
        L"A könyvben 2 olyan név vagy cím van, amely „#” jellel kezdődik. A következő megnyitáskor ezek "
        L"kategórianévként jönnek vissza. Az első:\r\n\r\n#első");
    EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
    box.Press(IDOK);
    program.Settle();
    EXPECT_FALSE(program.State().Modified);
}

// Eleven headers and two entries: the twelfth category keeps its name, the eleventh its count of the book
// before.
constexpr char kElevenHeaders[] =
    "#1\r\nA\r\nhttp://a.hu\r\nB\r\nhttp://"
    "b.hu\r\n#2\r\n#3\r\n#4\r\n#5\r\n#6\r\n#7\r\n#8\r\n#9\r\n#10\r\n#11\r\n";

TEST_F(frmStartFileTest, AFileWithTooFewCategoriesIsLoadedWithAMessage) {
    Change();
    program.Choose(ID_mnuOpen);
    ExpectSaveQuestion(L"A file módosult", IDNO);
    const std::wstring path = folder.Write(L"kevés.lnd", kElevenHeaders);
    program.FileDialog().Accept(path);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba a beolvasásnál");
    EXPECT_EQ(box.Text(), L"Nem sikerült beolvasni az összes kategóriát");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    EXPECT_EQ(box.Icon(), BoxIcon::Error);
    box.Press(IDOK);
    program.Settle();
    MainState expected;
    expected.Title = L"Lindrel -kevés.lnd";
    for (int k = 1; k <= 11; ++k) expected.Tabs.push_back(std::to_wstring(k));
    expected.Tabs.push_back(L"Project12");
    expected.SelectedTab = 1;
    expected.Rows = {{L"A", L"http://a.hu"}, {L"B", L"http://b.hu"}};
    expected.Status[1] = L"megjelenítve (2 / 2)";
    expected.Status[2] = L"bejelölve 0";
    expected.OpenedFile = path;
    EXPECT_EQ(program.State(), expected);
}

TEST_F(frmStartFileTest, AFaultThatNobodyCatchesIsReportedAndEndsTheProgram) {
    for (int i = 0; i < 5; ++i) Change(11);
    program.OnUi([](frmStart& form) { form.Modified = false; });
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(folder.Write(L"kevés.lnd", kElevenHeaders));
    program.Box().Press(IDOK);
    program.Settle();
    program.OnUi([](frmStart& form) { form.Modified = true; });
    // Five entries that no file line stands for.
    const HWND tabs = program.Ask<HWND>([](frmStart& form) { return form.TabStrip1.Handle(); });
    SendMessageW(tabs, TCM_SETCURFOCUS, 10, 0);
    const BoxOnScreen report = program.Box();
    EXPECT_EQ(report.Title(), L"Lindrel");
    EXPECT_EQ(report.Text(), L"Futásidejű hiba: 9\r\n\r\nAz index a tartományon kívül esik.");
    EXPECT_EQ(report.Icon(), BoxIcon::Error);
    report.Press(IDOK);
    ExpectSaveQuestion(L"A fájl módosult", IDNO);
    EXPECT_EQ(program.WaitForEnd(), 1);
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
