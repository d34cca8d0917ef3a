#include "text/Latin2.h"

#include <array>

#include "text/BookText.h"

namespace lindrel {

namespace {

// The characters of the bytes A0 to BF, where ISO 8859-2 differs from Windows-1250. From C0 on they are the
// same.
constexpr unsigned kFirst = 0xA0;
constexpr std::array<char16_t, 32> kCharacters = {
    0x00A0, 0x0104, 0x02D8, 0x0141, 0x00A4, 0x013D, 0x015A, 0x00A7, 0x00A8, 0x0160, 0x015E,
    0x0164, 0x0179, 0x00AD, 0x017D, 0x017B, 0x00B0, 0x0105, 0x02DB, 0x0142, 0x00B4, 0x013E,
    0x015B, 0x02C7, 0x00B8, 0x0161, 0x015F, 0x0165, 0x017A, 0x02DD, 0x017E, 0x017C};
constexpr unsigned kFirstSame = kFirst + static_cast<unsigned>(kCharacters.size());

}  // namespace

char32_t Latin2Character(char byte) {
    const auto number = static_cast<unsigned char>(byte);
    if (number < kFirst) return number;
    if (number < kFirstSame) return kCharacters.at(number - kFirst);
    return CharacterOf(byte);
}

std::optional<char> Latin2Byte(char32_t character) {
    if (character < kFirst) return static_cast<char>(character);
    const std::optional<char> same = BookByte(character);
    if (same && static_cast<unsigned char>(*same) >= kFirstSame) return same;
    for (unsigned number = kFirst; number < kFirstSame; ++number)
        if (kCharacters.at(number - kFirst) == character) return static_cast<char>(number);
    return std::nullopt;
}

}  // namespace lindrel
