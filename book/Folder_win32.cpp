#include <windows.h>

#include <memory>
#include <string>

#include "book/Faults.h"
#include "book/Folder.h"

namespace lindrel {

namespace {

struct CloseSearch {
    void operator()(HANDLE search) const noexcept { FindClose(search); }
};

}  // namespace

std::filesystem::path ExactPath(const std::filesystem::path& path) {
    const std::wstring plain = std::filesystem::path(path).make_preferred().native();
    if (plain.starts_with(LR"(\\?\)") || plain.starts_with(LR"(\\.\)")) return path;
    if (plain.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + plain.substr(2);
    const bool has_drive = plain.find(LR"(:\)") == 1;
    return has_drive ? std::filesystem::path(LR"(\\?\)" + plain) : path;
}

std::filesystem::path LongPath(const std::filesystem::path& path) {
    // A new folder must leave room for a short file name in it.
    constexpr std::size_t kShortName = 12;
    return path.native().size() < MAX_PATH - kShortName ? path : ExactPath(path);
}

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> names;
    WIN32_FIND_DATAW found{};
    const std::wstring pattern = (ExactPath(folder) / L"*").native();
    const HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    const std::unique_ptr<void, CloseSearch> owner(search);
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.emplace_back(found.cFileName);
    } while (FindNextFileW(search, &found));
    if (GetLastError() != ERROR_NO_MORE_FILES)
        throw FileFault(folder.native(), L"A mappa nem olvasható végig");
    return names;
}

bool FolderIsThere(const std::filesystem::path& folder) {
    const DWORD attributes = GetFileAttributesW(ExactPath(folder).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void CreateFolder(const std::filesystem::path& folder) {
    if (!CreateDirectoryW(LongPath(folder).c_str(), nullptr) && !FolderIsThere(folder))
        throw FileFault(folder.native(), L"A mappa nem hozható létre");
}

}  // namespace lindrel
