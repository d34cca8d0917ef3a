// The shipped lindrel.exe as a user has it: a process of its own, driven with keys and mouse through the
// system's input, looked at from outside. Nothing of the program is linked in but the ids of its controls.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/window/support/Boxes.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/RealKeys.h"
#include "window/Windows.h"

namespace lindrel::testing {

class ShippedProgram {
  public:
    // Starts it, or the program that the environment variable LINDREL_PROGRAM names by its path, and waits
    // until its main window is in front.
    ShippedProgram();
    // Ends it whatever is open.
    ~ShippedProgram();
    ShippedProgram(const ShippedProgram&) = delete;
    ShippedProgram& operator=(const ShippedProgram&) = delete;

    HWND Main() const { return main_; }
    DWORD Thread() const { return thread_id_; }
    // A child of the main window.
    HWND Control(int id) const;

    // Real input to whatever is in front; `Press` and `Type` first wait until that is the program's.
    void Press(const Stroke& stroke) const;
    // Opens a menu of the menu bar by its access key, and waits until it is open.
    void OpenMenu(WORD key) const;
    // The menu that has popped up; null while there is none.
    HWND PoppedUpMenu() const { return testing::PoppedUpMenu(thread_id_); }
    // Opens a dialog, and waits until it is in front.
    DialogOnScreen OpenDialog(const Stroke& stroke, const std::wstring& caption) const;
    // Opens a book by the keyboard.
    void OpenBook(const std::wstring& path) const;
    void Type(const std::wstring& text) const;
    // At a place of a window's client area.
    void Click(HWND window, POINT place, bool right = false) const;
    // The same in a window of another program; and without a click.
    static void PointAt(HWND window, POINT place);
    static void ClickAnywhere(HWND window, POINT place, bool right = false);

    BoxOnScreen Box() const { return WaitForBox(thread_id_); }
    FileDialogOnScreen FileDialog() const { return WaitForFileDialog(thread_id_); }
    // Types a path into the file dialog that is open or about to open, and accepts it with Enter.
    void AnswerFileDialog(const std::wstring& path) const;

    // What the window shows.
    std::wstring Title() const;
    std::wstring Text(int id) const;
    std::wstring StatusPanel(int panel) const;  // 1-based
    int SelectedTab() const;                    // 1-based
    int RowCount() const;
    int SelectedRow() const;  // 1-based, 0 for none
    std::vector<int> CheckedRows() const;
    std::wstring Cell(int row, int column) const;  // row 1-based, column 0-based
    // Client coordinates of the middle of a row's check box, of its text, and of a tab.
    POINT CheckBoxOf(int row) const;
    POINT TextOf(int row) const;
    POINT TabAt(int tab) const;
    // 1-based; client coordinates of the toolbar.
    RECT ToolbarButton(int position) const;

    // Waits for the end of the process; its exit code.
    DWORD WaitForEnd() const;

  private:
    void WaitUntilInFront() const;
    RECT LabelOf(int row) const;  // client coordinates

    PROCESS_INFORMATION process_{};
    DWORD thread_id_ = 0;
    HWND main_ = nullptr;
};

// A book file with the sample book's bytes; both are what the shipped program is tried on.
std::string SampleBook();

}  // namespace lindrel::testing
