// The real program in a window test. It runs on a thread of its own, with its real message loop and windows;
// the test's thread is the user.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <thread>
#include <vector>

#include "app/frmStart.h"
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

// The state right after the start; tests change in it what they expect to be otherwise.
MainState EmptyState();

using Row = std::pair<std::wstring, std::wstring>;  // name and address

class Program {
  public:
    // Starts the program and waits for its main window. Nothing is on the clipboard, whatever ran before.
    Program();
    // Ends it whatever is open, without saving.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    HWND Main() const { return main_; }
    // A control of the main window.
    HWND Control(int id) const { return GetDlgItem(main_, id); }
    DWORD Thread() const { return thread_id_; }

    // Runs a piece of code on the program's thread, also while a box is open, and waits for it. What it
    // throws is thrown here.
    void OnUi(const std::function<void(frmStart&)>& code) const;
    template <typename Result>
    Result Ask(const std::function<Result(frmStart&)>& question) const {
        Result answer{};
        OnUi([&](frmStart& form) { answer = question(form); });
        return answer;
    }

    // Chooses a menu item (returns at once: it may open a box), and waits until the program has nothing to
    // do.
    void Choose(int menu_id) const;
    void Settle() const;
    // Chooses, and settles: for commands that open nothing.
    void Run(int menu_id) const;

    // Adds entries at the end of a category, behind the user's back, and shows the selected tab anew.
    void Add(int category, const std::vector<Row>& rows) const;

    MainState State() const;
    // The whole book as its file would be.
    std::string BookBytes() const;
    bool CommandEnabled(int menu_id) const;
    // The address list.
    ListOnScreen List() const;
    // What the user does in the list and on the tabs.
    void ClickTab(int tab) const;
    void ClickRow(int row) const;
    void ClickBox(int row) const;
    // A key in the control that has the focus, through the program's own loop.
    void PressKey(HWND control, WPARAM key) const;
    // Brings another window in front of the one that is active, and goes back to it.
    void LeaveAndComeBack() const;

    BoxOnScreen Box() const { return WaitForBox(thread_id_); }
    DialogOnScreen Dialog(const std::wstring& caption) const { return WaitForDialog(thread_id_, caption); }
    FileDialogOnScreen FileDialog() const { return WaitForFileDialog(thread_id_); }
    // Whether nothing but the main window is open.
    bool NothingIsOpen() const;

    void Close() const;  // asks the window to close, as its title bar's button does
    int WaitForEnd();    // the exit code

  private:
    void LeaveWhateverIsOpen() const;

    std::thread thread_;
    DWORD thread_id_ = 0;
    HWND ear_ = nullptr;  // a message-only window of the program's thread
    HWND main_ = nullptr;
    int exit_code_ = -1;
    bool ended_ = false;
};

// A folder for a test's files, removed with everything in it at the end.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::wstring File(const std::wstring& name) const { return path_ + L"\\" + name; }
    // Writes a file of the folder and returns its path.
    std::wstring Write(const std::wstring& name, const std::string& bytes) const;
    static std::string Read(const std::wstring& path);
    // Names of what is in the folder, sorted.
    std::vector<std::wstring> Names() const;

  private:
    std::wstring path_;
};

}  // namespace lindrel::testing
