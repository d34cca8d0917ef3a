// Places the controls of a window in one pass and draws them once: placed one by one, a control would take
// along pixels that another has covered meanwhile.
#pragma once

#include <vector>

#include "window/Windows.h"

namespace lindrel {

class PlacedTogether {
  public:
    // For about `count` controls of a window or dialog.
    PlacedTogether(HWND window, int count) : window_(window), pass_(BeginDeferWindowPos(count)) {}
    // All take their places now. Where the system has no memory for that, they keep the old ones until the
    // next pass.
    ~PlacedTogether();
    PlacedTogether(const PlacedTogether&) = delete;
    PlacedTogether& operator=(const PlacedTogether&) = delete;

    // Places are in pixels of the client area. Stretch is for a control that stays at its corner and draws by
    // itself what another size changes: what it shows is kept meanwhile. Move draws the control anew.
    void Stretch(int id, const RECT& place) { Defer(GetDlgItem(window_, id), place, 0); }
    void Move(int id, const RECT& place) { Move(GetDlgItem(window_, id), place); }
    void Move(HWND control, const RECT& place);

  private:
    void Defer(HWND control, const RECT& place, UINT flags);

    HWND window_;
    HDWP pass_;
    std::vector<RECT> to_draw_;
};

}  // namespace lindrel
