#include "tray/TrayProtocol.h"

#include <algorithm>

namespace lindrel {

namespace {

constexpr std::int16_t kLeft = 1;
constexpr std::int16_t kRight = 2;

// The numbers of WM_MOUSEMOVE to WM_RBUTTONDBLCLK.
enum MouseMessage : std::uint64_t {
    kMouseMove = 512,
    kLeftButtonDown,
    kLeftButtonUp,
    kLeftDoubleClick,
    kRightButtonDown,
    kRightButtonUp,
    kRightDoubleClick
};

}  // namespace

TrayMouse TrayMouseOf(std::uint64_t message) {
    switch (message) {
        case kMouseMove:
            return {TrayEvent::MouseMove, 0};
        case kLeftButtonDown:
            return {TrayEvent::MouseDown, kLeft};
        case kLeftButtonUp:
            return {TrayEvent::MouseUp, kLeft};
        case kRightButtonDown:
            return {TrayEvent::MouseDown, kRight};
        case kRightButtonUp:
            return {TrayEvent::MouseUp, kRight};
        case kLeftDoubleClick:
        case kRightDoubleClick:
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
