// Conversion of web pages to book text.
#pragma once

#include <string_view>
#include <vector>

namespace lindrel {

enum class PageEncoding { Utf8, Latin2, Windows1250 };

// Guesses the encoding of a page. The first that applies: a UTF-8 mark, a declaration of UTF-8, content that
// is valid UTF-8 and not just ASCII, a declaration of ISO 8859-2; otherwise it is Windows-1250. Declarations
// are the charset of a META tag and the encoding of an XML declaration in the first 4 KB.
PageEncoding EncodingOfPage(std::string_view page);

// A page as book text, without the mark. Each character that a book cannot hold becomes a "?", and so does
// each byte that is not UTF-8 in a UTF-8 page.
std::vector<char> BookTextOfPage(std::vector<char> page);

}  // namespace lindrel
