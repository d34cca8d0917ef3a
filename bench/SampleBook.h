// The largest book that there can be, made up the same way on every run: 32,767 entries in twelve categories,
// names of Hungarian words, 2.5 MB as a file.
#pragma once

#include <filesystem>
#include <string>

#include "book/Book.h"

namespace lindrel::bench {

Book MakeLargestBook();
// The bytes of its file.
const std::string& LargestBookFile();

// A file in a folder of this process's own, removed at the end of the process.
std::filesystem::path TemporaryFile(const std::string& name);

}  // namespace lindrel::bench
