// Which addresses are opened at once, and which only after a question.

#include "system/Shell.h"

#include <gtest/gtest.h>
#include <shellapi.h>
#include <shlwapi.h>

#include <filesystem>
#include <optional>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

using Texts = std::vector<std::wstring>;

Texts opened;
Texts asked_about;

HINSTANCE WINAPI RecordOpening(HWND, LPCWSTR verb, LPCWSTR address, LPCWSTR arguments, LPCWSTR folder,
                               INT show) {
    const bool plain = verb == nullptr && arguments == nullptr && folder == nullptr && show == SW_SHOWNORMAL;
    opened.push_back((plain ? L"" : L"not as it was: ") + std::wstring(address));
    return reinterpret_cast<HINSTANCE>(INT_PTR{42});
}

BOOL WINAPI DeemXyzDangerous(LPCWSTR extension) {
    asked_about.emplace_back(extension);
    return asked_about.back() == L".xyz";
}

class ShellTest : public ::testing::Test {
  protected:
    ShellTest() {
        opened.clear();
        asked_about.clear();
    }
    // Chooses the command that opens the address of an entry; it may open a box.
    void Open(const std::wstring& address) const {
        program.OnUi([&](frmStart& form) { form.OpenedBook().TheBook.Reset(); });
        program.Add(1, {{L"név", address}});
        program.ClickRow(1);
        program.Choose(ID_mnuGoto);
    }
    static std::wstring Question(const std::wstring& address) {
        return L"Ez a cím programot is elindíthat:\r\n\r\n" + address + L"\r\n\r\nBiztosan megnyitja?";
    }
    // The question about an address.
    BoxOnScreen ExpectQuestion(const std::wstring& address) const {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Lindrel");
        EXPECT_EQ(box.Text(), Question(address));
        EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO}));
        EXPECT_EQ(box.Icon(), BoxIcon::Exclamation);
        EXPECT_EQ(DialogOnScreen(box.Handle()).Focus(), IDNO);
        return box;
    }

    Program program;
    std::optional<ReplacedImport> shell_{std::in_place, &ShellExecuteW, &RecordOpening};
    const ReplacedImport windows_{&AssocIsDangerous, &DeemXyzDangerous};
};

TEST_F(ShellTest, WebAddressesAndDocumentsOpenAtOnce) {
    for (const wchar_t* const address : {L"http://pelda.hu/a.exe?b=\"c d\"", L"mailto:nev@pelda.hu",
                                         L" www.pelda.hu ", L"C:\\Képek\\ő.jpg", L"file:///C:/a%20b.html"}) {
        Open(address);
        program.Settle();
    }
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(opened, (Texts{L"http://pelda.hu/a.exe?b=%22c d%22", L"mailto:nev@pelda.hu",
                             L"http://www.pelda.hu", L"C:\\Képek\\ő.jpg", L"file:///C:/a%20b.html"}));
    EXPECT_EQ(asked_about, (Texts{L".jpg", L".html"}));
}

TEST_F(ShellTest, WhatMayStartAProgramIsAskedAboutFirst) {
    for (const wchar_t* const address : {L"C:\\Windows\\notepad.EXE", L"calc", L"\\\\gép\\mappa\\a.txt",
                                         L"javascript:alert(1)", L"&Űr\\a.bat"}) {
        const Texts before = opened;
        Open(address);
        const BoxOnScreen refused = ExpectQuestion(address);
        EXPECT_EQ(GetWindow(refused.Handle(), GW_OWNER), program.Main());
        EXPECT_FALSE(IsWindowEnabled(program.Main()));
        refused.Press(IDNO);
        program.Settle();
        EXPECT_EQ(opened, before);

        Open(address);
        ExpectQuestion(address).Press(IDYES);
        program.Settle();
        ASSERT_FALSE(opened.empty());
        EXPECT_EQ(opened.back(), address);
    }
    EXPECT_EQ(opened.size(), 5u);
}

TEST_F(ShellTest, WhatWindowsDeemsDangerousIsAskedAboutToo) {
    Open(L"C:\\Mappa.abc\\Egy.XYZ");
    ExpectQuestion(L"C:\\Mappa.abc\\Egy.XYZ").Press(IDNO);
    program.Settle();
    EXPECT_EQ(opened, Texts{});
    EXPECT_EQ(asked_about, Texts{L".xyz"});
}

TEST_F(ShellTest, TheResultIsTheShellsOrARefusal) {
    INT_PTR result = 0;
    program.OnUi([&](frmStart& form) { result = OpenAddress(form.Handle(), L"http://pelda.hu"); });
    EXPECT_EQ(result, 42);
    std::thread refusing(
        [&] { program.OnUi([&](frmStart& form) { result = OpenAddress(form.Handle(), L"x.exe"); }); });
    program.Box().Press(IDNO);
    refusing.join();
    EXPECT_EQ(result, SE_ERR_ACCESSDENIED);
}

TEST_F(ShellTest, ALongAddressIsShownInLinesThatFitOnTheScreen) {
    const std::wstring line(80, L'W');
    std::wstring address;
    std::wstring shown;
    for (int i = 0; i < 20; ++i) {
        address += line;
        shown += (i == 0 ? L"" : L"\r\n") + line;
    }
    Open(address);
    const BoxOnScreen whole = ExpectQuestion(shown);
    const auto expect_on_screen = [](const BoxOnScreen& box) {
        RECT bounds{};
        RECT area{};
        ASSERT_TRUE(GetWindowRect(box.Handle(), &bounds));
        ASSERT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0));
        RECT both{};
        EXPECT_TRUE(UnionRect(&both, &bounds, &area) && EqualRect(&both, &area));
    };
    expect_on_screen(whole);
    whole.Press(IDNO);

    // Longer ones lose their middle.
    address = std::wstring(2, L'<') + address + std::wstring(100'000, L' ') + address + L"\\x.exe";
    Open(address);
    const BoxOnScreen cut = program.Box();
    expect_on_screen(cut);
    std::wstring beginning = L"<<" + line.substr(2);
    for (int i = 1; i < 10; ++i) beginning += L"\r\n" + line;
    std::wstring end;
    for (int i = 1; i < 10; ++i) end += line + L"\r\n";
    end += line.substr(6) + L"\\x.exe";
    EXPECT_EQ(cut.Text(), Question(beginning + L"\r\n\u2026\r\n" + end));
    cut.Press(IDYES);
    program.Settle();
    EXPECT_EQ(opened, Texts{address});
}

// The real shell, which finds programs in the current folder and in those of PATH.
TEST_F(ShellTest, AWebAddressNeverStartsAProgramOfItsName) {
    shell_.reset();
    const RecordedShell shell;
    const TemporaryFolder folder;
    const std::filesystem::path named = folder.File(L"www.x.com");
    std::filesystem::copy_file(RecordedShell::Recorder(), named);
    const auto expect_browser = [&] {
        Open(L"www.x.com");
        EXPECT_EQ(shell.NextAddress(), L"http://www.x.com");
        EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"www.x.com"});  // it would write a file there
    };
    const std::filesystem::path current = std::filesystem::current_path();
    std::filesystem::current_path(named.parent_path());
    expect_browser();
    std::filesystem::current_path(current);

    const std::wstring path = _wgetenv(L"PATH");
    ASSERT_TRUE(SetEnvironmentVariableW(L"PATH", (named.parent_path().wstring() + L";" + path).c_str()));
    expect_browser();
    ASSERT_TRUE(SetEnvironmentVariableW(L"PATH", path.c_str()));
}

}  // namespace
}  // namespace lindrel::testing
