// Other programs' text files in a plain model, written from the rules and without the program's tables and
// functions: ASCII, and 0x80 for U+0400, a letter that a book cannot hold.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "faults/Faults.h"

namespace lindrel::fuzz {

constexpr char kForeign = '\x80';
constexpr char kLowerForeign = '\x81';  // its percent-encoded form is in lower case

inline void Require(bool good) {
    if (!good) std::abort();
}

// What a reader returns, and the number of the fault that it throws instead; 0 for none.
template <typename Reader>
auto Outcome(Reader reader) {
    using Result = decltype(reader());
    try {
        return std::pair<Result, int>(reader(), 0);
    } catch (const Fault& fault) {
        return std::pair<Result, int>({}, fault.Number());
    }
}

// With another character for all that is not ASCII.
inline std::string Masked(std::string text, char mask) {
    for (char& c : text)
        if (static_cast<unsigned char>(c) >= 0x80) c = mask;
    return text;
}

inline std::string Replaced(std::string_view text, char what, std::string_view by) {
    std::string result;
    for (const char c : text) result += c == what ? by : std::string_view(&c, 1);
    return result;
}

inline std::string InUtf8(std::string_view plain) {
    return "\xEF\xBB\xBF" + Replaced(plain, kForeign, "\xD0\x80");
}

inline std::string InUtf16(std::string_view plain, bool big_endian) {
    std::string bytes = big_endian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : plain) {
        const char high = c == kForeign ? '\x04' : '\0';
        const char low = c == kForeign ? '\0' : c;
        bytes += big_endian ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

inline std::string Lower(std::string plain) {
    for (char& c : plain) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
        if (c == kForeign) c = kLowerForeign;
    }
    return plain;
}

inline std::string AddressOf(std::string_view plain) {
    return Replaced(Replaced(plain, kForeign, "%D0%80"), kLowerForeign, "%d0%80");
}

inline std::vector<std::string> LinesOf(std::string_view plain) {
    std::vector<std::string> lines;
    bool begun = false;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (!std::exchange(begun, true)) lines.emplace_back();
        if (plain[i] != '\r' && plain[i] != '\n') {
            lines.back() += plain[i];
            continue;
        }
        if (plain.substr(i, 2) == "\r\n") ++i;
        begun = false;
    }
    return lines;
}

}  // namespace lindrel::fuzz
