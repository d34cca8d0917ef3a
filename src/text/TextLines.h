// The lines of text files from other programs, ended by CR LF, LF or CR. A line break at the end of the text
// does not begin another line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lindrel {

// The end of the line at a place (0..size): its CR or LF, or the end of the text. Searches in blocks, so that
// a page which has only CR is not searched to its end for an LF on every line.
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

// The start of the line after a line end.
inline std::size_t BehindLineEnd(std::string_view text, std::size_t end) {
    const std::size_t length = text.substr(end, 2) == "\r\n" ? 2 : 1;
    return std::min(end + length, text.size());
}

}  // namespace lindrel
