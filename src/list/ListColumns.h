// The columns of a report list. They share the list's width until the user changes the width of one; after
// that all of them keep their widths.
#pragma once

#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

class ListColumns {
  public:
    // For a list view in report form without columns.
    void Attach(HWND list) { list_ = list; }
    // Adds a column to the right of the others. Its width is to the list's as `share` is to the sum of all
    // shares. Throws SystemFault if Windows cannot add it.
    void Add(const std::wstring& caption, int share);
    // Columns with widths set by the user keep them in inches.
    void ApplyResolution(UINT dpi);
    // For a list that is about to get its vertical scroll bar and is not redrawn at the moment: fits the
    // columns now, so that the user does not see them move afterwards.
    void MakeRoomForScrollBar();

    // To be called before the list handles WM_NOTIFY from its header, and after it has handled WM_SIZE.
    void OnNotify(const NMHDR& header);
    void OnSize();

  private:
    void Fit();
    void ShareOut(int width) const;
    int Room() const;  // width of the client area

    HWND list_ = nullptr;
    std::vector<int> shares_;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    bool fitting_ = false;  // the program itself is changing the widths
    bool set_by_user_ = false;
};

}  // namespace lindrel
