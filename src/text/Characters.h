// Wide text character by character. Characters are UTF-32 values.
#pragma once

#include <cstddef>
#include <string_view>

namespace lindrel {

// The character at a 0-based place within the text; the place is moved past it. A surrogate pair is one
// character. An unpaired surrogate is returned as it is.
char32_t NextCharacter(std::wstring_view text, std::size_t& place);

constexpr bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDFFF;
}

}  // namespace lindrel
