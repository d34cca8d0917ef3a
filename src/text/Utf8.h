// UTF-8, in which most programs write files today and every program writes foreign letters in addresses.
// Characters are UTF-32 values.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

inline constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

struct Utf8Character {
    char32_t Value;
    std::size_t Length;  // in bytes
};

// The character at the start of the bytes, of which there is at least one, or nothing if they do not begin
// with a whole and valid character.
std::optional<Utf8Character> FirstUtf8Character(std::string_view bytes);

// The number of bytes before the first one that is not ASCII.
std::size_t AsciiLength(std::string_view bytes);

// Whether bytes are valid UTF-8 and not just ASCII. Other texts hardly ever are that by chance.
bool IsUtf8BeyondAscii(std::string_view bytes);

// The character is no surrogate.
void AppendUtf8(std::string& text, char32_t character);

// The bytes of a character as an address can hold them: "%C5%91". The character is no surrogate.
std::string PercentEncoded(char32_t character);

}  // namespace lindrel
