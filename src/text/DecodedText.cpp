#include "text/DecodedText.h"

#include <optional>

#include "text/BookText.h"
#include "text/Latin2.h"
#include "text/Utf8.h"

namespace lindrel {

std::size_t FirstCharacterLength(std::string_view bytes, TextEncoding encoding) {
    if (bytes.empty()) return 0;
    const auto character = encoding == TextEncoding::Utf8 ? FirstUtf8Character(bytes) : std::nullopt;
    return character ? character->Length : 1;
}

void DecodedText::Append(std::string_view bytes, TextEncoding encoding) {
    switch (encoding) {
        case TextEncoding::Utf8:
            return AppendUtf8Text(bytes);
        case TextEncoding::Latin2:
            return AppendLatin2Text(bytes);
        case TextEncoding::Windows1250:
            text_.append(bytes);
    }
}

void DecodedText::AppendUtf8Text(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t ascii = AsciiLength(bytes);
        text_.append(bytes.substr(0, ascii));
        bytes.remove_prefix(ascii);
        if (bytes.empty()) return;
        const std::optional<Utf8Character> character = FirstUtf8Character(bytes);
        const std::optional<char> byte = character ? BookByte(character->Value) : '?';
        if (!byte) foreign_.push_back({text_.size(), PercentEncoded(character->Value)});
        text_.push_back(byte.value_or('?'));
        bytes.remove_prefix(character ? character->Length : 1);
    }
}

void DecodedText::AppendLatin2Text(std::string_view bytes) {
    for (const char byte : bytes) {
        // Pages have dashes and quotes of Windows-1250 below it, never control characters of ISO 8859-2.
        constexpr unsigned char kFirstCharacter = 0xA0;
        const bool same = static_cast<unsigned char>(byte) < kFirstCharacter;
        // A book can hold every character of ISO 8859-2.
        text_.push_back(same ? byte : BookByte(Latin2Character(byte)).value_or('?'));
    }
}

void DecodedText::Clear() {
    text_.clear();
    foreign_.clear();
}

void DecodedText::MakeLowerCase() {
    for (char& byte : text_) byte = LowerCase(byte);
    for (ForeignCharacter& character : foreign_) character.Escape = LowerCase(character.Escape);
}

std::string DecodedText::Address(std::size_t begin, std::size_t end) const {
    std::string address;
    std::size_t place = begin;
    for (const ForeignCharacter& character : foreign_) {
        if (character.Place < begin || character.Place >= end) continue;
        address.append(text_, place, character.Place - place).append(character.Escape);
        place = character.Place + 1;
    }
    return address.append(text_, place, end - place);
}

}  // namespace lindrel
