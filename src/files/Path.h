// Paths of files and folders. On Windows they are plain strings: std::filesystem brings in the tables of all
// locales, which are as large as the program itself.
#pragma once

#ifndef _WIN32
#include <filesystem>
#endif
#include <string>
#include <string_view>

namespace lindrel {

#ifdef _WIN32
using Path = std::wstring;
#else
using Path = std::filesystem::path;
#endif

// A path as text for the user, and a text as a path.
std::wstring WideText(const Path& path);
Path PathFrom(std::wstring_view text);

// The path of a file or folder in a folder.
Path Joined(const Path& folder, const Path& name);

}  // namespace lindrel
