// The text of an exported page: ISO 8859-2, with numeric references for other characters. Each function
// appends to the page and returns it.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// Text between tags.
std::string& AppendHtmlText(std::string& page, std::wstring_view text);
std::string& AppendHtmlText(std::string& page, std::string_view book_text);

// An address as an attribute value without quotation marks: blanks and other characters that would end it
// become references. In its query characters beyond ASCII are percent-encoded as UTF-8, which is what servers
// expect: browsers would send them in the encoding of the page.
std::string& AppendHtmlAddress(std::string& page, std::string_view book_text);

// HTML that is not escaped, only encoded like the page.
std::string& AppendHtmlFragment(std::string& page, std::string_view book_text);

}  // namespace lindrel
