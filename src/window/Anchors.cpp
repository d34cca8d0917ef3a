#include "window/Anchors.h"

#include "window/Display.h"
#include "window/PlacedTogether.h"

namespace lindrel {

namespace {

void Grow(LONG& near_side, LONG& far_side, Growth growth, LONG by) {
    if (growth == Growth::Moves) near_side += by;
    if (growth != Growth::Stays) far_side += by;
}

}  // namespace

SIZE Anchors::ClientSize() const {
    RECT client{};
    GetClientRect(dialog_, &client);
    return {client.right, client.bottom};
}

LONG Anchors::Scaled(LONG length) const {
    return MulDiv(length, static_cast<int>(dpi_), static_cast<int>(remembered_dpi_));
}

void Anchors::Remember(HWND dialog, std::initializer_list<Control> controls) {
    dialog_ = dialog;
    dpi_ = remembered_dpi_ = DpiOf(dialog);
    least_client_ = ClientSize();
    RECT window{};
    GetWindowRect(dialog, &window);
    least_window_ = {window.right - window.left, window.bottom - window.top};
    controls_.clear();
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        Remembered remembered{control, Growth::Stays, Growth::Stays, {}};
        GetWindowRect(control, &remembered.bounds);
        MapWindowPoints(HWND_DESKTOP, dialog, reinterpret_cast<POINT*>(&remembered.bounds), 2);
        for (const Control& listed : controls) {
            if (listed.Id != GetDlgCtrlID(control)) continue;
            remembered.across = listed.Across;
            remembered.down = listed.Down;
        }
        controls_.push_back(remembered);
    }
}

void Anchors::Place() const {
    if (dialog_ == nullptr || IsIconic(dialog_)) return;
    const SIZE client = ClientSize();
    // Negative on a screen too small for the smallest dialog.
    const LONG across = client.cx - Scaled(least_client_.cx);
    const LONG down = client.cy - Scaled(least_client_.cy);
    PlacedTogether placed(dialog_, static_cast<int>(controls_.size()));
    for (const Remembered& remembered : controls_) {
        RECT bounds = remembered.bounds;
        for (LONG* const side : {&bounds.left, &bounds.top, &bounds.right, &bounds.bottom})
            *side = Scaled(*side);
        Grow(bounds.left, bounds.right, remembered.across, across);
        Grow(bounds.top, bounds.bottom, remembered.down, down);
        placed.Move(remembered.control, bounds);
    }
}

void Anchors::LimitSize(MINMAXINFO& info) const {
    if (dialog_ == nullptr) return;
    info.ptMinTrackSize = WithinWorkArea(dialog_, {Scaled(least_window_.cx), Scaled(least_window_.cy)});
}

}  // namespace lindrel
