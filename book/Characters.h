// Wide text character by character. Characters are UTF-32 values.
#pragma once

#include <cstddef>
#include <string_view>

namespace lindrel {

// The character at a place (0-based, within the text); moves the place behind it. Two units that are a
// surrogate pair are one character. A surrogate without its other half is returned as it is.
char32_t NextCharacter(std::wstring_view text, std::size_t& place);

constexpr bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDFFF;
}

}  // namespace lindrel
