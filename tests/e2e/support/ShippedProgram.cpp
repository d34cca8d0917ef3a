#include "tests/e2e/support/ShippedProgram.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "files/Files.h"
#include "resources/resource.h"

namespace lindrel::testing {

namespace {

void Demand(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

// Memory of the program's process, for the messages that answer through a pointer.
class RemoteMemory {
  public:
    RemoteMemory(HANDLE process, std::size_t size)
        : process_(process),
          place_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
        Demand(place_ != nullptr, "no memory in the program's process");
    }
    ~RemoteMemory() {
        // What cannot be freed goes with the process.
        static_cast<void>(VirtualFreeEx(process_, place_, 0, MEM_RELEASE));
    }
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    LPARAM At(std::size_t offset = 0) const { return reinterpret_cast<LPARAM>(Place(offset)); }
    void* Place(std::size_t offset) const { return static_cast<char*>(place_) + offset; }
    template <typename T>
    void Put(const T& value) const {
        Demand(WriteProcessMemory(process_, place_, &value, sizeof value, nullptr) != FALSE,
               "write to the program");
    }
    template <typename T>
    T Get(std::size_t offset = 0) const {
        T value{};
        Demand(ReadProcessMemory(process_, Place(offset), &value, sizeof value, nullptr) != FALSE,
               "read the program");
        return value;
    }

  private:
    HANDLE process_;
    void* place_;
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

bool Has32Bits(HANDLE process) {
    BOOL answer = FALSE;
    Demand(IsWow64Process(process, &answer) != FALSE, "the width of the program");
    return answer != FALSE;
}

// The program of this build, or the one that the environment names.
std::wstring PathOfProgram() {
    wchar_t path[MAX_PATH]{};
    const DWORD length = GetEnvironmentVariableW(L"LINDREL_PROGRAM", path, MAX_PATH);
    Demand(length < MAX_PATH, "the path of the program is too long");
    return length == 0 ? L"Z:" LINDREL_EXE : path;
}

}  // namespace

ShippedProgram::ShippedProgram() {
    std::wstring command = L'"' + PathOfProgram() + L'"';
    STARTUPINFOW start{};
    start.cb = sizeof start;
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process_))
        throw std::runtime_error("the program cannot be started: error " + std::to_string(GetLastError()));
    thread_id_ = process_.dwThreadId;
    WaitUntil("the main window", [this] {
        for (const HWND window : WindowsOf(thread_id_))
            if (ClassOf(window) == L"frmStart") main_ = window;
        return main_ != nullptr;
    });
    Demand(WaitForInputIdle(process_.hProcess, kDeadlineInMilliseconds) == 0,
           "the program does not come to rest");
    WaitUntilInFront();
}

ShippedProgram::~ShippedProgram() {
    if (WaitForSingleObject(process_.hProcess, 0) != WAIT_OBJECT_0) {
        EXPECT_TRUE(TerminateProcess(process_.hProcess, 99));
        EXPECT_EQ(WaitForSingleObject(process_.hProcess, kDeadlineInMilliseconds), WAIT_OBJECT_0);
    }
    EXPECT_TRUE(CloseHandle(process_.hThread));
    EXPECT_TRUE(CloseHandle(process_.hProcess));
}

HWND ShippedProgram::Control(int id) const {
    const HWND control = GetDlgItem(main_, id);
    Demand(control != nullptr, "a control of the main window is missing");
    return control;
}

void ShippedProgram::WaitUntilInFront() const {
    testing::WaitUntilInFront(thread_id_);
}

void ShippedProgram::Press(const Stroke& stroke) const {
    WaitUntilInFront();
    PressRealKey(stroke);
}

void ShippedProgram::OpenMenu(WORD key) const {
    // Menus follow a pointer that rests on the menu bar, where a click may have left it.
    Demand(SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1) != FALSE,
           "the mouse pointer");
    Press({key, {VK_MENU}});
    WaitUntil("the open menu", [this] { return PoppedUpMenu() != nullptr; });
}

DialogOnScreen ShippedProgram::OpenDialog(const Stroke& stroke, const std::wstring& caption) const {
    Press(stroke);
    const DialogOnScreen dialog = WaitForDialog(thread_id_, caption);
    WaitUntil("the dialog in front", [&] { return GetForegroundWindow() == dialog.Handle(); });
    return dialog;
}

void ShippedProgram::OpenBook(const std::wstring& path) const {
    Press({'O', {VK_CONTROL}});
    AnswerFileDialog(path);
    const std::wstring title = L"Lindrel -" + path.substr(path.rfind(L'\\') + 1);
    WaitUntil("the opened book", [&] { return Title() == title; });
}

void ShippedProgram::Type(const std::wstring& text) const {
    WaitUntilInFront();
    TypeRealText(text);
}

void ShippedProgram::Click(HWND window, POINT place, bool right) const {
    WaitUntilInFront();
    ClickAnywhere(window, place, right);
}

void ShippedProgram::PointAt(HWND window, POINT place) {
    Demand(ClientToScreen(window, &place) != FALSE, "a place of the window");
    Demand(SetCursorPos(place.x, place.y) != FALSE, "the mouse pointer");
}

