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
inline constexpr std::uint64_t kOnes = 0x0101010101010101;

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

// Sets the high bit of each zero byte. Above the lowest one, bytes of 1 may be marked as well.
constexpr std::uint64_t ZeroBytes(std::uint64_t word) {
    return (word - kOnes) & ~word & kHighBits;
}

// The 0-based place of a byte at or after another place, or npos. The memchr of a C library may go
// byte by byte, as Wine's does.
inline std::size_t FindByte(std::string_view text, char byte, std::size_t from = 0) {
    const std::uint64_t wanted = kOnes * static_cast<std::uint8_t>(byte);
    std::size_t place = from;
    for (; place + kWordBytes <= text.size(); place += kWordBytes)
        if (const std::uint64_t found = ZeroBytes(WordAt(text, place) ^ wanted); found != 0)
            return place + LowestMarked(found);
    for (; place < text.size(); ++place)
        if (text[place] == byte) return place;
    return std::string_view::npos;
}

}  // namespace lindrel
