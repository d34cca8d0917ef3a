// ISO 8859-2, the encoding of exported pages and of some imported ones.
#pragma once

#include <optional>

namespace lindrel {

// The byte of a character (a UTF-32 value), or nullopt if it is not in ISO 8859-2.
std::optional<char> Latin2Byte(char32_t character);

// The UTF-32 value of a byte.
char32_t Latin2Character(char byte);

}  // namespace lindrel
