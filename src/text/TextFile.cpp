#include "text/TextFile.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "text/BookText.h"
#include "text/Characters.h"
#include "text/Latin2.h"
#include "text/Utf8.h"

namespace lindrel {

namespace {

std::string Utf8OfUtf16(std::string_view bytes, bool big_endian) {
    std::wstring units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto high = static_cast<unsigned char>(bytes[big_endian ? i : i + 1]);
        const auto low = static_cast<unsigned char>(bytes[big_endian ? i + 1 : i]);
        units.push_back(static_cast<wchar_t>(high << 8U | low));
    }
    std::string text;
    for (std::size_t offset = 0; offset < units.size();) {
        const char32_t character = NextCharacter(units, offset);
        AppendUtf8(text, IsSurrogate(character) ? U'?' : character);
    }
    if (bytes.size() % 2 != 0) text.push_back('?');
    return text;
}

}  // namespace

TextFile TextFileOf(std::vector<char> bytes) {
    const std::string_view view(bytes.data(), bytes.size());
    const bool big_endian = view.starts_with("\xFE\xFF");
    if (big_endian || view.starts_with("\xFF\xFE")) {
        const std::string text = Utf8OfUtf16(view.substr(2), big_endian);
        return {{text.begin(), text.end()}, TextEncoding::Utf8};
    }
    const bool has_bom = view.starts_with(kUtf8Bom);
    const bool utf8 = has_bom || IsUtf8BeyondAscii(view);
    if (has_bom) bytes.erase(bytes.begin(), bytes.begin() + kUtf8Bom.size());
    return {std::move(bytes), utf8 ? TextEncoding::Utf8 : TextEncoding::Windows1250};
}

std::string_view TakeLine(std::string_view& text) {
    const auto* const end =
        std::find_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; });
    const auto length = static_cast<std::size_t>(end - text.begin());
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(length);
    text.remove_prefix(std::min<std::size_t>(text.starts_with("\r\n") ? 2 : 1, text.size()));
    return line;
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
    while (true) {
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
    // Below it ISO 8859-2 has control characters, but pages that say they are in it have the dashes and
    // quotation marks of Windows-1250 there.
    constexpr unsigned char kFirstCharacter = 0xA0;
    for (const char byte : bytes) {
        const bool same = static_cast<unsigned char>(byte) < kFirstCharacter;
        // A book can hold every character of ISO 8859-2.
        text_.push_back(same ? byte : BookByte(Latin2Character(byte)).value_or('?'));
    }
}

void DecodedText::MakeLowerCase() {
    text_ = LowerCase(text_);
    for (ForeignCharacter& character : foreign_) character.Escape = LowerCase(character.Escape);
}

std::string DecodedText::Address(std::size_t begin, std::size_t end) const {
    std::string address;
    std::size_t offset = begin;
    for (const ForeignCharacter& character : foreign_) {
        if (character.Offset < begin || character.Offset >= end) continue;
        address.append(text_, offset, character.Offset - offset).append(character.Escape);
        offset = character.Offset + 1;
    }
    return address.append(text_, offset, end - offset);
}

}  // namespace lindrel
