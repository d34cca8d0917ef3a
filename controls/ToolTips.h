// Texts that appear while the mouse rests on a control.
#pragma once

#include <string>

#include "controls/Windows.h"

namespace lindrel {

class ToolTips {
  public:
    // Sets or replaces the tip of a control in a window; an empty one takes it away. The tips go with the
    // window. When the system cannot make tips there are none, and nothing else is wrong.
    void Set(HWND window, HWND control, const std::wstring& text);

  private:
    HWND tips_ = nullptr;
};

}  // namespace lindrel
