// Dialog fields for what is in a book.
#pragma once

#include "book/Book.h"
#include "controls/Control.h"
#include "controls/Dialog.h"

namespace lindrel {

// Whether a book can store the text of a text box. If not, tells the user which character it cannot store,
// and selects that character in the box.
bool FitsBook(const Dialog& dialog, int field_id);

// Fills a combo box with the names of the twelve categories and chooses one (1..12).
void FillWithCategories(const ComboBox& combo, const Book& book, int chosen);

}  // namespace lindrel
