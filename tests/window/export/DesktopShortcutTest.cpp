// The shortcut on the desktop, in the folder that the shell names.

#include <gtest/gtest.h>
#include <shlobj.h>

#include <filesystem>
#include <optional>
#include <string>

#include "files/Files.h"
#include "resources/resource.h"
#include "system/Shell.h"
#include "tests/window/export/ExportSession.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// Another desktop folder while an object lives.
class DesktopElsewhere {
  public:
    explicit DesktopElsewhere(const std::wstring& path)
        : before_(ShellFolder(CSIDL_DESKTOPDIRECTORY).value()) {
        Set(path);
    }
    ~DesktopElsewhere() { Set(before_); }
    DesktopElsewhere(const DesktopElsewhere&) = delete;
    DesktopElsewhere& operator=(const DesktopElsewhere&) = delete;

  private:
    static void Set(const std::wstring& path) {
        EXPECT_EQ(
            RegSetKeyValueW(HKEY_CURRENT_USER,
                            L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders",
                            L"Desktop", REG_SZ, path.c_str(),
                            static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
    }
    std::wstring before_;
};

class DesktopShortcutTest : public ::testing::Test {
  protected:
    static constexpr wchar_t kDesktop[] = L"C:\\Asztal";
    static constexpr wchar_t kDesktopWithABlank[] = L"C:\\Asztal ide\\belso";

    DesktopShortcutTest() { EXPECT_EQ(ShellFolder(CSIDL_DESKTOPDIRECTORY), kDesktop); }
    ~DesktopShortcutTest() override {
        std::filesystem::remove_all(kDesktop);
        std::filesystem::remove_all(L"C:\\Asztal ide");
    }

    static std::string ShortcutTo(const std::string& address) {
        return "[InternetShortcut]\r\nURL=" + address;
    }
    // An entry before the one that the shortcut is for, and that one, selected.
    void ShowAndSelect(const std::wstring& name) const {
        program.Add(1, {{L"X", L"http://x.hu"}, {name, L"http://abc.hu"}});
        program.ClickRow(2);
    }
    // The book of ShowAndSelect() as its file would be.
    static std::string BookWith(const std::string& name) {
        std::string bytes = "#Project1\r\nX\r\nhttp://x.hu\r\n" + name + "\r\nhttp://abc.hu\r\n";
        for (int k = 2; k <= 12; ++k) bytes += "#Project" + std::to_string(k) + "\r\n";
        return bytes;
    }

    void AskFor(const std::wstring& name, int answer) const {
        program.Choose(ID_mnuToDesktop);
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), L"Létrehozzam a < " + name + L" > cím parancsikonját az Asztalon ?");
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDOK, IDCANCEL}));
        EXPECT_EQ(box.Icon(), BoxIcon::Question);
        box.Press(answer);
        program.Settle();
    }
    // Asks for a shortcut that cannot be created; of the entry only the name in the book may change.
    void ExpectNotCreated(const std::wstring& name, const std::string& name_afterwards) const {
        ShowAndSelect(name);
        const MainState before = program.State();
        AskFor(name, IDOK);
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text(), L"Nem jött létre a parancsikon");
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
        box.Press(IDOK);
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), before);
        EXPECT_EQ(program.BookBytes(), BookWith(name_afterwards));
    }

    // A desktop of the test's own: that of a Wine user may be a folder that others write to.
    const bool made = std::filesystem::create_directories(kDesktop);
    DesktopElsewhere desktop{kDesktop};
    Program program;
};

TEST_F(DesktopShortcutTest, WritesTheFileAndChangesTheNameInTheBookOnly) {
    ShowAndSelect(L"a:b/c?");
    const MainState before = program.State();
    AskFor(L"a:b/c?", IDOK);
    EXPECT_TRUE(program.NothingIsOpen());  // success says nothing
    EXPECT_EQ(FilesBelow(kDesktop), (Files{{L"a_b_c_.url", ShortcutTo("http://abc.hu")}}));
    EXPECT_EQ(program.State(), before);  // list, fields and Modified show the old name
    EXPECT_EQ(program.BookBytes(), BookWith("a_b_c_"));

    program.OnUi([](frmStart& form) { form.OpenedBook().TheBook.SetSiteURL(2, "http://uj.hu"); });
    AskFor(L"a_b_c_", IDOK);  // the second run overwrites
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(FilesBelow(kDesktop), (Files{{L"a_b_c_.url", ShortcutTo("http://uj.hu")}}));
}

