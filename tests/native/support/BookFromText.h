// Reads a book from the text of its file.
#pragma once

#include <string>

#include "book/BookFile.h"

namespace lindrel::testing {

inline BookFromFile Read(const std::string& file, const Book& open = Book()) {
    return ReadBook(open, {file.begin(), file.end()});
}

}  // namespace lindrel::testing
