// Internet shortcut files (*.url) that are read: those of this program's own export, and others as far as
// they are like them.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "book/Book.h"

namespace lindrel {

// The address in a shortcut file, its bytes as they stand, taken for book text: what is behind the first
// "URL=" (in either case) of its second line, whatever section that is in. A second line without one loses
// its first three characters, and the rest is the address. Lines end in CR LF, LF or CR. Throws
// EndOfFileFault for a file of fewer than two lines, ArgumentFault for a second line of fewer than three
// characters.
std::string_view ShortcutAddress(std::string_view file);

// The shortcut files of a folder, ordered by name with letter case aside, as entries: the file's name without
// its last four characters, in book text (Windows-1250) with "?" for each character that a book cannot hold,
// and its address. Empty when there are none, and for a folder that cannot be listed. Throws what
// ShortcutAddress throws, FileFault for a file that cannot be read and for a folder whose listing breaks off,
// and OverflowFault for more than 255 files.
std::vector<NewEntry> ShortcutsOfFolder(const std::filesystem::path& folder);

}  // namespace lindrel
