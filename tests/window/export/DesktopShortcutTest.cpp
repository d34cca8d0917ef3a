// The shortcut on the desktop, in the real desktop folder.

#include <gtest/gtest.h>
#include <shlobj.h>

#include <filesystem>

#include "controls/Shell.h"
#include "export/Shortcut.h"
#include "resources/resource.h"
#include "tests/window/support/Program.h"

namespace lindrel::testing {
namespace {

// Another desktop folder for the time of a test.
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
    ~DesktopShortcutTest() override {
        std::error_code error;
        std::filesystem::remove(File(L"a_b_c_.url"), error);
        EXPECT_FALSE(error);
    }
    static std::wstring File(const std::wstring& name) {
        return DesktopPath(ShellFolder(CSIDL_DESKTOPDIRECTORY).value()) + L"\\" + name;
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

    Program program;
};

TEST_F(DesktopShortcutTest, WritesTheFileAndChangesTheNameInTheBookOnly) {
    program.Add(1, {{L"X", L"http://x.hu"}, {L"a:b/c?", L"http://abc.hu"}});
    program.ClickRow(2);
    const MainState before = program.State();
    AskFor(L"a:b/c?", IDOK);
    EXPECT_TRUE(program.NothingIsOpen());  // success says nothing
    EXPECT_EQ(TemporaryFolder::Read(File(L"a_b_c_.url")), "[InternetShortcut]\r\nURL=http://abc.hu");
    EXPECT_EQ(program.State(), before);  // list, fields and Modified show the old name
    EXPECT_EQ(program.Ask<std::string>([](frmStart& form) { return std::string(form.TheBook.SiteNames(2)); }),
              "a_b_c_");

    program.OnUi([](frmStart& form) { form.TheBook.SetSiteURL(2, "http://uj.hu"); });
    AskFor(L"a_b_c_", IDOK);  // the second run overwrites
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(TemporaryFolder::Read(File(L"a_b_c_.url")), "[InternetShortcut]\r\nURL=http://uj.hu");
}

TEST_F(DesktopShortcutTest, CancelWritesNothingAndKeepsTheName) {
    program.Add(1, {{L"a:b/c?", L"http://abc.hu"}});
    program.ClickRow(1);
    AskFor(L"a:b/c?", IDCANCEL);
    EXPECT_FALSE(std::filesystem::exists(File(L"a_b_c_.url")));
    EXPECT_EQ(program.Ask<std::string>([](frmStart& form) { return std::string(form.TheBook.SiteNames(1)); }),
              "a:b/c?");
}

TEST_F(DesktopShortcutTest, ABlankInTheDesktopsPathEndsItEarly) {
    std::filesystem::create_directories(L"C:\\Asztal");
    std::filesystem::create_directories(L"C:\\Asztal ide\\belso");
    program.Add(1, {{L"a:b/c?", L"http://abc.hu"}});
    program.ClickRow(1);
    {
        const DesktopElsewhere elsewhere(L"C:\\Asztal ide\\belso");
        ASSERT_EQ(ShellFolder(CSIDL_DESKTOPDIRECTORY), L"C:\\Asztal ide\\belso");
        AskFor(L"a:b/c?", IDOK);
    }
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(TemporaryFolder::Read(L"C:\\ASZTAL\\a_b_c_.url"), "[InternetShortcut]\r\nURL=http://abc.hu");
    std::filesystem::remove_all(L"C:\\Asztal");
    std::filesystem::remove_all(L"C:\\Asztal ide");
}

TEST_F(DesktopShortcutTest, ADesktopThatIsNotThereIsReported) {
    program.Add(1, {{L"a:b/c?", L"http://abc.hu"}});
    program.ClickRow(1);
    const DesktopElsewhere elsewhere(L"Q:\\nincs\\ilyen");
    AskFor(L"a:b/c?", IDOK);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba");
    EXPECT_EQ(box.Text(), L"Nem jött létre a parancsikon");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
    EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
    box.Press(IDOK);
    program.Settle();
}

TEST_F(DesktopShortcutTest, AFileThatCannotBeCreatedIsReported) {
    program.Add(1, {{L"csillag*", L"http://abc.hu"}});
    program.ClickRow(1);
    const MainState before = program.State();
    AskFor(L"csillag*", IDOK);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba");
    EXPECT_EQ(box.Text(), L"Nem jött létre a parancsikon");
    EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
    box.Press(IDOK);
    program.Settle();
    EXPECT_EQ(program.State(), before);
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
