#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>

#include "faults/Faults.h"
#include "files/Folder.h"

namespace lindrel {

namespace {

struct CloseSearch {
    void operator()(HANDLE search) const noexcept { FindClose(search); }
};

}  // namespace

Path ExactPath(const Path& path) {
    std::wstring plain = path;
    std::replace(plain.begin(), plain.end(), L'/', L'\\');
    if (plain.starts_with(LR"(\\?\)") || plain.starts_with(LR"(\\.\)")) return path;
    if (plain.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + plain.substr(2);
    const bool has_drive = plain.find(LR"(:\)") == 1;
    return has_drive ? LR"(\\?\)" + plain : path;
}

Path LongPath(const Path& path) {
    // A new folder must leave room for a short file name in it.
    constexpr std::size_t kShortName = 12;
    return path.size() < MAX_PATH - kShortName ? path : ExactPath(path);
}

std::vector<Path> FilesIn(const Path& folder) {
    std::vector<Path> names;
    WIN32_FIND_DATAW found{};
    const std::wstring pattern = Joined(ExactPath(folder), L"*");
    const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    const std::unique_ptr<void, CloseSearch> owner(search);
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.emplace_back(found.cFileName);
    } while (FindNextFileW(search, &found));
    if (GetLastError() != ERROR_NO_MORE_FILES) throw FileFault(folder, L"A mappa nem olvasható végig");
    return names;
}

bool FolderIsThere(const Path& folder) {
    const DWORD attributes = GetFileAttributesW(ExactPath(folder).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void CreateFolder(const Path& folder) {
    if (!CreateDirectoryW(LongPath(folder).c_str(), nullptr) && !FolderIsThere(folder))
        throw FileFault(folder, L"A mappa nem hozható létre");
}

}  // namespace lindrel
