// What the find dialog does with the hits that the user has checked. Hits are named by their indices in the
// book, in ascending order.
#pragma once

#include <vector>

#include "book/Book.h"

namespace lindrel {

// Removes the entries, the last one first, so that the indices of the others hold until their turn.
void DeleteEntries(Book& book, const std::vector<int>& indices);

// Makes the entries the checked ones of the whole book; no other check mark stays. CheckedCount becomes that
// of the shown category.
void CheckOnly(Book& book, const std::vector<int>& indices, int shown_category);

}  // namespace lindrel
