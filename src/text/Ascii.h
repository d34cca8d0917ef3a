// Letter case in ASCII only, for what is ASCII by definition: schemes, extensions, HTML.
#pragma once

#include <algorithm>
#include <string_view>

namespace lindrel {

// A char or wchar_t in lower case. Anything but A to Z stays as it is.
template <typename Character>
constexpr Character AsciiLower(Character character) {
    const bool capital = character >= 'A' && character <= 'Z';
    return capital ? static_cast<Character>(character + ('a' - 'A')) : character;
}

// Whether a text starts, in either case, with another one that is given in lower case.
constexpr bool StartsWithAsciiCaseless(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() && std::equal(lower.begin(), lower.end(), text.begin(),
                                                     [](char a, char b) { return a == AsciiLower(b); });
}

}  // namespace lindrel
