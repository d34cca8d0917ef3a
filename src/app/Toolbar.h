// The main window's toolbar. Its buttons run commands of the menu bar, and can be pressed when those can be
// chosen.
#pragma once

#include "pictures/Picture.h"
#include "window/Control.h"

namespace lindrel {

class Toolbar {
  public:
    // Makes the toolbar on a window with a menu bar. Throws SystemFault when the system cannot.
    void Create(HWND window);
    // Shows the pictures at a resolution. Throws SystemFault when one cannot be loaded; the old ones stay
    // then.
    void ApplyResolution(UINT dpi);
    // Looks at the menu bar anew.
    void Update();

    // WM_COMMAND and WM_NOTIFY of the window. True when the id is that of a button.
    bool OnCommand(int id) const;
    void Notify(const NMHDR& header) const;

  private:
    void AddButtons() const;
    void RemoveTipOfFirstButton() const;
    void MakeDisabledPictures();
    // Buttons are numbered from 1.
    void ButtonClick(int Button) const;
    void ButtonDropDown(int Button) const;
    static void FillTip(const NMTBGETINFOTIPW& tip);

    HWND window_ = nullptr;
    Control toolbar_;
    PictureList ImageList1;
    PictureList disabled_pictures_;  // made when a button is disabled for the first time
    int picture_size_ = 0;           // in pixels
};

}  // namespace lindrel
