#include "text/Characters.h"

namespace lindrel {

namespace {

constexpr char32_t kFirstHighSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;

constexpr bool IsLowSurrogate(char32_t unit) {
    return IsSurrogate(unit) && unit >= kFirstLowSurrogate;
}

}  // namespace

char32_t NextCharacter(std::wstring_view text, std::size_t& place) {
    const auto unit = static_cast<char32_t>(text[place++]);
    if (!IsSurrogate(unit) || IsLowSurrogate(unit) || place == text.size()) return unit;
    const auto next = static_cast<char32_t>(text[place]);
    if (!IsLowSurrogate(next)) return unit;
    ++place;
    return 0x10000 + ((unit - kFirstHighSurrogate) << 10) + (next - kFirstLowSurrogate);
}

}  // namespace lindrel
