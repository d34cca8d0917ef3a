// The export as a folder of Internet shortcut files.
#pragma once

#include <filesystem>

#include "book/Book.h"

namespace lindrel {

// Writes a file for each checked entry, in the place of one of that name, into a folder or into one folder
// for each category inside it (created when missing). The entries' names in the book become those of the
// files (intended; the book is not marked for that). Throws OverflowFault (see SafeFileName) before anything
// is written, and FileFault; the book is as it was then, files already written stay.
void saveTo_fav(Book& book, const std::filesystem::path& folder, bool folder_for_each_category);

}  // namespace lindrel
