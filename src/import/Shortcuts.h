// Import of Internet shortcut files (*.url), this program's and others'.
#pragma once

#include <string>
#include <vector>

#include "book/Book.h"
#include "files/Path.h"

namespace lindrel {

// The address in a shortcut file: what follows the first "URL=" (in either case) on the second line,
// whichever section that line is in. Without "URL=" it is the line without its first three characters. The
// file may have any encoding that TextFileOf guesses; characters that a book cannot hold are percent-encoded.
// Throws EndOfFileFault if there are fewer than two lines, ArgumentFault if there are fewer than three
// characters on the second.
std::string ShortcutAddress(std::vector<char> file);

// The shortcut files of a folder as entries, sorted case-insensitively by name; empty if the folder cannot be
// opened. Site names are file names without ".url", with "?" for each character that a book cannot hold.
// Throws FileFault with the path of a file that cannot be read, for which ShortcutAddress throws, or that is
// the 256th, and with the path of a folder that cannot be read to its end.
std::vector<NewEntry> ShortcutsOfFolder(const Path& folder);

}  // namespace lindrel
