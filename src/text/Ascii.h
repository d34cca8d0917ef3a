// ASCII letters in either case. All other characters stay as they are.
#pragma once

#include <algorithm>
#include <string_view>

namespace lindrel {

constexpr char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

constexpr wchar_t AsciiLower(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : c;
}

// `lower` is in lower case.
constexpr bool StartsWithAsciiCaseless(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() && std::equal(lower.begin(), lower.end(), text.begin(),
                                                     [](char a, char b) { return a == AsciiLower(b); });
}

}  // namespace lindrel
