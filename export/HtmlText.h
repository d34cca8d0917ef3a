// The text of an exported page: ISO 8859-2, with numeric references for other characters.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// Text between tags.
std::string HtmlText(std::wstring_view text);
std::string HtmlText(std::string_view book_text);

// An address as an attribute value without quotation marks: blanks and other characters that would end it
// become references.
std::string HtmlAddress(std::string_view book_text);

// HTML that is not escaped, only encoded like the page.
std::string HtmlFragment(std::string_view book_text);

}  // namespace lindrel
