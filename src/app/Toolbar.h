// The main window's toolbar. Its buttons run commands of the menu bar; none of these is ever disabled.
#pragma once

#include <array>

#include "pictures/Picture.h"
#include "window/Control.h"

namespace lindrel {

class Toolbar {
  public:
    // Creates the toolbar on a window, still without buttons. Throws SystemFault if Windows refuses.
    void Create(HWND window);
    // Makes the buttons for a resolution. Throws SystemFault if a picture cannot be loaded; the old buttons
    // stay then.
    void ApplyResolution(UINT dpi);

    // For WM_COMMAND of the window. False if the id is not that of a button.
    bool OnCommand(int id) const;
    // For WM_NOTIFY of the window.
    void Notify(const NMHDR& header);

  private:
    using Buttons = std::array<TBBUTTON, 10>;
    Buttons CurrentButtons() const;
    void RenewToolTips();
    void RemoveTipOfFirstButton();
    // Buttons are numbered from 1.
    void ButtonClick(int Button) const;
    void ButtonDropDown(int Button) const;

    HWND window_ = nullptr;
    Control toolbar_;
    HWND tips_ = nullptr;  // once the toolbar has them
    PictureList ImageList1;
};

}  // namespace lindrel
