// Texts that appear while the mouse rests on a control.
#pragma once

#include <string>

#include "controls/Windows.h"

namespace lindrel {

class ToolTips {
  public:
    // Sets the text of a control of a window, also anew. The texts go with the window. Without the system's
    // help there are just none: a tip never holds up the program.
    void Set(HWND window, HWND control, const std::wstring& text);

  private:
    HWND tips_ = nullptr;
};

}  // namespace lindrel
