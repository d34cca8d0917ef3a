#include "import/PageEncoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "text/BookText.h"

namespace lindrel {

namespace {

constexpr std::array<std::string_view, 6> kUtf8Labels = {
    "unicode-1-1-utf-8", "unicode11utf8", "unicode20utf8", "utf-8", "utf8", "x-unicode20utf8"};
constexpr std::array<std::string_view, 9> kLatin2Labels = {"csisolatin2", "iso-8859-2",      "iso-ir-101",
                                                           "iso8859-2",   "iso88592",        "iso_8859-2",
                                                           "l2",          "iso_8859-2:1987", "latin2"};
constexpr std::array<std::string_view, 9> kUtf16Labels = {"csunicode", "iso-10646-ucs-2", "ucs-2",
                                                          "unicode",   "unicodefeff",     "unicodefffe",
                                                          "utf-16",    "utf-16be",        "utf-16le"};

bool IsAmong(std::span<const std::string_view> labels, std::string_view label) {
    return std::find(labels.begin(), labels.end(), label) != labels.end();
}

constexpr std::string_view kBlanks = " \t\r\n\f";

void SkipAny(std::string_view& text, std::string_view unwanted) {
    text.remove_prefix(std::min(text.find_first_not_of(unwanted), text.size()));
}

void SkipBlanks(std::string_view& text) {
    SkipAny(text, kBlanks);
}

// Removes everything before the first of some characters, or all of the text, and returns it.
std::string_view TakeUntilAny(std::string_view& text, std::string_view ends) {
    const std::string_view taken = text.substr(0, text.find_first_of(ends));
    text.remove_prefix(taken.size());
    return taken;
}

// The value of an attribute, with or without quotation marks.
std::string_view TakeValue(std::string_view& tag) {
    SkipBlanks(tag);
    if (!tag.starts_with('"') && !tag.starts_with('\'')) return TakeUntilAny(tag, " \t\r\n\f>");
    const std::string_view quote = tag.substr(0, 1);
    tag.remove_prefix(1);
    const std::string_view value = TakeUntilAny(tag, quote);
    tag.remove_prefix(std::min<std::size_t>(1, tag.size()));
    return value;
}

struct Attribute {
    std::string_view Name;
    std::string_view Value;
};

// nullopt at the end of the tag.
std::optional<Attribute> TakeAttribute(std::string_view& tag) {
    SkipAny(tag, " \t\r\n\f/");
    if (tag.empty() || tag.front() == '>') return std::nullopt;
    Attribute attribute;
    // A "=" at the start belongs to the name.
    const std::string_view whole = tag;
    tag.remove_prefix(1);
    attribute.Name = whole.substr(0, 1 + TakeUntilAny(tag, " \t\r\n\f/>=").size());
    SkipBlanks(tag);
    if (!tag.starts_with('=')) return attribute;
    tag.remove_prefix(1);
    attribute.Value = TakeValue(tag);
    return attribute;
}

std::string_view WithoutBlanks(std::string_view text) {
    SkipBlanks(text);
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// The charset in a text such as "text/html; charset=utf-8".
std::string_view CharsetOfContent(std::string_view content) {
    constexpr std::string_view kName = "charset";
    for (std::size_t at = content.find(kName); at != std::string_view::npos; at = content.find(kName)) {
        content.remove_prefix(at + kName.size());
        SkipBlanks(content);
        if (!content.starts_with('=')) continue;
        content.remove_prefix(1);
        SkipBlanks(content);
        const bool quoted = content.starts_with('"') || content.starts_with('\'');
        return quoted ? TakeValue(content) : TakeUntilAny(content, " \t\r\n\f;");
    }
    return {};
}

// Takes the attributes of a tag and returns the charset that a META tag with these declares.
std::string_view TakeCharset(std::string_view& tag) {
    bool http_header = false;
    std::string_view charset;
    std::string_view content;
    while (const std::optional<Attribute> attribute = TakeAttribute(tag)) {
        if (attribute->Name == "http-equiv") http_header = attribute->Value == "content-type";
        if (attribute->Name == "charset") charset = attribute->Value;
        if (attribute->Name == "content") content = CharsetOfContent(attribute->Value);
    }
    // In a META tag such as the description, the content says nothing about the page.
    if (charset.empty() && http_header) charset = content;
    // A value without quotation marks includes the slash of "<meta charset=utf-8/>".
    return WithoutBlanks(charset.substr(0, charset.find('/')));
}

// Takes a tag or a comment from a text that begins with "<", or just the "<" if it begins neither. Returns
// the charset if it is a META tag that declares one.
std::string_view TakeMarkup(std::string_view& rest) {
    constexpr std::string_view kMeta = "<meta";
    const auto is_letter = [](char c) { return c >= 'a' && c <= 'z'; };
    const std::string_view name = rest.substr(rest.starts_with("</") ? 2 : 1);
    if (rest.starts_with("<!--")) {
        const std::size_t end = rest.find("-->", 2);  // "<!-->" is a whole comment
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end);
    } else if (rest.starts_with(kMeta) && rest.find_first_of(" \t\r\n\f/", kMeta.size()) == kMeta.size()) {
        rest.remove_prefix(kMeta.size());
        return TakeCharset(rest);
    } else if (rest.starts_with("<!") || rest.starts_with("<?")) {
        TakeUntilAny(rest, ">");
    } else if (!name.empty() && is_letter(name.front())) {
        TakeUntilAny(rest, " \t\r\n\f>");
        TakeCharset(rest);  // another tag: only its end matters, which may follow a ">" in quotation marks
    } else {
        rest.remove_prefix(1);
    }
    return {};
}

std::string_view CharsetOfMetaTags(std::string_view head) {
    for (TakeUntilAny(head, "<"); !head.empty(); TakeUntilAny(head, "<"))
        if (const std::string_view charset = TakeMarkup(head); !charset.empty()) return charset;
    return {};
}

std::string_view EncodingOfXml(std::string_view head) {
    constexpr std::string_view kXml = "<?xml";
    if (!head.starts_with(kXml)) return {};
    head.remove_prefix(kXml.size());
    while (const std::optional<Attribute> attribute = TakeAttribute(head))
        if (attribute->Name == "encoding") return WithoutBlanks(attribute->Value);
    return {};
}

constexpr std::size_t kHeadLength = 4096;

// In lower case; empty if there is no declaration.
std::string DeclaredCharset(std::string_view page) {
    const std::string head = LowerCase(page.substr(0, kHeadLength));
    const std::string_view charset = CharsetOfMetaTags(head);
    return std::string(charset.empty() ? EncodingOfXml(head) : charset);
}

// The BOM that a page lacks if it declares UTF-16 in UTF-16, in which half of its bytes are zero.
std::string_view MissingBom(std::string_view page) {
    if (page.size() < 2 || (page[0] == '\0') == (page[1] == '\0')) return {};
    const bool big_endian = page[0] == '\0';
    std::string head;
    for (std::size_t i = big_endian ? 1 : 0; i < std::min(page.size(), 2 * kHeadLength); i += 2)
        head.push_back(page[i]);
    if (!IsAmong(kUtf16Labels, DeclaredCharset(head))) return {};
    return big_endian ? "\xFE\xFF" : "\xFF\xFE";
}

}  // namespace

TextFile TextOfPage(std::vector<char> page) {
    const std::string_view bom = MissingBom({page.data(), page.size()});
    page.insert(page.begin(), bom.begin(), bom.end());
    TextFile file = TextFileOf(std::move(page));
    if (file.Encoding != TextEncoding::Windows1250) return file;
    const std::string charset = DeclaredCharset(file.Text());
    if (IsAmong(kUtf8Labels, charset)) file.Encoding = TextEncoding::Utf8;
    if (IsAmong(kLatin2Labels, charset)) file.Encoding = TextEncoding::Latin2;
    return file;
}

}  // namespace lindrel
