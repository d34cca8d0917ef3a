// The encoding of web pages.
#pragma once

#include <vector>

#include "text/TextFile.h"

namespace lindrel {

// The text of a page in the first encoding that applies:
// - UTF-16, after its BOM or because the page declares it in UTF-16;
// - UTF-8, after its BOM, because the page declares it, or because the bytes are valid and not just ASCII;
// - ISO 8859-2, because the page declares it;
// - Windows-1250.
// A page declares its encoding, as browsers read it, in the first META tag with a charset or else in an XML
// declaration, in the first 4096 characters and by any of the names that browsers know. Comments do not
// count.
TextFile TextOfPage(std::vector<char> page);

}  // namespace lindrel
