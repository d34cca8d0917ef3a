// The name of the temporary file that is written before it replaces another.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lindrel {

// "~lnd", eight hexadecimal digits made from the name of the file that will be replaced, and ".tmp". Always
// the same for a file, so that what a killed program has left is found again, and different for the files of
// a folder but for an unlikely chance, which only makes one program wait for another.
template <typename Char>
std::basic_string<Char> TemporaryName(std::basic_string_view<Char> file_name) {
    std::uint32_t hash = 2166136261U;  // FNV-1a over the units of the name
    for (const Char unit : file_name) hash = (hash ^ static_cast<std::uint32_t>(unit)) * 16777619U;
    std::basic_string<Char> name{'~', 'l', 'n', 'd'};
    for (int shift = 28; shift >= 0; shift -= 4) {
        const std::uint32_t digit = hash >> static_cast<unsigned>(shift) & 0xFU;
        name += static_cast<Char>(digit < 10 ? '0' + digit : 'a' + (digit - 10));
    }
    for (const char unit : {'.', 't', 'm', 'p'}) name += static_cast<Char>(unit);
    return name;
}

}  // namespace lindrel
