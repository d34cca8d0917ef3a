#include "import/PageText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "import/PageHead.h"

namespace lindrel {

namespace {

using Labels = std::span<const std::string_view>;

constexpr std::size_t kLongestHead = 4096;

constexpr std::array<std::string_view, 6> kUtf8Labels = {
    "unicode-1-1-utf-8", "unicode11utf8", "unicode20utf8", "utf-8", "utf8", "x-unicode20utf8"};
constexpr std::array<std::string_view, 9> kLatin2Labels = {"csisolatin2",     "iso-8859-2", "iso-ir-101",
                                                           "iso8859-2",       "iso88592",   "iso_8859-2",
                                                           "iso_8859-2:1987", "l2",         "latin2"};
constexpr std::array<std::string_view, 9> kUtf16Labels = {"csunicode", "iso-10646-ucs-2", "ucs-2",
                                                          "unicode",   "unicodefeff",     "unicodefffe",
                                                          "utf-16",    "utf-16be",        "utf-16le"};

bool IsAmong(Labels labels, std::string_view label) {
    return std::find(labels.begin(), labels.end(), label) != labels.end();
}

// The order of the bytes of a page that declares UTF-16 in UTF-16. Half of its bytes are zero then.
std::optional<ByteOrder> DeclaredByteOrder(std::string_view page) {
    const std::string_view head = page.substr(0, 2 * kLongestHead);
    if (head.size() < 2 || (head[0] == '\0') == (head[1] == '\0')) return std::nullopt;
    const ByteOrder order = head[0] == '\0' ? ByteOrder::BigEndian : ByteOrder::LittleEndian;
    std::string characters;
    for (std::size_t i = order == ByteOrder::BigEndian ? 1 : 0; i < head.size(); i += 2)
        characters.push_back(head[i]);
    if (!IsAmong(kUtf16Labels, DeclaredCharset(characters))) return std::nullopt;
    return order;
}

}  // namespace

TextFile TextOfPage(std::vector<char> page) {
    const std::string_view view(page.data(), page.size());
    if (HasMark(view)) return TextFileOf(std::move(page));
    if (const std::optional<ByteOrder> order = DeclaredByteOrder(view)) return TextFileOfUtf16(view, *order);
    const std::string charset = DeclaredCharset(view.substr(0, kLongestHead));
    if (IsAmong(kUtf8Labels, charset)) return {std::move(page), TextEncoding::Utf8};
    TextFile file = TextFileOf(std::move(page));
    if (file.Encoding == TextEncoding::Windows1250 && IsAmong(kLatin2Labels, charset))
        file.Encoding = TextEncoding::Latin2;
    return file;
}

}  // namespace lindrel
