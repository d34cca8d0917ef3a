#include "files/FileSearch.h"

#include <algorithm>

#include "files/Folder.h"
#include "files/SystemHandle.h"

namespace lindrel {

bool VisitMatches(const std::wstring& pattern, const std::function<bool(const WIN32_FIND_DATAW&)>& visitor) {
    WIN32_FIND_DATAW found{};
    const SystemHandle search(FindFirstFileW(LongPath(pattern).c_str(), &found), &FindClose);
    if (!search.IsOpen()) return true;
    do {
        if (!visitor(found)) return true;
    } while (FindNextFileW(search.Get(), &found));
    return GetLastError() == ERROR_NO_MORE_FILES;
}

void SortNames(std::vector<std::wstring>& names) {
    std::sort(names.begin(), names.end(), [](const std::wstring& a, const std::wstring& b) {
        return lstrcmpiW(a.c_str(), b.c_str()) < 0;
    });
}

}  // namespace lindrel
