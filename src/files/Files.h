// Reading and writing whole files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/Path.h"

namespace lindrel {

// The bytes of a file. Throws FileFault.
std::vector<char> ReadFileBytes(const Path& path);

// Creates or overwrites a file. Throws FileFault and may leave an incomplete file.
void WriteFileBytes(const Path& path, std::string_view bytes);

// Creates a file or replaces it in one step: writes a temporary file next to it, flushes that to the disk and
// renames it. Never replaces a read-only file. Throws FileFault and leaves the old file unchanged and no
// temporary file.
void ReplaceFileBytes(const Path& path, std::string_view bytes);

// The part of a path after its last backslash (or all of it), without blanks at its ends.
std::wstring FileNameOf(std::wstring_view path);

}  // namespace lindrel
