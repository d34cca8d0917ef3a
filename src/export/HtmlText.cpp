#include "export/HtmlText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "text/BookText.h"
#include "text/Characters.h"
#include "text/Latin2.h"
#include "text/Utf8.h"

namespace lindrel {

namespace {

// What must be escaped. A browser reads a bare CR as a line feed.
constexpr std::string_view kInText = "&<>\"\r";
constexpr std::string_view kInAddress = "&<>\"\r \t\n\f'`";

std::string Reference(char32_t character) {
    switch (character) {
        case U'&':
            return "&amp;";
        case U'<':
            return "&lt;";
        case U'>':
            return "&gt;";
        case U'"':
            return "&quot;";
        default:
            return "&#" + std::to_string(static_cast<unsigned long>(character)) + ";";
    }
}

// What each byte of book text becomes on the page.
using Encoding = std::array<std::string, 256>;

Encoding EncodingWith(std::string_view reserved) {
    Encoding encoding;
    for (std::size_t number = 0; number < encoding.size(); ++number) {
        const char byte = static_cast<char>(number);
        // Bytes 80 to 9F are not references: browsers take those numbers for Windows-1252.
        const std::optional<char> same = Latin2Byte(CharacterOf(byte));
        const bool stays = same && reserved.find(byte) == std::string_view::npos;
        encoding[number] = stays ? std::string(1, *same) : Reference(CharacterOf(byte));
    }
    return encoding;
}

Encoding QueryEncoding() {
    Encoding encoding = EncodingWith(kInAddress);
    for (std::size_t number = 0x80; number < encoding.size(); ++number)
        encoding[number] = PercentEncoded(CharacterOf(static_cast<char>(number)));
    return encoding;
}

std::string Encoded(std::string_view book_text, const Encoding& encoding) {
    std::string html;
    for (const char byte : book_text) html += encoding[static_cast<unsigned char>(byte)];
    return html;
}

}  // namespace

std::string HtmlText(std::wstring_view text) {
    constexpr char32_t kReplacement = 0xFFFD;
    std::string html;
    for (std::size_t offset = 0; offset < text.size();) {
        const char32_t character = NextCharacter(text, offset);
        if (const std::optional<char> byte = BookByte(character))
            html += HtmlText(std::string_view(&*byte, 1));
        else
            html += Reference(IsSurrogate(character) ? kReplacement : character);
    }
    return html;
}

std::string HtmlText(std::string_view book_text) {
    static const Encoding text = EncodingWith(kInText);
    return Encoded(book_text, text);
}

std::string HtmlAddress(std::string_view book_text) {
    static const Encoding address = EncodingWith(kInAddress);
    static const Encoding query = QueryEncoding();
    const std::string_view whole = book_text.substr(0, book_text.find('#'));
    const std::size_t path = std::min(whole.find('?'), whole.size());
    return Encoded(whole.substr(0, path), address) + Encoded(whole.substr(path), query) +
           Encoded(book_text.substr(whole.size()), address);
}

std::string HtmlFragment(std::string_view book_text) {
    static const Encoding fragment = EncodingWith("");
    return Encoded(book_text, fragment);
}

}  // namespace lindrel
