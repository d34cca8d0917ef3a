// Reading and writing whole files.
//
// Errors are thrown as FileFault with the path and the system's reason. Paths may be longer than 260
// characters. While another program holds a file, opening and replacing it is tried for up to two seconds
// (kFilePatience). A device, such as "nul.lnd", is refused: whatever is written there vanishes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/Path.h"
#include "text/BookText.h"

namespace lindrel {

// The bytes of a file, which other programs may be writing.
std::vector<char> ReadFileBytes(const Path& path);

// Creates or overwrites a file. A fault may leave it empty or incomplete.
void WriteFileBytes(const Path& path, std::string_view bytes);

// Creates a file or replaces it in one step: writes a temporary file in the same folder, flushes it to the
// disk and renames it, so that there is always the old file or the whole new one. A fault leaves the old file
// unchanged and no temporary file.
//
// The new file takes over attributes and access list; of an encrypted file there is never a plain copy. Other
// names of the old file (hard links) keep the old content; a symbolic link stays, and its target is replaced.
// A folder, a read-only file or a link to nowhere is refused.
void ReplaceFileBytes(const Path& path, std::string_view bytes);

// Whether there is such a file. Folders and devices are none, and neither is a link to nowhere.
bool IsFile(const Path& path);

// The part of a path after its last backslash, or all of it, without blanks at its ends.
inline std::wstring FileNameOf(std::wstring_view path) {
    return std::wstring(Trim(path.substr(path.rfind(L'\\') + 1)));
}

}  // namespace lindrel
