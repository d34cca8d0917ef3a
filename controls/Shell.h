// What the program asks of the shell and the file system by path.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/Windows.h"

namespace lindrel {

// The folder of the running program, without a backslash at its end.
std::wstring ProgramFolder();

// Whether a look-up of the path finds a file. The path may hold wildcards: any match counts. Folders do not.
bool FileIsThere(const std::wstring& path);

// Names of the files that match a path with wildcards in its last part, sorted as the user sorts names.
std::vector<std::wstring> FilesMatching(const std::wstring& pattern);

// Like FileIsThere, but tells the user when there is none ("A megadott fájl nem létezik").
bool FileExists(HWND owner, const std::wstring& path);

// Hands an address to the program that the shell has for it. The result is the shell's; above 32 means
// success. Nothing is shown when it fails.
INT_PTR OpenAddress(const std::wstring& address);

// Path of one of the shell's folders (a CSIDL_ value), or nothing when the shell has none.
std::optional<std::wstring> ShellFolder(int csidl);

// The folder of the user's favourites; the Windows folder when the shell has none.
std::wstring FavoritesPath();

}  // namespace lindrel
