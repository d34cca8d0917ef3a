// Folders of the disk, whatever their paths look like.
#pragma once

#include <vector>

#include "files/Path.h"

namespace lindrel {

// A full path in a form that the system takes as it stands. Without it Windows reads no path of more than 259
// characters, drops dots and blanks at the end of a name, and finds devices such as "nul.url" in every
// folder. In the other direction, such a path is not for the user's eyes.
Path ExactPath(const Path& path);

// The same for paths that are too long otherwise; others stay as they are.
Path LongPath(const Path& path);

// The names of the files in a folder, without those of its subfolders, in any order. Empty if the folder
// cannot be opened. Throws FileFault if it cannot be read to its end: files may be missing then.
std::vector<Path> FilesIn(const Path& folder);

bool FolderIsThere(const Path& folder);

// Creates a folder unless it is there. Throws FileFault.
void CreateFolder(const Path& folder);

}  // namespace lindrel
