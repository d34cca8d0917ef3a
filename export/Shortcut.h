// Internet shortcut files (*.url): their content and their names.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// The file for an address (book text): two lines, the second without a line end.
std::string ShortcutFile(std::string_view url);

// Puts "_" in the place of each backslash, slash, colon and question mark. Other characters that file names
// cannot hold are left alone (intended: such a file is then not created, and the user hears of it).
void MakeShortcutFileName(std::string& name);

// The same for the export of many entries; its counter of positions has 8 bits (intended): throws
// OverflowFault when a character to be replaced stands behind the 255th.
void SafeFileName(std::string& name);

// A category's name as a folder: "_" for every character that a folder name cannot hold, and for a full stop
// or a blank at its end.
std::string SafeFolderName(std::string_view name);

// The desktop's folder as the desktop command reads it, in upper case: up to the first character from the
// sixth on that is neither a backslash nor a letter A to Z (intended, also where that ends the path early).
std::wstring DesktopPath(std::wstring_view folder);

}  // namespace lindrel
