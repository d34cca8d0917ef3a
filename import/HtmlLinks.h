// The links of a web page. This is not an HTML parser: it looks line by line for anchors that begin with a
// href=" and end with </a. Users import the same pages again and again and must get the same entries, so the
// odd results for unusual pages are kept as well.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "book/Book.h"

namespace lindrel {

enum class LinkChoice {
    Online,  // links with "://" from their third character on
    All,
};

// The links of a page (book text, lines end in CR LF, LF or CR), in its order. Names and addresses are in
// lower case where they stand on the line on which their anchor begins, and as written on the lines after it.
// Throws
//   OverflowFault   an address or a link's text too long for the reader's counters (see StageLink and
//                   CleanLinkText), or more than 32,766 links;
//   EndOfFileFault  an anchor that is not closed;
//   ArgumentFault   an address without closing quotation mark.
std::vector<NewEntry> LinksOfPage(std::string_view page, LinkChoice choice);

// Stores a link as element `number` - 1; `number` counts from 1. The chunk is the text of an anchor from its
// address on: the address goes to the first quotation mark, the name's raw text begins behind the first ">"
// after that (without one it is the whole chunk). Throws ArgumentFault without a quotation mark,
// OverflowFault when it stands behind the 255th character, and what CleanLinkText throws; nothing is stored
// then.
void StageLink(std::vector<NewEntry>& staged, std::string_view chunk, std::int16_t number);

// Makes a site name of the raw text of a link: what stands between its last opening and its first closing
// tag, at most 55 characters of it. A text with a tag but no closing one becomes "ismeretlen". Throws
// OverflowFault when the first closing tag begins behind the 255th character.
void CleanLinkText(std::string_view& text);

}  // namespace lindrel
