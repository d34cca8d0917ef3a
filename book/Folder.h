// Folders of the disk, whatever their paths look like.
#pragma once

#include <filesystem>
#include <vector>

namespace lindrel {

// A full path in a form that the system takes as it stands. Without it Windows reads no path of more than 259
// characters, drops dots and blanks at the end of a name, and finds devices such as "nul.url" in every
// folder. In the other direction, such a path is not for the user's eyes.
std::filesystem::path ExactPath(const std::filesystem::path& path);

// The same for paths that are too long otherwise; others stay as they are.
std::filesystem::path LongPath(const std::filesystem::path& path);

// The names of the files in a folder, without those of its subfolders, in any order. Empty if the folder
// cannot be opened. Throws FileFault if it cannot be read to its end: files may be missing then.
std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder);

bool FolderIsThere(const std::filesystem::path& folder);

// Creates a folder unless it is there. Throws FileFault.
void CreateFolder(const std::filesystem::path& folder);

}  // namespace lindrel
