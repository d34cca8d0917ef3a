#include "import/HtmlLinks.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "faults/Faults.h"
#include "text/Ascii.h"

namespace lindrel {

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;
constexpr std::string_view kAnchor = "a href=\"";
constexpr std::string_view kClosing = "</a";
constexpr std::size_t kLongestName = 55;

// The offset of the first `word` (in lower case) in a line, in either case, or kNowhere. `sign` is a
// character of the word that is rare and not a letter; the search goes from one such character to the next.
std::size_t FindCaseless(std::string_view line, std::string_view word, char sign) {
    const std::size_t before = word.find(sign);
    for (std::size_t at = line.find(sign, before); at != kNowhere; at = line.find(sign, at + 1))
        if (StartsWithAsciiCaseless(line.substr(at - before), word)) return at - before;
    return kNowhere;
}

std::size_t FindClosing(std::string_view line) {
    return FindCaseless(line, kClosing, '<');
}

// The counters for addresses and link texts have 8 bits.
void RequireShortCount(std::size_t count) {
    if (count > std::numeric_limits<std::uint8_t>::max()) throw OverflowFault();
}

// Finds the chunks of a page: the texts of its anchors, from the address to the closing tag. Only these are
// decoded, since all that the search looks for is ASCII.
class AnchorScanner {
  public:
    AnchorScanner(std::string_view page, TextEncoding encoding) : rest_(page), encoding_(encoding) {}

    // nullopt at the end of the page. Throws EndOfFileFault for an anchor that is not closed.
    std::optional<DecodedText> NextChunk() {
        std::size_t anchor = kNowhere;
        while ((anchor = FindCaseless(line_, kAnchor, '=')) == kNowhere) {
            if (rest_.empty()) return std::nullopt;
            line_ = TakeLine(rest_);
        }
        line_.remove_prefix(anchor + kAnchor.size());
        const std::size_t closing = FindClosing(line_);
        DecodedText chunk(line_.substr(0, closing), encoding_);
        chunk.MakeLowerCase();
        line_.remove_prefix(std::min(closing, line_.size()));
        if (closing == kNowhere) AppendFollowingLines(chunk);
        return chunk;
    }

  private:
    // These lines keep their case, and the rest of the last one is not searched for anchors.
    void AppendFollowingLines(DecodedText& chunk) {
        for (bool closed = false; !closed;) {
            if (rest_.empty()) throw EndOfFileFault();
            const std::string_view line = TakeLine(rest_);
            const std::size_t closing = FindClosing(line);
            // A closing tag at the start of a line does not count.
            closed = closing != kNowhere && closing != 0;
            chunk.Append(" ", encoding_);
            // And one more character: mostly the ">", but a quotation mark there ends an address.
            chunk.Append(closed ? line.substr(0, closing + kClosing.size() + 1) : line, encoding_);
        }
    }

    std::string_view line_;  // what has not been searched of the current line
    std::string_view rest_;  // the lines after it
    TextEncoding encoding_;
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
    while (const std::optional<DecodedText> chunk = anchors.NextChunk()) {
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
    RequireShortCount(quote + 1);
    // Without a ">" the name is made of the whole chunk: npos + 1 is 0.
    std::string_view name = text.substr(text.find('>', quote) + 1);
    CleanLinkText(name);
    NewEntry link{std::string(name), chunk.Address(0, quote)};
    staged.resize(static_cast<std::size_t>(number));
    staged.back() = std::move(link);
}

void CleanLinkText(std::string_view& text) {
    if (text.find('<') != kNowhere) {
        const std::size_t closing = text.find("</");
        if (closing == kNowhere) {
            text = "ismeretlen";
            return;
        }
        RequireShortCount(closing + 1);
        text = text.substr(0, closing);
        text = text.substr(text.rfind('>') + 1);
    }
    text = text.substr(0, kLongestName);
}

}  // namespace lindrel
