// Tells the user why the session of Windows cannot end yet.
#pragma once

#include "window/Windows.h"

namespace lindrel {

class SessionHold {
  public:
    SessionHold() = default;
    ~SessionHold() { Release(); }
    SessionHold(const SessionHold&) = delete;
    SessionHold& operator=(const SessionHold&) = delete;

    // For a top-level window of the calling thread that is about to answer WM_QUERYENDSESSION with FALSE, or
    // to ask before it answers. The system shows the reason beside the program's name until Release(); what
    // came to the front last of the window and all that it owns comes to the front of the screen.
    void Hold(HWND window, const wchar_t* reason);
    // When the question is answered, and at WM_ENDSESSION.
    void Release();

  private:
    HWND window_ = nullptr;  // the one that bears the reason
};

}  // namespace lindrel
