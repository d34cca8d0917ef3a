// The main window's toolbar. Its buttons run commands of the menu bar; none of these is ever disabled.
#pragma once

#include "pictures/Picture.h"
#include "window/Control.h"

namespace lindrel {

class Toolbar {
  public:
    // Creates the toolbar on a window. Throws SystemFault if Windows refuses.
    void Create(HWND window);
    // Shows the pictures at a resolution. Throws SystemFault if one cannot be loaded; the old ones stay then.
    void ApplyResolution(UINT dpi);

    // For WM_COMMAND of the window. False if the id is not that of a button.
    bool OnCommand(int id) const;
    // For WM_NOTIFY of the window.
    void Notify(const NMHDR& header) const;

  private:
    void AddButtons() const;
    void RemoveTipOfFirstButton() const;
    // Buttons are numbered from 1.
    void ButtonClick(int Button) const;
    void ButtonDropDown(int Button) const;

    HWND window_ = nullptr;
    Control toolbar_;
    PictureList ImageList1;
};

}  // namespace lindrel
