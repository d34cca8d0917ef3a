// Base of the windows that are of a window class of the program's own: ties the window to its object, which
// gets the messages.
#pragma once

#include "window/Windows.h"

namespace lindrel {

class OwnWindow {
  public:
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

    // Null before the window is made and after its end.
    HWND Handle() const { return handle_; }
    // The object of such a window; null for one that is on its way out.
    static OwnWindow* FromWindow(HWND window);

  protected:
    OwnWindow() = default;
    // The window must be gone: the derived class calls Destroy() in its own destructor.
    virtual ~OwnWindow() = default;

    // Makes the window, without a title and without a size of its own. `description` names the class, its
    // background and its menu; the rest is filled in. The class is registered when it is not there yet.
    // Throws what OnMessage threw meanwhile, and SystemFault when the system cannot; then there is no
    // window.
    void Create(WNDCLASSEXW description, DWORD style, DWORD extended_style = 0, HWND parent = nullptr);
    void Destroy();

    // Every message from WM_NCCREATE on, but for the last. What it throws does not cross the window
    // procedure: the message loop throws it on (faults/PendingFault.h), and a window that throws at
    // WM_CREATE does not come to be.
    virtual LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    HWND handle_ = nullptr;
};

}  // namespace lindrel
