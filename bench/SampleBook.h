// The largest possible book, the same in every run: 32,767 entries with names of Hungarian words, in twelve
// categories or in the first few. Its file has 2.5 MB.
#pragma once

#include <filesystem>
#include <string>

#include "book/Book.h"
#include "book/PerCategory.h"

namespace lindrel::bench {

Book MakeLargestBook(int categories = kCategories);
// How many of its entries are in a category.
int EntriesOf(int category, int categories = kCategories);
// The bytes of the file of the book with twelve.
const std::string& LargestBookFile();

// A path in a temporary folder that is removed when the process ends.
std::filesystem::path TemporaryFile(const std::string& name);

}  // namespace lindrel::bench
