// Handles messages of a window whose procedure belongs to Windows or to another class.
#pragma once

#include <functional>
#include <optional>

#include "window/Windows.h"

namespace lindrel {

class Subclass {
  public:
    // Gets every message before the window does. If it returns a result, the window does not get the message,
    // except WM_NCDESTROY; if it returns none, the window does. If it throws, the result is 0 and the message
    // loop throws the exception (faults/PendingFault.h).
    using Handler = std::function<std::optional<LRESULT>(UINT message, WPARAM wparam, LPARAM lparam)>;

    Subclass() = default;
    ~Subclass() { Detach(); }
    Subclass(const Subclass&) = delete;
    Subclass& operator=(const Subclass&) = delete;

    // The handler gets the messages until Detach(), or until this object or the window is destroyed. An
    // object attaches to one window at a time, in that window's thread. Throws SystemFault if there is no
    // such window; the object is detached then.
    void Attach(HWND window, Handler handler);
    // The handler may call it.
    void Detach();

    // Passes a message on to the window and returns its result: for a handler that acts after the window or
    // changes the result.
    LRESULT Default(UINT message, WPARAM wparam, LPARAM lparam) const {
        return DefSubclassProc(window_, message, wparam, lparam);
    }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                      DWORD_PTR data);

    HWND window_ = nullptr;
    Handler handler_;
};

}  // namespace lindrel
