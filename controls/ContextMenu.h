// A menu of commands that the menu bar has too, for what the user points at.
#pragma once

#include <span>

#include "controls/Owned.h"
#include "controls/Windows.h"

namespace lindrel {

class ContextMenu {
  public:
    // Commands of a menu bar by their ids, with captions, shortcuts and states as they are there; 0 stands
    // for a line between them. The first is the default, in bold. Throws std::bad_alloc when the system
    // cannot.
    ContextMenu(HMENU bar, std::span<const int> commands);

    // Opens the menu at a point of the screen and returns when it has closed. The owner hears of the chosen
    // item by WM_COMMAND.
    void Open(POINT at, HWND owner) const;

  private:
    Owned<HMENU> menu_;
};

}  // namespace lindrel
