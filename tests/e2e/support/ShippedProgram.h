// The shipped lindrel.exe as a user has it: a process of its own, driven with keys and mouse through the
// system's input and looked at from outside. Of the program only the ids of its controls are linked in.
// All functions throw std::runtime_error if they cannot do it; rows, tabs and panels are 1-based.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "files/Files.h"
#include "resources/resource.h"
#include "tests/window/support/Boxes.h"
#include "tests/window/support/ListOnScreen.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/RealKeys.h"

namespace lindrel::testing {

inline void Demand(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

// Memory of the program's process, for the messages that answer through a pointer.
class RemoteMemory {
  public:
    RemoteMemory(HANDLE process, std::size_t size)
        : process_(process),
          memory_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
        Demand(memory_ != nullptr, "no memory in the program's process");
    }
    ~RemoteMemory() {
        // What cannot be freed ends with the process.
        static_cast<void>(VirtualFreeEx(process_, memory_, 0, MEM_RELEASE));
    }
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    void* At(std::size_t offset) const { return static_cast<char*>(memory_) + offset; }
    template <typename T>
    void Put(const T& value) const {
        Demand(WriteProcessMemory(process_, memory_, &value, sizeof value, nullptr) != FALSE,
               "write to the program");
    }
    // What is there after a message that was sent with the pointer.
    template <typename T>
    T Ask(HWND control, UINT message, int item, std::size_t offset = 0) const {
        SendMessageW(control, message, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(memory_));
        T value{};
        Demand(ReadProcessMemory(process_, At(offset), &value, sizeof value, nullptr) != FALSE,
               "read the program");
        return value;
    }

  private:
    HANDLE process_;
    void* memory_;
};

struct TextBuffer {
    wchar_t Text[1024];
};

// LVITEMW up to what is asked for, as a program of 32 or 64 bits has it.
template <typename Pointer>
struct RemoteItem {
    UINT Mask;
    int Row;
    int Column;
    UINT State;
    UINT StateMask;
    Pointer Text;
    int TextMax;
    char Rest[100];
};
static_assert(offsetof(RemoteItem<std::uint64_t>, TextMax) == offsetof(LVITEMW, cchTextMax));

class ShippedProgram {
  public:
    // Starts it, or the program whose path is in the environment variable LINDREL_PROGRAM, and waits until
    // its main window is in front.
    ShippedProgram() {
        wchar_t path[MAX_PATH] = L"";
        const DWORD length = GetEnvironmentVariableW(L"LINDREL_PROGRAM", path, MAX_PATH);
        Demand(length < MAX_PATH, "the path of the program is too long");
        std::wstring command = L"\"" + std::wstring(length == 0 ? L"Z:" LINDREL_EXE : path) + L"\"";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                            &process_))
            throw std::runtime_error("the program cannot be started: error " +
                                     std::to_string(GetLastError()));
        main_ = WaitForMainWindow(Thread());
        Demand(WaitForInputIdle(process_.hProcess, kDeadlineInMilliseconds) == 0,
               "the program does not come to rest");
        WaitUntilInFront(Thread());
    }
    // Ends it whatever is open.
    ~ShippedProgram() {
        if (WaitForSingleObject(process_.hProcess, 0) != WAIT_OBJECT_0) {
            EXPECT_TRUE(TerminateProcess(process_.hProcess, 99));
            EXPECT_EQ(WaitForSingleObject(process_.hProcess, kDeadlineInMilliseconds), WAIT_OBJECT_0);
        }
        EXPECT_TRUE(CloseHandle(process_.hThread));
        EXPECT_TRUE(CloseHandle(process_.hProcess));
    }
    ShippedProgram(const ShippedProgram&) = delete;
    ShippedProgram& operator=(const ShippedProgram&) = delete;

    HWND Main() const { return main_; }
    DWORD Thread() const { return process_.dwThreadId; }
    // A child of the main window.
    HWND Control(int id) const {
        const HWND control = GetDlgItem(main_, id);
        Demand(control != nullptr, "a control of the main window is missing");
        return control;
    }

    // Real input to whatever is in front, once that is the program's.
    void Press(const Stroke& stroke) const {
        WaitUntilInFront(Thread());
        PressRealKey(stroke);
    }
    void Type(const std::wstring& text) const {
        WaitUntilInFront(Thread());
        TypeRealText(text);
    }
    // On a point of a window's client area.
    void Click(HWND window, POINT point) const {
        WaitUntilInFront(Thread());
        ClickAnywhere(window, point);
    }
    // The same in a window of another program; and without a click.
    static void ClickAnywhere(HWND window, POINT point, bool right = false) {
        PointAt(window, point);
        if (right)
            SendMouseButtons({MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP});
        else
            SendMouseButtons({MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
    }
    static void PointAt(HWND window, POINT point) { MoveRealMouse(window, point); }

    // A command of a menu, without opening the menu. Returns at once.
    void Choose(int menu_id) const {
        Demand(PostMessageW(main_, WM_COMMAND, MAKEWPARAM(menu_id, 0), 0) != FALSE, "the command of a menu");
    }
    // Opens a menu of the menu bar by its access key, and waits until it is open.
    void OpenMenu(WORD key) const {
        // Menus follow a pointer that rests on the menu bar, where a click may have left it.
        Demand(SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1) != FALSE,
               "the mouse pointer");
        Press({key, {VK_MENU}});
        WaitUntil("the open menu", [this] { return PoppedUpMenu() != nullptr; });
    }
    // The menu that has popped up; nullptr when there is none.
    HWND PoppedUpMenu() const { return testing::PoppedUpMenu(Thread()); }
    // Opens a dialog, and waits until it is in front.
    DialogOnScreen OpenDialog(const Stroke& stroke, const std::wstring& caption) const {
        Press(stroke);
        const DialogOnScreen dialog = WaitForDialog(Thread(), caption);
        WaitUntil("the dialog in front", [&] { return GetForegroundWindow() == dialog.Handle(); });
        return dialog;
    }
    // Opens a book by the keyboard.
    void OpenBook(const std::wstring& path) const {
        Press({'O', {VK_CONTROL}});
        AnswerFileDialog(path);
        const std::wstring title = L"Lindrel -" + path.substr(path.rfind(L'\\') + 1);
        WaitUntil("the opened book", [&] { return Title() == title; });
    }
    // Types a path into the file dialog that is open or about to open, and accepts it with Enter.
    void AnswerFileDialog(const std::wstring& path) const {
        const HWND dialog = FileDialog().Handle();
        WaitUntil("the file dialog in front", [dialog] { return GetForegroundWindow() == dialog; });
        Type(path);
        Press({VK_RETURN});
        WaitUntilGone(dialog);
    }
    BoxOnScreen Box() const { return WaitForBox(Thread()); }
    FileDialogOnScreen FileDialog() const { return WaitForFileDialog(Thread()); }

    // What the window shows.
    std::wstring Title() const { return lindrel::TextOf(main_); }
    std::wstring Text(int id) const { return lindrel::TextOf(Control(id)); }
    std::wstring StatusPanel(int panel) const {
        const RemoteMemory memory(process_.hProcess, sizeof(TextBuffer));
        return memory.Ask<TextBuffer>(Control(ID_frmStart_StatusBar1), SB_GETTEXTW, panel - 1).Text;
    }
    int SelectedTab() const { return TabStrip(Control(ID_frmStart_TabStrip1)).Selected(); }
    int RowCount() const { return List().Count(); }
    int SelectedRow() const { return List().Selected(); }  // 0 for none
    std::vector<int> CheckedRows() const { return List().Checked(); }
    // As programs that serve the disabled do it; row 0 means all rows.
    void SetCheckState(int row, bool checked) const {
        constexpr int kItem =
            sizeof(RemoteItem<std::uint64_t>);  // the first members are those of 32 bits too
        const RemoteMemory memory(process_.hProcess, kItem);
        const auto state = static_cast<UINT>(INDEXTOSTATEIMAGEMASK(checked ? 2 : 1));
        memory.Put(RemoteItem<std::uint64_t>{0, 0, 0, state, LVIS_STATEIMAGEMASK, 0, 0, {}});
        memory.Ask<int>(List().Handle(), LVM_SETITEMSTATE, row - 1);
    }
    std::wstring Cell(int row, int column) const {  // 0-based column
        constexpr std::size_t kTextAt = 256;
        const RemoteMemory memory(process_.hProcess, kTextAt + sizeof(TextBuffer));
        const auto text = reinterpret_cast<std::uint64_t>(memory.At(kTextAt));
        BOOL has_32_bits = FALSE;
        Demand(IsWow64Process(process_.hProcess, &has_32_bits) != FALSE, "the width of the program");
        if (has_32_bits)
            memory.Put(
                RemoteItem<std::uint32_t>{0, 0, column, 0, 0, static_cast<std::uint32_t>(text), 1024, {}});
        else
            memory.Put(RemoteItem<std::uint64_t>{0, 0, column, 0, 0, text, 1024, {}});
        return memory.Ask<TextBuffer>(List().Handle(), LVM_GETITEMTEXTW, row - 1, kTextAt).Text;
    }
    // Client coordinates: the middle of a row's check box, of its text and of a tab; a button of the toolbar.
    POINT CheckBoxOf(int row) const {
        const RECT label = LabelOf(row);
        return {label.left / 2, (label.top + label.bottom) / 2};
    }
    POINT TextOf(int row) const {
        const RECT label = LabelOf(row);
        return {label.left + 20, (label.top + label.bottom) / 2};
    }
    POINT TabAt(int tab) const {
        const RECT bounds = BoundsOf(Control(ID_frmStart_TabStrip1), TCM_GETITEMRECT, tab);
        return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
    }
    RECT ToolbarButton(int position) const {
        return BoundsOf(Control(ID_frmStart_Toolbar), TB_GETITEMRECT, position);
    }

    // Waits for the end of the process; its exit code.
    DWORD WaitForEnd() const {
        Demand(WaitForSingleObject(process_.hProcess, kDeadlineInMilliseconds) == WAIT_OBJECT_0,
               "the program does not end");
        DWORD code = 0;
        Demand(GetExitCodeProcess(process_.hProcess, &code) != FALSE, "the exit code");
        return code;
    }

  private:
    ListOnScreen List() const { return ListOnScreen(Control(ID_frmStart_ListURLs)); }
    RECT LabelOf(int row) const { return BoundsOf(List().Handle(), LVM_GETITEMRECT, row, LVIR_LABEL); }
    // `part` is where the message has its question.
    RECT BoundsOf(HWND control, UINT message, int item, LONG part = 0) const {
        const RemoteMemory memory(process_.hProcess, sizeof(RECT));
        memory.Put(RECT{part, 0, 0, 0});
        const RECT bounds = memory.Ask<RECT>(control, message, item - 1);
        Demand(!IsRectEmpty(&bounds), "an item of a control");
        return bounds;
    }

    PROCESS_INFORMATION process_{};
    HWND main_ = nullptr;
};

// The bytes of the sample book's file.
inline std::string SampleBook() {
    const std::vector<char> bytes = ReadFileBytes(L"Z:" LINDREL_SOURCE_DIR L"/samples/minta.lnd");
    return {bytes.begin(), bytes.end()};
}

}  // namespace lindrel::testing
