// Whole files in and out.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lindrel {

// All bytes of a file. Throws FileFault.
std::vector<char> ReadFileBytes(const std::filesystem::path& path);

// Creates or overwrites a file. Throws FileFault; a partly written file may stay.
void WriteFileBytes(const std::filesystem::path& path, std::string_view bytes);

// Puts a new file in the place of an old one in one step: written beside it, flushed to the disk, then
// renamed. Throws FileFault with the system's reason (a read-only file is never replaced); then the old file
// is as it was and no temporary file is left.
void ReplaceFileBytes(const std::filesystem::path& path, std::string_view bytes);

// The part of a path after its last backslash, without blanks at its ends; without a backslash the whole
// path.
std::wstring FileNameOf(std::wstring_view path);

}  // namespace lindrel
