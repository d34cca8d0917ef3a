// Import of Internet shortcut files (*.url), those of this program and similar ones.
#pragma once

#include <string>
#include <vector>

#include "book/Book.h"
#include "files/Path.h"

namespace lindrel {

// The address in a shortcut file: what follows the first "URL=" (in either case) on the second line, in
// whichever section that is. If there is no "URL=", the first three characters of the line are dropped
// instead. Lines end in CR LF, LF or CR. The file is read as TextFileOf does, and characters that a book
// cannot hold are percent-encoded. Throws EndOfFileFault for a file of fewer than two lines, ArgumentFault
// for a second line of fewer than three characters.
std::string ShortcutAddress(std::vector<char> file);

// The shortcut files of a folder as entries, sorted case-insensitively by name. Site names are file names
// without their last four characters, with "?" for each character that a book cannot hold. Empty if there are
// none or if the folder cannot be opened. Throws FileFault: for a file that cannot be read, for what
// ShortcutAddress throws, for the 256th file (an overflow), and for a folder that cannot be read to its end.
std::vector<NewEntry> ShortcutsOfFolder(const Path& folder);

}  // namespace lindrel
