// Tells whether the user has moved the focus to a control, or the control only gets it back because its
// window is active again after a message box or another program. Getting it back must leave caret and
// selection alone.
#pragma once

#include <utility>

#include "window/Windows.h"

namespace lindrel {

class ReturnedFocus {
  public:
    // For WM_ACTIVATE of the window. `state` is the message's wparam.
    void OnActivate(WPARAM state) {
        if (LOWORD(state) == WA_INACTIVE) left_ = GetFocus();
    }
    // Whether a control that has gained the focus only gets it back. Call it once for each EN_SETFOCUS.
    bool Is(HWND control) { return std::exchange(left_, nullptr) == control; }

  private:
    HWND left_ = nullptr;  // had the focus when the window was deactivated
};

}  // namespace lindrel
