// The tree of drives and folders in which the user picks one.
#pragma once

#include <string>

#include "controls/Control.h"

namespace lindrel {

class DirList : public Control {
  public:
    // Takes over a tree view control and shows the drives. Its parent passes the WM_NOTIFY messages of the
    // control to Notify().
    void Attach(HWND tree);

    // Full path of the selected folder; a drive's ends in a backslash. Empty when nothing is selected.
    std::wstring Path() const;
    // Opens the tree down to a folder, selects it and scrolls to it; as far down as the folders are there.
    void SetPath(const std::wstring& path) const;

    LRESULT Notify(const NMHDR& header) const;

  private:
    HTREEITEM Add(HTREEITEM parent, const std::wstring& name) const;
    void FillFolder(HTREEITEM folder) const;
    HTREEITEM ChildNamed(HTREEITEM parent, const std::wstring& name) const;
    std::wstring NameOf(HTREEITEM item) const;
    std::wstring PathOf(HTREEITEM item) const;
};

}  // namespace lindrel
