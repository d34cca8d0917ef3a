// The find dialog's commands on checked hits. Hits are given by their indices in the book, in ascending
// order.
#pragma once

#include <vector>

#include "book/Book.h"

namespace lindrel {

// Removes the entries.
void DeleteEntries(Book& book, const std::vector<int>& indices);

// Checks these entries in the whole book and no others. CheckedCount() becomes that of the shown category.
void CheckOnly(Book& book, const std::vector<int>& indices, int shown_category);

}  // namespace lindrel
