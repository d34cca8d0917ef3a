#include "window/SessionHold.h"

#include <utility>

namespace lindrel {

void SessionHold::Hold(HWND window, const wchar_t* reason) {
    Release();
    // Without the reason the system names only the program; the session waits all the same.
    static_cast<void>(ShutdownBlockReasonCreate(window, reason));
    window_ = window;
    // Refused while another program keeps the front; the taskbar's button flashes then.
    static_cast<void>(SetForegroundWindow(GetLastActivePopup(window)));
}

void SessionHold::Release() {
    if (window_ == nullptr) return;
    // Fails for a window that is gone; its reason went with it.
    static_cast<void>(ShutdownBlockReasonDestroy(std::exchange(window_, nullptr)));
}

}  // namespace lindrel
