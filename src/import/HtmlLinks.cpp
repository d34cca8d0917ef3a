#include "import/HtmlLinks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string>

#include "faults/Faults.h"
#include "text/TextLines.h"

namespace lindrel {

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;
constexpr std::string_view kAnchor = "a href=\"";
constexpr std::string_view kClosing = "</a";
constexpr std::size_t kLongestName = 55;

constexpr char AsciiLower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

bool BeginsCaseless(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() && std::equal(lower.begin(), lower.end(), text.begin(),
                                                     [](char a, char b) { return a == AsciiLower(b); });
}

// By how much a search for the anchor may advance if this byte is in its last place (Horspool's algorithm).
constexpr auto kStep = [] {
    std::array<std::uint8_t, 256> steps{};
    steps.fill(static_cast<std::uint8_t>(kAnchor.size()));
    for (unsigned byte = 0; byte < steps.size(); ++byte)
        for (std::size_t i = 0; i + 1 < kAnchor.size(); ++i)
            if (kAnchor[i] == AsciiLower(static_cast<char>(byte)))
                steps[byte] = static_cast<std::uint8_t>(kAnchor.size() - 1 - i);
    return steps;
}();

// The place of the next anchor, in either case, or kNowhere.
std::size_t FindAnchor(std::string_view page, std::size_t from) {
    constexpr std::size_t kLast = kAnchor.size() - 1;
    for (std::size_t at = from; at + kLast < page.size();) {
        const char last = page[at + kLast];
        if (last == kAnchor.back() && BeginsCaseless(page.substr(at), kAnchor)) return at;
        at += kStep[static_cast<unsigned char>(last)];
    }
    return kNowhere;
}

std::size_t FindClosing(std::string_view line) {
    for (std::size_t at = line.find('<'); at != kNowhere; at = line.find('<', at + 1))
        if (BeginsCaseless(line.substr(at), kClosing)) return at;
    return kNowhere;
}

// For counters of 8 bits.
std::size_t CheckedShortCount(std::size_t count) {
    if (count > std::numeric_limits<std::uint8_t>::max()) throw OverflowFault();
    return count;
}

// Finds the chunks of a page: the texts of its anchors, from the address to the closing tag. Only they are
// decoded, since all that the search looks for is ASCII.
class AnchorScanner {
  public:
    AnchorScanner(std::string_view page, TextEncoding encoding) : page_(page), encoding_(encoding) {}

    // The next chunk, valid until the next call; nullptr at the end. Throws EndOfFileFault for an anchor that
    // is not closed.
    const DecodedText* Next() {
        const std::size_t anchor = FindAnchor(page_, place_);
        if (anchor == kNowhere) return nullptr;
        if (anchor >= line_end_) line_end_ = EndOfLine(page_, anchor);
        const std::size_t start = anchor + kAnchor.size();
        const std::string_view rest = page_.substr(start, line_end_ - start);
        const std::size_t closing = FindClosing(rest);
        chunk_.Clear();
        chunk_.Append(rest.substr(0, closing), encoding_);
        chunk_.MakeLowerCase();
        if (closing != kNowhere)
            place_ = start + closing;
        else
            AppendFollowingLines();
        return &chunk_;
    }

  private:
    // These lines keep their case, and the rest of the last one is not searched.
    void AppendFollowingLines() {
        for (bool closed = false; !closed;) {
            place_ = BehindLineEnd(page_, line_end_);
            if (place_ == page_.size()) throw EndOfFileFault();
            line_end_ = EndOfLine(page_, place_);
            const std::string_view line = page_.substr(place_, line_end_ - place_);
            const std::size_t closing = FindClosing(line);
            // A closing tag at the start of a line does not count.
            closed = closing != kNowhere && closing != 0;
            chunk_.Append(" ", encoding_);
            chunk_.Append(closed ? ThroughClosing(line, closing) : line, encoding_);
        }
        place_ = line_end_;
    }

    // A line to one character behind the closing tag.
    std::string_view ThroughClosing(std::string_view line, std::size_t closing) const {
        const std::size_t end = closing + kClosing.size();
        return line.substr(0, end + FirstCharacterLength(line.substr(end), encoding_));
    }

    std::string_view page_;
    TextEncoding encoding_;
    std::size_t place_ = 0;     // where the search continues
    std::size_t line_end_ = 0;  // of the last line that was read
    DecodedText chunk_;
};

bool IsOnline(std::string_view chunk) {
    constexpr std::size_t kFrom = 2;
    return chunk.find("://", kFrom) != kNowhere;
}

}  // namespace

std::vector<NewEntry> LinksOfPage(std::string_view page, TextEncoding encoding, LinkChoice choice) {
    std::vector<NewEntry> staged;
    std::int16_t number = 1;
    AnchorScanner anchors(page, encoding);
    while (const DecodedText* const chunk = anchors.Next()) {
        if (choice == LinkChoice::Online && !IsOnline(chunk->Text())) continue;
        StageLink(staged, *chunk, number);
        // The counter is one ahead of the links, so the last one that it could count is refused.
        if (number == std::numeric_limits<std::int16_t>::max()) throw OverflowFault();
        ++number;
    }
    return staged;
}

void StageLink(std::vector<NewEntry>& staged, const DecodedText& chunk, std::int16_t number) {
    if (number < 1) throw RangeFault();
    const std::string_view text = chunk.Text();
    const std::size_t quote = text.find('"');
    if (quote == kNowhere) throw ArgumentFault();
    CheckedShortCount(quote + 1);
    // Without a ">" the name is made of the whole chunk: npos + 1 is 0.
    std::string_view name = text.substr(text.find('>', quote) + 1);
    CleanLinkText(name);
    staged.resize(static_cast<std::size_t>(number));
    staged.back() = {std::string(name), chunk.Address(0, quote)};
}

void CleanLinkText(std::string_view& text) {
    if (text.find('<') != kNowhere) {
        const std::size_t closing = text.find("</");
        if (closing == kNowhere) {
            text = "ismeretlen";
            return;
        }
        text = text.substr(0, CheckedShortCount(closing + 1) - 1);
        text = text.substr(text.rfind('>') + 1);
    }
    text = text.substr(0, kLongestName);
}

}  // namespace lindrel
