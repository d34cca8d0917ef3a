// Files, folders and addresses, as the file system and the shell know them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// The folder of the running program, without a backslash at the end.
std::wstring ProgramFolder();

// Whether there is a file of this path, which may hold wildcards. Folders do not count.
bool FileIsThere(const std::wstring& path);

// Names of the files that match a path with wildcards in its last part, sorted as the user sorts names.
std::vector<std::wstring> FilesMatching(const std::wstring& pattern);

// Opens an address with the program that is registered for it. For an address that may start a program
// (system/AddressKind.h) it asks the user first, and returns SE_ERR_ACCESSDENIED if the user refuses. The
// result is ShellExecute's: above 32 means success. Shows no message if it fails.
INT_PTR OpenAddress(HWND owner, const std::wstring& address);

// The path of one of the shell's folders (a CSIDL_ value), or nullopt if the shell has no such folder.
std::optional<std::wstring> ShellFolder(int csidl);

// The folder of the user's favourites; the Windows folder if the shell has none.
std::wstring FavoritesPath();

}  // namespace lindrel
