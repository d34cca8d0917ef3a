// Export to a text file: a header line for each category, and two lines for each entry.
#pragma once

#include "book/Book.h"
#include "files/OutputFile.h"

namespace lindrel {

// Writes the checked entries in Windows-1250 with CR LF. Throws ArgumentFault at a category whose name is
// longer than 120 characters; the categories before it have been written then.
void WriteTextList(const Book& book, const ByteSink& out);

}  // namespace lindrel
