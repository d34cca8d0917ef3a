// Export to Internet shortcut files.
#pragma once

#include "book/Book.h"
#include "files/Path.h"

namespace lindrel {

// Writes a file for each checked entry into a folder, or into a subfolder for each category (created if
// missing); files of the same names are overwritten. The entries take the names of their files, so that the
// book agrees with the folder. Throws FileFault: for a name that is too long for SafeFileName (an overflow)
// before anything is written, and for a file or folder that cannot be created. The book is unchanged then,
// but files already written stay.
void saveTo_fav(Book& book, const Path& folder, bool folder_for_each_category);

}  // namespace lindrel
