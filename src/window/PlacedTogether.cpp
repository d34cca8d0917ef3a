#include "window/PlacedTogether.h"

namespace lindrel {

PlacedTogether::~PlacedTogether() {
    if (pass_ == nullptr || !EndDeferWindowPos(pass_) || !IsWindowVisible(window_)) return;
    // The window itself too: it shows through a frame, which draws no background.
    for (const RECT& area : to_draw_)
        RedrawWindow(window_, &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void PlacedTogether::Move(HWND control, const RECT& place) {
    RECT before{};
    GetWindowRect(control, &before);
    MapWindowPoints(HWND_DESKTOP, window_, reinterpret_cast<POINT*>(&before), 2);
    if (EqualRect(&before, &place)) return;
    to_draw_.push_back(before);
    to_draw_.push_back(place);
    Defer(control, place, SWP_NOCOPYBITS);
}

void PlacedTogether::Defer(HWND control, const RECT& place, UINT flags) {
    if (pass_ == nullptr) return;
    pass_ = DeferWindowPos(pass_, control, nullptr, place.left, place.top, place.right - place.left,
                           place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

}  // namespace lindrel
