// The content and the names of Internet shortcut files (*.url).
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// The file for an address (book text): two lines, without a line break at the end.
std::string ShortcutFile(std::string_view url);

// Replaces each backslash, slash, colon and question mark by "_". Other characters that are invalid in file
// names stay: the file cannot be created then, and the user is told.
void MakeShortcutFileName(std::string& name);

// The same for the export of many entries. Throws OverflowFault when a character after the 255th would have
// to be replaced: users know the export to refuse such names.
void SafeFileName(std::string& name);

// The folder name for a category: "_" replaces every character that is invalid in folder names, and stands
// behind a full stop or a blank at the end and behind a name that Windows keeps for a device, such as NUL.
std::string SafeFolderName(std::string_view name);

// The folder for shortcuts on the desktop: that of the desktop in upper case, up to the first character from
// the sixth on that is neither a backslash nor a letter A to Z. This may cut the path short, but users'
// shortcuts have always been put there.
std::wstring DesktopPath(std::wstring_view folder);

}  // namespace lindrel
