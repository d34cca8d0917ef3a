// Intercepts the messages of a window whose procedure is the system's or another class's.
#pragma once

#include <functional>
#include <optional>

#include "window/Windows.h"

namespace lindrel {

class Subclass {
  public:
    // Gets every message before the window does. With an answer the message is done with; without one it goes
    // on to the window. When the handler throws, the answer is 0 and the message loop throws the fault on
    // (faults/PendingFault.h).
    using Handler = std::function<std::optional<LRESULT>(UINT message, WPARAM wparam, LPARAM lparam)>;

    Subclass() = default;
    ~Subclass();
    Subclass(const Subclass&) = delete;
    Subclass& operator=(const Subclass&) = delete;

    // From now on, until Detach() or until this object or the window is gone. To one window at a time, and in
    // the window's thread. Throws SystemFault when the system cannot.
    void Attach(HWND window, Handler handler);
    // The handler may ask for it itself.
    void Detach();

    // Passes a message on to the window at once and returns its answer, for a handler that acts after the
    // window or changes the answer.
    LRESULT Default(UINT message, WPARAM wparam, LPARAM lparam) const;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                      DWORD_PTR data);

    HWND window_ = nullptr;
    Handler handler_;
};

}  // namespace lindrel
