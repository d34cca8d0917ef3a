#include "files/Folder.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "faults/Faults.h"
#include "files/FileSearch.h"

namespace lindrel {

Path ExactPath(const Path& path) {
    std::wstring plain = path;
    std::replace(plain.begin(), plain.end(), L'/', L'\\');
    if (plain.starts_with(LR"(\\?\)") || plain.starts_with(LR"(\\.\)")) return path;
    if (plain.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + plain.substr(2);
    const bool has_drive = plain.find(LR"(:\)") == 1;
    return has_drive ? LR"(\\?\)" + plain : path;
}

Path LongPath(const Path& path) {
    // Without the prefix, Windows creates a folder only if an 8.3 file name still fits after its path.
    constexpr std::size_t kShortName = 12;
    return path.size() < MAX_PATH - kShortName ? path : ExactPath(path);
}

std::vector<Path> FilesIn(const Path& folder) {
    std::vector<Path> names;
    const bool complete = VisitMatches(Joined(ExactPath(folder), L"*"), [&](const WIN32_FIND_DATAW& found) {
        if (!IsFolder(found)) names.emplace_back(found.cFileName);
        return true;
    });
    if (!complete) throw FileFault(folder, L"A mappa nem olvasható végig");
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
