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
    // Hidden folders and shares of the network, which the tree does not show otherwise, are shown on the way.
    // The first drive is selected when there is nothing of the path.
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
