// Export to Internet shortcut files.
#pragma once

#include "book/Book.h"
#include "files/Path.h"

namespace lindrel {

// Writes a file for each checked entry into a folder, or into one subfolder for each category, which is
// created if missing. Existing files are overwritten. The entries are renamed to the names of their files.
//
// Throws FileFault if SafeFileName() refuses a name, before anything is written, or if a file or folder
// cannot be created. The book is unchanged then; files already written stay.
void saveTo_fav(Book& book, const Path& folder, bool folder_for_each_category);

}  // namespace lindrel
