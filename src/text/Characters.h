// Wide text character by character. Characters are UTF-32 values.
#pragma once

#include <cstddef>
#include <string_view>

namespace lindrel {

constexpr bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDFFF;
}

// The character at a 0-based offset within the text (0..size - 1), which is moved past it. A surrogate pair
// is one character. An unpaired surrogate is returned as it is.
constexpr char32_t NextCharacter(std::wstring_view text, std::size_t& offset) {
    constexpr char32_t kFirstHigh = 0xD800;
    constexpr char32_t kFirstLow = 0xDC00;
    const auto unit = static_cast<char32_t>(text[offset++]);
    if (unit < kFirstHigh || unit >= kFirstLow || offset == text.size()) return unit;
    const auto next = static_cast<char32_t>(text[offset]);
    if (!IsSurrogate(next) || next < kFirstLow) return unit;
    ++offset;
    return 0x10000 + ((unit - kFirstHigh) << 10) + (next - kFirstLow);
}

}  // namespace lindrel
