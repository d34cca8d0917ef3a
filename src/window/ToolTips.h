// Texts that appear while the mouse rests on a control.
#pragma once

#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

class ToolTips {
  public:
    // Sets or replaces the tip of a control in a window; an empty text removes it. The tips are destroyed
    // with the window. If Windows cannot create them the window has none; that is no fault.
    void Set(HWND window, HWND control, const std::wstring& text);
    // For WM_SETCURSOR of the window: the tips are created when the mouse first comes, so that they do not
    // delay the window.
    void OnSetCursor(HWND window);

  private:
    struct Tip {
        HWND Control;
        std::wstring Text;
    };

    void Show(HWND window, const Tip& tip) const;

    HWND tips_ = nullptr;
    std::vector<Tip> waiting_;  // for the mouse; at most one for each control
};

}  // namespace lindrel
