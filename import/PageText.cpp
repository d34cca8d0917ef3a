#include "import/PageText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>

#include "book/BookText.h"
#include "book/Latin2.h"

namespace lindrel {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

constexpr bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

// Pages are mostly ASCII, which is read in blocks of eight bytes.
using Block = std::uint64_t;

bool BeginsWithAsciiBlock(std::string_view bytes, Block& block) {
    constexpr Block kHighBits = 0x8080808080808080;
    if (bytes.size() < sizeof block) return false;
    std::memcpy(&block, bytes.data(), sizeof block);
    return (block & kHighBits) == 0;
}

struct Utf8Character {
    char32_t Value;
    std::size_t Length;  // in bytes
};

// The character at the start of the bytes, which is not ASCII, or nothing if they are not UTF-8.
std::optional<Utf8Character> FirstUtf8Character(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || length > bytes.size()) return std::nullopt;
    char32_t value = lead & (0x7FU >> length);
    for (const char byte : bytes.substr(1, length - 1)) {
        const auto trail = static_cast<unsigned char>(byte);
        if ((trail & 0xC0U) != 0x80) return std::nullopt;
        value = value << 6 | (trail & 0x3FU);
    }
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < kLeast.at(length) || surrogate || value > 0x10FFFF) return std::nullopt;
    return Utf8Character{value, length};
}

bool IsUtf8BeyondAscii(std::string_view bytes) {
    bool beyond = false;
    for (Block block = 0; !bytes.empty();) {
        std::size_t length = 1;
        if (BeginsWithAsciiBlock(bytes, block)) {
            length = sizeof block;
        } else if (!IsAscii(bytes.front())) {
            const std::optional<Utf8Character> character = FirstUtf8Character(bytes);
            if (!character) return false;
            length = character->Length;
            beyond = true;
        }
        bytes.remove_prefix(length);
    }
    return beyond;
}

// The value in a text that begins after the name of an attribute, without quotation marks; empty if there is
// no "=".
std::string_view ValueAfterName(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n\f";
    constexpr std::string_view kEnds = " \t\r\n\f\"';>/?";
    const auto skip = [&text](std::string_view unwanted) {
        text.remove_prefix(std::min(text.find_first_not_of(unwanted), text.size()));
    };
    skip(kBlanks);
    if (!text.starts_with('=')) return {};
    text.remove_prefix(1);
    skip(kBlanks);
    skip("\"'");
    skip(kBlanks);
    return text.substr(0, text.find_first_of(kEnds));
}

// The value of an attribute in a tag of the head, or empty. Tag and attribute are given in lower case.
std::string_view DeclaredIn(std::string_view head, std::string_view tag, std::string_view attribute) {
    for (std::size_t start = head.find(tag); start != std::string_view::npos;
         start = head.find(tag, start + 1)) {
        const std::string_view whole = head.substr(start, head.find('>', start) - start);
        for (std::size_t at = whole.find(attribute); at != std::string_view::npos;
             at = whole.find(attribute, at + 1)) {
            const std::string_view value = ValueAfterName(whole.substr(at + attribute.size()));
            if (!value.empty()) return value;
        }
    }
    return {};
}

std::optional<PageEncoding> DeclaredEncoding(std::string_view page) {
    constexpr std::size_t kLongestHead = 4096;
    constexpr std::array<std::string_view, 2> kUtf8Names = {"utf-8", "utf8"};
    constexpr std::array<std::string_view, 5> kLatin2Names = {"iso-8859-2", "iso8859-2", "iso_8859-2",
                                                              "latin2", "l2"};
    const std::string head = LowerCase(page.substr(0, kLongestHead));
    std::string_view name = DeclaredIn(head, "<meta", "charset");
    if (name.empty()) name = DeclaredIn(head, "<?xml", "encoding");
    const auto among = [name](std::span<const std::string_view> names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    if (among(kUtf8Names)) return PageEncoding::Utf8;
    if (among(kLatin2Names)) return PageEncoding::Latin2;
    return std::nullopt;
}

// Converts in place, since book text is never longer than UTF-8.
void FromUtf8(std::vector<char>& page) {
    std::string_view rest(page.data(), page.size());
    if (rest.starts_with(kUtf8Mark)) rest.remove_prefix(kUtf8Mark.size());
    char* to = page.data();
    for (Block block = 0; !rest.empty();) {
        if (BeginsWithAsciiBlock(rest, block)) {
            std::memcpy(to, &block, sizeof block);
            to += sizeof block;
            rest.remove_prefix(sizeof block);
        } else if (IsAscii(rest.front())) {
            *to++ = rest.front();
            rest.remove_prefix(1);
        } else {
            const std::optional<Utf8Character> character = FirstUtf8Character(rest);
            *to++ = character ? BookByte(character->Value).value_or('?') : '?';
            rest.remove_prefix(character ? character->Length : 1);
        }
    }
    page.resize(static_cast<std::size_t>(to - page.data()));
}

void FromLatin2(std::vector<char>& page) {
    for (char& byte : page) {
        // Pages have dashes and quotes of Windows-1250 below it, never control characters of ISO 8859-2.
        constexpr unsigned char kFirstCharacter = 0xA0;
        if (static_cast<unsigned char>(byte) < kFirstCharacter) continue;
        byte = BookByte(Latin2Character(byte)).value_or('?');
    }
}

}  // namespace

PageEncoding EncodingOfPage(std::string_view page) {
    if (page.starts_with(kUtf8Mark)) return PageEncoding::Utf8;
    const std::optional<PageEncoding> declared = DeclaredEncoding(page);
    if (declared == PageEncoding::Utf8 || IsUtf8BeyondAscii(page)) return PageEncoding::Utf8;
    return declared.value_or(PageEncoding::Windows1250);
}

std::vector<char> BookTextOfPage(std::vector<char> page) {
    switch (EncodingOfPage({page.data(), page.size()})) {
        case PageEncoding::Utf8:
            FromUtf8(page);
            break;
        case PageEncoding::Latin2:
            FromLatin2(page);
            break;
        case PageEncoding::Windows1250:
            break;
    }
    return page;
}

}  // namespace lindrel
