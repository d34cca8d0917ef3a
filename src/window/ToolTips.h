// Texts that appear while the mouse rests on a control.
#pragma once

#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

class ToolTips {
  public:
    // Sets or replaces the tip of a control in a window; an empty one takes it away. The tips go with the
    // window. When the system cannot make tips there are none, and nothing else is wrong.
    void Set(HWND window, HWND control, const std::wstring& text);
    // For WM_SETCURSOR of the window: the mouse is there. No window waits for its tips before.
    void OnSetCursor(HWND window);

  private:
    struct Tip {
        HWND Control;
        std::wstring Text;
    };

    void Show(HWND window, const Tip& tip) const;

    HWND tips_ = nullptr;
    std::vector<Tip> waiting_;  // for the mouse; one of each control
};

}  // namespace lindrel
