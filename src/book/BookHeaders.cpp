#include "book/BookHeaders.h"

#include <algorithm>
#include <cstdint>

#include "text/Ascii.h"

namespace lindrel {

namespace {

bool CanBeEntry(std::string_view name, std::string_view address) {
    if (HasHeaderPrefix(name) && !LooksLikeAddress(address)) return false;
    return !HasHeaderPrefix(address) || !LooksLikeAddress(name);
}

// Counts, from the last line back to the second, the ways to read the file from that line on as headers and
// whole entries.
class ChoiceCounter {
  public:
    explicit ChoiceCounter(const std::vector<std::string_view>& lines)
        : lines_(lines), header_leads_on_(lines.size()) {
        Ways from_second_next{};
        Ways from_next{};
        from_next[0] = 1;
        for (std::size_t line = lines.size(); line-- > 1;) {
            Ways from_here{};
            if (line + 1 < lines.size() && CanBeEntry(lines[line], lines[line + 1]))
                from_here = from_second_next;
            if (HasHeaderPrefix(lines[line])) AddHeader(line, from_here, from_next);
            from_second_next = from_next;
            from_next = from_here;
        }
        if (!lines.empty() && HasHeaderPrefix(lines.front())) choices_ = from_next[kCategories - 1];
    }

    HeaderChoice Choice() const {
        if (choices_ == 0) return HeaderChoice::None;
        return choices_ == 1 ? HeaderChoice::One : HeaderChoice::Several;
    }

    // Only for a single choice: from no line do both a header and an entry lead to the end then.
    ChosenHeaders Chosen() const {
        ChosenHeaders chosen{HeaderChoice::One};
        std::size_t headers = 1;
        for (std::size_t line = 1; line < lines_.size();) {
            if ((header_leads_on_[line] >> (kCategories - headers) & 1) != 0) {
                chosen.Lines.at(headers++) = line++;
                continue;
            }
            if (HasHeaderPrefix(lines_[line])) chosen.Doubtful.push_back(line);
            if (HasHeaderPrefix(lines_[line + 1]) && MayBeAddress(lines_[line]))
                chosen.Doubtful.push_back(line + 1);
            line += 2;
        }
        return chosen;
    }

  private:
    // Indexed by the number of headers still to come; 2 stands for several ways.
    using Ways = std::array<std::uint8_t, kCategories + 1>;

    void AddHeader(std::size_t line, Ways& ways, const Ways& from_next) {
        for (std::size_t headers = 1; headers < ways.size(); ++headers) {
            if (from_next[headers - 1] == 0) continue;
            ways[headers] = static_cast<std::uint8_t>(std::min(2, ways[headers] + from_next[headers - 1]));
            header_leads_on_[line] = static_cast<std::uint16_t>(header_leads_on_[line] | 1u << headers);
        }
    }

    const std::vector<std::string_view>& lines_;
    // For each line: bit n is set if it can be the first of n headers still to come.
    std::vector<std::uint16_t> header_leads_on_;
    int choices_ = 0;
};

}  // namespace

bool LooksLikeAddress(std::string_view text) {
    return text.find("://") != std::string_view::npos || StartsWithAsciiCaseless(text, "mailto:") ||
           StartsWithAsciiCaseless(text, "www.");
}

bool MayBeAddress(std::string_view text) {
    if (text.empty() || text.find('\\') != std::string_view::npos) return true;
    return text.find(' ') == std::string_view::npos && text.find_first_of(".:/@") != std::string_view::npos;
}

ChosenHeaders ChooseHeaders(const std::vector<std::string_view>& lines) {
    const ChoiceCounter counter(lines);
    return counter.Choice() == HeaderChoice::One ? counter.Chosen() : ChosenHeaders{counter.Choice()};
}

}  // namespace lindrel
