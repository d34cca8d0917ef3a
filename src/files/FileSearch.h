// Looking for files and folders by name, and their names in order.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// Hands what a path with wildcards in its last part finds, "." and ".." too, to a visitor until that returns
// false. The path may be longer than 260 characters. The order is the file system's. What cannot be read has
// nothing in it.
void VisitMatches(const std::wstring& pattern, const std::function<bool(const WIN32_FIND_DATAW&)>& visitor);

inline bool IsFolder(const WIN32_FIND_DATAW& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Sorts names as the user does: by the rules of the user's language, without regard to case.
void SortNames(std::vector<std::wstring>& names);

}  // namespace lindrel