void ShippedProgram::ClickAnywhere(HWND window, POINT place, bool right) {
    PointAt(window, place);
    INPUT input{};
    input.type = INPUT_MOUSE;
    std::vector<INPUT> inputs(2, input);
    inputs[0].mi.dwFlags = right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
    SendInputs(std::move(inputs));
}

void ShippedProgram::AnswerFileDialog(const std::wstring& path) const {
    const HWND dialog = FileDialog().Handle();
    WaitUntil("the file dialog in front", [dialog] { return GetForegroundWindow() == dialog; });
    Type(path);
    Press({VK_RETURN});
    WaitUntil("the file dialog's end", [dialog] { return !IsWindow(dialog); });
}

std::wstring ShippedProgram::Title() const {
    wchar_t text[512]{};
    SendMessageW(main_, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return text;
}

std::wstring ShippedProgram::Text(int id) const {
    wchar_t text[2048]{};
    SendMessageW(Control(id), WM_GETTEXT, 2048, reinterpret_cast<LPARAM>(text));
    return text;
}

std::wstring ShippedProgram::StatusPanel(int panel) const {
    const RemoteMemory memory(process_.hProcess, sizeof(TextBuffer));
    SendMessageW(Control(ID_frmStart_StatusBar1), SB_GETTEXTW, static_cast<WPARAM>(panel - 1), memory.At());
    return memory.Get<TextBuffer>().Text;
}

int ShippedProgram::SelectedTab() const {
    return static_cast<int>(SendMessageW(Control(ID_frmStart_TabStrip1), TCM_GETCURSEL, 0, 0)) + 1;
}

int ShippedProgram::RowCount() const {
    return static_cast<int>(SendMessageW(Control(ID_frmStart_ListURLs), LVM_GETITEMCOUNT, 0, 0));
}

int ShippedProgram::SelectedRow() const {
    const LRESULT row =
        SendMessageW(Control(ID_frmStart_ListURLs), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    return static_cast<int>(row) + 1;
}

std::vector<int> ShippedProgram::CheckedRows() const {
    std::vector<int> checked;
    const HWND list = Control(ID_frmStart_ListURLs);
    for (int row = 1; row <= RowCount(); ++row) {
        const LRESULT state =
            SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row - 1), LVIS_STATEIMAGEMASK);
        if (state == INDEXTOSTATEIMAGEMASK(2)) checked.push_back(row);
    }
    return checked;
}

std::wstring ShippedProgram::Cell(int row, int column) const {
    constexpr std::size_t kTextAt = 256;
    const RemoteMemory memory(process_.hProcess, kTextAt + sizeof(TextBuffer));
    const auto text = reinterpret_cast<std::uint64_t>(memory.Place(kTextAt));
    if (Has32Bits(process_.hProcess))
        memory.Put(RemoteItem<std::uint32_t>{0, 0, column, 0, 0, static_cast<std::uint32_t>(text), 1024, {}});
    else
        memory.Put(RemoteItem<std::uint64_t>{0, 0, column, 0, 0, text, 1024, {}});
    SendMessageW(Control(ID_frmStart_ListURLs), LVM_GETITEMTEXTW, static_cast<WPARAM>(row - 1), memory.At());
    return memory.Get<TextBuffer>(kTextAt).Text;
}

RECT ShippedProgram::LabelOf(int row) const {
    const RemoteMemory memory(process_.hProcess, sizeof(RECT));
    memory.Put(RECT{LVIR_LABEL, 0, 0, 0});
    Demand(SendMessageW(Control(ID_frmStart_ListURLs), LVM_GETITEMRECT, static_cast<WPARAM>(row - 1),
                        memory.At()) != 0,
           "a row of the list");
    return memory.Get<RECT>();
}

POINT ShippedProgram::TextOf(int row) const {
    const RECT label = LabelOf(row);
    return {label.left + 20, (label.top + label.bottom) / 2};
}

POINT ShippedProgram::CheckBoxOf(int row) const {
    const RECT label = LabelOf(row);
    return {label.left / 2, (label.top + label.bottom) / 2};
}

POINT ShippedProgram::TabAt(int tab) const {
    const RemoteMemory memory(process_.hProcess, sizeof(RECT));
    Demand(SendMessageW(Control(ID_frmStart_TabStrip1), TCM_GETITEMRECT, static_cast<WPARAM>(tab - 1),
                        memory.At()) != 0,
           "a tab");
    const RECT place = memory.Get<RECT>();
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

RECT ShippedProgram::ToolbarButton(int position) const {
    const RemoteMemory memory(process_.hProcess, sizeof(RECT));
    Demand(SendMessageW(Control(ID_frmStart_Toolbar), TB_GETITEMRECT, static_cast<WPARAM>(position - 1),
                        memory.At()) != 0,
           "a button of the toolbar");
    return memory.Get<RECT>();
}

DWORD ShippedProgram::WaitForEnd() const {
    Demand(WaitForSingleObject(process_.hProcess, kDeadlineInMilliseconds) == WAIT_OBJECT_0,
           "the program does not end");
    DWORD code = 0;
    Demand(GetExitCodeProcess(process_.hProcess, &code) != FALSE, "the exit code");
    return code;
}

std::string SampleBook() {
    const std::vector<char> bytes = ReadFileBytes(L"Z:" LINDREL_SOURCE_DIR L"/samples/minta.lnd");
    return {bytes.begin(), bytes.end()};
}

}  // namespace lindrel::testing
