// Tells the user why the Windows session cannot end yet.
#pragma once

#include <utility>

#include "window/Windows.h"

namespace lindrel {

class SessionHold {
  public:
    SessionHold() = default;
    ~SessionHold() { Release(); }
    SessionHold(const SessionHold&) = delete;
    SessionHold& operator=(const SessionHold&) = delete;

    // For a top-level window of the calling thread that is about to answer WM_QUERYENDSESSION with FALSE, or
    // to ask the user before it answers. Windows shows the reason next to the program's name until Release().
    // Brings to the front whichever was active last: the window or a dialog or box that it owns.
    void Hold(HWND window, const wchar_t* reason) {
        Release();
        // Without the reason Windows names only the program; the session still waits.
        static_cast<void>(ShutdownBlockReasonCreate(window, reason));
        window_ = window;
        // Refused while the user works in another program; the taskbar button flashes then.
        static_cast<void>(SetForegroundWindow(GetLastActivePopup(window)));
    }
    // For WM_ENDSESSION, and when the user has answered.
    void Release() {
        if (window_ == nullptr) return;
        // Fails if the window has been destroyed, and its reason with it.
        static_cast<void>(ShutdownBlockReasonDestroy(std::exchange(window_, nullptr)));
    }

  private:
    HWND window_ = nullptr;  // has the reason
};

}  // namespace lindrel
