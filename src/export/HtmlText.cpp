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

std::string Reference(char32_t character) {
    return "&#" + std::to_string(static_cast<unsigned long>(character)) + ";";
}

// The four ways in which a byte of book text can be written.

std::string InFragment(char byte) {
    // Bytes 80 to 9F must not become references: browsers take those numbers for Windows-1252.
    const char32_t character = CharacterOf(byte);
    const std::optional<char> encoded = Latin2Byte(character);
    return encoded ? std::string(1, *encoded) : Reference(character);
}

std::string InText(char byte) {
    switch (byte) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\r':
            // Unescaped, a browser would read it as a line feed.
            return Reference(U'\r');
        default:
            return InFragment(byte);
    }
}

std::string InAddress(char byte) {
    constexpr std::string_view kEndsAnAddress = " \t\n\f'`";
    return kEndsAnAddress.find(byte) != std::string_view::npos ? Reference(CharacterOf(byte)) : InText(byte);
}

std::string InQuery(char byte) {
    return static_cast<unsigned char>(byte) < 0x80 ? InAddress(byte) : PercentEncoded(CharacterOf(byte));
}

// One of these ways for all bytes. What stays as it is, nearly everything, is appended in one piece.
class Encoder {
  public:
    explicit Encoder(std::string (*encode)(char byte)) {
        for (std::size_t number = 0; number < encoded_.size(); ++number) {
            const char byte = static_cast<char>(number);
            encoded_[number] = encode(byte);
            same_[number] = encoded_[number] == std::string(1, byte);
        }
    }

    std::string& Append(std::string& page, std::string_view text) const {
        while (!text.empty()) {
            const auto same = [this](char byte) { return same_[static_cast<unsigned char>(byte)]; };
            const auto length =
                static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), same) - text.begin());
            page.append(text.substr(0, length));
            text.remove_prefix(length);
            if (text.empty()) break;
            page.append(encoded_[static_cast<unsigned char>(text.front())]);
            text.remove_prefix(1);
        }
        return page;
    }

  private:
    std::array<std::string, 256> encoded_;
    std::array<bool, 256> same_{};
};

const Encoder& TextEncoder() {
    static const Encoder encoder(&InText);
    return encoder;
}

}  // namespace

std::string& AppendHtmlText(std::string& page, std::wstring_view text) {
    constexpr char32_t kReplacement = 0xFFFD;
    for (std::size_t place = 0; place < text.size();) {
        const char32_t character = NextCharacter(text, place);
        if (const std::optional<char> byte = BookByte(character))
            TextEncoder().Append(page, {&*byte, 1});
        else
            page.append(Reference(IsSurrogate(character) ? kReplacement : character));
    }
    return page;
}

std::string& AppendHtmlText(std::string& page, std::string_view book_text) {
    return TextEncoder().Append(page, book_text);
}

std::string& AppendHtmlAddress(std::string& page, std::string_view book_text) {
    static const Encoder address(&InAddress);
    static const Encoder query(&InQuery);
    const std::string_view whole = book_text.substr(0, book_text.find('#'));
    const std::size_t path = std::min(whole.find('?'), whole.size());
    address.Append(page, whole.substr(0, path));
    query.Append(page, whole.substr(path));
    return address.Append(page, book_text.substr(whole.size()));
}

std::string& AppendHtmlFragment(std::string& page, std::string_view book_text) {
    static const Encoder fragment(&InFragment);
    return fragment.Append(page, book_text);
}

}  // namespace lindrel
