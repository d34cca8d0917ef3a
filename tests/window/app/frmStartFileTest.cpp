// The file commands, with real boxes and file dialogs.

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <future>
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
    // What the window shows after Change(), and the file of that book.
    static MainState ChangedState() {
        MainState state = EmptyState();
        state.Rows = {{L"Név", L"http://nev.hu"}};
        state.Status[1] = L"megjelenítve (1 / 1)";
        state.Modified = true;
        return state;
    }
    static std::string ChangedBook() { return OneEntryBook("N\xE9v\r\nhttp://nev.hu\r\n"); }
    static std::string OneEntryBook(const std::string& entry) {
        std::string bytes = "#Project1\r\n" + entry;
        for (int k = 2; k <= 12; ++k) bytes += "#Project" + std::to_string(k) + "\r\n";
        return bytes;
    }
    void ExpectState(const MainState& expected) const {
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), expected);
    }
    void ExpectSaveQuestion(const std::wstring& title, int answer) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Text(), L"Kívánja menteni a módosításokat ?");
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
    }
    void ExpectOverwriteQuestion(const std::wstring& path, int answer) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), L"A " + path + L" már létezik.\r\nFelülírjam a már létező fájlt?");
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

    // What the system asks each window before the session ends. The answer comes with the user's.
    std::future<LRESULT> QueryEndSession() const {
        return std::async(std::launch::async, [window = program.Main()] {
            DWORD_PTR answer = 0;
            const auto deadline =
                static_cast<UINT>(std::chrono::duration_cast<std::chrono::milliseconds>(kDeadline).count());
            if (SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, deadline, &answer) == 0)
                throw DeadlinePassed("the answer to the end of the session");
            return static_cast<LRESULT>(answer);
        });
    }

    TemporaryFolder folder;
    Program program;
};

TEST_F(frmStartFileTest, StartsWithTheEmptyBook) {
    EXPECT_EQ(program.State(), EmptyState());
    EXPECT_EQ(program.BookBytes(), OneEntryBook(""));
    EXPECT_EQ(program.Ask<int>([](frmStart& form) { return form.CurrentCategory; }), 1);
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
    const MainState before = program.State();
    program.Choose(ID_mnuSaveAs);
    ExpectState(before);
}

TEST_F(frmStartFileTest, SavingABookThatWasNeverSavedAsksForAFileAndSetsTheTitle) {
    Change();
    const std::wstring path = folder.File(L"Első könyv.lnd");
    program.Choose(ID_mnuSave);
    const FileDialogOnScreen dialog = program.FileDialog();
    EXPECT_EQ(dialog.Title(), L"File mentése");
    dialog.Accept(path);
    ExpectSavedAs(L"Első könyv.lnd");
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"Első könyv.lnd"});
}

TEST_F(frmStartFileTest, ACancelledSaveOfABookThatWasNeverSavedChangesNothing) {
    Change();
    for (const int command : {ID_mnuSave, ID_mnuSaveAs}) {
        program.Choose(command);
        program.FileDialog().Cancel();
        ExpectState(ChangedState());
    }
}

TEST_F(frmStartFileTest, ANameWithoutAnExtensionIsSavedAsABookFile) {
    Change();
    program.Choose(ID_mnuSave);
    program.FileDialog().Accept(folder.File(L"könyv"));
    ExpectSavedAs(L"könyv.lnd");
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"könyv.lnd"});
}

// Wherever the last file was chosen.
TEST_F(frmStartFileTest, FileDialogsStartInTheProgramsFolderWithBookFiles) {
    wchar_t own[MAX_PATH] = L"";
    ASSERT_NE(GetModuleFileNameW(nullptr, own, MAX_PATH), 0u);
    const std::wstring program_folder = std::filesystem::path(own).parent_path().wstring();
    const auto expect_dialog = [&](int command, const std::wstring& title, const std::wstring& file_name) {
        program.Choose(command);
        const FileDialogOnScreen dialog = program.FileDialog();
        EXPECT_EQ(dialog.Title(), title);
        EXPECT_EQ(dialog.Folder(), program_folder);
        EXPECT_EQ(dialog.Filters(), std::vector<std::wstring>{L"Lindrel fájlok (*.lnd)"});
        EXPECT_EQ(dialog.FileName(), file_name);
        EXPECT_EQ(program.Ask<std::wstring>([](frmStart& form) { return form.CommonDialog1.Filter; }),
                  L"Lindrel fájlok (*.lnd)|*.lnd");
        return dialog;
    };
    const std::wstring path = folder.File(L"könyv.lnd");
    Change();
    expect_dialog(ID_mnuSave, L"File mentése", L"").Accept(path);
    ExpectSaved(path);
    expect_dialog(ID_mnuOpen, L"File megnyitása", L"").Accept(path);
    program.Settle();
    expect_dialog(ID_mnuSaveAs, L"File mentése", L"könyv.lnd").Cancel();
    expect_dialog(ID_mnuOpen, L"File megnyitása", L"").Cancel();
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

TEST_F(frmStartFileTest, SaveAsOntoAnExistingFileOverwritesItAfterYes) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", std::string(5000, '#'));
    program.Choose(ID_mnuSaveAs);
    program.FileDialog().Accept(path);
    ExpectOverwriteQuestion(path, IDYES);
    ExpectSavedAs(L"van.lnd");
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"van.lnd"});
}

