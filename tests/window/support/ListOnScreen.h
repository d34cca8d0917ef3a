// A list view of the program, read and used from the test's thread. Rows are 1-based, columns 0-based.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

class ListOnScreen {
  public:
    explicit ListOnScreen(HWND list) : list_(list) {}
    HWND Handle() const { return list_; }
    int Count() const;
    std::vector<std::wstring> Columns() const;
    std::wstring Cell(int row, int column) const;
    // The first two columns.
    std::vector<std::pair<std::wstring, std::wstring>> Rows() const;
    // Checked rows, ascending.
    std::vector<int> Checked() const;
    // 0 for none.
    int Selected() const;
    bool HasGridLines() const;

    // Mouse clicks on a row's text or its check box, scrolled into view. They return at once; settle the
    // program.
    void ClickRow(int row) const;
    void DoubleClickRow(int row) const;
    void ClickBox(int row) const;
    // On the header of the first column.
    void ClickHeader() const;

  private:
    LPARAM PointOnText(int row) const;

    HWND list_;
};

}  // namespace lindrel::testing
