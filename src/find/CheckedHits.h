// The find dialog's command on checked hits.
#pragma once

#include <vector>

#include "book/Book.h"

namespace lindrel {

// Checks the entries at these indices of the book, which ascend, and no others. CheckedCount() becomes that
// of the shown category. Throws RangeFault, before anything changes, if the shown category is outside 1..12.
void CheckOnly(Book& book, const std::vector<int>& indices, int shown_category);

}  // namespace lindrel
