#include "window/PlacedTogether.h"

namespace lindrel {

PlacedTogether::~PlacedTogether() {
    if (pass_ == nullptr || !EndDeferWindowPos(pass_) || !IsWindowVisible(window_)) return;
    // The window too: it shows through a group box, which draws no background.
    for (const RECT& area : to_redraw_)
        RedrawWindow(window_, &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void PlacedTogether::Move(HWND control, const RECT& bounds) {
    RECT before{};
    GetWindowRect(control, &before);
    MapWindowPoints(HWND_DESKTOP, window_, reinterpret_cast<POINT*>(&before), 2);
    if (EqualRect(&before, &bounds)) return;
    to_redraw_.push_back(before);
    to_redraw_.push_back(bounds);
    // The bounds of a combo box are without its list, and setting its size would set that of the list.
    const bool moved_only = bounds.right - bounds.left == before.right - before.left &&
                            bounds.bottom - bounds.top == before.bottom - before.top;
    Defer(control, bounds, moved_only ? SWP_NOCOPYBITS | SWP_NOSIZE : SWP_NOCOPYBITS);
}

void PlacedTogether::Defer(HWND control, const RECT& bounds, UINT flags) {
    if (pass_ == nullptr) return;
    pass_ = DeferWindowPos(pass_, control, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                           bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

}  // namespace lindrel
