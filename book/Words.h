// Texts eight bytes at a time, for searches that must be fast. The first byte is in the lowest bits.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace lindrel {

inline constexpr std::size_t kWordBytes = sizeof(std::uint64_t);
inline constexpr std::uint64_t kHighBits = 0x8080808080808080;

// The place is at most text.size() - kWordBytes.
inline std::uint64_t WordAt(std::string_view text, std::size_t place) {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + place, sizeof word);
    return word;
}

// The 0-based byte of the lowest bit that is set; 8 if there is none.
constexpr std::size_t LowestMarked(std::uint64_t marks) {
    return static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

}  // namespace lindrel
