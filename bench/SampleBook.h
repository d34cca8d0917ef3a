// The largest possible book, the same in every run: 32,767 entries in twelve categories, with names of
// Hungarian words. Its file has 2.5 MB.
#pragma once

#include <filesystem>
#include <string>

#include "book/Book.h"

namespace lindrel::bench {

Book MakeLargestBook();
// The bytes of its file.
const std::string& LargestBookFile();

// A path in a temporary folder that is removed when the process ends.
std::filesystem::path TemporaryFile(const std::string& name);

}  // namespace lindrel::bench
