// The text of an exported page: ISO 8859-2, with numeric references for other characters.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// Text between tags. The replacement character U+FFFD stands for an unpaired surrogate.
std::string HtmlText(std::wstring_view text);
std::string HtmlText(std::string_view book_text);

// An address as an attribute value without quotation marks: whatever would end it becomes a reference. In the
// query, characters beyond ASCII are percent-encoded as UTF-8, as servers expect: browsers would send them in
// the encoding of the page.
std::string HtmlAddress(std::string_view book_text);

// HTML, which is only encoded, not escaped.
std::string HtmlFragment(std::string_view book_text);

}  // namespace lindrel
