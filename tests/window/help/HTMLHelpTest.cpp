// The help command and the call of the help viewer.

#include "help/HTMLHelp.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <ostream>
#include <string_view>

#include "files/Files.h"
#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/RecordedShell.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

struct ViewerCall {
    HWND Owner;
    std::wstring File;
    UINT Command;
    DWORD_PTR Data;
    bool operator==(const ViewerCall&) const = default;
};

void PrintTo(const ViewerCall& call, std::ostream* out) {
    *out << call.Owner << " " << ::testing::PrintToString(call.File) << " " << call.Command << " "
         << call.Data;
}

// With a recorder in place of the viewer. The program's folder has no help file but that of a test.
class HTMLHelpTest : public ::testing::Test {
  protected:
    HTMLHelpTest() {
        calls.clear();
        system_look_up = &GetProcAddress;
        look_up_.emplace(&GetProcAddress, &LookUp);
        RemoveHelpFile();
    }
    ~HTMLHelpTest() override { RemoveHelpFile(); }

    // Without the functions that are tested.
    static std::wstring InProgramFolder() {
        wchar_t program[MAX_PATH] = L"";
        const DWORD length = GetModuleFileNameW(nullptr, program, MAX_PATH);
        if (length == 0 || length == MAX_PATH) throw std::runtime_error("the program's path");
        return std::filesystem::path(program).replace_filename(L"lnd.chm").wstring();
    }
    static void RemoveHelpFile() { std::filesystem::remove_all(InProgramFolder()); }
    static void PutHelpFile() { WriteFileBytes(InProgramFolder(), ""); }
    static void ExpectMissingFileMessage(const Program& program) {
        const BoxOnScreen box = program.Box();
        EXPECT_EQ(box.Title(), L"Hiba");
        EXPECT_EQ(box.Text(), L"Nem találom az lnd.chm fájlt");
        EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
        EXPECT_EQ(box.Icon(), BoxIcon::None);
        box.Press(IDOK);
        program.Settle();
        EXPECT_TRUE(program.NothingIsOpen());
        EXPECT_EQ(program.State(), EmptyState());
        EXPECT_EQ(calls, std::vector<ViewerCall>{});
    }
    static ViewerCall ContentsOf(const std::wstring& file) { return {nullptr, file, 1, 0}; }
    static ViewerCall CloseAll() { return {nullptr, L"", 18, 0}; }

    // Made on the program's thread; to be read when it has settled.
    static inline std::vector<ViewerCall> calls;

  private:
    static HWND WINAPI Record(HWND owner, const wchar_t* file, UINT command, DWORD_PTR data) {
        calls.push_back({owner, file != nullptr ? file : L"", command, data});
        return nullptr;
    }
    static FARPROC WINAPI LookUp(HMODULE library, const char* name) {
        if (!IS_INTRESOURCE(name) && std::string_view(name) == "HtmlHelpW")
            return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&Record));
        return system_look_up(library, name);
    }
    static inline FARPROC(WINAPI* system_look_up)(HMODULE library, const char* name);
    std::optional<ReplacedImport> look_up_;
};

TEST_F(HTMLHelpTest, TheHelpFileOfKindOneIsInTheProgramsFolder) {
    EXPECT_EQ(HelpFilePath(1), InProgramFolder());
    for (const int kind : {0, 2, -1, 32767, -32768})
        EXPECT_EQ(HelpFilePath(static_cast<std::int16_t>(kind)), L"") << kind;
}

TEST_F(HTMLHelpTest, ShowHelpAsksForTheContentsInTheNamedWindow) {
    ShowHelp(1, L"main");
    ShowHelp(1, L"");
    ShowHelp(2, L"más");
    EXPECT_EQ(calls, (std::vector{ContentsOf(InProgramFolder() + L">main"),
                                  ContentsOf(InProgramFolder() + L">"), ContentsOf(L">más")}));
}

TEST_F(HTMLHelpTest, WithoutTheFileF1AndTheMenuItemShowTheMessage) {
    const Program program;
    program.PressKey(program.Control(ID_frmStart_ListURLs), VK_F1);
    ExpectMissingFileMessage(program);
    program.Choose(ID_mnuHelp);
    ExpectMissingFileMessage(program);
    // A folder of that name is no help file.
    ASSERT_TRUE(CreateDirectoryW(InProgramFolder().c_str(), nullptr));
    program.Choose(ID_mnuHelp);
    ExpectMissingFileMessage(program);
}

TEST_F(HTMLHelpTest, F1AndTheMenuItemOpenTheContentsInTheMainWindowType) {
    PutHelpFile();
    const Program program;
    program.PressKey(program.Control(ID_frmStart_txtSite), VK_F1);
    program.Settle();
    const ViewerCall contents = ContentsOf(InProgramFolder() + L">main");
    EXPECT_EQ(calls, std::vector{contents});
    program.Run(ID_mnuHelp);
    EXPECT_EQ(calls, (std::vector{contents, contents}));
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), EmptyState());
}

TEST_F(HTMLHelpTest, HelpThatWasShownIsClosedOnce) {
    CloseHelp();  // what earlier tests have shown
    calls.clear();
    CloseHelp();
    EXPECT_EQ(calls, std::vector<ViewerCall>{});
    ShowHelp(1, L"main");
    ShowHelp(1, L"main");
    calls.clear();
    CloseHelp();
    CloseHelp();
    EXPECT_EQ(calls, std::vector{CloseAll()});
}

TEST_F(HTMLHelpTest, TheEndOfTheProgramClosesTheHelpThatItHasShown) {
    CloseHelp();
    PutHelpFile();
    for (const bool showing : {false, true}) {
        calls.clear();
        Program program;
        if (showing) program.Run(ID_mnuHelp);
        calls.clear();
        program.Close();
        EXPECT_EQ(program.WaitForEnd(), 0);
        EXPECT_EQ(calls, showing ? std::vector{CloseAll()} : std::vector<ViewerCall>{});
    }
}

TEST_F(HTMLHelpTest, TheEndOfTheSessionClosesTheHelpEvenWithADialogOpen) {
    PutHelpFile();
    const Program program;
    program.Run(ID_mnuHelp);
    program.Choose(ID_mnuAbout);
    const DialogOnScreen about = program.Dialog(L"Lindrel névjegye");
    calls.clear();
    SendMessageW(program.Main(), WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(calls, std::vector<ViewerCall>{});
    SendMessageW(program.Main(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(calls, std::vector{CloseAll()});
    about.Cancel();
}

TEST_F(HTMLHelpTest, TheHomePageOpensInTheBrowser) {
    const RecordedShell shell;
    const Program program;
    program.Run(ID_mnuGoHome);
    EXPECT_EQ(shell.NextAddress(), L"https://lindrel.example/");
    EXPECT_EQ(shell.Addresses().size(), 1u);
    EXPECT_TRUE(program.NothingIsOpen());
    EXPECT_EQ(program.State(), EmptyState());
}

}  // namespace
}  // namespace lindrel::testing
