// Text of an exported page: ISO 8859-2 bytes, with numeric references for the characters that this lacks.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// Text between tags.
std::string HtmlText(std::wstring_view text);
std::string HtmlText(std::string_view book_text);

// An address as the value of an attribute without quotation marks: blanks and whatever else would end it are
// references too.
std::string HtmlAddress(std::string_view book_text);

// HTML that passes through; only its characters are brought into the page's encoding.
std::string HtmlFragment(std::string_view book_text);

}  // namespace lindrel
