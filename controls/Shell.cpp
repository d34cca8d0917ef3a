#include "controls/Shell.h"

#include <shellapi.h>
#include <shlobj.h>

#include <vector>

#include "controls/FileSearch.h"
#include "controls/MsgBox.h"

namespace lindrel {

std::wstring ProgramFolder() {
    std::vector<wchar_t> path(MAX_PATH);
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    const std::wstring full(path.data(), length);
    return full.substr(0, full.rfind(L'\\'));
}

std::vector<std::wstring> FilesMatching(const std::wstring& pattern) {
    std::vector<std::wstring> names;
    VisitMatches(pattern, [&](const WIN32_FIND_DATAW& found) {
        if (!IsFolder(found)) names.emplace_back(found.cFileName);
        return true;
    });
    SortNames(names);
    return names;
}

bool FileIsThere(const std::wstring& path) {
    return !FilesMatching(path).empty();
}

bool FileExists(HWND owner, const std::wstring& path) {
    if (FileIsThere(path)) return true;
    MsgBox(owner, L"A megadott fájl nem létezik", MB_OK, kErrorTitle);
    return false;
}

INT_PTR OpenAddress(const std::wstring& address) {
    return reinterpret_cast<INT_PTR>(
        ShellExecuteW(nullptr, nullptr, address.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
}

std::optional<std::wstring> ShellFolder(int csidl) {
    PIDLIST_ABSOLUTE place = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &place))) return std::nullopt;
    wchar_t path[MAX_PATH] = L"";
    const bool known = SHGetPathFromIDListW(place, path) != FALSE;
    CoTaskMemFree(place);
    if (!known) return std::nullopt;
    return path;
}

std::wstring FavoritesPath() {
    if (const std::optional<std::wstring> favorites = ShellFolder(CSIDL_FAVORITES)) return *favorites;
    wchar_t path[MAX_PATH] = L"";
    const UINT length = GetWindowsDirectoryW(path, MAX_PATH);
    return length < MAX_PATH ? std::wstring(path, length) : std::wstring();
}

}  // namespace lindrel
