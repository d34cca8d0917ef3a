// Random texts, the same in every run, and encoders that are written to be simple.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>

namespace lindrel::testing {

// The same numbers everywhere, unlike those of the standard library's distributions.
class Dice {
  public:
    explicit Dice(std::uint64_t seed = 1250) : state_(seed) {}
    // 0..sides - 1
    std::size_t Roll(std::size_t sides) {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<std::size_t>(state_ >> 33) % sides;
    }

  private:
    std::uint64_t state_;
};

// A character of any length in UTF-8 except U+FEFF, the BOM; often ASCII or a Hungarian letter.
inline char32_t AnyCharacter(Dice& dice) {
    const std::u32string hungarian = U"áéíóöőúüűÁÉÍÓÖŐÚÜŰ„”–";
    switch (dice.Roll(5)) {
        case 0:
            return hungarian[dice.Roll(hungarian.size())];
        case 1:
            return 0x80 + static_cast<char32_t>(dice.Roll(0x780));
        case 2:
            return 0x800 + static_cast<char32_t>(dice.Roll(0xD000));
        case 3:
            return 0x10000 + static_cast<char32_t>(dice.Roll(0x100000));
        default:
            return static_cast<char32_t>(dice.Roll(0x80));
    }
}

inline std::string Utf8(const std::u32string& text) {
    std::string bytes;
    const auto add = [&](char32_t number) { bytes.push_back(static_cast<char>(number)); };
    for (const char32_t c : text) {
        if (c < 0x80) {
            add(c);
        } else if (c < 0x800) {
            add(0xC0 + c / 64);
            add(0x80 + c % 64);
        } else if (c < 0x10000) {
            add(0xE0 + c / 4096);
            add(0x80 + c / 64 % 64);
            add(0x80 + c % 64);
        } else {
            add(0xF0 + c / 262144);
            add(0x80 + c / 4096 % 64);
            add(0x80 + c / 64 % 64);
            add(0x80 + c % 64);
        }
    }
    return bytes;
}

inline std::string Utf16(const std::u32string& text, std::endian order) {
    std::string bytes;
    const auto add = [&](char32_t unit) {
        const char high = static_cast<char>(unit / 256);
        const char low = static_cast<char>(unit % 256);
        bytes.append(order == std::endian::big ? std::string{high, low} : std::string{low, high});
    };
    for (const char32_t c : text) {
        if (c >= 0x10000) add(0xD800 + (c - 0x10000) / 1024);
        add(c < 0x10000 ? c : 0xDC00 + (c - 0x10000) % 1024);
    }
    return bytes;
}

}  // namespace lindrel::testing
