// Lines of text files that other programs wrote: CR LF, LF or CR alone end a line. A line end at the very end
// of the text begins no further line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lindrel {

// Place of the end of the line that a place (0..size) is on: its CR or LF, or the text's size. Looks no
// further than some bytes behind it, so that a page whose lines end with CR alone is not searched to its end
// for each line.
inline std::size_t EndOfLine(std::string_view text, std::size_t from) {
    constexpr std::size_t kBlock = 256;
    for (; from < text.size(); from += kBlock) {
        const std::string_view block = text.substr(from, kBlock);
        const std::string_view before_feed = block.substr(0, block.find('\n'));
        const std::size_t end = std::min(before_feed.find('\r'), before_feed.size());
        if (end < block.size()) return from + end;
    }
    return text.size();
}

// Place behind the line end that stands at a place; the text's size at its end.
inline std::size_t BehindLineEnd(std::string_view text, std::size_t end) {
    const std::size_t length = text.substr(end, 2) == "\r\n" ? 2 : 1;
    return std::min(end + length, text.size());
}

}  // namespace lindrel
