// Tray mode: the window is hidden and only the icon is there, until it is pressed.

#include <gtest/gtest.h>

#include <utility>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

struct Call {
    DWORD Operation = 0;
    NOTIFYICONDATAA Record{};
};
std::vector<Call> calls;
bool refusing = false;
bool icon_is_there = false;

BOOL WINAPI Record(DWORD operation, NOTIFYICONDATAA* record) {
    calls.push_back({operation, *record});
    if (operation == NIM_ADD) icon_is_there = !refusing;
    if (operation == NIM_DELETE) icon_is_there = false;
    return refusing ? FALSE : TRUE;
}

// Whether the handle is that of an icon that has not been destroyed.
bool IsLive(HICON icon) {
    ICONINFO info{};
    if (!GetIconInfo(icon, &info)) return false;
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return true;
}

// A shell that only writes down, from before the program's start until after its end.
class RecordingShell {
  public:
    RecordingShell() {
        calls.clear();
        refusing = icon_is_there = false;
    }

  private:
    ReplacedImport shell_{&Shell_NotifyIconA, &Record};
};

class frmStartTrayTest : public ::testing::Test {
  protected:
    frmStartTrayTest() {
        program.Add(3, {{L"Egy", L"http://egy.hu"}, {L"Kettő", L"http://ketto.hu"}});
        program.ClickTab(3);
        program.ClickRow(2);
        program.ClickBox(1);
    }

    std::vector<Call> Taken() const {
        std::vector<Call> taken;
        program.OnUi([&](frmStart&) { taken = std::exchange(calls, {}); });
        return taken;
    }
    HWND Control() const { return FindWindowExW(program.Main(), nullptr, L"TrayArea", nullptr); }
    bool IconIsShown() const {
        return program.Ask<bool>([](frmStart&) { return icon_is_there; });
    }
    // As the shell tells it.
    void Mouse(int message) const {
        PostMessageW(Control(), 512, 1, static_cast<LPARAM>(message));
        program.Settle();
    }
    void ExpectInTray() const {
        EXPECT_FALSE(IsWindowVisible(program.Main()));
        EXPECT_TRUE(IconIsShown());
    }
    void ExpectBack() const {
        EXPECT_TRUE(IsWindowVisible(program.Main()));
        EXPECT_FALSE(IconIsShown());
    }
    // What the shell was told when the icon came: its tool tip, then the icon. Its identifier.
    UINT ExpectIconAdded() const {
        const std::vector<Call> taken = Taken();
        EXPECT_EQ(taken.size(), 2u);
        if (taken.size() != 2) return 0;
        EXPECT_EQ(taken[0].Operation, static_cast<DWORD>(NIM_MODIFY));
        EXPECT_EQ(taken[0].Record.uFlags, static_cast<UINT>(NIF_TIP));
        EXPECT_EQ(taken[1].Operation, static_cast<DWORD>(NIM_ADD));
        const NOTIFYICONDATAA& added = taken[1].Record;
        EXPECT_EQ(added.cbSize, static_cast<DWORD>(NOTIFYICONDATAA_V1_SIZE));
        EXPECT_EQ(added.hWnd, Control());
        EXPECT_EQ(added.uFlags, static_cast<UINT>(NIF_MESSAGE | NIF_ICON | NIF_TIP));
        EXPECT_EQ(added.uCallbackMessage, 512u);
        EXPECT_TRUE(IsLive(added.hIcon));
        EXPECT_EQ(std::string(added.szTip, 64), std::string("Lindrel\0", 8) + std::string(56, ' '));
        EXPECT_GE(added.uID, 1u);
        EXPECT_LE(added.uID, 65535u);
        return added.uID;
    }
    void ExpectIconRemoved(UINT identifier) const {
        const std::vector<Call> taken = Taken();
        ASSERT_EQ(taken.size(), 1u);
        EXPECT_EQ(taken[0].Operation, static_cast<DWORD>(NIM_DELETE));
        EXPECT_EQ(taken[0].Record.uID, identifier);
        EXPECT_EQ(taken[0].Record.hWnd, Control());
    }

    RecordingShell shell;
    Program program;
};

TEST_F(frmStartTrayTest, TheWindowStartsShownWithoutAnIcon) {
    ExpectBack();
    EXPECT_TRUE(Taken().empty());
}

TEST_F(frmStartTrayTest, WithoutAnIconTheWindowStays) {
    const MainState before = program.State();
    program.OnUi([](frmStart&) { refusing = true; });
    program.Run(ID_mnuTray);
    ExpectBack();
    EXPECT_EQ(program.State(), before);
    program.OnUi([](frmStart&) { refusing = false; });
    Taken();
    program.Run(ID_mnuTray);
    ExpectInTray();
    ExpectIconAdded();
    Mouse(WM_LBUTTONDOWN);
    ExpectBack();
}

