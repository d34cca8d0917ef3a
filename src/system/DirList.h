// The tree of drives and folders from which the user picks a folder.
#pragma once

#include <string>

#include "window/Control.h"

namespace lindrel {

class DirList : public Control {
  public:
    // Wraps a tree view and shows the drives in it. Its parent passes its WM_NOTIFY messages to Notify().
    // Throws SystemFault when a drive cannot be added.
    void Attach(HWND tree);

    // Full path of the selected folder, with a backslash at its end only if it is a drive. Empty if nothing
    // is selected.
    std::wstring Path() const;
    // Opens the tree down to a folder, or to the last folder of the path that exists, selects it and scrolls
    // to it. Hidden folders and network shares are shown only if the path leads through them. Selects the
    // first drive if nothing of the path exists.
    void SetPath(const std::wstring& path) const;

    LRESULT Notify(const NMHDR& header) const;

  private:
    HTREEITEM Add(HTREEITEM parent, const std::wstring& name, HTREEITEM after) const;
    void FillFolder(HTREEITEM folder) const;
    HTREEITEM Reach(HTREEITEM parent, const std::wstring& name, const std::wstring& path) const;
    HTREEITEM ChildNamed(HTREEITEM parent, const std::wstring& name) const;
    std::wstring NameOf(HTREEITEM item) const;
    std::wstring PathOf(HTREEITEM item) const;

    int closed_picture_ = 0;
    int open_picture_ = 0;
};

}  // namespace lindrel
