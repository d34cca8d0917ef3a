#include "controls/Anchors.h"

#include <algorithm>

#include "controls/Display.h"

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

void Anchors::Remember(HWND dialog, std::initializer_list<Control> controls) {
    dialog_ = dialog;
    dpi_ = DpiOf(dialog);
    least_client_ = ClientSize();
    RECT window{};
    GetWindowRect(dialog, &window);
    least_window_ = {window.right - window.left, window.bottom - window.top};
    controls_.clear();
    for (const Control& control : controls) {
        RECT place{};
        GetWindowRect(GetDlgItem(dialog, control.Id), &place);
        MapWindowPoints(HWND_DESKTOP, dialog, reinterpret_cast<POINT*>(&place), 2);
        controls_.push_back({control, place});
    }
}

void Anchors::Place() const {
    if (dialog_ == nullptr || IsIconic(dialog_)) return;
    const SIZE client = ClientSize();
    const LONG across = std::max(client.cx - least_client_.cx, 0L);
    const LONG down = std::max(client.cy - least_client_.cy, 0L);
    for (const Remembered& remembered : controls_) {
        RECT place = remembered.place;
        Grow(place.left, place.right, remembered.control.Across, across);
        Grow(place.top, place.bottom, remembered.control.Down, down);
        // A text may be drawn differently at another width, so the old pixels are not kept.
        SetWindowPos(GetDlgItem(dialog_, remembered.control.Id), nullptr, place.left, place.top,
                     place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
}

void Anchors::LimitSize(MINMAXINFO& info) const {
    if (dialog_ != nullptr) info.ptMinTrackSize = {least_window_.cx, least_window_.cy};
}

void Anchors::ChangeResolution(UINT dpi) {
    const auto scale = [this, dpi](LONG& length) {
        length = MulDiv(length, static_cast<int>(dpi), static_cast<int>(dpi_));
    };
    for (LONG* const length : {&least_client_.cx, &least_client_.cy, &least_window_.cx, &least_window_.cy})
        scale(*length);
    for (Remembered& remembered : controls_) {
        RECT& place = remembered.place;
        for (LONG* const side : {&place.left, &place.top, &place.right, &place.bottom}) scale(*side);
    }
    dpi_ = dpi;
}

}  // namespace lindrel
