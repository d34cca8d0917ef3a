// The numbers and texts that the shell and an icon in the notification area exchange.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lindrel {

// What the mouse did on an icon.
enum class TrayEvent { None, MouseMove, MouseDown, MouseUp, DblClick };

struct TrayMouse {
    TrayEvent Event = TrayEvent::None;
    std::int16_t Button = 0;  // 1 left, 2 right, 0 for events without a button
    bool operator==(const TrayMouse&) const = default;
};

// The event for the number of a mouse message; None for those that the icon ignores, such as the middle
// button.
TrayMouse TrayMouseOf(std::uint64_t message);

// Size of the shell's field for a tool tip, in bytes.
inline constexpr std::size_t kTipLength = 64;

// A tool tip as the shell's field: the text, a NUL and blanks, or the text cut off without a NUL. Both are in
// the ANSI code page of the machine.
std::array<char, kTipLength> TipField(std::string_view tip);

// An identifier for an icon, 1..65535, from a random number in [0, 1).
std::uint32_t TrayIdentifier(double random);

}  // namespace lindrel
