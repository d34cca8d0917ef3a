// Tells the focus that a control gains from the user from the one that it gets back when its window comes to
// the front again, after a message box or from another program: coming back must leave caret and selection
// alone.
#pragma once

#include <utility>

#include "controls/Windows.h"

namespace lindrel {

class ReturnedFocus {
  public:
    // WM_ACTIVATE of the window, before the focus changes.
    void OnActivate(WPARAM state) {
        if (LOWORD(state) == WA_INACTIVE) left_ = GetFocus();
    }
    // Whether a control that has gained the focus only gets back what it had. To be asked once each time.
    bool Is(HWND control) { return std::exchange(left_, nullptr) == control; }

  private:
    HWND left_ = nullptr;  // had the focus when the window went out of the front
};

}  // namespace lindrel
