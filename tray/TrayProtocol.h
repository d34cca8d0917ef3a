// What the shell and an icon in the notification area tell each other: numbers and texts of fixed sizes.
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
    std::int16_t Button = 0;  // 1 left, 2 right; 0 for the events that name none
    bool operator==(const TrayMouse&) const = default;
};

// The event that a mouse message stands for; None for those that the icon ignores, the middle button's too.
TrayMouse TrayMouseOf(std::uint64_t message);

// Length of the field that the shell keeps a tool tip in.
inline constexpr std::size_t kTipLength = 64;

// A tool tip as the shell's record holds it: the text and a NUL, then blanks; a text of 64 bytes or more is
// cut off and has no NUL. Text and field are in the machine's ANSI code page.
std::array<char, kTipLength> TipField(std::string_view tip);

// An icon's identifier, 1..65535, from a random number in [0, 1).
std::uint32_t TrayIdentifier(double random);

}  // namespace lindrel
