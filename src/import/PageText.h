// Web pages as text.
#pragma once

#include <vector>

#include "text/TextFile.h"

namespace lindrel {

// The text of a page. Its encoding is a guess; the first that applies: a UTF-16 or UTF-8 mark, a declaration
// of UTF-8, content that is valid UTF-8 and not just ASCII, a declaration of ISO 8859-2; otherwise it is
// Windows-1250. A page without a mark that declares UTF-16 is in that if the declaration itself is, and says
// nothing otherwise. Declarations count in the first 4 KB, by any of the names that browsers know.
TextFile TextOfPage(std::vector<char> page);

}  // namespace lindrel
