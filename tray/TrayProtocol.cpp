#include "tray/TrayProtocol.h"

#include <algorithm>

namespace lindrel {

TrayMouse TrayMouseOf(std::uint64_t message) {
    constexpr std::int16_t kLeft = 1;
    constexpr std::int16_t kRight = 2;
    switch (message) {
        case 512:
            return {TrayEvent::MouseMove, 0};
        case 513:
            return {TrayEvent::MouseDown, kLeft};
        case 514:
            return {TrayEvent::MouseUp, kLeft};
        case 516:
            return {TrayEvent::MouseDown, kRight};
        case 517:
            return {TrayEvent::MouseUp, kRight};
        case 515:
        case 518:
            return {TrayEvent::DblClick, 0};
        default:
            return {};
    }
}

std::array<char, kTipLength> TipField(std::string_view tip) {
    std::array<char, kTipLength> field{};
    field.fill(' ');
    const std::size_t used = std::min(tip.size(), kTipLength);
    std::copy_n(tip.begin(), used, field.begin());
    if (used < kTipLength) field[used] = '\0';
    return field;
}

std::uint32_t TrayIdentifier(double random) {
    return static_cast<std::uint32_t>(random * 65535.0) + 1;
}

}  // namespace lindrel
