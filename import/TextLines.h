// Lines of text files that other programs wrote: CR LF, LF or CR alone end a line. A line end at the very end
// of the text begins no further line.
#pragma once

#include <algorithm>
#include <string_view>

namespace lindrel {

// Place of the end of the line that a place (0..size) is on: its CR or LF, or the text's size.
inline std::size_t EndOfLine(std::string_view text, std::size_t from) {
    const auto ends_line = [](char character) { return character == '\n' || character == '\r'; };
    const std::string_view rest = text.substr(from);
    return from + static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), ends_line) - rest.begin());
}

// Place behind the line end that stands at a place; the text's size at its end.
inline std::size_t BehindLineEnd(std::string_view text, std::size_t end) {
    const std::size_t length = text.substr(end, 2) == "\r\n" ? 2 : 1;
    return std::min(end + length, text.size());
}

}  // namespace lindrel
