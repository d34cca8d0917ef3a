// A menu that opens where the user asks for it.
#pragma once

#include <span>

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

class PopupMenu {
  public:
    // The first popup of a menu of the resources. Throws SystemFault when there is none.
    PopupMenu(HINSTANCE instance, int id);
    // Commands of a menu bar by their ids, with captions, shortcuts and states as they are there; 0 stands
    // for a separator. The first is the default, in bold. Throws SystemFault when the system cannot.
    PopupMenu(HMENU bar, std::span<const int> commands);

    // Puts the radio mark on one of the items first..last.
    void CheckRadio(int first, int last, int chosen) const;

    // Both return when the menu has closed. The owner gets WM_COMMAND for the chosen item. Coordinates are
    // those of the screen.
    void OpenAt(POINT at, HWND owner) const;
    // Below a control, or above it where the screen ends.
    void OpenBelow(const RECT& control, HWND owner) const;

  private:
    Owned<HMENU> menu_;
};

}  // namespace lindrel
