// The columns of a report list. They share the list's width, whatever it is, until the user sets the width of
// one; from then on all of them stay as they are.
#pragma once

#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

class ListColumns {
  public:
    // For a list view in report form, without columns.
    void Attach(HWND list) { list_ = list; }
    // A column at the right of the others. All shares together are the width of the list.
    // Throws SystemFault when the system cannot.
    void Add(const std::wstring& caption, int share);
    // Columns that the user has made keep their width in inches when the resolution changes.
    void ApplyResolution(UINT dpi);
    // Before the list, while it is not redrawn, gets its vertical scroll bar: spares fitting them on the
    // screen.
    void MakeRoomForScrollBar();

    // What the list hears from its header, and its new size, once the list has dealt with it.
    void OnNotify(const NMHDR& header);
    void OnSize();

  private:
    bool IsResizedByUser(const NMHDR& header) const;
    void Fit();
    void ShareOut(int width) const;
    void Scale(UINT from_dpi, UINT to_dpi) const;
    int Room() const;

    HWND list_ = nullptr;
    std::vector<int> shares_;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    bool fitting_ = false;      // the program itself changes the widths
    bool set_by_user_ = false;  // until the list is gone
};

}  // namespace lindrel
