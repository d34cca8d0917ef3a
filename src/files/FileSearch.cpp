#include "files/FileSearch.h"

#include <algorithm>
#include <memory>

#include "files/Folder.h"

namespace lindrel {

namespace {

struct CloseSearch {
    void operator()(HANDLE search) const noexcept { FindClose(search); }
};

}  // namespace

void VisitMatches(const std::wstring& pattern, const std::function<bool(const WIN32_FIND_DATAW&)>& visitor) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(LongPath(pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    const std::unique_ptr<void, CloseSearch> owner(search);
    while (visitor(found) && FindNextFileW(search, &found)) {
    }
}

void SortNames(std::vector<std::wstring>& names) {
    std::sort(names.begin(), names.end(), [](const std::wstring& a, const std::wstring& b) {
        return lstrcmpiW(a.c_str(), b.c_str()) < 0;
    });
}

}  // namespace lindrel
