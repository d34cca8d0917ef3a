// Shows the hourglass until it is destroyed.
#pragma once

#include "window/Windows.h"

namespace lindrel {

class WaitCursor {
  public:
    WaitCursor() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(before_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

  private:
    HCURSOR before_;
};

}  // namespace lindrel
