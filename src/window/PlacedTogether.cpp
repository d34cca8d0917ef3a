#include "window/PlacedTogether.h"

namespace lindrel {

PlacedTogether::~PlacedTogether() {
    if (pass_ == nullptr || !EndDeferWindowPos(pass_)) return;
    // A status bar that docks itself does not tell the window what it leaves.
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
}

void PlacedTogether::Move(HWND control, const RECT& bounds) {
    RECT before{};
    GetWindowRect(control, &before);
    MapWindowPoints(HWND_DESKTOP, window_, reinterpret_cast<POINT*>(&before), 2);
    if (EqualRect(&before, &bounds)) return;
    Defer(control, bounds, SWP_NOCOPYBITS);
}

void PlacedTogether::Defer(HWND control, const RECT& bounds, UINT flags) {
    if (pass_ == nullptr) return;
    pass_ = DeferWindowPos(pass_, control, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                           bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

}  // namespace lindrel
