#include "text/Utf8.h"

#include <algorithm>
#include <array>

#include "text/Characters.h"

namespace lindrel {

namespace {

constexpr bool IsTrail(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

}  // namespace

std::optional<Utf8Character> FirstUtf8Character(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (lead < 0x80) return Utf8Character{lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || length > bytes.size()) return std::nullopt;
    char32_t value = lead & (0x7FU >> length);
    for (const char byte : bytes.substr(1, length - 1)) {
        if (!IsTrail(byte)) return std::nullopt;
        value = value << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    if (value < kLeast.at(length) || IsSurrogate(value) || value > 0x10FFFF) return std::nullopt;
    return Utf8Character{value, length};
}

std::size_t AsciiLength(std::string_view bytes) {
    const auto is_other = [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; };
    return static_cast<std::size_t>(std::find_if(bytes.begin(), bytes.end(), is_other) - bytes.begin());
}

bool IsUtf8BeyondAscii(std::string_view bytes) {
    bytes.remove_prefix(AsciiLength(bytes));
    const bool beyond = !bytes.empty();
    while (!bytes.empty()) {
        const std::optional<Utf8Character> character = FirstUtf8Character(bytes);
        if (!character) return false;
        bytes.remove_prefix(character->Length);
        bytes.remove_prefix(AsciiLength(bytes));
    }
    return beyond;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto trail = [&](unsigned shift) {
        text.push_back(static_cast<char>(0x80U | (character >> shift & 0x3FU)));
    };
    if (character < 0x80) return text.push_back(static_cast<char>(character));
    const unsigned trails = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    // As many of the high bits are set as there are bytes.
    const unsigned lead = 0xFFU << (7 - trails);
    text.push_back(static_cast<char>(lead | character >> (6 * trails)));
    for (unsigned left = trails; left-- > 0;) trail(6 * left);
}

std::string PercentEncoded(char32_t character) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string bytes;
    AppendUtf8(bytes, character);
    std::string encoded;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        encoded.append({'%', kDigits[number >> 4U], kDigits[number & 0xFU]});
    }
    return encoded;
}

}  // namespace lindrel
