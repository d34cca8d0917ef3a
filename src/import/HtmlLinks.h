// The links of a web page. This is not an HTML parser: it searches each line for anchors, from a href=" to
// </a. People import the same pages again and expect the same entries, so the odd results for unusual pages
// must stay as they are.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "book/Book.h"
#include "text/TextFile.h"

namespace lindrel {

enum class LinkChoice {
    Online,  // links with "://" in or after their third character
    All,
};

// The links of a page (without a BOM; lines end in CR LF, LF or CR) in their order. What is on the line where
// an anchor begins is turned into lower case; the lines after it keep their case. Characters that a book
// cannot hold are percent-encoded in an address and "?" in a name. Throws OverflowFault for more than 32,766
// links, EndOfFileFault for an anchor that is not closed, and what StageLink throws.
std::vector<NewEntry> LinksOfPage(std::string_view page, TextEncoding encoding, LinkChoice choice);

// Resizes `staged` to `number` (1-based) links and stores a link as the last one. The chunk is the text of an
// anchor from its address on: the address ends before the first quotation mark, and the text of the link
// begins after the next ">", or with the chunk if there is none. Throws RangeFault if `number` is less than
// 1, ArgumentFault if there is no quotation mark, OverflowFault if it is not among the first 255 characters,
// and what CleanLinkText throws; `staged` is unchanged then.
void StageLink(std::vector<NewEntry>& staged, const DecodedText& chunk, std::int16_t number);

// Turns the text of a link into a site name: the text between the first closing tag and the tag before it, or
// all of a text without tags, cut to 55 characters. A text with tags but no closing one becomes "ismeretlen"
// (unknown). Throws OverflowFault if the first closing tag does not begin within the first 255 characters;
// the text is unchanged then.
void CleanLinkText(std::string_view& text);

}  // namespace lindrel
