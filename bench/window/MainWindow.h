// The program's main window, driven by the messages that a user's hands send it. Each action returns the
// milliseconds until what it brought about is painted, and throws std::runtime_error when that is not what it
// should be.
#pragma once

#include <string>

#include "window/Windows.h"

namespace lindrel::bench {

class MainWindow {
  public:
    // That of this thread.
    MainWindow();

    HWND Handle() const { return window_; }
    HWND List() const;
    std::wstring Cell(int row, int column) const;  // 1-based row

    // Drops a book's file on the window; `rows` are those that the list shows then, `total` those of the
    // book.
    double Open(const std::wstring& path, int rows, int total) const;
    // What Ctrl+Tab sends, and with Shift.
    double NextTab(int rows) const { return ChangeTab(true, rows); }
    double PreviousTab(int rows) const { return ChangeTab(false, rows); }
    // Searches the category for a name, from its beginning, by the search box; `row` has it.
    double Search(const std::wstring& name, int row) const;
    // Finds all entries of the book by the find dialog, which is opened and closed for it.
    double FindAll(int total) const;

  private:
    double ChangeTab(bool forward, int rows) const;
    void ExpectRows(int rows) const;

    HWND window_ = nullptr;
};

}  // namespace lindrel::bench