TEST_F(DesktopShortcutTest, TheChangedNameIsShownByTheNextFillAndIsNoChangeOfTheBook) {
    ShowAndSelect(L"\\a:b/c?\\ő");
    MainState expected = program.State();
    AskFor(L"\\a:b/c?\\ő", IDOK);
    EXPECT_EQ(FilesBelow(kDesktop), (Files{{L"_a_b_c__ő.url", ShortcutTo("http://abc.hu")}}));
    EXPECT_EQ(program.State(), expected);
    program.ClickTab(2);
    program.ClickTab(1);
    expected.Rows = {{L"X", L"http://x.hu"}, {L"_a_b_c__ő", L"http://abc.hu"}};
    expected.SelectedRow = 0;
    expected.txtSite = expected.txtURL = expected.Status[0] = L"";
    EXPECT_EQ(program.State(), expected);
    EXPECT_FALSE(expected.Modified);
    EXPECT_EQ(program.BookBytes(), BookWith("_a_b_c__\xF5"));
}

TEST_F(DesktopShortcutTest, CancelWritesNothingAndKeepsTheName) {
    ShowAndSelect(L"a:b/c?");
    const MainState before = program.State();
    AskFor(L"a:b/c?", IDCANCEL);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(FilesBelow(kDesktop), Files{});
    EXPECT_EQ(program.State(), before);
    EXPECT_EQ(program.BookBytes(), BookWith("a:b/c?"));
}

TEST_F(DesktopShortcutTest, ABlankInTheDesktopsPathEndsItEarly) {
    std::filesystem::create_directories(kDesktopWithABlank);
    ShowAndSelect(L"a:b/c?");
    const DesktopElsewhere elsewhere(kDesktopWithABlank);
    ASSERT_EQ(ShellFolder(CSIDL_DESKTOPDIRECTORY), kDesktopWithABlank);
    AskFor(L"a:b/c?", IDOK);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(FilesBelow(kDesktop), (Files{{L"a_b_c_.url", ShortcutTo("http://abc.hu")}}));
    EXPECT_EQ(FilesBelow(kDesktopWithABlank), Files{});
}

TEST_F(DesktopShortcutTest, ADesktopThatTheShellDoesNotKnowIsReportedAndTheNameStays) {
    const DesktopElsewhere elsewhere(L"Q:\\nincs\\ilyen");
    ASSERT_EQ(ShellFolder(CSIDL_DESKTOPDIRECTORY), std::nullopt);
    ExpectNotCreated(L"a:b/c?", "a:b/c?");
    EXPECT_EQ(FilesBelow(kDesktop), Files{});
}

TEST_F(DesktopShortcutTest, ADesktopWhoseShortenedPathIsNotThereIsReportedAfterTheNameHasChanged) {
    std::filesystem::create_directories(kDesktopWithABlank);
    const DesktopElsewhere elsewhere(kDesktopWithABlank);
    ASSERT_TRUE(std::filesystem::remove(kDesktop));
    ASSERT_EQ(ShellFolder(CSIDL_DESKTOPDIRECTORY), kDesktopWithABlank);
    ExpectNotCreated(L"a:b/c?", "a_b_c_");
    EXPECT_FALSE(std::filesystem::exists(kDesktop));
    EXPECT_EQ(FilesBelow(kDesktopWithABlank), Files{});
}

TEST_F(DesktopShortcutTest, AFileThatCannotBeCreatedIsReportedAfterTheNameHasChanged) {
    // The other characters that the shell forbids stay, and no file can have such a name.
    ExpectNotCreated(L"a\\b/c:d?e*f\"g<h>i|j", "a_b_c_d_e*f\"g<h>i|j");
    EXPECT_EQ(FilesBelow(kDesktop), Files{});
}

TEST_F(DesktopShortcutTest, ADeviceIsNoShortcutAndReported) {
    ExpectNotCreated(L"NUL", "NUL");
    EXPECT_EQ(FilesBelow(kDesktop), Files{});
}

TEST_F(DesktopShortcutTest, AFileThatIsInUseIsReportedAndKeepsItsBytes) {
    const std::wstring path = std::wstring(kDesktop) + L"\\a_b_c_.url";
    WriteFileBytes(path, ShortcutTo("http://regi.hu"));
    const HANDLE other =
        CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    ExpectNotCreated(L"a:b/c?", "a_b_c_");
    EXPECT_TRUE(CloseHandle(other));
    EXPECT_EQ(FilesBelow(kDesktop), (Files{{L"a_b_c_.url", ShortcutTo("http://regi.hu")}}));
}

TEST_F(DesktopShortcutTest, NothingHappensWithoutASelectedRow) {
    program.Add(1, {{L"A", L"http://a.hu"}});
    const MainState before = program.State();
    program.Run(ID_mnuToDesktop);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), before);
}

TEST_F(DesktopShortcutTest, TheCommandIsThereForAShownEntryOnly) {
    EXPECT_FALSE(program.CommandEnabled(ID_mnuToDesktop));
    program.Add(1, {{L"A", L"http://a.hu"}});
    EXPECT_TRUE(program.CommandEnabled(ID_mnuToDesktop));
    program.ClickTab(2);
    EXPECT_FALSE(program.CommandEnabled(ID_mnuToDesktop));
}

}  // namespace
}  // namespace lindrel::testing
