#include "text/TextFile.h"

#include <cstddef>
#include <string>
#include <utility>

#include "text/Characters.h"
#include "text/Utf8.h"

namespace lindrel {

namespace {

constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

std::wstring UnitsOf(std::string_view bytes, ByteOrder order) {
    const std::size_t high = order == ByteOrder::LittleEndian ? 1 : 0;
    std::wstring units(bytes.size() / 2, L'\0');
    for (std::size_t i = 0; i < units.size(); ++i)
        units[i] = static_cast<wchar_t>(static_cast<unsigned char>(bytes[2 * i + high]) << 8U |
                                        static_cast<unsigned char>(bytes[2 * i + 1 - high]));
    return units;
}

}  // namespace

std::string_view TextFile::Text() const {
    std::string_view text(Bytes.data(), Bytes.size());
    if (Encoding == TextEncoding::Utf8 && text.starts_with(kUtf8Bom)) text.remove_prefix(kUtf8Bom.size());
    return text;
}

TextFile TextFileOf(std::vector<char> bytes) {
    const std::string_view view(bytes.data(), bytes.size());
    if (view.starts_with(kLittleEndianMark)) return TextFileOfUtf16(view.substr(2), ByteOrder::LittleEndian);
    if (view.starts_with(kBigEndianMark)) return TextFileOfUtf16(view.substr(2), ByteOrder::BigEndian);
    const bool utf8 = view.starts_with(kUtf8Bom) || IsUtf8BeyondAscii(view);
    return {std::move(bytes), utf8 ? TextEncoding::Utf8 : TextEncoding::Windows1250};
}

bool HasMark(std::string_view bytes) {
    return bytes.starts_with(kUtf8Bom) || bytes.starts_with(kLittleEndianMark) ||
           bytes.starts_with(kBigEndianMark);
}

TextFile TextFileOfUtf16(std::string_view bytes, ByteOrder order) {
    const std::wstring units = UnitsOf(bytes, order);
    std::string text;
    text.reserve(units.size());
    for (std::size_t place = 0; place < units.size();) {
        const char32_t character = NextCharacter(units, place);
        AppendUtf8(text, IsSurrogate(character) ? U'?' : character);
    }
    if (bytes.size() % 2 != 0) text.push_back('?');
    return {{text.begin(), text.end()}, TextEncoding::Utf8};
}

}  // namespace lindrel