TEST_F(frmStartTrayTest, ANewTaskbarWithoutTheIconBringsTheWindowBack) {
    const MainState before = program.State();
    const UINT created = RegisterWindowMessageW(L"TaskbarCreated");
    program.Run(ID_mnuTray);
    SendMessageW(program.Main(), created, 0, 0);
    ExpectInTray();
    program.OnUi([](frmStart&) { refusing = true; });
    SendMessageW(program.Main(), created, 0, 0);
    ExpectBack();
    EXPECT_EQ(program.State(), before);
    SendMessageW(program.Main(), created, 0, 0);
    ExpectBack();
}

TEST_F(frmStartTrayTest, EitherButtonBringsTheWindowBackAsItWas) {
    const MainState before = program.State();
    RECT place{};
    GetWindowRect(program.Main(), &place);
    for (const int press : {WM_LBUTTONDOWN, WM_RBUTTONDOWN}) {
        program.Run(ID_mnuTray);
        ExpectInTray();
        const UINT identifier = ExpectIconAdded();
        Mouse(press);
        ExpectBack();
        ExpectIconRemoved(identifier);
        EXPECT_EQ(program.State(), before);
        RECT after{};
        GetWindowRect(program.Main(), &after);
        EXPECT_TRUE(EqualRect(&place, &after));
        EXPECT_EQ(GetWindow(program.Main(), GW_OWNER), nullptr);
    }
}

TEST_F(frmStartTrayTest, TheIconComesAgainWithANewIdentifierAndTheSameToolTip) {
    program.Run(ID_mnuTray);
    const UINT first = ExpectIconAdded();
    // Two draws of 65,535 agree once in a long while; ten in a row never.
    bool differs = false;
    for (int i = 0; i < 10; ++i) {
        Mouse(WM_LBUTTONDOWN);
        Taken();
        program.Run(ID_mnuTray);
        differs = ExpectIconAdded() != first || differs;
    }
    EXPECT_TRUE(differs);
    Mouse(WM_LBUTTONDOWN);
}

TEST_F(frmStartTrayTest, MovesReleasesDoubleClicksAndTheMiddleButtonDoNothing) {
    program.Run(ID_mnuTray);
    Taken();
    for (const int message : {WM_MOUSEMOVE, WM_LBUTTONUP, WM_RBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDBLCLK,
                              WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK, WM_MOUSEWHEEL}) {
        Mouse(message);
        ExpectInTray();
        EXPECT_TRUE(Taken().empty()) << message;
    }
    Mouse(WM_LBUTTONDOWN);
    ExpectBack();
}

TEST_F(frmStartTrayTest, AMaximisedWindowComesBackMaximised) {
    program.OnUi([](frmStart& form) { ShowWindow(form.Handle(), SW_MAXIMIZE); });
    program.Settle();
    program.Run(ID_mnuTray);
    ExpectInTray();
    Mouse(WM_RBUTTONDOWN);
    ExpectBack();
    EXPECT_TRUE(IsZoomed(program.Main()));
}

TEST_F(frmStartTrayTest, TheFocusIsNotLost) {
    program.OnUi([this](frmStart&) { SetFocus(program.Control(ID_frmStart_txtFind)); });
    program.Run(ID_mnuTray);
    Mouse(WM_LBUTTONDOWN);
    EXPECT_TRUE(Eventually([this] {
        return program.Ask<HWND>([](frmStart&) { return GetFocus(); }) ==
               program.Control(ID_frmStart_txtFind);
    }));
}

TEST_F(frmStartTrayTest, ANewResolutionGivesTheShownIconANewPicture) {
    program.Run(ID_mnuTray);
    const HICON before = program.Ask<HICON>([](frmStart&) { return calls.back().Record.hIcon; });
    const UINT identifier = ExpectIconAdded();
    program.OnUi([](frmStart& form) {
        RECT place{};
        GetWindowRect(form.Handle(), &place);
        SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&place));
    });
    const std::vector<Call> taken = Taken();
    ASSERT_EQ(taken.size(), 1u);
    EXPECT_EQ(taken[0].Operation, static_cast<DWORD>(NIM_MODIFY));
    EXPECT_EQ(taken[0].Record.uID, identifier);
    EXPECT_EQ(taken[0].Record.uFlags, static_cast<UINT>(NIF_ICON));
    EXPECT_NE(taken[0].Record.hIcon, before);
    EXPECT_TRUE(IsLive(taken[0].Record.hIcon));
    Mouse(WM_LBUTTONDOWN);
}

TEST_F(frmStartTrayTest, ClosingInTheTrayRemovesTheIcon) {
    program.Run(ID_mnuTray);
    const UINT identifier = ExpectIconAdded();
    const HWND control = Control();
    program.Close();
    EXPECT_EQ(program.WaitForEnd(), 0);
    ASSERT_FALSE(calls.empty());  // the program's thread is over
    EXPECT_EQ(calls.back().Operation, static_cast<DWORD>(NIM_DELETE));
    EXPECT_EQ(calls.back().Record.uID, identifier);
    EXPECT_EQ(calls.back().Record.hWnd, control);
}

}  // namespace
}  // namespace lindrel::testing
