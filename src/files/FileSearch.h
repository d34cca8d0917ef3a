// Finding files and folders by name, and sorting their names.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace lindrel {

// Calls the visitor for every match of a path with wildcards in its last part, "." and ".." included, in the
// order of the file system, until the visitor returns false. The path may be longer than 260 characters. A
// folder that cannot be opened has no matches. Returns false if the folder could not be read to its end.
bool VisitMatches(const std::wstring& pattern, const std::function<bool(const WIN32_FIND_DATAW&)>& visitor);

inline bool IsFolder(const WIN32_FIND_DATAW& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Sorts names by the rules of the user's language, ignoring case.
void SortNames(std::vector<std::wstring>& names);

}  // namespace lindrel
