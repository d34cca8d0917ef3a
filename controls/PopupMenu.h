// A menu that opens beside a control.
#pragma once

#include "controls/Owned.h"
#include "controls/Windows.h"

namespace lindrel {

class PopupMenu {
  public:
    // The first popup of a menu of the resources. Throws std::bad_alloc when there is none.
    PopupMenu(HINSTANCE instance, int id);

    // Marks one of the items first..last as the one in force.
    void CheckRadio(int first, int last, int chosen) const;
    // Opens the menu below a control, above it where the screen ends, and returns when it has closed. The
    // owner hears of the chosen item by WM_COMMAND. `control` is in screen coordinates.
    void OpenBelow(const RECT& control, HWND owner) const;

  private:
    HMENU Popup() const { return GetSubMenu(menu_.get(), 0); }

    Owned<HMENU> menu_;
};

}  // namespace lindrel
