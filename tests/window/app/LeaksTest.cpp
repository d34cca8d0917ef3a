// However often something is done, it leaves no windows, icons, handles and the like.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "resources/resource.h"
#include "tests/support/Times.h"
#include "tests/window/support/OtherScreen.h"
#include "tests/window/support/SystemObjects.h"

namespace lindrel::testing {
namespace {

// Does something a few times, which fills the system's caches, then again and again.
void ExpectNothingLeft(const std::function<void(int times)>& repeat, int times = Times(200, 12)) {
    repeat(10);
    const SystemObjects before = CountSystemObjects();
    repeat(times);
    SystemObjects after = CountSystemObjects();
    // The system keeps some device contexts and pictures for later, but a leak grows each time.
    EXPECT_LT(after.GdiObjects - before.GdiObjects, times / 2);
    after.GdiObjects = before.GdiObjects;
    EXPECT_EQ(after, before);
}

std::function<void(int)> Repeating(const std::function<void()>& once) {
    return [once](int times) {
        for (int time = 0; time < times; ++time) once();
    };
}

int dialogs_left = 0;

// Leaves the dialog or box in front as soon as the program has nothing else to do.
void CALLBACK LeaveDialog(HWND, UINT, UINT_PTR, DWORD) {
    for (const HWND window : WindowsOf(GetCurrentThreadId()))
        if (ClassOf(window) == L"#32770" && IsWindowEnabled(window)) {
            ++dialogs_left;
            PostMessageW(window, WM_CLOSE, 0, 0);
        }
}

class LeaksTest : public ::testing::Test {
  protected:
    // Runs a command that opens a dialog or a box, and leaves that, again and again. All of it in the
    // program's thread, which is many times faster.
    void ExpectDialogLeavesNothing(HWND window, int command) const {
        ExpectNothingLeft([&](int times) {
            dialogs_left = 0;
            program.OnUi([&](frmStart&) {
                const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &LeaveDialog);
                for (int time = 0; time < times; ++time)
                    SendMessageW(window, WM_COMMAND, static_cast<WPARAM>(command), 0);
                KillTimer(nullptr, timer);
            });
            EXPECT_GE(dialogs_left, times);
            program.Settle();
        });
    }

