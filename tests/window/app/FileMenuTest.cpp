// Opening a book, a new one and closing it, with real boxes and file dialogs.

#include <filesystem>

#include "system/FileDialog.h"
#include "system/Shell.h"
#include "tests/window/app/FileSession.h"

namespace lindrel::testing {
namespace {

class FileMenuTest : public FileSession {};

TEST_F(FileMenuTest, StartsWithTheEmptyBook) {
    EXPECT_EQ(program.State(), EmptyState());
    EXPECT_EQ(program.BookBytes(), OneEntryBook(""));
    EXPECT_EQ(program.Ask<int>([](frmStart& form) { return form.OpenedBook().CurrentCategory; }), 1);
    EXPECT_FALSE(program.CommandEnabled(ID_mnuToDesktop));
}

// Wherever the last file was.
TEST_F(FileMenuTest, FileDialogsStartInTheProgramsFolderWithBookFiles) {
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

TEST_F(FileMenuTest, SavesAndOpensAgain) {
    Change();
    const std::wstring path = folder.File(L"m\x171sor.lnd");
    ChooseWithFile(ID_mnuSaveAs, path);
    ExpectSaved(path);
    program.Settle();
    const MainState saved = program.State();
    EXPECT_EQ(saved.Title, L"Lindrel -műsor.lnd");
    EXPECT_EQ(saved.OpenedFile, path);
    EXPECT_FALSE(saved.Modified);

    program.Run(ID_mnuClose);
    EXPECT_EQ(program.State().Title, L"Lindrel ");
    ChooseWithFile(ID_mnuOpen, path);
    ExpectState(saved);
}

TEST_F(FileMenuTest, OpenWithChangesAndYesSavesAndOpensNothing) {
    Change();
    ChooseAndAnswer(ID_mnuOpen, IDYES);
    const std::wstring path = folder.File(L"a.lnd");
    program.FileDialog().Accept(path);
    ExpectSaved(path);
    MainState expected = ChangedState();  // the save step leaves the title
    expected.OpenedFile = path;
    expected.Modified = false;
    ExpectState(expected);
}

TEST_F(FileMenuTest, NewWithYesAndACancelledSaveDialogLosesTheChanges) {
    Change();
    ChooseAndAnswer(ID_mnuNew, IDYES);
    program.FileDialog().Cancel();
    ExpectState(EmptyState());
}

// Entries in the first, the third and the seventh category.
constexpr char kThreeEntries[] =
    "#H\xEDrek\r\nA\r\nhttp://a.hu\r\n#2\r\n#3\r\nC\r\nhttp://c.hu\r\n#4\r\n#5\r\n#6\r\n#7\r\nG\r\n"
    "http://g.hu\r\n#8\r\n#9\r\n#10\r\n#11\r\n#12\r\n";

TEST_F(FileMenuTest, OpenShowsTheCategoryOfTheSelectedTabAndForgetsAllCheckMarks) {
    program.Add(1, {{L"Régi", L"http://regi.hu"}});
    program.Add(7, {{L"Hetedik", L"http://het.hu"}, {L"Másik", L"http://masik.hu"}});
    program.ClickBox(1);
    program.ClickTab(7);
    program.ClickRow(2);
    program.ClickBox(1);
    const std::wstring path = folder.Write(L"három.lnd", kThreeEntries);
    ChooseWithFile(ID_mnuOpen, path);
    MainState expected;
    expected.Title = L"Lindrel -három.lnd";
    expected.Tabs = {L"Hírek", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10", L"11", L"12"};
    expected.SelectedTab = 7;
    expected.Rows = {{L"G", L"http://g.hu"}};
    expected.Status[1] = L"megjelenítve (1 / 3)";
    expected.Status[2] = L"bejelölve 0";
    expected.OpenedFile = path;
    ExpectState(expected);
    EXPECT_EQ(program.Ask<int>([](frmStart& form) { return form.OpenedBook().CurrentCategory; }), 7);
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

TEST_F(FileMenuTest, AMalformedFileIsReportedWithItsLineAndLeavesTheOpenBook) {
    Change();
    SetModified(false);
    MainState expected = ChangedState();
    expected.Modified = false;
    // Too short a file, and one with five lines of entries: half of them is taken for two entries.
    const std::string too_many = ChangedBook() + "B\r\nhttp://b.hu\r\nC\r\n";
    const std::pair<std::string, std::wstring> malformed[] = {
        {"#a\r\n", L"A fájl túl rövid: tizenkét kategória sem fér bele."},
        {too_many, L"A fájlban több cím van, mint amennyi a sorok számából következik.\r\n(17. sor)"},
    };
    for (const auto& [bytes, text] : malformed) {
        ChooseWithFile(ID_mnuOpen, folder.Write(L"rossz.lnd", bytes));
        ExpectBox(program, {L"Hiba a beolvasásnál", text, BoxIcon::Error});
        ExpectState(expected);
        EXPECT_EQ(program.BookBytes(), ChangedBook());
    }
}

TEST_F(FileMenuTest, AMissingFileIsReportedAndTheOpenDialogComesBack) {
    const MainState before = program.State();
    program.Choose(ID_mnuOpen);
    for (int attempt = 0; attempt < 2; ++attempt) {
        program.FileDialog().TypeAndPressOk(folder.File(L"nincs.lnd"));
        ExpectBox(program, {L"Hiba", L"A megadott fájl nem létezik"});
    }
    program.FileDialog().Cancel();
    ExpectState(before);
}

TEST_F(FileMenuTest, FileExistsRefusesAnEmptyPathAndAcceptsAPatternThatMatches) {
    std::future<bool> exists = std::async(std::launch::async, [this] {
        return program.Ask<bool>([](frmStart& form) { return FileExists(form.Handle(), L""); });
    });
    ExpectBox(program, {L"Hiba", L"A megadott fájl nem létezik"});
    EXPECT_FALSE(exists.get());
    folder.Write(L"van.lnd", "");
    EXPECT_TRUE(program.Ask<bool>(
        [this](frmStart& form) { return FileExists(form.Handle(), folder.File(L"v?n.*")); }));
}

TEST_F(FileMenuTest, NewAndCloseForgetTheBookOnNoAndKeepItOnCancel) {
    for (const int command : {ID_mnuNew, ID_mnuClose}) {
        Change();
        ChooseAndAnswer(command, IDCANCEL);
        ExpectState(ChangedState());
        ChooseAndAnswer(command, IDNO);
        ExpectState(EmptyState());
    }
}

TEST_F(FileMenuTest, OpenWithChangesGoesOnAfterNoAndStopsAfterCancel) {
    Change();
    ChooseAndAnswer(ID_mnuOpen, IDCANCEL);
    ExpectState(ChangedState());
    ChooseAndAnswer(ID_mnuOpen, IDNO);
    program.FileDialog().Cancel();
    ExpectState(ChangedState());
}

TEST_F(FileMenuTest, AFileWithTooFewCategoriesIsLoadedWithAMessage) {
    Change();
    ChooseAndAnswer(ID_mnuOpen, IDNO);
    const std::wstring path = folder.Write(L"kevés.lnd", kElevenHeaders);
    program.FileDialog().Accept(path);
    ExpectBox(program,
              {L"Hiba a beolvasásnál", L"Nem sikerült beolvasni az összes kategóriát", BoxIcon::Error});
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

}  // namespace
}  // namespace lindrel::testing
