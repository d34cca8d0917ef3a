#include "system/Shell.h"

#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <algorithm>
#include <vector>

#include "files/FileSearch.h"
#include "system/AddressKind.h"
#include "system/MsgBox.h"
#include "window/Control.h"

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
    // Of a folder that cannot be read to its end, what could be read.
    static_cast<void>(VisitMatches(pattern, [&](const WIN32_FIND_DATAW& found) {
        if (!IsFolder(found)) names.emplace_back(found.cFileName);
        return true;
    }));
    SortNames(names);
    return names;
}

bool FileIsThere(const std::wstring& path) {
    return !FilesMatching(path).empty();
}

namespace {

bool MayStartAProgram(const std::wstring& address) {
    switch (Classify(address)) {
        case AddressKind::Web:
            return false;
        case AddressKind::Document:
            break;
        case AddressKind::Unsure:
            return true;
    }
    const std::vector<std::wstring> extensions = ExtensionsOf(address);
    return std::any_of(extensions.begin(), extensions.end(), [](const std::wstring& extension) {
        return AssocIsDangerous(extension.c_str()) != FALSE;
    });
}

constexpr std::size_t kLine = 80;  // characters

// For a message box, which must fit on the screen: of a very long address only the beginning and the end,
// which tells what it opens.
std::wstring Shown(const std::wstring& address) {
    constexpr std::size_t kHalf = 10 * kLine;
    if (address.size() <= 2 * kHalf) return InLines(address, kLine);
    return InLines(address.substr(0, kHalf), kLine) + L"\r\n\u2026\r\n" +
           InLines(address.substr(address.size() - kHalf), kLine);
}

bool UserAgreesToOpen(HWND owner, const std::wstring& address) {
    const std::wstring question =
        L"Ez a cím programot is elindíthat:\r\n\r\n" + Shown(address) + L"\r\n\r\nBiztosan megnyitja?";
    return MsgBox(owner, question, MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) == IDYES;
}

}  // namespace

INT_PTR OpenAddress(HWND owner, const std::wstring& address) {
    if (MayStartAProgram(address) && !UserAgreesToOpen(owner, address)) return SE_ERR_ACCESSDENIED;
    return reinterpret_cast<INT_PTR>(
        ShellExecuteW(nullptr, nullptr, ForTheShell(address).c_str(), nullptr, nullptr, SW_SHOWNORMAL));
}

std::optional<std::wstring> ShellFolder(int csidl) {
    PIDLIST_ABSOLUTE folder = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &folder))) return std::nullopt;
    wchar_t path[MAX_PATH] = L"";
    const bool known = SHGetPathFromIDListW(folder, path) != FALSE;
    CoTaskMemFree(folder);
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
