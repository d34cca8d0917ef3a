#include "window/Anchors.h"

#include <algorithm>

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
        RECT place{};
        GetWindowRect(control, &place);
        MapWindowPoints(HWND_DESKTOP, dialog, reinterpret_cast<POINT*>(&place), 2);
        const auto* const named = std::find_if(
            controls.begin(), controls.end(),
            [control](const Control& candidate) { return candidate.Id == GetDlgCtrlID(control); });
        if (named != controls.end())
            controls_.push_back({control, named->Across, named->Down, place});
        else
            controls_.push_back({control, Growth::Stays, Growth::Stays, place});
    }
}

void Anchors::Place() const {
    if (dialog_ == nullptr || IsIconic(dialog_)) return;
    const SIZE client = ClientSize();
    const LONG across = std::max(client.cx - Scaled(least_client_.cx), 0L);
    const LONG down = std::max(client.cy - Scaled(least_client_.cy), 0L);
    PlacedTogether placed(dialog_, static_cast<int>(controls_.size()));
    for (const Remembered& remembered : controls_) {
        RECT place = remembered.place;
        for (LONG* const side : {&place.left, &place.top, &place.right, &place.bottom}) *side = Scaled(*side);
        Grow(place.left, place.right, remembered.across, across);
        Grow(place.top, place.bottom, remembered.down, down);
        placed.Move(remembered.control, place);
    }
}

void Anchors::LimitSize(MINMAXINFO& info) const {
    if (dialog_ != nullptr) info.ptMinTrackSize = {Scaled(least_window_.cx), Scaled(least_window_.cy)};
}

void Anchors::ChangeResolution(UINT dpi) {
    dpi_ = dpi;
}

}  // namespace lindrel
