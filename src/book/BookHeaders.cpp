#include "book/BookHeaders.h"

#include <algorithm>
#include <cstdint>

#include "text/BookText.h"

namespace lindrel {

namespace {

bool BeginsWith(std::string_view text, std::string_view lower_case) {
    return LowerCase(text.substr(0, lower_case.size())) == lower_case;
}

bool CanBeEntry(std::string_view name, std::string_view address) {
    if (IsMarked(name) && !LooksLikeAddress(address)) return false;
    return !IsMarked(address) || !LooksLikeAddress(name);
}

// Goes through the lines from the last one to the second and counts, for each line that may be a header or a
// name, the ways to read the file from there on.
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
            if (IsMarked(lines[line])) AddHeader(line, from_here, from_next);
            from_second_next = from_next;
            from_next = from_here;
        }
        if (!lines.empty() && IsMarked(lines.front())) choices_ = from_next[kCategories - 1];
    }

    HeaderChoice Choice() const {
        if (choices_ == 0) return HeaderChoice::None;
        return choices_ == 1 ? HeaderChoice::One : HeaderChoice::Several;
    }

    // Only for one choice: then never both a header and an entry lead on.
    ChosenHeaders Chosen() const {
        ChosenHeaders chosen{HeaderChoice::One};
        std::size_t headers = 1;
        for (std::size_t line = 1; line < lines_.size();) {
            if ((header_leads_on_[line] >> (kCategories - headers) & 1) != 0) {
                chosen.Lines.at(headers++) = line++;
                continue;
            }
            if (IsMarked(lines_[line])) chosen.Doubtful.push_back(line);
            if (IsMarked(lines_[line + 1]) && MayBeAddress(lines_[line])) chosen.Doubtful.push_back(line + 1);
            line += 2;
        }
        return chosen;
    }

  private:
    // By the number of headers that are still to come; 2 stands for several ways.
    using Ways = std::array<std::uint8_t, kCategories + 1>;

    void AddHeader(std::size_t line, Ways& ways, const Ways& from_next) {
        for (std::size_t headers = 1; headers < ways.size(); ++headers) {
            if (from_next[headers - 1] == 0) continue;
            ways[headers] = static_cast<std::uint8_t>(std::min(2, ways[headers] + from_next[headers - 1]));
            header_leads_on_[line] = static_cast<std::uint16_t>(header_leads_on_[line] | 1u << headers);
        }
    }

    const std::vector<std::string_view>& lines_;
    // For each line a bit for each number of headers to come: whether the line can be the next of them.
    std::vector<std::uint16_t> header_leads_on_;
    int choices_ = 0;
};

}  // namespace

bool LooksLikeAddress(std::string_view text) {
    return text.find("://") != std::string_view::npos || BeginsWith(text, "mailto:") ||
           BeginsWith(text, "www.");
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
