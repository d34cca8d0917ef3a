// A menu that opens where the user asks for it.
#pragma once

#include <span>

#include "window/Owned.h"
#include "window/Windows.h"

namespace lindrel {

class PopupMenu {
  public:
    // The first popup of a menu in the resources. Throws SystemFault if there is none.
    PopupMenu(HINSTANCE instance, int id);
    // Commands of a menu bar by their ids, with the captions, shortcuts and states that they have there; 0
    // stands for a separator. The first command is the default, shown in bold. Throws SystemFault if one is
    // not in the bar or Windows cannot create the menu.
    PopupMenu(HMENU bar, std::span<const int> commands);

    // Puts the radio button's dot on the item `chosen` of the items first..last.
    void CheckRadio(int first, int last, int chosen) const {
        CheckMenuRadioItem(menu_.get(), static_cast<UINT>(first), static_cast<UINT>(last),
                           static_cast<UINT>(chosen), MF_BYCOMMAND);
    }

    // Both return when the menu has closed. The owner gets WM_COMMAND for the chosen item. Coordinates are
    // those of the screen.
    void OpenAt(POINT at, HWND owner) const;
    // Opens below a control, or above it if there is no room below.
    void OpenBelow(const RECT& control, HWND owner) const;

  private:
    Owned<HMENU> menu_;
};

}  // namespace lindrel
