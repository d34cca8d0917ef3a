// The content and the names of Internet shortcut files (*.url). Names and addresses are book text.
#pragma once

#include <string>
#include <string_view>

namespace lindrel {

// The content of the file for an address: two lines, without a line break at the end.
std::string ShortcutFile(std::string_view url);

// Replaces each backslash, slash, colon and question mark by "_". Other characters that file names cannot
// contain stay, and creating the file fails.
void MakeShortcutFileName(std::string& name);

// The same for the export of many entries, which has always refused some long names: throws OverflowFault if
// a character after the 255th would have to be replaced.
void SafeFileName(std::string& name);

// The folder name for a category: each character that folder names cannot contain becomes "_". A "_" is also
// added after a full stop or a blank at the end, and after the name of a device, such as NUL.
std::string SafeFolderName(std::string_view name);

// The folder in which shortcuts are put on the desktop, from the path of the desktop: in upper case, and cut
// off at the first character after the fifth that is neither a backslash nor a letter A to Z. So it has
// always been, even if it is not the desktop.
std::wstring DesktopPath(std::wstring_view folder);

}  // namespace lindrel
