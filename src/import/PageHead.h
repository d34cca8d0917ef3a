// What a web page says about itself.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// The charset that the first META tag with one declares, as browsers read it, or else the encoding of an XML
// declaration; in lower case, without blanks at its ends. Empty if there is none. Comments do not count.
std::string DeclaredCharset(std::string_view head);

}  // namespace lindrel
