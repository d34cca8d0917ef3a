// The links of a web page. This is not an HTML parser: it looks line by line for anchors, from a href=" to
// </a. Users import the same pages again and again and must get the same entries, so the odd results for
// unusual pages are kept as well.
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

// The links of a page (lines end in CR LF, LF or CR), in their order. Names and addresses are in lower case
// as far as they are on the line where the anchor begins, and unchanged on the lines after it. Characters
// that a book cannot hold are percent-encoded in an address and "?" in a name. Throws OverflowFault for an
// address or a text that is too long (see StageLink and CleanLinkText) and for more than 32,766 links,
// EndOfFileFault for an anchor that is not closed, and ArgumentFault for an address without a closing
// quotation mark.
std::vector<NewEntry> LinksOfPage(std::string_view page, TextEncoding encoding, LinkChoice choice);

// Stores the link with the 1-based `number` as the last one of `staged`. The chunk is the text of an anchor
// from its address on: the address ends at the first quotation mark, and the text of the link begins after
// the next ">". Throws ArgumentFault if there is no quotation mark, OverflowFault if it is not among the
// first 255 characters of the page's text, and what CleanLinkText throws; nothing is stored then.
void StageLink(std::vector<NewEntry>& staged, const DecodedText& chunk, std::int16_t number);

// Turns the text of a link into a site name: what is between the last opening and the first closing tag, cut
// to 55 characters. A text that has a tag but no closing one becomes "ismeretlen". Throws OverflowFault if
// the first closing tag does not begin among the first 255 characters.
void CleanLinkText(std::string_view& text);

}  // namespace lindrel
