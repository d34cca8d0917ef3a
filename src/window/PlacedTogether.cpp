#include "window/PlacedTogether.h"

namespace lindrel {

PlacedTogether::~PlacedTogether() {
    if (pass_ == nullptr || !EndDeferWindowPos(pass_)) return;
    // A status bar that docks itself does not tell the window what it uncovers. A window that does not clip
    // its children erases them too, so they are painted again.
    const bool clips = (GetWindowLongPtrW(window_, GWL_STYLE) & WS_CLIPCHILDREN) != 0;
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | (clips ? RDW_NOCHILDREN : RDW_ALLCHILDREN));
}

void PlacedTogether::Move(HWND control, const RECT& bounds) {
    RECT before{};
    GetWindowRect(control, &before);
    MapWindowPoints(HWND_DESKTOP, window_, reinterpret_cast<POINT*>(&before), 2);
    if (EqualRect(&before, &bounds)) return;
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
