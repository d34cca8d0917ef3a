// Export to a text file: a header line for each category, and two lines for each entry.
#pragma once

#include <string>

#include "book/Book.h"

namespace lindrel {

struct TextList {
    std::string Text;  // Windows-1250 with CR LF
    // False if a category's name is longer than 120 characters. The text ends before that category.
    bool Complete = true;
};

// The checked entries.
TextList TextListOf(const Book& book);

}  // namespace lindrel
