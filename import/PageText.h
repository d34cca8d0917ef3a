// The text of a web page: book text of bytes in whatever encoding the page is in.
#pragma once

#include <string_view>
#include <vector>

namespace lindrel {

enum class PageEncoding { Utf8, Latin2, Windows1250 };

// The encoding of a page, by what is surest first: a UTF-8 mark at its start, a declared UTF-8, bytes that
// are valid UTF-8 and not all ASCII, a declared ISO 8859-2; anything else is Windows-1250. A declaration is
// looked for in the first 4 KB: a META tag's charset or an XML declaration's encoding.
PageEncoding EncodingOfPage(std::string_view page);

// Book text of a page, without the mark. Characters that a book cannot hold, and bytes that are no UTF-8 in a
// page that is, become "?" one by one.
std::vector<char> BookTextOfPage(std::vector<char> page);

}  // namespace lindrel
