#include "text/BookText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "text/Characters.h"

namespace lindrel {

namespace {

// The characters of the bytes from 0x80 on. The unused bytes 0x81, 0x83, 0x88, 0x90 and 0x98 keep their
// numbers.
constexpr std::array<char16_t, 128> kUpperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021,  // 0x80
    0x0088, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,  // 0x88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 0x90
    0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,  // 0x98
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7,  // 0xA0
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,  // 0xA8
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7,  // 0xB0
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,  // 0xB8
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,  // 0xC0
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,  // 0xC8
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7,  // 0xD0
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,  // 0xD8
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,  // 0xE0
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,  // 0xE8
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,  // 0xF0
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,  // 0xF8
};

constexpr char32_t kLastCharacter = 0x2122;  // the trade mark sign, the highest in Windows-1250

constexpr std::uint8_t Number(char byte) {
    return static_cast<std::uint8_t>(byte);
}

constexpr char32_t CharacterOfNumber(std::uint8_t number) {
    return number < 0x80 ? char32_t{number} : char32_t{kUpperHalf[number - 0x80U]};
}

// The byte of each character up to the last one. 0 means none, so U+0000 needs a test of its own.
constexpr auto kByteOf = [] {
    std::array<std::uint8_t, kLastCharacter + 1> table{};
    for (unsigned number = 1; number < 256; ++number)
        table[CharacterOfNumber(static_cast<std::uint8_t>(number))] = static_cast<std::uint8_t>(number);
    return table;
}();

// The letters of Windows-1250 are in ASCII, Latin-1 and Latin Extended-A.
constexpr char32_t LowerCharacter(char32_t c) {
    if (c >= U'A' && c <= U'Z') return c + 0x20;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 0x20;
    if ((c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) return c | 1U;
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) return c + (c & 1U);
    return c;
}

constexpr auto kLower = [] {
    std::array<std::uint8_t, 256> table{};
    for (unsigned number = 0; number < 256; ++number) {
        const char32_t lower = LowerCharacter(CharacterOfNumber(static_cast<std::uint8_t>(number)));
        const std::uint8_t byte = lower <= kLastCharacter ? kByteOf[lower] : std::uint8_t{0};
        table[number] = byte != 0 ? byte : static_cast<std::uint8_t>(number);
    }
    return table;
}();

// The inverse of kLower: no letter has two capitals.
constexpr auto kUpper = [] {
    std::array<std::uint8_t, 256> table{};
    for (unsigned number = 0; number < 256; ++number) table[number] = static_cast<std::uint8_t>(number);
    for (unsigned number = 0; number < 256; ++number)
        if (kLower[number] != number) table[kLower[number]] = static_cast<std::uint8_t>(number);
    return table;
}();

}  // namespace

char32_t CharacterOf(char byte) {
    return CharacterOfNumber(Number(byte));
}

std::optional<char> BookByte(char32_t character) {
    if (character == 0) return '\0';
    if (character > kLastCharacter || kByteOf[character] == 0) return std::nullopt;
    return static_cast<char>(kByteOf[character]);
}

std::wstring FromBookText(std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    std::transform(text.begin(), text.end(), wide.begin(),
                   [](char byte) { return static_cast<wchar_t>(CharacterOf(byte)); });
    return wide;
}

std::string ToBookText(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();)
        bytes.push_back(BookByte(NextCharacter(text, offset)).value_or('?'));
    return bytes;
}

std::optional<std::wstring> FirstForeignCharacter(std::wstring_view text) {
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t start = offset;
        if (!BookByte(NextCharacter(text, offset))) return std::wstring(text.substr(start, offset - start));
    }
    return std::nullopt;
}

char LowerCase(char byte) {
    return static_cast<char>(kLower[Number(byte)]);
}

char UpperCase(char byte) {
    return static_cast<char>(kUpper[Number(byte)]);
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower) byte = LowerCase(byte);
    return lower;
}

std::wstring_view Trim(std::wstring_view text) {
    const auto first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

// The search rules out eight starts at a time by the first and the last letter of the needle: letter by
// letter, bench/FindBench.cpp takes more than twice as long.

namespace {

constexpr std::size_t kWordBytes = sizeof(std::uint64_t);
constexpr std::uint64_t kOnes = 0x0101010101010101;

// The first byte is in the lowest bits.
std::uint64_t WordAt(std::string_view text, std::size_t offset) {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + offset, sizeof word);
    return word;
}

// Sets the high bit of each zero byte, and perhaps that of bytes of 1 above the lowest zero byte.
constexpr std::uint64_t ZeroBytes(std::uint64_t word) {
    return (word - kOnes) & ~word & (kOnes << 7);
}

}  // namespace

CaselessNeedle::EitherCase::EitherCase(char lower)
    : ignored_(kOnes * (Number(lower) ^ Number(UpperCase(lower)))),
      expected_(kOnes * Number(lower) | ignored_) {}

CaselessNeedle::CaselessNeedle(std::string_view needle) : needle_(LowerCase(needle)) {
    if (needle_.empty()) return;
    first_ = EitherCase(needle_.front());
    last_ = EitherCase(needle_.back());
}

bool CaselessNeedle::MatchesAt(std::string_view text, std::size_t start) const noexcept {
    return std::equal(needle_.begin(), needle_.end(), text.begin() + start,
                      [](char lower, char byte) { return LowerCase(byte) == lower; });
}

std::size_t CaselessNeedle::FindIn(std::string_view text, std::size_t from) const noexcept {
    if (from > text.size() || needle_.size() > text.size() - from) return std::string_view::npos;
    if (needle_.empty()) return from;
    const std::size_t to_last = needle_.size() - 1;
    const std::size_t end = text.size() - to_last;
    if (end - from < kWordBytes) {
        for (std::size_t start = from; start < end; ++start)
            if (MatchesAt(text, start)) return start;
        return std::string_view::npos;
    }
    // The last eight starts may overlap those before them.
    const std::size_t last = end - kWordBytes;
    for (std::size_t word = from;; word = std::min(word + kWordBytes, last)) {
        std::uint64_t candidates =
            ZeroBytes(first_.Difference(WordAt(text, word)) | last_.Difference(WordAt(text, word + to_last)));
        for (; candidates != 0; candidates &= candidates - 1) {
            const std::size_t start = word + static_cast<std::size_t>(std::countr_zero(candidates)) / 8;
            if (MatchesAt(text, start)) return start;
        }
        if (word == last) return std::string_view::npos;
    }
}

bool ContainsCaseless(std::wstring_view text, std::wstring_view needle) {
    const auto same = [](wchar_t a, wchar_t b) {
        return LowerCharacter(static_cast<char32_t>(a)) == LowerCharacter(static_cast<char32_t>(b));
    };
    return std::search(text.begin(), text.end(), needle.begin(), needle.end(), same) != text.end() ||
           needle.empty();
}

}  // namespace lindrel
