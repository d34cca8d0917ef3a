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

// The event of a mouse message's number; None for all that the icon does not know, the middle button's too.
TrayMouse TrayMouseOf(std::uint64_t message);

// Length of the field that the shell keeps a tool tip in.
inline constexpr std::size_t kTipLength = 64;

// A tool tip in the shell's record: the text and its NUL, filled up with blanks or cut off. A text that is
// cut has no NUL in the field. Text and field are bytes of the machine's ANSI code page, in which the shell
// reads the record; 64 counts bytes.
std::array<char, kTipLength> TipField(std::string_view tip);

// An icon's identifier, 1..65535, of a random number in [0, 1).
std::uint32_t TrayIdentifier(double random);

}  // namespace lindrel
