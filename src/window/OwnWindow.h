// Base of the windows that have a window class of the program's own: passes the window's messages to its
// object.
#pragma once

#include "window/Windows.h"

namespace lindrel {

class OwnWindow {
  public:
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

    // nullptr before the window is created and after it is destroyed.
    HWND Handle() const { return handle_; }
    // The object of such a window; nullptr for one that is being destroyed.
    static OwnWindow* FromWindow(HWND window);

  protected:
    OwnWindow() = default;
    // The derived class must call Destroy() in its own destructor.
    virtual ~OwnWindow() = default;

    // Creates the window, without a title and in a size that Windows chooses. `description` names the class,
    // its background and its menu; the rest is filled in, and the class is registered at its first use.
    // Throws what OnMessage threw meanwhile, and SystemFault if Windows refuses; there is no window then.
    void Create(WNDCLASSEXW description, DWORD style, DWORD extended_style = 0, HWND parent = nullptr);
    void Destroy() {
        if (handle_ != nullptr) DestroyWindow(handle_);
    }

    // Gets every message from WM_NCCREATE on, except WM_NCDESTROY. An exception does not cross the window
    // procedure: the message loop throws it (faults/PendingFault.h). Thrown at WM_CREATE, it also keeps the
    // window from being created.
    virtual LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    HWND handle_ = nullptr;
};

}  // namespace lindrel
