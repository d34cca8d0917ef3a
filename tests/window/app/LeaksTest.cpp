// However often something is done, it leaves no windows, icons, handles and the like.

#include <windows.h>

#include <gtest/gtest.h>
#include <winternl.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <ostream>
#include <stdexcept>
#include <vector>

#include "resources/resource.h"
#include "tests/support/Times.h"
#include "tests/window/support/OtherScreen.h"

namespace lindrel::testing {
namespace {

// Wine has no numbers of its own (GetGuiResources and GetProcessHandleCount return 0), so each function asks
// for every number that a handle can have.
struct SystemObjects {
    int Windows = 0;
    int Menus = 0;
    int Icons = 0;       // and cursors
    int GdiObjects = 0;  // fonts, brushes, bitmaps, device contexts, ...
    int Handles = 0;     // files, events, threads, ...
    bool operator==(const SystemObjects&) const = default;

    // Windows, menus and icons share one table. New objects take its first free entries, so nothing comes
    // after a gap larger than the program ever needed at once.
    void CountUserObjects() {
        constexpr std::uintptr_t kFirst = 0x20;
        constexpr std::uintptr_t kLast = 0xFFFE;
        constexpr int kLargestGap = 2048;
        int gap = 0;
        for (auto handle = kFirst; handle <= kLast && gap < kLargestGap; handle += 2) {
            const bool is_window = IsWindow(reinterpret_cast<HWND>(handle)) != FALSE;
            const bool is_menu = IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
            const bool is_icon = !is_window && !is_menu && IsIcon(reinterpret_cast<HICON>(handle));
            gap = is_window || is_menu || is_icon ? 0 : gap + 1;
            if (is_menu) ++Menus;
            if (is_icon) ++Icons;
        }
    }
    void CountWindows() {
        const auto count = [](HWND window, LPARAM windows) {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == GetCurrentProcessId()) ++*reinterpret_cast<int*>(windows);
            return TRUE;
        };
        const auto windows = reinterpret_cast<LPARAM>(&Windows);
        EnumChildWindows(GetDesktopWindow(), count, windows);
        for (HWND window = nullptr;
             (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
            count(window, windows);
    }
    // In the table of the process's GDI objects, to which its environment block points.
    void CountGdiObjects() {
        struct Entry {
            std::uint64_t Object;
            std::uint32_t Owner;
            std::uint16_t Generation;
            std::uint8_t Type;  // 0 for a free entry
            std::uint8_t Flags;
            std::uint64_t User;
        };
        static_assert(sizeof(void*) == 8 && sizeof(Entry) == 24, "the offsets are those of 64 bits");
        constexpr std::size_t kTableInEnvironment = 0xF8;
        constexpr int kEntries = 16384;
        const auto* const environment =
            reinterpret_cast<const std::byte*>(NtCurrentTeb()->ProcessEnvironmentBlock);
        const auto* const table = *reinterpret_cast<const Entry* const*>(environment + kTableInEnvironment);
        if (table == nullptr) throw std::runtime_error("the process has no table of GDI objects");
        for (const Entry* entry = table; entry != table + kEntries; ++entry)
            if (entry->Type != 0) ++GdiObjects;
    }
    void CountHandles() {
        constexpr std::uintptr_t kLast = 0x4000;  // many times what the program ever has
        DWORD flags = 0;
        for (std::uintptr_t handle = 4; handle < kLast; handle += 4)
            if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++Handles;
    }

  private:
    static bool IsIcon(HICON handle) {
        ICONINFO icon{};
        if (!GetIconInfo(handle, &icon)) return false;
        DeleteObject(icon.hbmMask);
        if (icon.hbmColor != nullptr) DeleteObject(icon.hbmColor);
        return true;
    }
};

SystemObjects CountSystemObjects() {
    SystemObjects counts;
    counts.CountWindows();
    counts.CountUserObjects();
    counts.CountGdiObjects();
    counts.CountHandles();
    return counts;
}

void PrintTo(const SystemObjects& objects, std::ostream* out) {
    *out << objects.Windows << " windows, " << objects.Menus << " menus, " << objects.Icons << " icons, "
         << objects.GdiObjects << " GDI objects, " << objects.Handles << " handles";
}

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
                      50);
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