    Program program;
};

TEST_F(LeaksTest, EveryKindOfObjectIsCounted) {
    // With its first window a thread gets a second one, which belongs to the system.
    DestroyWindow(CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
    SystemObjects expected = CountSystemObjects();
    const HWND window =
        CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    const HMENU menu = CreateMenu();
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    expected.Windows += 1;
    expected.Menus += 1;
    expected.GdiObjects += 1;
    expected.Handles += 1;
    EXPECT_EQ(CountSystemObjects(), expected);
    DestroyWindow(window);
    DestroyMenu(menu);
    DeleteObject(brush);
    CloseHandle(event);

    const HICON icon = CopyIcon(LoadIconW(nullptr, IDI_QUESTION));
    const SystemObjects with_icon = CountSystemObjects();
    DestroyIcon(icon);
    const SystemObjects without_icon = CountSystemObjects();
    EXPECT_EQ(without_icon.Icons, with_icon.Icons - 1);
    EXPECT_LT(without_icon.GdiObjects, with_icon.GdiObjects);
}

TEST_F(LeaksTest, DialogsLeaveNothing) {
    program.Add(1, {{L"A", L"http://a.hu"}, {L"B", L"http://b.hu"}});
    program.ClickBox(2);
    for (const int command : {ID_mnuKat, ID_mnuAdd, ID_mnuEdit, ID_mnuFind, ID_mnuMove, ID_mnuImport,
                              ID_mnuExport, ID_mnuAbout}) {
        SCOPED_TRACE(command);
        program.ClickRow(1);
        ExpectDialogLeavesNothing(program.Main(), command);
    }
}

TEST_F(LeaksTest, MessageBoxesLeaveNothing) {
    program.Add(1, {{L"A", L"http://a.hu"}});
    program.ClickRow(1);
    ExpectDialogLeavesNothing(program.Main(), ID_mnuDel);
}

TEST_F(LeaksTest, ChoicesOfAFolderLeaveNothing) {
    program.Choose(ID_mnuImport);
    const DialogOnScreen dialog = program.Dialog(L"Importálás");
    dialog.Click(ID_frmImport_from_1);
    program.Settle();
    ExpectDialogLeavesNothing(dialog.Handle(), ID_frmImport_cmdOK);
    dialog.Cancel();
}

TEST_F(LeaksTest, MenusThatPopUpLeaveNothing) {
    program.Choose(ID_mnuImport);
    const DialogOnScreen dialog = program.Dialog(L"Importálás");
    ExpectNothingLeft(Repeating([&] {
        dialog.Click(ID_frmImport_Label2);
        WaitUntil("the menu", [&] { return PoppedUpMenu(program.Thread()) != nullptr; });
        PostMessageW(PoppedUpMenu(program.Thread()), WM_KEYDOWN, VK_ESCAPE, 0);
        WaitUntil("the menu to close", [&] { return PoppedUpMenu(program.Thread()) == nullptr; });
        program.Settle();
    }));
    dialog.Cancel();
}

TEST_F(LeaksTest, ALargeCategoryIsFilledAgainAndAgain) {
    // The test takes long to read so many rows, the program does not.
    const auto rows = static_cast<std::size_t>(Times(32767, 1000));
    program.Add(1, std::vector<Row>(rows, {L"Név", L"http://nev.hu"}));
    program.Run(ID_mnuSelectAll);
    const MainState full = program.State();
    ExpectNothingLeft([&](int times) {
        program.OnUi([&](frmStart& form) {
            for (int time = 0; time < times; ++time)
                for (const WPARAM command : {WPARAM{ID_NextTab}, WPARAM{ID_PreviousTab}}) {
                    SendMessageW(form.Handle(), WM_COMMAND, command, 0);
                    UpdateWindow(program.Control(ID_frmStart_ListURLs));
                }
        });
    });
    EXPECT_EQ(program.State(), full);
}

TEST_F(LeaksTest, ChangesOfTheResolutionLeaveNothing) {
    const OtherScreen screen(program);
    const auto font_height = [this] {
        return DialogOnScreen(program.Main()).Font(ID_frmStart_txtURL).lfHeight;
    };
    const LONG height = font_height();
    ExpectNothingLeft(Repeating([&] {
                          screen.Move(192);
                          EXPECT_EQ(font_height(), 2 * height);
                          screen.Move(96);
                          EXPECT_EQ(font_height(), height);
                      }),
                      20);
}

TEST_F(LeaksTest, SavingLeavesNothing) {
    const TemporaryFolder folder;
    const std::wstring path = folder.File(L"könyv.lnd");
    program.OnUi([&](frmStart& form) { form.OpenedBook().OpenedFile = path; });
    ExpectNothingLeft(Repeating([&] {
        program.OnUi([&](frmStart& form) { form.OpenedBook().Modified = true; });
        program.Choose(ID_mnuSave);
        program.Box().Press(IDOK);
        program.Settle();
    }));
}

TEST_F(LeaksTest, TheWholeProgramLeavesNothing) {
    // Besides the fixture's program, on a thread of its own.
    const int starts = Times(20, 8);
    const auto start = Repeating([] { const Program another; });
    start(2);
    const SystemObjects before = CountSystemObjects();
    start(starts);
    SystemObjects after = CountSystemObjects();
    // Wine keeps two handles of each window that has ever accepted drops, and an event of each lock that two
    // threads have ever wanted at once, but a leak grows each time.
    EXPECT_LT(after.Handles - before.Handles - 2 * starts, starts / 2);
    EXPECT_LT(after.GdiObjects - before.GdiObjects, starts / 2);
    after.Handles = before.Handles;
    after.GdiObjects = before.GdiObjects;
    EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace lindrel::testing
