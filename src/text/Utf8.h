// UTF-8, the encoding of most files today and of percent-encoded letters in addresses. Characters are UTF-32
// values.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lindrel {

// The byte order mark.
inline constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

struct Utf8Character {
    char32_t Value;
    std::size_t Length;  // in bytes
};

// The character at the start of the bytes (at least one), or nullopt if they do not start with a complete and
// valid character.
std::optional<Utf8Character> FirstUtf8Character(std::string_view bytes);

// The number of bytes before the first one that is not ASCII.
std::size_t AsciiLength(std::string_view bytes);

// Whether bytes are valid UTF-8 and not just ASCII. Text in other encodings hardly ever is by chance.
bool IsUtf8BeyondAscii(std::string_view bytes);

// The character must not be a surrogate.
void AppendUtf8(std::string& text, char32_t character);

// A character, which must not be a surrogate, as an address can hold it: "%C5%91" for U+0151.
std::string PercentEncoded(char32_t character);

}  // namespace lindrel
