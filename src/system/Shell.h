// Files, folders and addresses, as the file system and the shell know them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel {

// The folder of the running program, without a backslash at its end.
std::wstring ProgramFolder();

// Whether there is a file of this path, which may hold wildcards. Folders do not count.
bool FileIsThere(const std::wstring& path);

// Names of the files that match a path with wildcards in its last part, sorted as the user sorts names.
std::vector<std::wstring> FilesMatching(const std::wstring& pattern);

// Opens an address with the program that is registered for it. One that may start a program
// (system/AddressKind.h) is opened only after the user has agreed, and refused with SE_ERR_ACCESSDENIED
// otherwise. The result is ShellExecute's: above 32 means success. Shows nothing when it fails.
INT_PTR OpenAddress(HWND owner, const std::wstring& address);

// Path of one of the shell's folders (a CSIDL_ value), or nothing when the shell has none.
std::optional<std::wstring> ShellFolder(int csidl);

// The folder of the user's favourites; the Windows folder when the shell has none.
std::wstring FavoritesPath();

}  // namespace lindrel
