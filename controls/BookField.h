// Fields of dialogs that show or change something of a book.
#pragma once

#include "book/Book.h"
#include "controls/Control.h"
#include "controls/Dialog.h"

namespace lindrel {

// Whether a book can hold the text of a text box. If not, tells which character is in the way, and puts the
// focus in the box with that character selected.
bool FitsBook(const Dialog& dialog, int field_id);

// Fills a combo box with the names of the twelve categories and chooses one (1..12).
void FillWithCategories(const ComboBox& combo, const Book& book, int chosen);

}  // namespace lindrel
