// The tree of drives and folders in which the user picks one.
#pragma once

#include <string>

#include "window/Control.h"

namespace lindrel {

class DirList : public Control {
  public:
    // Wraps a tree view and shows the drives in it. Its parent passes the WM_NOTIFY messages of the control
    // to Notify(). Throws SystemFault when the system cannot.
    void Attach(HWND tree);

    // Full path of the selected folder; a drive's ends in a backslash. Empty when nothing is selected.
    std::wstring Path() const;
    // Opens the tree down to a folder, or to the last one on the way to it that exists, selects it and
    // scrolls to it. Hidden folders and network shares, otherwise left out, are shown on the way. Selects the
    // first drive when nothing of the path exists.
    void SetPath(const std::wstring& path) const;

    LRESULT Notify(const NMHDR& header) const;

  private:
    HTREEITEM Add(HTREEITEM parent, const std::wstring& name, HTREEITEM place) const;
    void FillFolder(HTREEITEM folder) const;
    HTREEITEM Reach(HTREEITEM parent, const std::wstring& name, const std::wstring& path) const;
    HTREEITEM ChildNamed(HTREEITEM parent, const std::wstring& name) const;
    std::wstring NameOf(HTREEITEM item) const;
    std::wstring PathOf(HTREEITEM item) const;

    int closed_picture_ = 0;
    int open_picture_ = 0;
};

}  // namespace lindrel
