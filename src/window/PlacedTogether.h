// Moves the controls of a window in one pass and redraws them once. Moved one by one, a control would take
// along pixels that another one has covered meanwhile.
#pragma once

#include "window/Windows.h"

namespace lindrel {

class PlacedTogether {
  public:
    // For about `count` controls of a window or dialog.
    PlacedTogether(HWND window, int count) : window_(window), pass_(BeginDeferWindowPos(count)) {}
    // Moves all of them. If Windows has no memory for that, they keep their bounds until the next pass.
    ~PlacedTogether();
    PlacedTogether(const PlacedTogether&) = delete;
    PlacedTogether& operator=(const PlacedTogether&) = delete;

    // Bounds are in pixels of the client area. Stretch keeps what the control shows: for one whose top left
    // corner stays and which redraws by itself what depends on its size. Move redraws the control.
    void Stretch(int id, const RECT& bounds) { Defer(GetDlgItem(window_, id), bounds, 0); }
    void Move(int id, const RECT& bounds) { Move(GetDlgItem(window_, id), bounds); }
    void Move(HWND control, const RECT& bounds);

  private:
    void Defer(HWND control, const RECT& bounds, UINT flags);

    HWND window_;
    HDWP pass_;
};

}  // namespace lindrel
