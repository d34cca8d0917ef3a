// Where a window goes on its screen. The rectangles have the members of RECT.
#pragma once

#include <algorithm>

namespace lindrel {

// Bounds moved into an area, and made smaller where they are larger than the area.
template <typename Rect>
constexpr Rect KeptWithin(Rect bounds, const Rect& area) {
    const auto keep = [](auto& first, auto& last, auto low, auto high) {
        const auto size = std::min(last - first, high - low);
        first = std::clamp(first, low, high - size);
        last = first + size;
    };
    keep(bounds.left, bounds.right, area.left, area.right);
    keep(bounds.top, bounds.bottom, area.top, area.bottom);
    return bounds;
}

// Bounds moved over the middle of an owner's.
template <typename Rect>
constexpr Rect CentredOver(Rect bounds, const Rect& owner) {
    const auto centre = [](auto& first, auto& last, auto low, auto high) {
        const auto size = last - first;
        first = (low + high) / 2 - size / 2;
        last = first + size;
    };
    centre(bounds.left, bounds.right, owner.left, owner.right);
    centre(bounds.top, bounds.bottom, owner.top, owner.bottom);
    return bounds;
}

}  // namespace lindrel
