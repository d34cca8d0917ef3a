// Folders, and paths that the system takes as they are.
#pragma once

#include <vector>

#include "files/Path.h"

namespace lindrel {

// A full path with the prefix that makes Windows take it as it is: of any length, with dots and blanks at the
// end of a name, and with names such as "nul.url" that are devices otherwise. Users must not see such a path.
Path ExactPath(const Path& path);

// ExactPath() if Windows would refuse the path as too long, otherwise the path itself.
Path LongPath(const Path& path);

// The names of the files in a folder, in any order, without those of its subfolders. Empty if the folder
// cannot be opened. Throws FileFault if it cannot be read to its end.
std::vector<Path> FilesIn(const Path& folder);

bool FolderIsThere(const Path& folder);

// Creates a folder unless it exists. Throws FileFault.
void CreateFolder(const Path& folder);

}  // namespace lindrel