TEST_F(frmStartFileTest, SaveAsAfterNoSavesUnderAnotherNameAndLeavesTheRefusedFile) {
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

// Entries in the first, the third and the seventh category.
constexpr char kThreeEntries[] =
    "#H\xEDrek\r\nA\r\nhttp://a.hu\r\n#2\r\n#3\r\nC\r\nhttp://c.hu\r\n#4\r\n#5\r\n#6\r\n#7\r\nG\r\n"
    "http://g.hu\r\n#8\r\n#9\r\n#10\r\n#11\r\n#12\r\n";

TEST_F(frmStartFileTest, OpenShowsTheCategoryOfTheSelectedTabAndForgetsAllCheckMarks) {
    program.Add(1, {{L"Régi", L"http://regi.hu"}});
    program.Add(7, {{L"Hetedik", L"http://het.hu"}, {L"Másik", L"http://masik.hu"}});
    program.ClickBox(1);
    program.ClickTab(7);
    program.ClickRow(2);
    program.ClickBox(1);
    const std::wstring path = folder.Write(L"három.lnd", kThreeEntries);
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    MainState expected;
    expected.Title = L"Lindrel -három.lnd";
    expected.Tabs = {L"Hírek", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10", L"11", L"12"};
    expected.SelectedTab = 7;
    expected.Rows = {{L"G", L"http://g.hu"}};
    expected.Status[1] = L"megjelenítve (1 / 3)";
    expected.Status[2] = L"bejelölve 0";
    expected.OpenedFile = path;
    ExpectState(expected);
    EXPECT_EQ(program.Ask<int>([](frmStart& form) { return form.CurrentCategory; }), 7);
    EXPECT_EQ(program.BookBytes(), kThreeEntries);
    EXPECT_TRUE(program.CommandEnabled(ID_mnuToDesktop));

    program.ClickTab(1);
    expected.SelectedTab = 1;
    expected.Rows = {{L"A", L"http://a.hu"}};
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(8);
    program.Choose(ID_mnuClose);  // leaves the tab as well
    expected = EmptyState();
    expected.SelectedTab = 8;
    ExpectState(expected);
    EXPECT_FALSE(program.CommandEnabled(ID_mnuToDesktop));
    EXPECT_EQ(program.BookBytes(), OneEntryBook(""));
}

TEST_F(frmStartFileTest, AMalformedFileIsReportedWithItsLineAndLeavesTheOpenBook) {
    Change();
    program.OnUi([](frmStart& form) { form.Modified = false; });
    MainState expected = ChangedState();
    expected.Modified = false;
    // Too short a file, and one with five lines of entries: half of them is taken for two entries.
    const std::string too_many = ChangedBook() + "B\r\nhttp://b.hu\r\nC\r\n";
    const std::pair<std::string, std::wstring> malformed[] = {
        {"#a\r\n", L"A fájl túl rövid: tizenkét kategória sem fér bele."},
        {too_many, L"A fájlban több cím van, mint amennyi a sorok számából következik.\r\n(17. sor)"},
    };
    for (const auto& [bytes, text] : malformed) {
        program.Choose(ID_mnuOpen);
        program.FileDialog().Accept(folder.Write(L"rossz.lnd", bytes));
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba a beolvasásnál");
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::Error);
        box.Press(IDOK);
        ExpectState(expected);
        EXPECT_EQ(program.BookBytes(), ChangedBook());
    }
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
    std::future<LRESULT> end_of_session = QueryEndSession();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    expect_failure();
    EXPECT_EQ(end_of_session.get(), FALSE);
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

TEST_F(frmStartFileTest, ABookThatCannotBeWrittenOutIsKeptAndTheCommandCalledOff) {
    for (int i = 0; i < 5; ++i) Change(11);
    program.OnUi([](frmStart& form) { form.Modified = false; });
    const std::wstring path = folder.Write(L"kevés.lnd", kElevenHeaders);
    program.Choose(ID_mnuOpen);
    program.FileDialog().Accept(path);
    program.Box().Press(IDOK);
    program.Settle();
    program.OnUi([](frmStart& form) { form.Modified = true; });
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
    ExpectState(ChangedState());
    program.Choose(ID_mnuExit);
    ExpectSaveQuestion(L"A fájl módosult", IDCANCEL);
    ExpectState(ChangedState());
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDNO);
    EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(frmStartFileTest, ClosingWithYesSavesUnderAChosenNameAndEndsTheProgram) {
    Change();
    const std::wstring path = folder.File(L"vége.lnd");
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    program.FileDialog().Accept(path);
    ExpectSaved(path);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(frmStartFileTest, ClosingWithYesSavesInTheBooksOwnFileWithoutADialog) {
    Change();
    const std::wstring path = folder.Write(L"van.lnd", "régi");
    program.OnUi([&](frmStart& form) { form.OpenedFile = path; });
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    ExpectSaved(path);
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(TemporaryFolder::Read(path), ChangedBook());
}

TEST_F(frmStartFileTest, ClosingWithYesAndACancelledSaveDialogLosesTheChangesAndEndsTheProgram) {
    Change();
    program.Close();
    ExpectSaveQuestion(L"A fájl módosult", IDYES);
    program.FileDialog().Cancel();
    EXPECT_EQ(program.WaitForEnd(), 0);
    EXPECT_EQ(folder.Names(), std::vector<std::wstring>{});
}

TEST_F(frmStartFileTest, TheEndOfTheSessionWaitsForTheAnswerAndLeavesTheWindow) {
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
