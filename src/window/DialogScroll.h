// Makes every control of a dialog reachable that its screen has no room for: the dialog gets as large as the
// work area allows, and scroll bars that follow the focus. A resizable dialog is only kept in the work area.
#pragma once

#include "window/Windows.h"

namespace lindrel {

class DialogScroll {
  public:
    // Takes the dialog as it is for the whole of it.
    void Remember(HWND dialog);
    // Places the dialog on its screen. To be called again when the dialog manager has scaled the controls.
    void Fit();
    // Scrolls to a control that has got the focus.
    void Follow(HWND focus);
    // For WM_HSCROLL, WM_VSCROLL and WM_MOUSEWHEEL; false for every other message.
    bool OnMessage(UINT message, WPARAM wparam) const;

  private:
    RECT BoundsOfControls() const;
    bool HasBar(int bar) const;
    int LineHeight() const;
    void ResizeAndScroll(const RECT& window, SIZE whole) const;
    void Scroll(int bar, int request) const;
    void ScrollBy(int bar, int pixels) const;
    void MoveControls(int across, int down) const;

    HWND dialog_ = nullptr;
    // As they were remembered.
    RECT client_{};
    RECT controls_{};
    HWND followed_ = nullptr;
};

}  // namespace lindrel
