// The real program in a window test. It runs on a thread of its own, with its real message loop and windows;
// the test's thread is the user.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <thread>
#include <vector>

#include "app/frmStart.h"
#include "book/BookFile.h"
#include "files/Files.h"
#include "resources/resource.h"
#include "tests/window/support/Boxes.h"
#include "tests/window/support/ListOnScreen.h"
#include "tests/window/support/Polling.h"

namespace lindrel::testing {

// Everything a user sees of the main window, and what commands leave behind.
struct MainState {
    std::wstring Title;
    std::vector<std::wstring> Tabs;
    int SelectedTab = 0;  // 1-based
    std::vector<std::pair<std::wstring, std::wstring>> Rows;
    std::vector<int> Checked;  // 1-based positions, ascending
    int SelectedRow = 0;       // 1-based, 0 for none
    std::wstring Status[3];
    std::wstring txtSite;
    std::wstring txtURL;
    std::wstring OpenedFile;
    bool Modified = false;
    bool operator==(const MainState&) const = default;
};
void PrintTo(const MainState& state, std::ostream* out);

// The state right after the start; tests set what they expect to differ.
MainState EmptyState();

using Row = std::pair<std::wstring, std::wstring>;  // name and address

class Program {
  public:
    // Empties the clipboard, starts the program and waits for its main window.
    Program();
    // Ends the program without saving. A box that is still open fails the test.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    HWND Main() const { return main_; }
    // A control of the main window.
    HWND Control(int id) const { return GetDlgItem(main_, id); }
    DWORD Thread() const { return thread_id_; }

    // Runs code on the program's thread, also while a box is open, and waits for it. Throws what it throws.
    void OnUi(const std::function<void(frmStart&)>& code) const;
    template <typename Result>
    Result Ask(const std::function<Result(frmStart&)>& question) const {
        Result answer{};
        OnUi([&](frmStart& form) { answer = question(form); });
        return answer;
    }

    // Chooses a menu item. Returns at once: it may open a box.
    void Choose(int menu_id) const { PostMessageW(main_, WM_COMMAND, MAKEWPARAM(menu_id, 0), 0); }
    // Waits until the program has nothing to do.
    void Settle() const;
    // Chooses, and settles: for commands that open nothing.
    void Run(int menu_id) const {
        Choose(menu_id);
        Settle();
    }

    // Adds entries at the end of a category without the user, and shows the selected tab anew.
    void Add(int category, const std::vector<Row>& rows) const;

    MainState State() const;
    // The whole book as its file would be.
    std::string BookBytes() const {
        return Ask<std::string>([](frmStart& form) { return SaveBook(form.OpenedBook().TheBook); });
    }
    bool CommandEnabled(int menu_id) const;
    // The address list.
    ListOnScreen List() const { return ListOnScreen(Control(ID_frmStart_ListURLs)); }
    // What the user does in the list and on the tabs (1-based).
    void ClickTab(int tab) const;
    void ClickRow(int row) const {
        List().ClickRow(row);
        Settle();
    }
    void ClickBox(int row) const {
        List().ClickBox(row);
        Settle();
    }
    // A key in the control that has the focus, through the program's own loop.
    void PressKey(HWND control, WPARAM key) const {
        PostMessageW(control, WM_KEYDOWN, key, 1);
        PostMessageW(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        Settle();
    }
    // Activates another window and then the one that was active before.
    void LeaveAndComeBack() const;

    BoxOnScreen Box() const { return WaitForBox(thread_id_); }
    DialogOnScreen Dialog(const std::wstring& caption) const { return WaitForDialog(thread_id_, caption); }
    FileDialogOnScreen FileDialog() const { return WaitForFileDialog(thread_id_); }
    // Whether nothing but the main window is open.
    bool NothingIsOpen() const { return std::ranges::none_of(WindowsOf(thread_id_), &IsDialog); }

    // Asks the window to close, as its title bar's button does.
    void Close() const { PostMessageW(main_, WM_CLOSE, 0, 0); }
    // Returns the exit code.
    int WaitForEnd();

  private:
    void LeaveWhateverIsOpen() const;

    std::thread thread_;
    DWORD thread_id_ = 0;
    HWND ear_ = nullptr;  // a message-only window of the program's thread
    HWND main_ = nullptr;
    int exit_code_ = -1;
    bool ended_ = false;
};

// A folder for a test's files, removed with everything in it in the end.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        static std::atomic<int> number{0};
        path_ = (std::filesystem::temp_directory_path() /
                 (L"lindrel-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number)))
                    .wstring();
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
        EXPECT_FALSE(error) << "a file of the test is still open: " << error.message();
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::wstring File(const std::wstring& name) const { return path_ + L"\\" + name; }
    // Writes a file of the folder and returns its path.
    std::wstring Write(const std::wstring& name, const std::string& bytes) const {
        WriteFileBytes(File(name), bytes);
        return File(name);
    }
    static std::string Read(const std::wstring& path) {
        const std::vector<char> bytes = ReadFileBytes(path);
        return {bytes.begin(), bytes.end()};
    }
    // The names of what is in the folder, sorted.
    std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.push_back(entry.path().filename().wstring());
        std::ranges::sort(names);
        return names;
    }

  private:
    std::wstring path_;
};

}  // namespace lindrel::testing
