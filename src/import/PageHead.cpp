#include "import/PageHead.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "text/BookText.h"

namespace lindrel {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr std::string_view kMeta = "<meta";

void SkipAny(std::string_view& text, std::string_view unwanted) {
    text.remove_prefix(std::min(text.find_first_not_of(unwanted), text.size()));
}

// Takes everything before the first of some characters, or all of the text.
std::string_view TakeUntilAny(std::string_view& text, std::string_view ends) {
    const std::string_view taken = text.substr(0, text.find_first_of(ends));
    text.remove_prefix(taken.size());
    return taken;
}

bool StartsWithLetter(std::string_view text) {
    return !text.empty() && text.front() >= 'a' && text.front() <= 'z';
}

struct Attribute {
    std::string_view Name;
    std::string_view Value;
};

std::string_view TakeValue(std::string_view& tag) {
    if (!tag.starts_with('"') && !tag.starts_with('\'')) return TakeUntilAny(tag, " \t\r\n\f>");
    const std::string_view quote = tag.substr(0, 1);
    tag.remove_prefix(1);
    const std::string_view value = TakeUntilAny(tag, quote);
    tag.remove_prefix(std::min<std::size_t>(1, tag.size()));
    return value;
}

// Takes the next attribute of a tag; nothing at its end.
std::optional<Attribute> TakeAttribute(std::string_view& tag) {
    SkipAny(tag, " \t\r\n\f/");
    if (tag.empty() || tag.front() == '>') return std::nullopt;
    Attribute attribute;
    // A "=" at the start belongs to the name.
    const std::string_view whole = tag;
    tag.remove_prefix(1);
    attribute.Name = whole.substr(0, 1 + TakeUntilAny(tag, " \t\r\n\f/>=").size());
    SkipAny(tag, kBlanks);
    if (!tag.starts_with('=')) return attribute;
    tag.remove_prefix(1);
    SkipAny(tag, kBlanks);
    attribute.Value = TakeValue(tag);
    return attribute;
}

std::string_view WithoutBlanks(std::string_view text) {
    SkipAny(text, kBlanks);
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// The charset in a text such as "text/html; charset=utf-8".
std::string_view CharsetOfContent(std::string_view content) {
    constexpr std::string_view kName = "charset";
    for (std::size_t at = content.find(kName); at != std::string_view::npos; at = content.find(kName)) {
        content.remove_prefix(at + kName.size());
        SkipAny(content, kBlanks);
        if (!content.starts_with('=')) continue;
        content.remove_prefix(1);
        SkipAny(content, kBlanks);
        if (content.starts_with('"') || content.starts_with('\'')) return TakeValue(content);
        return TakeUntilAny(content, " \t\r\n\f;");
    }
    return {};
}

// Takes the attributes of a META tag. Its content says what the charset is only where it stands for an HTTP
// header, not in a description.
std::string_view TakeCharsetOfMeta(std::string_view& tag) {
    bool header = false;
    std::string_view charset;
    std::string_view content;
    while (const std::optional<Attribute> attribute = TakeAttribute(tag)) {
        if (attribute->Name == "http-equiv") header = attribute->Value == "content-type";
        if (attribute->Name == "charset") charset = attribute->Value;
        if (attribute->Name == "content") content = CharsetOfContent(attribute->Value);
    }
    if (charset.empty() && header) charset = content;
    // Written without quotation marks, an empty tag leaves its slash here.
    return WithoutBlanks(charset.substr(0, charset.find('/')));
}

void SkipUntilAny(std::string_view& text, std::string_view ends) {
    text.remove_prefix(std::min(text.find_first_of(ends), text.size()));
}

void SkipTag(std::string_view& rest) {
    SkipUntilAny(rest, " \t\r\n\f>");  // its name
    while (TakeAttribute(rest)) {
    }
}

// The text begins with "<!--"; "<!-->" is a whole comment too.
void SkipComment(std::string_view& rest) {
    constexpr std::string_view kEnd = "-->";
    constexpr std::size_t kStartsWith = 2;
    const std::size_t end = rest.find(kEnd, kStartsWith);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + kEnd.size());
}

bool BeginsWithMeta(std::string_view text) {
    constexpr std::string_view kEndsAName = " \t\r\n\f/";
    return text.starts_with(kMeta) && text.size() > kMeta.size() &&
           kEndsAName.find(text[kMeta.size()]) != std::string_view::npos;
}

// Takes what a "<" begins, or just that, and returns the charset if it is a META tag that declares one.
std::string_view TakeMarkup(std::string_view& rest) {
    const std::string_view after = rest.substr(1);
    if (BeginsWithMeta(rest)) {
        rest.remove_prefix(kMeta.size());
        return TakeCharsetOfMeta(rest);
    }
    if (rest.starts_with("<!--"))
        SkipComment(rest);
    else if (after.starts_with('!') || after.starts_with('?'))
        SkipUntilAny(rest, ">");
    else if (StartsWithLetter(after) || (after.starts_with('/') && StartsWithLetter(after.substr(1))))
        SkipTag(rest);
    else
        rest = after;
    return {};
}

std::string_view CharsetOfMetaTags(std::string_view head) {
    for (SkipUntilAny(head, "<"); !head.empty(); SkipUntilAny(head, "<")) {
        const std::string_view charset = TakeMarkup(head);
        if (!charset.empty()) return charset;
    }
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

}  // namespace

std::string DeclaredCharset(std::string_view head) {
    const std::string lower = LowerCase(head);
    const std::string_view charset = CharsetOfMetaTags(lower);
    return std::string(charset.empty() ? EncodingOfXml(lower) : charset);
}

}  // namespace lindrel
